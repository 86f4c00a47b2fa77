#include "graphics3d/foundation/image.h"
#include "jni/support/native.h"

#include <boost/make_shared.hpp>

#include "com_vexane_graphics3d_Image.h"

using namespace vxgraphics3d;

VX_NATIVE(void, Image, createNative)(JNIEnv* env, jclass, jobject self)
{
    native(env, "createNative",
           [&] { attach(env, self, boost::make_shared<Image>(0, 0, Image::Rgba, 0.0f, nullptr)); });
}

VX_NATIVE(void, Image, cleanupNative)(JNIEnv* env, jclass, jobject self)
{
    native(env, "cleanupNative", [&] { release(env, self); });
}
