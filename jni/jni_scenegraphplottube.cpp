#include "graphics3d/plots/vector/scenegraphplottube.h"
#include "jni/support/native.h"

#include "com_vexane_graphics3d_SceneGraphPlotTube.h"

using namespace vxgraphics3d;

VX_NATIVE(void, SceneGraphPlotTube, setRadiusScaleFactor)(JNIEnv* env, jclass, jobject self, jfloat factor)
{
    native(env, "setRadiusScaleFactor", [&] { peer<SceneGraphPlotTube>(env, self).setRadiusScaleFactor(factor); });
}
