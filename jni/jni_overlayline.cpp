#include "graphics3d/overlays/overlayline.h"
#include "jni/support/native.h"

#include <boost/make_shared.hpp>

#include "com_vexane_graphics3d_OverlayLine.h"

using namespace vxgraphics3d;

VX_NATIVE(void, OverlayLine, createNative)(JNIEnv* env, jclass, jobject self)
{
    native(env, "createNative", [&] { attach(env, self, boost::make_shared<OverlayLine>()); });
}

VX_NATIVE(void, OverlayLine, cleanupNative)(JNIEnv* env, jclass, jobject self)
{
    native(env, "cleanupNative", [&] { release(env, self); });
}
