#include "graphics3d/plots/vector/scenegraphplotribbon3d.h"
#include "jni/support/native.h"

#include <boost/make_shared.hpp>

#include "com_vexane_graphics3d_SceneGraphPlotRibbon3d.h"

using namespace vxgraphics3d;

VX_NATIVE(void, SceneGraphPlotRibbon3d, setWidthScaleFactor)(JNIEnv* env, jclass, jobject self, jfloat factor)
{
    native(env, "setWidthScaleFactor", [&] { peer<SceneGraphPlotRibbon3d>(env, self).setWidthScaleFactor(factor); });
}

VX_NATIVE(void, SceneGraphPlotRibbon3d, createNative)(JNIEnv* env, jclass, jobject self, jint id)
{
    native(env, "createNative", [&] { attach(env, self, boost::make_shared<SceneGraphPlotRibbon3d>(id)); });
}
