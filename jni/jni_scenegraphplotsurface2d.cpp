#include "graphics3d/plots/scalar/scenegraphplotsurface2d.h"
#include "graphics3d/plots/scenegraphplotgroup.h"
#include "jni/support/native.h"

#include <boost/make_shared.hpp>

#include "com_vexane_graphics3d_SceneGraphPlotSurface2d.h"

using namespace vxgraphics3d;

VX_NATIVE(void, SceneGraphPlotSurface2d, createNative)(JNIEnv* env, jclass, jobject self, jint id)
{
    native(env, "createNative", [&] { attach(env, self, boost::make_shared<SceneGraphPlotSurface2d>(id)); });
}

VX_NATIVE(void, SceneGraphPlotSurface2d, connectNative)(JNIEnv* env, jclass, jobject self, jobject owner, jint plotId)
{
    native(env, "connectNative", [&] {
        attach(
            env, self,
            castTo<SceneGraphPlotSurface2d>(peer<SceneGraphPlotGroup>(env, owner, "owner").plotPtr(plotId), "plotId"));
    });
}
