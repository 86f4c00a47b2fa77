// The natives of all plots: setters and getters of what every plot has, the fill, and the release of any plot's peer.

#include "datacarrier/postdataobject.h"
#include "graphics3d/plots/scenegraphplot.h"
#include "jni/support/enumconversions.h"
#include "jni/support/native.h"

#include "com_vexane_graphics3d_SceneGraphPlot.h"

using namespace vxgraphics3d;

VX_NATIVE(void, SceneGraphPlot, setPlotPlaneOffset)(JNIEnv* env, jclass, jobject self, jfloat offset)
{
    native(env, "setPlotPlaneOffset", [&] { peer<SceneGraphPlot>(env, self).setPlotPlaneOffset(offset); });
}

VX_NATIVE(void, SceneGraphPlot, setHeightScale)(JNIEnv* env, jclass, jobject self, jfloat scale)
{
    native(env, "setHeightScale", [&] { peer<SceneGraphPlot>(env, self).setHeightScale(scale); });
}

VX_NATIVE(jfloat, SceneGraphPlot, getShininess)(JNIEnv* env, jclass, jobject self)
{
    return native(env, "getShininess", [&] { return peer<SceneGraphPlot>(env, self).getShininess(); });
}

VX_NATIVE(void, SceneGraphPlot, setShininess)(JNIEnv* env, jclass, jobject self, jfloat shininess)
{
    native(env, "setShininess", [&] { peer<SceneGraphPlot>(env, self).setShininess(shininess); });
}

VX_NATIVE(jdouble, SceneGraphPlot, getValueRestrictionMin)(JNIEnv* env, jclass, jobject self)
{
    return native(env, "getValueRestrictionMin",
                  [&] { return peer<SceneGraphPlot>(env, self).getValueRestrictionMin(); });
}

VX_NATIVE(jdouble, SceneGraphPlot, getValueRestrictionMax)(JNIEnv* env, jclass, jobject self)
{
    return native(env, "getValueRestrictionMax",
                  [&] { return peer<SceneGraphPlot>(env, self).getValueRestrictionMax(); });
}

VX_NATIVE(void, SceneGraphPlot, resetValueRestrictions)(JNIEnv* env, jclass, jobject self)
{
    native(env, "resetValueRestrictions", [&] { peer<SceneGraphPlot>(env, self).resetValueRestrictions(); });
}

VX_NATIVE(void, SceneGraphPlot, setValueRestrictions)(JNIEnv* env, jclass, jobject self, jdouble min, jdouble max)
{
    native(env, "setValueRestrictions", [&] { peer<SceneGraphPlot>(env, self).setValueRestrictions(min, max); });
}

VX_NATIVE(jboolean, SceneGraphPlot, isShowLegend)(JNIEnv* env, jclass, jobject self)
{
    return native(env, "isShowLegend", [&] { return toJava(peer<SceneGraphPlot>(env, self).isShowLegend()); });
}

VX_NATIVE(void, SceneGraphPlot, setShowLegend)(JNIEnv* env, jclass, jobject self, jboolean show)
{
    native(env, "setShowLegend", [&] { peer<SceneGraphPlot>(env, self).setShowLegend(show); });
}

VX_NATIVE(void, SceneGraphPlot, setSymmetricColorTable)(JNIEnv* env, jclass, jobject self, jboolean symmetric)
{
    native(env, "setSymmetricColorTable", [&] { peer<SceneGraphPlot>(env, self).setSymmetricColorTable(symmetric); });
}

VX_NATIVE(void, SceneGraphPlot, setReverseColorTable)(JNIEnv* env, jclass, jobject self, jboolean reverse)
{
    native(env, "setReverseColorTable", [&] { peer<SceneGraphPlot>(env, self).setReverseColorTable(reverse); });
}

VX_NATIVE(jdouble, SceneGraphPlot, getLegendMin)(JNIEnv* env, jclass, jobject self)
{
    return native(env, "getLegendMin", [&] { return peer<SceneGraphPlot>(env, self).getLegendMin(); });
}

VX_NATIVE(jdouble, SceneGraphPlot, getLegendMax)(JNIEnv* env, jclass, jobject self)
{
    return native(env, "getLegendMax", [&] { return peer<SceneGraphPlot>(env, self).getLegendMax(); });
}

