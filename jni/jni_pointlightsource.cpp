#include "graphics3d/lights/pointlightsource.h"
#include "graphics3d/lights/scenelight.h"
#include "jni/support/native.h"
#include "jni/support/vectors.h"

#include "com_vexane_graphics3d_PointLightSource.h"

using namespace vxgraphics3d;

VX_NATIVE(void, PointLightSource, connectNative)(JNIEnv* env, jclass, jobject self, jobject owner, jint lightId)
{
    native(env, "connectNative", [&] {
        attach(env, self,
               castTo<PointLightSource>(peer<SceneLight>(env, owner, "owner").getLightSourcePtr(lightId), "lightId"));
    });
}

VX_NATIVE(jint, PointLightSource, getPosition)(JNIEnv* env, jclass, jobject self, jfloatArray out)
{
    return native(env, "getPosition",
                  [&] { return fillArray(env, out, peer<PointLightSource>(env, self).getPosition()); });
}

VX_NATIVE(void, PointLightSource, setPosition)
(JNIEnv* env, jclass, jobject self, jboolean world, jfloat x, jfloat y, jfloat z)
{
    native(env, "setPosition", [&] { peer<PointLightSource>(env, self).setPosition(world, Vector3f(x, y, z)); });
}
