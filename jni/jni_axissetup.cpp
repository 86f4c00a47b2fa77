#include "graphics3d/canvas/axissetup.h"
#include "graphics3d/canvas/canvas3dsettings.h"
#include "jni/support/native.h"

#include <vector>

#include "com_vexane_graphics3d_AxisSetup.h"

using namespace vxgraphics3d;

namespace {

int knownStrategy(int strategy)
{
    if (strategy >= 0 && strategy <= 5) {
        return strategy;
    }
    logNativeError("Unknown legend layout strategy.");
    return 0;
}

} // namespace

VX_NATIVE(void, AxisSetup, connectNative)(JNIEnv* env, jclass, jobject self, jobject owner)
{
    native(env, "connectNative",
           [&] { attach(env, self, peer<Canvas3dSettings>(env, owner, "owner").getAxisSetupPtr()); });
}

VX_NATIVE(void, AxisSetup, cleanupNative)(JNIEnv* env, jclass, jobject self)
{
    native(env, "cleanupNative", [&] { release(env, self); });
}

VX_NATIVE(void, AxisSetup, setAxisType)(JNIEnv* env, jclass, jobject self, jint type)
{
    native(env, "setAxisType",
           [&] { peer<AxisSetup>(env, self).setAxisType(type >= 0 && type <= 6 ? type : AxisSetup::AxisDefault); });
}

VX_NATIVE(jboolean, AxisSetup, isPolar)(JNIEnv* env, jclass, jobject self)
{
    return native(env, "isPolar", [&] { return toJava(peer<AxisSetup>(env, self).isPolar()); });
}

VX_NATIVE(jboolean, AxisSetup, isGraph)(JNIEnv* env, jclass, jobject self)
{
    return native(env, "isGraph", [&] { return toJava(peer<AxisSetup>(env, self).isGraph()); });
}

VX_NATIVE(void, AxisSetup, setXAxisLog)(JNIEnv* env, jclass, jobject self, jboolean logScale)
{
    native(env, "setXAxisLog", [&] { peer<AxisSetup>(env, self).setXAxisLog(logScale); });
}

VX_NATIVE(void, AxisSetup, setYAxisLog)(JNIEnv* env, jclass, jobject self, jboolean logScale)
{
    native(env, "setYAxisLog", [&] { peer<AxisSetup>(env, self).setYAxisLog(logScale); });
}

VX_NATIVE(jboolean, AxisSetup, getXAxisLog)(JNIEnv* env, jclass, jobject self)
{
    return native(env, "getXAxisLog", [&] { return toJava(peer<AxisSetup>(env, self).getXAxisLog()); });
}

VX_NATIVE(jboolean, AxisSetup, getYAxisLog)(JNIEnv* env, jclass, jobject self)
{
    return native(env, "getYAxisLog", [&] { return toJava(peer<AxisSetup>(env, self).getYAxisLog()); });
}

VX_NATIVE(void, AxisSetup, setAutoSpacing)(JNIEnv* env, jclass, jobject self, jboolean autoSpacing)
{
    native(env, "setAutoSpacing", [&] { peer<AxisSetup>(env, self).setAutoSpacing(autoSpacing); });
}

VX_NATIVE(void, AxisSetup, setXSpacing)(JNIEnv* env, jclass, jobject self, jdouble spacing)
{
    native(env, "setXSpacing", [&] { peer<AxisSetup>(env, self).setXSpacing(spacing); });
}

VX_NATIVE(void, AxisSetup, setYSpacing)(JNIEnv* env, jclass, jobject self, jdouble spacing)
{
    native(env, "setYSpacing", [&] { peer<AxisSetup>(env, self).setYSpacing(spacing); });
}

VX_NATIVE(jdouble, AxisSetup, getXAxisSpacing)(JNIEnv* env, jclass, jobject self)
{
    return native(env, "getXAxisSpacing", [&] { return peer<AxisSetup>(env, self).getXAxisSpacing(); });
}

VX_NATIVE(jdouble, AxisSetup, getYAxisSpacing)(JNIEnv* env, jclass, jobject self)
{
    return native(env, "getYAxisSpacing", [&] { return peer<AxisSetup>(env, self).getYAxisSpacing(); });
}

VX_NATIVE(void, AxisSetup, setExtraX)(JNIEnv* env, jclass, jobject self, jdoubleArray positions)
{
    native(env, "setExtraX",
           [&] { peer<AxisSetup>(env, self).setExtraX(fromJava<std::vector<double>>(env, positions)); });
}

VX_NATIVE(void, AxisSetup, setExtraY)(JNIEnv* env, jclass, jobject self, jdoubleArray positions)
{
    native(env, "setExtraY",
           [&] { peer<AxisSetup>(env, self).setExtraY(fromJava<std::vector<double>>(env, positions)); });
}

VX_NATIVE(jdoubleArray, AxisSetup, getExtraX)(JNIEnv* env, jclass, jobject self)
{
    return native(env, "getExtraX", [&] { return toJavaNew(env, peer<AxisSetup>(env, self).getExtraX()); });
}

VX_NATIVE(jdoubleArray, AxisSetup, getExtraY)(JNIEnv* env, jclass, jobject self)
{
    return native(env, "getExtraY", [&] { return toJavaNew(env, peer<AxisSetup>(env, self).getExtraY()); });
}

VX_NATIVE(void, AxisSetup, setLegendPosition)(JNIEnv* env, jclass, jobject self, jint position)
{
    native(env, "setLegendPosition",
           [&] { peer<AxisSetup>(env, self).setLegendPosition(position >= 0 && position <= 3 ? position : 0); });
}

VX_NATIVE(void, AxisSetup, setLegendLayoutStrategy)(JNIEnv* env, jclass, jobject self, jint strategy)
{
    native(env, "setLegendLayoutStrategy",
           [&] { peer<AxisSetup>(env, self).setLegendLayoutStrategy(knownStrategy(strategy)); });
}

VX_NATIVE(jint, AxisSetup, getLegendLayoutStrategy)(JNIEnv* env, jclass, jobject self)
{
    return native(env, "getLegendLayoutStrategy",
                  [&] { return knownStrategy(peer<AxisSetup>(env, self).getLegendLayoutStrategy()); });
}

VX_NATIVE(void, AxisSetup, setXAxisTitle)(JNIEnv* env, jclass, jobject self, jint /*format*/, jstring text)
{
    native(env, "setXAxisTitle",
           [&] { peer<AxisSetup>(env, self).setXAxisTitle(fromJava<vxbase::UString>(env, text)); });
}

VX_NATIVE(void, AxisSetup, setYAxisTitle)(JNIEnv* env, jclass, jobject self, jint /*format*/, jstring text)
{
    native(env, "setYAxisTitle",
           [&] { peer<AxisSetup>(env, self).setYAxisTitle(fromJava<vxbase::UString>(env, text)); });
}

VX_NATIVE(void, AxisSetup, setSymmetryAxis)(JNIEnv* env, jclass, jobject self, jint /*format*/, jstring text)
{
    native(env, "setSymmetryAxis",
           [&] { peer<AxisSetup>(env, self).setSymmetryAxis(fromJava<vxbase::UString>(env, text)); });
}