VX_NATIVE(void, SceneGraphPlot, setAutoLegendLimits)(JNIEnv* env, jclass, jobject self)
{
    native(env, "setAutoLegendLimits", [&] { peer<SceneGraphPlot>(env, self).setAutoLegendLimits(); });
}

VX_NATIVE(void, SceneGraphPlot, setLegendLimits)(JNIEnv* env, jclass, jobject self, jdouble min, jdouble max)
{
    native(env, "setLegendLimits", [&] { peer<SceneGraphPlot>(env, self).setLegendLimits(min, max); });
}

VX_NATIVE(jdouble, SceneGraphPlot, getValueMin)(JNIEnv* env, jclass, jobject self)
{
    return native(env, "getValueMin", [&] { return peer<SceneGraphPlot>(env, self).getValueMin(); });
}

VX_NATIVE(jdouble, SceneGraphPlot, getValueMax)(JNIEnv* env, jclass, jobject self)
{
    return native(env, "getValueMax", [&] { return peer<SceneGraphPlot>(env, self).getValueMax(); });
}

VX_NATIVE(jint, SceneGraphPlot, getColor)(JNIEnv* env, jclass, jobject self)
{
    return native(env, "getColor", [&] { return peer<SceneGraphPlot>(env, self).getColor().toRgb(); });
}

VX_NATIVE(void, SceneGraphPlot, setColor)(JNIEnv* env, jclass, jobject self, jint color)
{
    native(env, "setColor", [&] { peer<SceneGraphPlot>(env, self).setColor(Color::fromRgb(color)); });
}

VX_NATIVE(jstring, SceneGraphPlot, getColorTable)(JNIEnv* env, jclass, jobject self)
{
    return native(env, "getColorTable", [&] {
        const SceneGraphPlot& plot = peer<SceneGraphPlot>(env, self);
        return plot.hasColorTable() ? toJavaNew(env, plot.getColorTableName()) : nullptr;
    });
}

VX_NATIVE(jboolean, SceneGraphPlot, setColorTable)
(JNIEnv* env, jclass, jobject self, jstring name, jobjectArray colors, jboolean continuous)
{
    return native(env, "setColorTable", [&] {
        return toJava(peer<SceneGraphPlot>(env, self).setColorTable(
            fromJava<std::string>(env, name), fromJava<std::vector<std::vector<double>>>(env, colors), continuous));
    });
}

VX_NATIVE(void, SceneGraphPlot, setTitle)(JNIEnv* env, jclass, jobject self, jint format, jstring text)
{
    native(env, "setTitle", [&] {
        peer<SceneGraphPlot>(env, self).setTitle(javaTextFormatToCpp(format), fromJava<vxbase::UString>(env, text));
    });
}

VX_NATIVE(void, SceneGraphPlot, resetPlotData)(JNIEnv* env, jclass, jobject self)
{
    native(env, "resetPlotData", [&] { peer<SceneGraphPlot>(env, self).resetPlotData(); });
}

VX_NATIVE(void, SceneGraphPlot, fillPlot)(JNIEnv* env, jclass, jobject self, jobject record)
{
    native(env, "fillPlot", [&] {
        peer<SceneGraphPlot>(env, self).fillPlot(anyPeer<vxdatacarrier::PostDataObject>(env, record, "record"));
    });
}

VX_NATIVE(jboolean, SceneGraphPlot, isActive)(JNIEnv* env, jclass, jobject self)
{
    return native(env, "isActive", [&] { return toJava(peer<SceneGraphPlot>(env, self).isActive()); });
}

VX_NATIVE(void, SceneGraphPlot, setActive)(JNIEnv* env, jclass, jobject self, jboolean active)
{
    native(env, "setActive", [&] { peer<SceneGraphPlot>(env, self).setActive(active); });
}

VX_NATIVE(jint, SceneGraphPlot, getType)(JNIEnv* env, jclass, jobject self)
{
    return native(env, "getType", [&] { return cppPlotTypeToJava(peer<SceneGraphPlot>(env, self).getType()); });
}

VX_NATIVE(jint, SceneGraphPlot, getId)(JNIEnv* env, jclass, jobject self)
{
    return native(env, "getId", [&] { return peer<SceneGraphPlot>(env, self).getId(); });
}

VX_NATIVE(void, SceneGraphPlot, cleanupNative)(JNIEnv* env, jclass, jobject self)
{
    native(env, "cleanupNative", [&] { release(env, self); });
}
