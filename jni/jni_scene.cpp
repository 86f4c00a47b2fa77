#include "graphics3d/scene/scene.h"
#include "jni/support/native.h"

#include <boost/make_shared.hpp>

#include "com_vexane_graphics3d_Scene.h"

using namespace vxgraphics3d;

VX_NATIVE(void, Scene, createNative)(JNIEnv* env, jclass, jobject self)
{
    native(env, "createNative", [&] { attach(env, self, boost::make_shared<Scene>()); });
}

VX_NATIVE(void, Scene, cleanupNative)(JNIEnv* env, jclass, jobject self)
{
    native(env, "cleanupNative", [&] { release(env, self); });
}
