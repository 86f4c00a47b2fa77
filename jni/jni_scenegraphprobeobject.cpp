#include "graphics3d/construction/scenegraphprobeobject.h"
#include "jni/support/native.h"

#include "com_vexane_graphics3d_SceneGraphProbeObject.h"

using namespace vxgraphics3d;

VX_NATIVE(void, SceneGraphProbeObject, createNative)(JNIEnv* env, jclass, jobject self)
{
    native(env, "createNative", [&] { attach(env, self, SceneGraphProbeObject::create()); });
}

VX_NATIVE(void, SceneGraphProbeObject, setProbe)(JNIEnv* env, jclass, jobject self, jfloat x, jfloat y, jfloat z)
{
    native(env, "setProbe", [&] { peer<SceneGraphProbeObject>(env, self).setProbe(x, y, z); });
}

VX_NATIVE(void, SceneGraphProbeObject, setLinePoints)
(JNIEnv* env, jclass, jobject self, jfloat x0, jfloat y0, jfloat z0, jfloat x1, jfloat y1, jfloat z1, jfloat fraction)
{
    native(env, "setLinePoints",
           [&] { peer<SceneGraphProbeObject>(env, self).setLinePoints(x0, y0, z0, x1, y1, z1, fraction); });
}

VX_NATIVE(void, SceneGraphProbeObject, clear)(JNIEnv* env, jclass, jobject self)
{
    native(env, "clear", [&] { peer<SceneGraphProbeObject>(env, self).clear(); });
}
