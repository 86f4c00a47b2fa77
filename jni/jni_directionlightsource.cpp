#include "graphics3d/lights/directionlightsource.h"
#include "graphics3d/lights/scenelight.h"
#include "jni/support/native.h"
#include "jni/support/vectors.h"

#include "com_vexane_graphics3d_DirectionLightSource.h"

using namespace vxgraphics3d;

VX_NATIVE(void, DirectionLightSource, connectNative)(JNIEnv* env, jclass, jobject self, jobject owner, jint lightId)
{
    native(env, "connectNative", [&] {
        attach(
            env, self,
            castTo<DirectionLightSource>(peer<SceneLight>(env, owner, "owner").getLightSourcePtr(lightId), "lightId"));
    });
}

VX_NATIVE(jint, DirectionLightSource, getFromDirection)(JNIEnv* env, jclass, jobject self, jfloatArray out)
{
    return native(env, "getFromDirection",
                  [&] { return fillArray(env, out, peer<DirectionLightSource>(env, self).getFromDirection()); });
}

VX_NATIVE(void, DirectionLightSource, setFromDirection)
(JNIEnv* env, jclass, jobject self, jboolean world, jfloat x, jfloat y, jfloat z)
{
    native(env, "setFromDirection",
           [&] { peer<DirectionLightSource>(env, self).setFromDirection(world, Vector3f(x, y, z)); });
}
