#include "graphics3d/overlays/overlaypoint.h"
#include "jni/support/native.h"

#include <boost/make_shared.hpp>

#include "com_vexane_graphics3d_OverlayPoint.h"

using namespace vxgraphics3d;

VX_NATIVE(void, OverlayPoint, createNative)(JNIEnv* env, jclass, jobject self)
{
    native(env, "createNative", [&] { attach(env, self, boost::make_shared<OverlayPoint>()); });
}

VX_NATIVE(void, OverlayPoint, cleanupNative)(JNIEnv* env, jclass, jobject self)
{
    native(env, "cleanupNative", [&] { release(env, self); });
}

VX_NATIVE(void, OverlayPoint, doSetLocation)(JNIEnv* env, jclass, jobject self, jdouble x, jdouble y)
{
    native(env, "doSetLocation", [&] {
        auto& object = peer<OverlayPoint>(env, self);
        object.setX(x);
        object.setY(y);
    });
}
