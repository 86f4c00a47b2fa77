#include "graphics3d/overlays/overlayrectangle.h"
#include "jni/support/native.h"

#include <boost/make_shared.hpp>

#include "com_vexane_graphics3d_OverlayRectangle.h"

using namespace vxgraphics3d;

VX_NATIVE(void, OverlayRectangle, createNative)(JNIEnv* env, jclass, jobject self)
{
    native(env, "createNative", [&] { attach(env, self, boost::make_shared<OverlayRectangle>()); });
}

VX_NATIVE(void, OverlayRectangle, cleanupNative)(JNIEnv* env, jclass, jobject self)
{
    native(env, "cleanupNative", [&] { release(env, self); });
}
