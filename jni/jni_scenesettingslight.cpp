#include "graphics3d/canvas/scenesettings.h"
#include "graphics3d/lights/scenesettingslight.h"
#include "jni/support/native.h"

#include "com_vexane_graphics3d_SceneSettingsLight.h"

using namespace vxgraphics3d;

VX_NATIVE(void, SceneSettingsLight, connectNative)(JNIEnv* env, jclass, jobject self, jobject owner)
{
    native(env, "connectNative", [&] { attach(env, self, peer<SceneSettings>(env, owner, "owner").getLight()); });
}

VX_NATIVE(void, SceneSettingsLight, cleanupNative)(JNIEnv* env, jclass, jobject self)
{
    native(env, "cleanupNative", [&] { release(env, self); });
}

VX_NATIVE(jboolean, SceneSettingsLight, isLightUsed)(JNIEnv* env, jclass, jobject self)
{
    return native(env, "isLightUsed", [&] { return toJava(peer<SceneSettingsLight>(env, self).isLightUsed()); });
}

VX_NATIVE(void, SceneSettingsLight, setUseLight)(JNIEnv* env, jclass, jobject self, jboolean on)
{
    native(env, "setUseLight", [&] { peer<SceneSettingsLight>(env, self).setUseLight(on); });
}

VX_NATIVE(jboolean, SceneSettingsLight, isGlobalAmbientLight)(JNIEnv* env, jclass, jobject self)
{
    return native(env, "isGlobalAmbientLight",
                  [&] { return toJava(peer<SceneSettingsLight>(env, self).isGlobalAmbientLight()); });
}

VX_NATIVE(void, SceneSettingsLight, setGlobalAmbientLight)(JNIEnv* env, jclass, jobject self, jboolean on)
{
    native(env, "setGlobalAmbientLight", [&] { peer<SceneSettingsLight>(env, self).setGlobalAmbientLight(on); });
}

VX_NATIVE(jboolean, SceneSettingsLight, isAmbientLight)(JNIEnv* env, jclass, jobject self)
{
    return native(env, "isAmbientLight", [&] { return toJava(peer<SceneSettingsLight>(env, self).isAmbientLight()); });
}

VX_NATIVE(void, SceneSettingsLight, setAmbientLight)(JNIEnv* env, jclass, jobject self, jboolean on)
{
    native(env, "setAmbientLight", [&] { peer<SceneSettingsLight>(env, self).setAmbientLight(on); });
}

VX_NATIVE(jboolean, SceneSettingsLight, isDiffuseLight)(JNIEnv* env, jclass, jobject self)
{
    return native(env, "isDiffuseLight", [&] { return toJava(peer<SceneSettingsLight>(env, self).isDiffuseLight()); });
}

VX_NATIVE(void, SceneSettingsLight, setDiffuseLight)(JNIEnv* env, jclass, jobject self, jboolean on)
{
    native(env, "setDiffuseLight", [&] { peer<SceneSettingsLight>(env, self).setDiffuseLight(on); });
}

VX_NATIVE(jboolean, SceneSettingsLight, isSpecularLight)(JNIEnv* env, jclass, jobject self)
{
    return native(env, "isSpecularLight",
                  [&] { return toJava(peer<SceneSettingsLight>(env, self).isSpecularLight()); });
}

VX_NATIVE(void, SceneSettingsLight, setSpecularLight)(JNIEnv* env, jclass, jobject self, jboolean on)
{
    native(env, "setSpecularLight", [&] { peer<SceneSettingsLight>(env, self).setSpecularLight(on); });
}

VX_NATIVE(void, SceneSettingsLight, setRenderLightMarkers)(JNIEnv* env, jclass, jobject self, jboolean on)
{
    native(env, "setRenderLightMarkers", [&] { peer<SceneSettingsLight>(env, self).setRenderLightMarkers(on); });
}
