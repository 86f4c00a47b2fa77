#include "graphics3d/plots/vector/scenegraphplotsphere.h"
#include "jni/support/native.h"

#include "com_vexane_graphics3d_SceneGraphPlotSphere.h"

using namespace vxgraphics3d;

VX_NATIVE(void, SceneGraphPlotSphere, setRadiusScaleFactor)(JNIEnv* env, jclass, jobject self, jfloat factor)
{
    native(env, "setRadiusScaleFactor", [&] { peer<SceneGraphPlotSphere>(env, self).setRadiusScaleFactor(factor); });
}
