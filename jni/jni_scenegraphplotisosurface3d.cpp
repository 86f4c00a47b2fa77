#include "graphics3d/plots/scalar/scenegraphplotisosurface3d.h"
#include "graphics3d/plots/scenegraphplotgroup.h"
#include "jni/support/native.h"

#include <boost/make_shared.hpp>

#include "com_vexane_graphics3d_SceneGraphPlotIsoSurface3d.h"

using namespace vxgraphics3d;

VX_NATIVE(void, SceneGraphPlotIsoSurface3d, createNative)(JNIEnv* env, jclass, jobject self, jint id)
{
    native(env, "createNative", [&] { attach(env, self, boost::make_shared<SceneGraphPlotIsoSurface3d>(id)); });
}

VX_NATIVE(void, SceneGraphPlotIsoSurface3d, connectNative)
(JNIEnv* env, jclass, jobject self, jobject owner, jint plotId)
{
    native(env, "connectNative", [&] {
        attach(env, self,
               castTo<SceneGraphPlotIsoSurface3d>(peer<SceneGraphPlotGroup>(env, owner, "owner").plotPtr(plotId),
                                                  "plotId"));
    });
}
