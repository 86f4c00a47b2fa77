#include "graphics3d/canvas/hardcopysettings.h"
#include "jni/support/native.h"

#include <boost/make_shared.hpp>

#include "com_vexane_graphics3d_HardcopySettings.h"

using namespace vxgraphics3d;

VX_NATIVE(void, HardcopySettings, createNative)(JNIEnv* env, jclass, jobject self)
{
    native(env, "createNative", [&] { attach(env, self, boost::make_shared<HardcopySettings>()); });
}

VX_NATIVE(void, HardcopySettings, cleanupNative)(JNIEnv* env, jclass, jobject self)
{
    native(env, "cleanupNative", [&] { release(env, self); });
}

VX_NATIVE(void, HardcopySettings, setFileTitle)(JNIEnv* env, jclass, jobject self, jstring title)
{
    native(env, "setFileTitle",
           [&] { peer<HardcopySettings>(env, self).setFileTitle(fromJava<std::string>(env, title)); });
}

VX_NATIVE(void, HardcopySettings, setFileCreator)(JNIEnv* env, jclass, jobject self, jstring creator)
{
    native(env, "setFileCreator",
           [&] { peer<HardcopySettings>(env, self).setFileCreator(fromJava<std::string>(env, creator)); });
}

VX_NATIVE(jstring, HardcopySettings, getFileTitle)(JNIEnv* env, jclass, jobject self)
{
    return native(env, "getFileTitle",
                  [&] { return toJavaNew(env, peer<HardcopySettings>(env, self).getFileTitle()); });
}

VX_NATIVE(jstring, HardcopySettings, getFileCreator)(JNIEnv* env, jclass, jobject self)
{
    return native(env, "getFileCreator",
                  [&] { return toJavaNew(env, peer<HardcopySettings>(env, self).getFileCreator()); });
}

VX_NATIVE(void, HardcopySettings, setBackground)(JNIEnv* env, jclass, jobject self, jint topColor, jint bottomColor)
{
    native(env, "setBackground", [&] { peer<HardcopySettings>(env, self).setBackground(topColor, bottomColor); });
}

VX_NATIVE(void, HardcopySettings, setFontSize)(JNIEnv* env, jclass, jobject self, jint item, jint size)
{
    native(env, "setFontSize",
           [&] { peer<HardcopySettings>(env, self).setFontSize(static_cast<TextItem>(item), size); });
}

VX_NATIVE(jint, HardcopySettings, getFontSize)(JNIEnv* env, jclass, jobject self, jint item)
{
    return native(env, "getFontSize",
                  [&] { return peer<HardcopySettings>(env, self).getFontSize(static_cast<TextItem>(item)); });
}

VX_NATIVE(void, HardcopySettings, setDpi)(JNIEnv* env, jclass, jobject self, jint dpi)
{
    native(env, "setDpi", [&] { peer<HardcopySettings>(env, self).setDpi(dpi); });
}

VX_NATIVE(jint, HardcopySettings, getDpi)(JNIEnv* env, jclass, jobject self)
{
    return native(env, "getDpi", [&] { return peer<HardcopySettings>(env, self).getDpi(); });
}

VX_NATIVE(void, HardcopySettings, setMultisampleSetting)(JNIEnv* env, jclass, jobject self, jint setting)
{
    native(env, "setMultisampleSetting", [&] { peer<HardcopySettings>(env, self).setMultisampleSetting(setting); });
}

VX_NATIVE(jint, HardcopySettings, getMultisampleSetting)(JNIEnv* env, jclass, jobject self)
{
    return native(env, "getMultisampleSetting",
                  [&] { return peer<HardcopySettings>(env, self).getMultisampleSetting(); });
}

VX_NATIVE(void, HardcopySettings, setShowPhysicsMarkers)(JNIEnv* env, jclass, jobject self, jboolean value)
{
    native(env, "setShowPhysicsMarkers", [&] { peer<HardcopySettings>(env, self).setShowPhysicsMarkers(value); });
}

VX_NATIVE(void, HardcopySettings, setUseCurrentBackground)(JNIEnv* env, jclass, jobject self, jboolean value)
{
    native(env, "setUseCurrentBackground", [&] { peer<HardcopySettings>(env, self).setUseCurrentBackground(value); });
}

VX_NATIVE(void, HardcopySettings, setLogoShown)(JNIEnv* env, jclass, jobject self, jboolean value)
{
    native(env, "setLogoShown", [&] { peer<HardcopySettings>(env, self).setLogoShown(value); });
}

VX_NATIVE(void, HardcopySettings, setTitleShown)(JNIEnv* env, jclass, jobject self, jboolean value)
{
    native(env, "setTitleShown", [&] { peer<HardcopySettings>(env, self).setTitleShown(value); });
}

VX_NATIVE(void, HardcopySettings, setAxisShown)(JNIEnv* env, jclass, jobject self, jboolean value)
{
    native(env, "setAxisShown", [&] { peer<HardcopySettings>(env, self).setAxisShown(value); });
}

VX_NATIVE(void, HardcopySettings, setLegendsShown)(JNIEnv* env, jclass, jobject self, jboolean value)
{
    native(env, "setLegendsShown", [&] { peer<HardcopySettings>(env, self).setLegendsShown(value); });
}

VX_NATIVE(void, HardcopySettings, setAxisOrientationShown)(JNIEnv* env, jclass, jobject self, jboolean value)
{
    native(env, "setAxisOrientationShown", [&] { peer<HardcopySettings>(env, self).setAxisOrientationShown(value); });
}

VX_NATIVE(jboolean, HardcopySettings, isUseCurrentBackground)(JNIEnv* env, jclass, jobject self)
{
    return native(env, "isUseCurrentBackground",
                  [&] { return toJava(peer<HardcopySettings>(env, self).isUseCurrentBackground()); });
}

VX_NATIVE(jboolean, HardcopySettings, isTitleShown)(JNIEnv* env, jclass, jobject self)
{
    return native(env, "isTitleShown", [&] { return toJava(peer<HardcopySettings>(env, self).isTitleShown()); });
}

VX_NATIVE(jboolean, HardcopySettings, isAxisShown)(JNIEnv* env, jclass, jobject self)
{
    return native(env, "isAxisShown", [&] { return toJava(peer<HardcopySettings>(env, self).isAxisShown()); });
}

VX_NATIVE(jboolean, HardcopySettings, isLegendsShown)(JNIEnv* env, jclass, jobject self)
{
    return native(env, "isLegendsShown", [&] { return toJava(peer<HardcopySettings>(env, self).isLegendsShown()); });
}

VX_NATIVE(jboolean, HardcopySettings, isAxisOrientationShown)(JNIEnv* env, jclass, jobject self)
{
    return native(env, "isAxisOrientationShown",
                  [&] { return toJava(peer<HardcopySettings>(env, self).isAxisOrientationShown()); });
}
