#include "graphics3d/cameras/camera3d.h"
#include "graphics3d/lights/lightsource.h"
#include "jni/support/enumconversions.h"
#include "jni/support/native.h"

#include <string>

#include "com_vexane_graphics3d_LightSource.h"

using namespace vxgraphics3d;

VX_NATIVE(void, LightSource, cleanupNative)(JNIEnv* env, jclass, jobject self)
{
    native(env, "cleanupNative", [&] { release(env, self); });
}

VX_NATIVE(jint, LightSource, getId)(JNIEnv* env, jclass, jobject self)
{
    return native(env, "getId", [&] { return peer<LightSource>(env, self).getId(); });
}

VX_NATIVE(jint, LightSource, getType)(JNIEnv* env, jclass, jobject self)
{
    return native(env, "getType", [&] { return cppLightSourceTypeToJava(peer<LightSource>(env, self).getType()); });
}

VX_NATIVE(jstring, LightSource, getName)(JNIEnv* env, jclass, jobject self)
{
    return native(env, "getName", [&] { return toJavaNew(env, peer<LightSource>(env, self).getName()); });
}

VX_NATIVE(void, LightSource, setName)(JNIEnv* env, jclass, jobject self, jstring name)
{
    native(env, "setName", [&] { peer<LightSource>(env, self).setName(fromJava<std::string>(env, name)); });
}

VX_NATIVE(jboolean, LightSource, isActive)(JNIEnv* env, jclass, jobject self)
{
    return native(env, "isActive", [&] { return toJava(peer<LightSource>(env, self).isActive()); });
}

VX_NATIVE(void, LightSource, setActive)(JNIEnv* env, jclass, jobject self, jboolean active)
{
    native(env, "setActive", [&] { peer<LightSource>(env, self).setActive(active); });
}

VX_NATIVE(jint, LightSource, getColor)(JNIEnv* env, jclass, jobject self)
{
    return native(env, "getColor", [&] { return peer<LightSource>(env, self).getColor().toRgb(); });
}

VX_NATIVE(void, LightSource, setColor)(JNIEnv* env, jclass, jobject self, jint color)
{
    native(env, "setColor", [&] { peer<LightSource>(env, self).setColor(Color::fromRgb(color)); });
}

VX_NATIVE(jfloat, LightSource, getIntensity)(JNIEnv* env, jclass, jobject self)
{
    return native(env, "getIntensity", [&] { return peer<LightSource>(env, self).getIntensity(); });
}

VX_NATIVE(void, LightSource, setIntensity)(JNIEnv* env, jclass, jobject self, jfloat intensity)
{
    native(env, "setIntensity", [&] { peer<LightSource>(env, self).setIntensity(intensity); });
}

VX_NATIVE(jfloat, LightSource, getAmbientIntensity)(JNIEnv* env, jclass, jobject self)
{
    return native(env, "getAmbientIntensity", [&] { return peer<LightSource>(env, self).getAmbientIntensity(); });
}

VX_NATIVE(void, LightSource, setAmbientIntensity)(JNIEnv* env, jclass, jobject self, jfloat intensity)
{
    native(env, "setAmbientIntensity", [&] { peer<LightSource>(env, self).setAmbientIntensity(intensity); });
}

VX_NATIVE(jfloat, LightSource, getSpecularIntensity)(JNIEnv* env, jclass, jobject self)
{
    return native(env, "getSpecularIntensity", [&] { return peer<LightSource>(env, self).getSpecularIntensity(); });
}

VX_NATIVE(void, LightSource, setSpecularIntensity)(JNIEnv* env, jclass, jobject self, jfloat intensity)
{
    native(env, "setSpecularIntensity", [&] { peer<LightSource>(env, self).setSpecularIntensity(intensity); });
}

VX_NATIVE(jboolean, LightSource, isLockedToCamera)(JNIEnv* env, jclass, jobject self)
{
    return native(env, "isLockedToCamera", [&] { return toJava(peer<LightSource>(env, self).isLockedToCamera()); });
}

VX_NATIVE(void, LightSource, lockToCamera)(JNIEnv* env, jclass, jobject self, jobject camera)
{
    native(env, "lockToCamera",
           [&] { peer<LightSource>(env, self).lockToCamera(peer<Camera3d>(env, camera, "camera")); });
}

VX_NATIVE(void, LightSource, releaseFromCamera)(JNIEnv* env, jclass, jobject self, jobject camera)
{
    native(env, "releaseFromCamera",
           [&] { peer<LightSource>(env, self).releaseFromCamera(peer<Camera3d>(env, camera, "camera")); });
}

VX_NATIVE(void, LightSource, setSelected)(JNIEnv* env, jclass, jobject self, jboolean selected)
{
    native(env, "setSelected", [&] { peer<LightSource>(env, self).setSelected(selected); });
}

VX_NATIVE(void, LightSource, setMarkerVisibility)(JNIEnv* env, jclass, jobject self, jboolean visible)
{
    native(env, "setMarkerVisibility", [&] { peer<LightSource>(env, self).setMarkerVisibility(visible); });
}
