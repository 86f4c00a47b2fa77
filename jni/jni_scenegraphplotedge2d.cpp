#include "graphics3d/plots/vector/scenegraphplotedge2d.h"
#include "jni/support/native.h"

#include <boost/make_shared.hpp>

#include "com_vexane_graphics3d_SceneGraphPlotEdge2d.h"

using namespace vxgraphics3d;

VX_NATIVE(void, SceneGraphPlotEdge2d, createNative)(JNIEnv* env, jclass, jobject self, jint id)
{
    native(env, "createNative", [&] { attach(env, self, boost::make_shared<SceneGraphPlotEdge2d>(id)); });
}
