#include "jni/support/enumconversions.h"
#include "jni/support/native.h"

#include "com_vexane_graphics3d_MarkingSetups.h"

using namespace vxgraphics3d;

namespace {

const Marking& markingOf(JNIEnv* env, jobject self, jint mode, jint row)
{
    return peer<MarkingSetups>(env, self).getMarking(javaMarkingModeToCpp(mode), javaMarkingRowToCpp(row));
}

} // namespace

VX_NATIVE(void, MarkingSetups, connectNative)(JNIEnv* env, jclass, jobject self)
{
    native(env, "connectNative",
           [&] { attach(env, self, Canvas3dGlobalSettings::getInstance()->getMarkingSetupsPtr()); });
}

VX_NATIVE(void, MarkingSetups, cleanupNative)(JNIEnv* env, jclass, jobject self)
{
    native(env, "cleanupNative", [&] { release(env, self); });
}

VX_NATIVE(void, MarkingSetups, setMarking)
(JNIEnv* env, jclass, jobject self, jint mode, jint row, jint sheetColor, jint lineColor, jfloat lineWidth,
 jint pointColor, jfloat pointSize, jint labelColor, jint polygonLayer)
{
    native(env, "setMarking", [&] {
        peer<MarkingSetups>(env, self).setMarkingSetup(
            javaMarkingModeToCpp(mode), javaMarkingRowToCpp(row), Color::fromRgb(sheetColor), Color::fromRgb(lineColor),
            lineWidth, Color::fromRgb(pointColor), pointSize, Color::fromRgb(labelColor), polygonLayer);
    });
}

VX_NATIVE(void, MarkingSetups, setMarkingHidden)(JNIEnv* env, jclass, jobject self, jint mode, jint row)
{
    native(env, "setMarkingHidden", [&] {
        peer<MarkingSetups>(env, self).setMarkingSetupHidden(javaMarkingModeToCpp(mode), javaMarkingRowToCpp(row));
    });
}

VX_NATIVE(jint, MarkingSetups, getSheetColor)(JNIEnv* env, jclass, jobject self, jint mode, jint row)
{
    return native(env, "getSheetColor", [&] { return markingOf(env, self, mode, row).getSheetColor().toRgb(); });
}

VX_NATIVE(jint, MarkingSetups, getLineColor)(JNIEnv* env, jclass, jobject self, jint mode, jint row)
{
    return native(env, "getLineColor", [&] { return markingOf(env, self, mode, row).getLineColor().toRgb(); });
}

VX_NATIVE(jfloat, MarkingSetups, getLineWidth)(JNIEnv* env, jclass, jobject self, jint mode, jint row)
{
    return native(env, "getLineWidth", [&] { return markingOf(env, self, mode, row).getLineWidth(); });
}

VX_NATIVE(jint, MarkingSetups, getPointColor)(JNIEnv* env, jclass, jobject self, jint mode, jint row)
{
    return native(env, "getPointColor", [&] { return markingOf(env, self, mode, row).getPointColor().toRgb(); });
}

VX_NATIVE(jfloat, MarkingSetups, getPointSize)(JNIEnv* env, jclass, jobject self, jint mode, jint row)
{
    return native(env, "getPointSize", [&] { return markingOf(env, self, mode, row).getPointSize(); });
}

VX_NATIVE(jint, MarkingSetups, getLabelColor)(JNIEnv* env, jclass, jobject self, jint mode, jint row)
{
    return native(env, "getLabelColor", [&] { return markingOf(env, self, mode, row).getLabelColor().toRgb(); });
}

VX_NATIVE(jint, MarkingSetups, getPolygonLayer)(JNIEnv* env, jclass, jobject self, jint mode, jint row)
{
    return native(env, "getPolygonLayer", [&] { return markingOf(env, self, mode, row).getPolygonLayer(); });
}
