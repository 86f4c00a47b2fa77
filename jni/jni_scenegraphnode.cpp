#include "graphics3d/scenegraph/scenegraphnode.h"
#include "jni/support/enumconversions.h"
#include "jni/support/native.h"

#include "com_vexane_graphics3d_SceneGraphNode.h"

using namespace vxgraphics3d;

VX_NATIVE(jint, SceneGraphNode, getType)(JNIEnv* env, jclass, jobject self)
{
    return native(env, "getType",
                  [&] { return cppSceneGraphNodeTypeToJava(peer<SceneGraphNode>(env, self).getType()); });
}

VX_NATIVE(jint, SceneGraphNode, getChildId)(JNIEnv* env, jclass, jobject self)
{
    return native(env, "getChildId", [&] { return peer<SceneGraphNode>(env, self).getChildId(); });
}

VX_NATIVE(jboolean, SceneGraphNode, isActive)(JNIEnv* env, jclass, jobject self)
{
    return native(env, "isActive", [&] { return toJava(peer<SceneGraphNode>(env, self).isActive()); });
}

VX_NATIVE(void, SceneGraphNode, setActive)(JNIEnv* env, jclass, jobject self, jboolean active)
{
    native(env, "setActive", [&] { peer<SceneGraphNode>(env, self).setActive(active); });
}

VX_NATIVE(void, SceneGraphNode, disconnectFromParent)(JNIEnv* env, jclass, jobject self)
{
    native(env, "disconnectFromParent", [&] { peer<SceneGraphNode>(env, self).disconnectFromParent(); });
}

VX_NATIVE(void, SceneGraphNode, cleanupNative)(JNIEnv* env, jclass, jobject self)
{
    native(env, "cleanupNative", [&] { release(env, self); });
}
