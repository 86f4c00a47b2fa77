#include "graphics3d/plots/vector/scenegraphplotprincipal.h"
#include "jni/support/native.h"

#include <boost/make_shared.hpp>

#include "com_vexane_graphics3d_SceneGraphPlotPrincipal.h"

using namespace vxgraphics3d;

VX_NATIVE(void, SceneGraphPlotPrincipal, createNative)
(JNIEnv* env, jclass, jobject self, jint dimension, jboolean flag, jint id)
{
    native(env, "createNative",
           [&] { attach(env, self, boost::make_shared<SceneGraphPlotPrincipal>(dimension, flag, id)); });
}
