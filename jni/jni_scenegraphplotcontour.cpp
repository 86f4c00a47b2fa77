#include "graphics3d/plots/scalar/scenegraphplotcontour.h"
#include "graphics3d/plots/scenegraphplotgroup.h"
#include "jni/support/native.h"

#include <boost/make_shared.hpp>

#include "com_vexane_graphics3d_SceneGraphPlotContour.h"

using namespace vxgraphics3d;

VX_NATIVE(void, SceneGraphPlotContour, createNative)(JNIEnv* env, jclass, jobject self, jint id)
{
    native(env, "createNative", [&] { attach(env, self, boost::make_shared<SceneGraphPlotContour>(id)); });
}

VX_NATIVE(void, SceneGraphPlotContour, connectNative)(JNIEnv* env, jclass, jobject self, jobject owner, jint plotId)
{
    native(env, "connectNative", [&] {
        attach(env, self,
               castTo<SceneGraphPlotContour>(peer<SceneGraphPlotGroup>(env, owner, "owner").plotPtr(plotId), "plotId"));
    });
}
