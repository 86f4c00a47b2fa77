#include "graphics3d/scene/scene.h"
#include "graphics3d/scenegraph/scenegraphroot.h"
#include "jni/support/native.h"

#include "com_vexane_graphics3d_SceneGraphRoot.h"

using namespace vxgraphics3d;

VX_NATIVE(void, SceneGraphRoot, connectNative)(JNIEnv* env, jclass, jobject self, jobject owner)
{
    native(env, "connectNative", [&] { attach(env, self, peer<Scene>(env, owner, "owner").getRoot()); });
}
