#include "graphics3d/overlays/overlaytransformation.h"
#include "jni/support/native.h"
#include "jni/support/vectors.h"

#include <boost/make_shared.hpp>

#include <vector>

#include "com_vexane_graphics3d_OverlayTransformation.h"

using namespace vxgraphics3d;

VX_NATIVE(void, OverlayTransformation, createNative)(JNIEnv* env, jclass, jobject self)
{
    native(env, "createNative", [&] { attach(env, self, boost::make_shared<OverlayTransformation>()); });
}

VX_NATIVE(void, OverlayTransformation, cleanupNative)(JNIEnv* env, jclass, jobject self)
{
    native(env, "cleanupNative", [&] { release(env, self); });
}

VX_NATIVE(void, OverlayTransformation, markHandle)(JNIEnv* env, jclass, jobject self, jint handle, jboolean marked)
{
    native(env, "markHandle", [&] { peer<OverlayTransformation>(env, self).setMarkedHandle(handle, marked); });
}

VX_NATIVE(void, OverlayTransformation, getHandlePosition)
(JNIEnv* env, jclass, jobject self, jint handle, jdoubleArray out)
{
    native(env, "getHandlePosition", [&] {
        std::vector<double> position(3);
        peer<OverlayTransformation>(env, self).getTransformedHandlePos(handle, position);
        fillArray(env, out, position);
    });
}
