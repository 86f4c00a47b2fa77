#include "graphics3d/cameras/camera2d.h"
#include "graphics3d/canvas/canvas3dsettings.h"
#include "jni/support/conversiontable.h"
#include "jni/support/enumconversions.h"
#include "jni/support/native.h"
#include "jni/support/zoomcenter.h"

#include <boost/make_shared.hpp>

#include <vector>

#include "com_vexane_graphics3d_Camera2d.h"

using namespace vxgraphics3d;

namespace {

/// Java 0 is the polar and 1 the one-dimensional mode; anything else is the plane mode.
constexpr ConversionTable<2> c_useModes{
    {{{Camera2d::ModePolar, 0}, {Camera2d::ModeOneDimensional, 1}}}, Camera2d::ModeOrdinary, 2};

} // namespace

VX_NATIVE(void, Camera2d, createNative)(JNIEnv* env, jclass, jobject self)
{
    native(env, "createNative", [&] { attach(env, self, boost::make_shared<Camera2d>()); });
}

VX_NATIVE(void, Camera2d, connectNative)(JNIEnv* env, jclass, jobject self, jobject owner)
{
    native(env, "connectNative",
           [&] { attach(env, self, peer<Canvas3dSettings>(env, owner, "owner").getCamera2dPtr()); });
}

VX_NATIVE(void, Camera2d, cleanupNative)(JNIEnv* env, jclass, jobject self)
{
    native(env, "cleanupNative", [&] { release(env, self); });
}

VX_NATIVE(void, Camera2d, setPolarLimits)(JNIEnv* env, jclass, jobject self, jfloat outer, jfloat inner)
{
    native(env, {"setPolarLimits(%f, %f)", outer, inner},
           [&] { peer<Camera2d>(env, self).setPolarLimits(outer, inner); });
}

VX_NATIVE(void, Camera2d, setUseMode)(JNIEnv* env, jclass, jobject self, jint mode)
{
    native(env, "setUseMode", [&] {
        peer<Camera2d>(env, self).setCameraMode(static_cast<Camera2d::CameraMode2D>(c_useModes.toCpp(mode)));
    });
}

VX_NATIVE(jfloat, Camera2d, getAxisViewScaleX)(JNIEnv* env, jclass, jobject self)
{
    return native(env, "getAxisViewScaleX", [&] { return peer<Camera2d>(env, self).getAxisViewScaleX(); });
}

VX_NATIVE(jfloat, Camera2d, getAxisViewScaleY)(JNIEnv* env, jclass, jobject self)
{
    return native(env, "getAxisViewScaleY", [&] { return peer<Camera2d>(env, self).getAxisViewScaleY(); });
}

VX_NATIVE(void, Camera2d, resetAxisViewScales)(JNIEnv* env, jclass, jobject self)
{
    native(env, "resetAxisViewScales", [&] { peer<Camera2d>(env, self).resetAxisViewScales(); });
}

VX_NATIVE(void, Camera2d, setAxisViewScalesAuto)(JNIEnv* env, jclass, jobject self)
{
    native(env, "setAxisViewScalesAuto", [&] { peer<Camera2d>(env, self).setAxisViewScalesAuto(); });
}

VX_NATIVE(jboolean, Camera2d, getAxisViewScalesAuto)(JNIEnv* env, jclass, jobject self)
{
    return native(env, "getAxisViewScalesAuto",
                  [&] { return toJava(peer<Camera2d>(env, self).isAxisViewScalesAuto()); });
}

VX_NATIVE(void, Camera2d, setAxisViewScales)(JNIEnv* env, jclass, jobject self, jfloat x, jfloat y)
{
    native(env, {"setAxisViewScales(%f, %f)", x, y}, [&] { peer<Camera2d>(env, self).setAxisViewScales(x, y); });
}

VX_NATIVE(jfloatArray, Camera2d, getViewLimits)(JNIEnv* env, jclass, jobject self)
{
    return native(env, "getViewLimits()", [&] {
        std::vector<float> limits(4, 0.0f);
        peer<Camera2d>(env, self).getViewLimits(limits[0], limits[1], limits[2], limits[3]);
        return toJavaNew(env, limits);
    });
}

VX_NATIVE(jboolean, Camera2d, setViewLimitsX)(JNIEnv* env, jclass, jobject self, jfloat x0, jfloat x1)
{
    return native(env, {"setViewLimitsX(%f, %f)", x0, x1},
                  [&] { return toJava(peer<Camera2d>(env, self).setViewLimitsX(x0, x1)); });
}

VX_NATIVE(jboolean, Camera2d, setViewLimitsY)(JNIEnv* env, jclass, jobject self, jfloat y0, jfloat y1)
{
    return native(env, {"setViewLimitsY(%f, %f)", y0, y1},
                  [&] { return toJava(peer<Camera2d>(env, self).setViewLimitsY(y0, y1)); });
}

VX_NATIVE(jboolean, Camera2d, setViewLimits)
(JNIEnv* env, jclass, jobject self, jfloat x0, jfloat x1, jfloat y0, jfloat y1)
{
    return native(env, {"setViewLimits(%f, %f, %f, %f)", x0, x1, y0, y1},
                  [&] { return toJava(peer<Camera2d>(env, self).setViewLimits(x0, x1, y0, y1)); });
}

VX_NATIVE(jboolean, Camera2d, setViewLimitsWithPreserve)
(JNIEnv* env, jclass, jobject self, jfloat x0, jfloat x1, jfloat y0, jfloat y1, jboolean preserve)
{
    return native(env, {"setViewLimitsWithPreserve(%f, %f, %f, %f, %s)", x0, x1, y0, y1, trueFalse(preserve)},
                  [&] { return toJava(peer<Camera2d>(env, self).setViewLimits(x0, x1, y0, y1, preserve)); });
}

VX_NATIVE(jboolean, Camera2d, isPreserveAspectRatio)(JNIEnv* env, jclass, jobject self)
{
    return native(env, "isPreserveAspectRatio()",
                  [&] { return toJava(peer<Camera2d>(env, self).isPreserveAspectRatio()); });
}

VX_NATIVE(void, Camera2d, setPreserveAspectRatio)(JNIEnv* env, jclass, jobject self, jboolean preserve)
{
    native(env, {"setPreserveAspectRatio(%s)", trueFalse(preserve)},
           [&] { peer<Camera2d>(env, self).setPreserveAspectRatio(preserve); });
}

VX_NATIVE(void, Camera2d, zoomCenter)(JNIEnv* env, jclass, jobject self, jfloat factor)
{
    native(env, {"zoomCenter(%f)", factor}, [&] { zoomCenter(peer<Camera2d>(env, self), factor); });
}

VX_NATIVE(void, Camera2d, setOverrideResizeBehaviour)
(JNIEnv* env, jclass, jobject self, jboolean overrideGlobal, jint behaviour)
{
    native(env, "setOverrideResizeBehaviour()", [&] {
        peer<Camera2d>(env, self).setOverrideResizeBehaviour(overrideGlobal, javaResizeBehaviourToCpp(behaviour));
    });
}
