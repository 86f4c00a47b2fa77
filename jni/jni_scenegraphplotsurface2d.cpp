#include "graphics3d/plots/scalar/scenegraphplotsurface2d.h"
#include "jni/support/native.h"
#include "jni/support/plotof.h"

#include <boost/make_shared.hpp>

#include "com_vexane_graphics3d_SceneGraphPlotSurface2d.h"

using namespace vxgraphics3d;

VX_NATIVE(void, SceneGraphPlotSurface2d, createNative)(JNIEnv* env, jclass, jobject self, jint id)
{
    native(env, "createNative", [&] { attach(env, self, boost::make_shared<SceneGraphPlotSurface2d>(id)); });
}

VX_NATIVE(void, SceneGraphPlotSurface2d, connectNative)(JNIEnv* env, jclass, jobject self, jobject owner, jint plotId)
{
    native(env, "connectNative", [&] { attach(env, self, plotOf<SceneGraphPlotSurface2d>(env, owner, plotId)); });
}
