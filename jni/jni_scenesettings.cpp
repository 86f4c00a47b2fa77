#include "graphics3d/canvas/irenderercanvas.h"
#include "graphics3d/canvas/scenesettings.h"
#include "jni/support/native.h"

#include <string>

#include "com_vexane_graphics3d_SceneSettings.h"

using namespace vxgraphics3d;

namespace {

FontSetting& fontOf(JNIEnv* env, jobject self, jint item)
{
    return peer<SceneSettings>(env, self).font(static_cast<SceneSettings::TextItem>(item));
}

} // namespace

VX_NATIVE(void, SceneSettings, connectNative)(JNIEnv* env, jclass, jobject self, jobject renderer)
{
    native(env, "connectNative",
           [&] { attach(env, self, anyPeer<IRendererCanvas>(env, renderer, "renderer").getSceneSettings()); });
}

VX_NATIVE(void, SceneSettings, cleanupNative)(JNIEnv* env, jclass, jobject self)
{
    native(env, "cleanupNative", [&] { release(env, self); });
}

VX_NATIVE(jboolean, SceneSettings, isLegendsShown)(JNIEnv* env, jclass, jobject self)
{
    return native(env, "isLegendsShown", [&] { return toJava(peer<SceneSettings>(env, self).isLegendsShown()); });
}

VX_NATIVE(void, SceneSettings, setShowLegends)(JNIEnv* env, jclass, jobject self, jboolean show)
{
    native(env, "setShowLegends", [&] { peer<SceneSettings>(env, self).setShowLegends(show); });
}

VX_NATIVE(jboolean, SceneSettings, isMinMaxShown)(JNIEnv* env, jclass, jobject self)
{
    return native(env, "isMinMaxShown", [&] { return toJava(peer<SceneSettings>(env, self).isMinMaxShown()); });
}

VX_NATIVE(void, SceneSettings, setShowMinMax)(JNIEnv* env, jclass, jobject self, jboolean show)
{
    native(env, "setShowMinMax", [&] { peer<SceneSettings>(env, self).setShowMinMax(show); });
}

VX_NATIVE(jboolean, SceneSettings, isTitleShown)(JNIEnv* env, jclass, jobject self)
{
    return native(env, "isTitleShown", [&] { return toJava(peer<SceneSettings>(env, self).isTitleShown()); });
}

VX_NATIVE(void, SceneSettings, setShowTitle)(JNIEnv* env, jclass, jobject self, jboolean show)
{
    native(env, "setShowTitle", [&] { peer<SceneSettings>(env, self).setShowTitle(show); });
}

VX_NATIVE(jboolean, SceneSettings, isLabelsShown)(JNIEnv* env, jclass, jobject self)
{
    return native(env, "isLabelsShown", [&] { return toJava(peer<SceneSettings>(env, self).isLabelsShown()); });
}

VX_NATIVE(void, SceneSettings, setShowLabels)(JNIEnv* env, jclass, jobject self, jboolean show)
{
    native(env, "setShowLabels", [&] { peer<SceneSettings>(env, self).setShowLabels(show); });
}

VX_NATIVE(jboolean, SceneSettings, isPhysicsMarkersShown)(JNIEnv* env, jclass, jobject self)
{
    return native(env, "isPhysicsMarkersShown",
                  [&] { return toJava(peer<SceneSettings>(env, self).isPhysicsMarkersShown()); });
}

VX_NATIVE(void, SceneSettings, setShowPhysicsMarkers)(JNIEnv* env, jclass, jobject self, jboolean show)
{
    native(env, "setShowPhysicsMarkers", [&] { peer<SceneSettings>(env, self).setShowPhysicsMarkers(show); });
}

VX_NATIVE(jboolean, SceneSettings, isLineDirectionsShown)(JNIEnv* env, jclass, jobject self)
{
    return native(env, "isLineDirectionsShown",
                  [&] { return toJava(peer<SceneSettings>(env, self).isLineDirectionsShown()); });
}

VX_NATIVE(void, SceneSettings, setShowLineDirections)(JNIEnv* env, jclass, jobject self, jboolean show)
{
    native(env, "setShowLineDirections", [&] { peer<SceneSettings>(env, self).setShowLineDirections(show); });
}

VX_NATIVE(jfloat, SceneSettings, getGlobalOpacity)(JNIEnv* env, jclass, jobject self)
{
    return native(env, "getGlobalOpacity", [&] { return peer<SceneSettings>(env, self).getGlobalOpacity(); });
}

VX_NATIVE(void, SceneSettings, setGlobalOpacity)(JNIEnv* env, jclass, jobject self, jfloat opacity)
{
    native(env, "setGlobalOpacity", [&] { peer<SceneSettings>(env, self).setGlobalOpacity(opacity); });
}

VX_NATIVE(jboolean, SceneSettings, isGlobalOpaque)(JNIEnv* env, jclass, jobject self)
{
    return native(env, "isGlobalOpaque", [&] { return toJava(peer<SceneSettings>(env, self).isGlobalOpaque()); });
}

VX_NATIVE(jstring, SceneSettings, getFontName)(JNIEnv* env, jclass, jobject self, jint item)
{
    return native(env, "getFontName", [&] { return toJavaNew(env, fontOf(env, self, item).getName()); });
}

VX_NATIVE(jint, SceneSettings, getFontSize)(JNIEnv* env, jclass, jobject self, jint item)
{
    return native(env, "getFontSize", [&] { return fontOf(env, self, item).getSize(); });
}

VX_NATIVE(void, SceneSettings, setFont)(JNIEnv* env, jclass, jobject self, jint item, jstring name, jint size)
{
    native(env, "setFont", [&] { fontOf(env, self, item).setFont(fromJava<std::string>(env, name), size); });
}
