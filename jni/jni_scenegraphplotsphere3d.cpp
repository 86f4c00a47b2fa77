#include "graphics3d/plots/scenegraphplotgroup.h"
#include "graphics3d/plots/vector/scenegraphplotsphere3d.h"
#include "jni/support/native.h"

#include <boost/make_shared.hpp>

#include "com_vexane_graphics3d_SceneGraphPlotSphere3d.h"

using namespace vxgraphics3d;

VX_NATIVE(void, SceneGraphPlotSphere3d, createNative)(JNIEnv* env, jclass, jobject self, jint id)
{
    native(env, "createNative", [&] { attach(env, self, boost::make_shared<SceneGraphPlotSphere3d>(id)); });
}

VX_NATIVE(void, SceneGraphPlotSphere3d, connectNative)(JNIEnv* env, jclass, jobject self, jobject owner, jint plotId)
{
    native(env, "connectNative", [&] {
        attach(
            env, self,
            castTo<SceneGraphPlotSphere3d>(peer<SceneGraphPlotGroup>(env, owner, "owner").plotPtr(plotId), "plotId"));
    });
}
