#include "graphics3d/plots/scenegraphplot.h"
#include "graphics3d/plots/scenegraphplotgroup.h"
#include "graphics3d/scenegraph/scenegraphparent.h"
#include "jni/support/enumconversions.h"
#include "jni/support/native.h"

#include "com_vexane_graphics3d_SceneGraphPlotGroup.h"

using namespace vxgraphics3d;

VX_NATIVE(void, SceneGraphPlotGroup, createNative)(JNIEnv* env, jclass, jobject self)
{
    native(env, "createNative", [&] { attach(env, self, SceneGraphPlotGroup::create()); });
}

VX_NATIVE(void, SceneGraphPlotGroup, connectNative)(JNIEnv* env, jclass, jobject self, jobject owner, jint childId)
{
    native(env, "connectNative", [&] {
        attach(env, self,
               castTo<SceneGraphPlotGroup>(peer<SceneGraphParent>(env, owner, "owner").childPtr(childId), "childId"));
    });
}

VX_NATIVE(void, SceneGraphPlotGroup, addPlot)(JNIEnv* env, jclass, jobject self, jobject plot)
{
    native(env, "addPlot",
           [&] { peer<SceneGraphPlotGroup>(env, self).addPlot(share<SceneGraphPlot>(env, plot, "plot")); });
}

VX_NATIVE(void, SceneGraphPlotGroup, removePlot)(JNIEnv* env, jclass, jobject self, jint plotId)
{
    native(env, "removePlot", [&] { peer<SceneGraphPlotGroup>(env, self).removePlot(plotId); });
}

VX_NATIVE(void, SceneGraphPlotGroup, removeAllPlots)(JNIEnv* env, jclass, jobject self)
{
    native(env, "removeAllPlots", [&] { peer<SceneGraphPlotGroup>(env, self).removeAllPlots(); });
}

VX_NATIVE(jboolean, SceneGraphPlotGroup, doesPlotExist)(JNIEnv* env, jclass, jobject self, jint plotId)
{
    return native(env, "doesPlotExist",
                  [&] { return toJava(peer<SceneGraphPlotGroup>(env, self).doesPlotExist(plotId)); });
}

VX_NATIVE(jint, SceneGraphPlotGroup, getNoOfPlots)(JNIEnv* env, jclass, jobject self)
{
    return native(env, "getNoOfPlots", [&] { return peer<SceneGraphPlotGroup>(env, self).getNoOfPlots(); });
}

VX_NATIVE(void, SceneGraphPlotGroup, setTitle)(JNIEnv* env, jclass, jobject self, jint format, jstring text)
{
    native(env, "setTitle", [&] {
        peer<SceneGraphPlotGroup>(env, self).setTitle(javaTextFormatToCpp(format),
                                                      fromJava<vxbase::UString>(env, text));
    });
}
