#include "graphics3d/overlays/overlayellipse.h"
#include "jni/support/native.h"

#include <boost/make_shared.hpp>

#include "com_vexane_graphics3d_OverlayEllipse.h"

using namespace vxgraphics3d;

VX_NATIVE(void, OverlayEllipse, createNative)(JNIEnv* env, jclass, jobject self)
{
    native(env, "createNative", [&] { attach(env, self, boost::make_shared<OverlayEllipse>()); });
}

VX_NATIVE(void, OverlayEllipse, cleanupNative)(JNIEnv* env, jclass, jobject self)
{
    native(env, "cleanupNative", [&] { release(env, self); });
}
