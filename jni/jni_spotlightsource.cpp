#include "graphics3d/lights/scenelight.h"
#include "graphics3d/lights/spotlightsource.h"
#include "jni/support/native.h"
#include "jni/support/vectors.h"

#include "com_vexane_graphics3d_SpotLightSource.h"

using namespace vxgraphics3d;

VX_NATIVE(void, SpotLightSource, connectNative)(JNIEnv* env, jclass, jobject self, jobject owner, jint lightId)
{
    native(env, "connectNative", [&] {
        attach(env, self,
               castTo<SpotLightSource>(peer<SceneLight>(env, owner, "owner").getLightSourcePtr(lightId), "lightId"));
    });
}

VX_NATIVE(jint, SpotLightSource, getPosition)(JNIEnv* env, jclass, jobject self, jfloatArray out)
{
    return native(env, "getPosition",
                  [&] { return fillArray(env, out, peer<SpotLightSource>(env, self).getPosition()); });
}

VX_NATIVE(void, SpotLightSource, setPosition)
(JNIEnv* env, jclass, jobject self, jboolean world, jfloat x, jfloat y, jfloat z)
{
    native(env, "setPosition", [&] { peer<SpotLightSource>(env, self).setPosition(world, Vector3f(x, y, z)); });
}

VX_NATIVE(jint, SpotLightSource, getAtDirection)(JNIEnv* env, jclass, jobject self, jfloatArray out)
{
    return native(env, "getAtDirection",
                  [&] { return fillArray(env, out, peer<SpotLightSource>(env, self).getAtDirection()); });
}

VX_NATIVE(void, SpotLightSource, setAtDirection)(JNIEnv* env, jclass, jobject self, jfloat x, jfloat y, jfloat z)
{
    native(env, "setAtDirection", [&] { peer<SpotLightSource>(env, self).setAtDirection(Vector3f(x, y, z)); });
}

VX_NATIVE(jfloat, SpotLightSource, getSpreadAngle)(JNIEnv* env, jclass, jobject self)
{
    return native(env, "getSpreadAngle", [&] { return peer<SpotLightSource>(env, self).getSpreadAngle(); });
}

VX_NATIVE(void, SpotLightSource, setSpreadAngle)(JNIEnv* env, jclass, jobject self, jfloat angle)
{
    native(env, "setSpreadAngle", [&] { peer<SpotLightSource>(env, self).setSpreadAngle(angle); });
}
