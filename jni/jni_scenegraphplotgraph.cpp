#include "graphics3d/plots/graph/scenegraphplotgraph.h"
#include "jni/support/enumconversions.h"
#include "jni/support/native.h"

#include <boost/make_shared.hpp>

#include "com_vexane_graphics3d_SceneGraphPlotGraph.h"

using namespace vxgraphics3d;

VX_NATIVE(void, SceneGraphPlotGraph, setMarkersInterpolation)(JNIEnv* env, jclass, jobject self, jboolean interpolate)
{
    native(env, "setMarkersInterpolation",
           [&] { peer<SceneGraphPlotGraph>(env, self).setMarkersInterpolation(interpolate); });
}

VX_NATIVE(void, SceneGraphPlotGraph, setShowUnitCircle)(JNIEnv* env, jclass, jobject self, jboolean show)
{
    native(env, "setShowUnitCircle", [&] { peer<SceneGraphPlotGraph>(env, self).setShowUnitCircle(show); });
}

VX_NATIVE(void, SceneGraphPlotGraph, setShowLegends)(JNIEnv* env, jclass, jobject self, jboolean show)
{
    native(env, "setShowLegends", [&] { peer<SceneGraphPlotGraph>(env, self).setShowLegends(show); });
}

VX_NATIVE(void, SceneGraphPlotGraph, setLegendDescription)(JNIEnv* env, jclass, jobject self, jint index, jstring text)
{
    native(env, "setLegendDescription", [&] {
        peer<SceneGraphPlotGraph>(env, self).setLegendDescription(index, fromJava<vxbase::UString>(env, text));
    });
}

VX_NATIVE(void, SceneGraphPlotGraph, setNMarkers)(JNIEnv* env, jclass, jobject self, jint count)
{
    native(env, "setNMarkers", [&] { peer<SceneGraphPlotGraph>(env, self).setNumberOfMarkers(count); });
}

VX_NATIVE(jint, SceneGraphPlotGraph, setCycleColor)(JNIEnv* env, jclass, jobject self, jboolean cycle, jint first)
{
    return native(env, "setCycleColor",
                  [&] { return peer<SceneGraphPlotGraph>(env, self).setLineColorCycle(cycle, first); });
}

VX_NATIVE(void, SceneGraphPlotGraph, setMarkerType)(JNIEnv* env, jclass, jobject self, jboolean cycle, jint first)
{
    native(env, "setMarkerType",
           [&] { peer<SceneGraphPlotGraph>(env, self).setMarkerType(cycle, javaRenderSymbolToCpp(first)); });
}

VX_NATIVE(void, SceneGraphPlotGraph, setLineStyle)(JNIEnv* env, jclass, jobject self, jboolean cycle, jint first)
{
    native(env, "setLineStyle",
           [&] { peer<SceneGraphPlotGraph>(env, self).setLineStyle(cycle, javaLineStyleToCpp(first)); });
}

VX_NATIVE(void, SceneGraphPlotGraph, setLineWidth)(JNIEnv* env, jclass, jobject self, jint width)
{
    native(env, "setLineWidth", [&] { peer<SceneGraphPlotGraph>(env, self).setLineWidth(width); });
}

VX_NATIVE(void, SceneGraphPlotGraph, createNative)(JNIEnv* env, jclass, jobject self, jint id)
{
    native(env, "createNative", [&] { attach(env, self, boost::make_shared<SceneGraphPlotGraph>(id)); });
}
