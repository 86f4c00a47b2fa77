#include "graphics3d/cameras/camera3d.h"
#include "graphics3d/canvas/canvas3dsettings.h"
#include "jni/support/conversiontable.h"
#include "jni/support/enumconversions.h"
#include "jni/support/native.h"
#include "jni/support/zoomcenter.h"

#include <boost/make_shared.hpp>

#include "com_vexane_graphics3d_Camera3d.h"

using namespace vxgraphics3d;

namespace {

/// For Java every projection is perspective, 0, except the orthographic one.
constexpr ConversionTable<1> c_projectionTypes{
    {{{Camera3d::ProjectionOrthographic, 1}}}, Camera3d::ProjectionPerspective, 0};

/// The committed direction, without uncommitted changes.
Vector3f committedDirection(const Camera3d& camera)
{
    return camera.getForward() * camera.getLookAtLength();
}

} // namespace

VX_NATIVE(void, Camera3d, createNative)(JNIEnv* env, jclass, jobject self)
{
    native(env, "createNative", [&] { attach(env, self, boost::make_shared<Camera3d>()); });
}

VX_NATIVE(void, Camera3d, connectNative)(JNIEnv* env, jclass, jobject self, jobject owner)
{
    native(env, "connectNative",
           [&] { attach(env, self, peer<Canvas3dSettings>(env, owner, "owner").getCamera3dPtr()); });
}

VX_NATIVE(void, Camera3d, cleanupNative)(JNIEnv* env, jclass, jobject self)
{
    native(env, "cleanupNative", [&] { release(env, self); });
}

VX_NATIVE(void, Camera3d, setPosition)
(JNIEnv* env, jclass, jobject self, jfloat px, jfloat py, jfloat pz, jfloat dx, jfloat dy, jfloat dz, jfloat ux,
 jfloat uy, jfloat uz)
{
    native(env, "setPosition", [&] { peer<Camera3d>(env, self).lookAt({px, py, pz}, {dx, dy, dz}, {ux, uy, uz}); });
}

VX_NATIVE(jfloat, Camera3d, getPositionX)(JNIEnv* env, jclass, jobject self)
{
    return native(env, "getPositionX", [&] { return peer<Camera3d>(env, self).getPosition().x; });
}

VX_NATIVE(jfloat, Camera3d, getPositionY)(JNIEnv* env, jclass, jobject self)
{
    return native(env, "getPositionY", [&] { return peer<Camera3d>(env, self).getPosition().y; });
}

VX_NATIVE(jfloat, Camera3d, getPositionZ)(JNIEnv* env, jclass, jobject self)
{
    return native(env, "getPositionZ", [&] { return peer<Camera3d>(env, self).getPosition().z; });
}

VX_NATIVE(jfloat, Camera3d, getLookAtDirectionX)(JNIEnv* env, jclass, jobject self)
{
    return native(env, "getLookAtDirectionX", [&] { return committedDirection(peer<Camera3d>(env, self)).x; });
}

VX_NATIVE(jfloat, Camera3d, getLookAtDirectionY)(JNIEnv* env, jclass, jobject self)
{
    return native(env, "getLookAtDirectionY", [&] { return committedDirection(peer<Camera3d>(env, self)).y; });
}

VX_NATIVE(jfloat, Camera3d, getLookAtDirectionZ)(JNIEnv* env, jclass, jobject self)
{
    return native(env, "getLookAtDirectionZ", [&] { return committedDirection(peer<Camera3d>(env, self)).z; });
}

VX_NATIVE(jfloat, Camera3d, getUpDirectionX)(JNIEnv* env, jclass, jobject self)
{
    return native(env, "getUpDirectionX", [&] { return peer<Camera3d>(env, self).getUp().x; });
}

VX_NATIVE(jfloat, Camera3d, getUpDirectionY)(JNIEnv* env, jclass, jobject self)
{
    return native(env, "getUpDirectionY", [&] { return peer<Camera3d>(env, self).getUp().y; });
}

VX_NATIVE(jfloat, Camera3d, getUpDirectionZ)(JNIEnv* env, jclass, jobject self)
{
    return native(env, "getUpDirectionZ", [&] { return peer<Camera3d>(env, self).getUp().z; });
}

VX_NATIVE(void, Camera3d, setRotationPoint)(JNIEnv* env, jclass, jobject self, jfloat x, jfloat y, jfloat z)
{
    native(env, "setRotationPoint", [&] { peer<Camera3d>(env, self).setRotationPoint({x, y, z}); });
}

VX_NATIVE(jfloat, Camera3d, getRotationPointX)(JNIEnv* env, jclass, jobject self)
{
    return native(env, "getRotationPointX", [&] { return peer<Camera3d>(env, self).getRotationPoint().x; });
}

VX_NATIVE(jfloat, Camera3d, getRotationPointY)(JNIEnv* env, jclass, jobject self)
{
    return native(env, "getRotationPointY", [&] { return peer<Camera3d>(env, self).getRotationPoint().y; });
}

VX_NATIVE(jfloat, Camera3d, getRotationPointZ)(JNIEnv* env, jclass, jobject self)
{
    return native(env, "getRotationPointZ", [&] { return peer<Camera3d>(env, self).getRotationPoint().z; });
}

