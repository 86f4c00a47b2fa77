#include "graphics3d/plots/scenegraphplotgroup.h"
#include "graphics3d/plots/vector/scenegraphplotedge3d.h"
#include "jni/support/native.h"

#include <boost/make_shared.hpp>

#include "com_vexane_graphics3d_SceneGraphPlotEdge3d.h"

using namespace vxgraphics3d;

VX_NATIVE(void, SceneGraphPlotEdge3d, setLineWidth)(JNIEnv* env, jclass, jobject self, jfloat width)
{
    native(env, "setLineWidth", [&] { peer<SceneGraphPlotEdge3d>(env, self).setLineWidth(width); });
}

VX_NATIVE(jfloat, SceneGraphPlotEdge3d, getLineWidth)(JNIEnv* env, jclass, jobject self)
{
    return native(env, "getLineWidth", [&] { return peer<SceneGraphPlotEdge3d>(env, self).getLineWidth(); });
}

VX_NATIVE(void, SceneGraphPlotEdge3d, createNative)(JNIEnv* env, jclass, jobject self, jint id)
{
    native(env, "createNative", [&] { attach(env, self, boost::make_shared<SceneGraphPlotEdge3d>(id)); });
}

VX_NATIVE(void, SceneGraphPlotEdge3d, connectNative)(JNIEnv* env, jclass, jobject self, jobject owner, jint plotId)
{
    native(env, "connectNative", [&] {
        attach(env, self,
               castTo<SceneGraphPlotEdge3d>(peer<SceneGraphPlotGroup>(env, owner, "owner").plotPtr(plotId), "plotId"));
    });
}