VX_NATIVE(void, Camera3d, setFieldOfView)(JNIEnv* env, jclass, jobject self, jfloat degrees)
{
    native(env, "setFieldOfView", [&] { peer<Camera3d>(env, self).setFOV(degrees); });
}

VX_NATIVE(jfloat, Camera3d, getFieldOfView)(JNIEnv* env, jclass, jobject self)
{
    return native(env, "getFieldOfView", [&] { return peer<Camera3d>(env, self).getFOV(); });
}

VX_NATIVE(void, Camera3d, setOrthographicSize)(JNIEnv* env, jclass, jobject self, jfloat size)
{
    native(env, "setOrthographicSize", [&] { peer<Camera3d>(env, self).setOrthographicSize(size); });
}

VX_NATIVE(jfloat, Camera3d, getOrthographicSize)(JNIEnv* env, jclass, jobject self)
{
    return native(env, "getOrthographicSize", [&] { return peer<Camera3d>(env, self).getOrthographicSize(); });
}

VX_NATIVE(void, Camera3d, setViewingScale)(JNIEnv* env, jclass, jobject self, jfloat scale)
{
    native(env, "setViewingScale", [&] { peer<Camera3d>(env, self).setViewingScale(scale); });
}

VX_NATIVE(jfloat, Camera3d, getViewingScale)(JNIEnv* env, jclass, jobject self)
{
    return native(env, "getViewingScale", [&] { return peer<Camera3d>(env, self).getViewingScale(); });
}

VX_NATIVE(void, Camera3d, setRelativeViewOffset)(JNIEnv* env, jclass, jobject self, jfloat x, jfloat y)
{
    native(env, "setRelativeViewOffset", [&] { peer<Camera3d>(env, self).setRelativeViewOffset(x, y); });
}

VX_NATIVE(jfloat, Camera3d, getRelativeViewOffsetX)(JNIEnv* env, jclass, jobject self)
{
    return native(env, "getRelativeViewOffsetX", [&] { return peer<Camera3d>(env, self).getRelativeViewOffsetX(); });
}

VX_NATIVE(jfloat, Camera3d, getRelativeViewOffsetY)(JNIEnv* env, jclass, jobject self)
{
    return native(env, "getRelativeViewOffsetY", [&] { return peer<Camera3d>(env, self).getRelativeViewOffsetY(); });
}

VX_NATIVE(void, Camera3d, setProjectionType)(JNIEnv* env, jclass, jobject self, jint type)
{
    native(env, "setProjectionType", [&] {
        const auto projection = static_cast<Camera3d::ProjectionType>(c_projectionTypes.toCpp(type));
        peer<Camera3d>(env, self).setProjectionType(projection);
    });
}

VX_NATIVE(jint, Camera3d, getProjectionType)(JNIEnv* env, jclass, jobject self)
{
    return native(env, "getProjectionType",
                  [&] { return c_projectionTypes.toJava(peer<Camera3d>(env, self).getProjectionType()); });
}

VX_NATIVE(void, Camera3d, zoomCenter)(JNIEnv* env, jclass, jobject self, jfloat factor)
{
    native(env, {"zoomCenter(%f)", factor}, [&] { zoomCenter(peer<Camera3d>(env, self), factor); });
}

VX_NATIVE(void, Camera3d, setAxisViewScales)(JNIEnv* env, jclass, jobject self, jfloat x, jfloat y, jfloat z)
{
    native(env, {"setAxisViewScales(%f, %f, %f)", x, y, z},
           [&] { peer<Camera3d>(env, self).setAxisViewScales(x, y, z); });
}

VX_NATIVE(void, Camera3d, setAxisViewScalesAuto)(JNIEnv* env, jclass, jobject self)
{
    native(env, "setAxisViewScalesAuto", [&] { peer<Camera3d>(env, self).setAxisViewScalesAuto(); });
}

VX_NATIVE(void, Camera3d, resetAxisViewScales)(JNIEnv* env, jclass, jobject self)
{
    native(env, "resetAxisViewScales", [&] { peer<Camera3d>(env, self).resetAxisViewScales(); });
}

VX_NATIVE(jfloat, Camera3d, getAxisViewScaleX)(JNIEnv* env, jclass, jobject self)
{
    return native(env, "getAxisViewScaleX", [&] { return peer<Camera3d>(env, self).getAxisViewScaleX(); });
}

VX_NATIVE(jfloat, Camera3d, getAxisViewScaleY)(JNIEnv* env, jclass, jobject self)
{
    return native(env, "getAxisViewScaleY", [&] { return peer<Camera3d>(env, self).getAxisViewScaleY(); });
}

VX_NATIVE(jfloat, Camera3d, getAxisViewScaleZ)(JNIEnv* env, jclass, jobject self)
{
    return native(env, "getAxisViewScaleZ", [&] { return peer<Camera3d>(env, self).getAxisViewScaleZ(); });
}

VX_NATIVE(void, Camera3d, setOverrideResizeBehaviour)
(JNIEnv* env, jclass, jobject self, jboolean overrideGlobal, jint behaviour)
{
    native(env, "setOverrideResizeBehaviour()", [&] {
        peer<Camera3d>(env, self).setOverrideResizeBehaviour(overrideGlobal, javaResizeBehaviourToCpp(behaviour));
    });
}
