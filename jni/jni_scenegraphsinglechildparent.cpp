#include "graphics3d/scenegraph/scenegraphsinglechildparent.h"
#include "jni/support/enumconversions.h"
#include "jni/support/native.h"

#include "com_vexane_graphics3d_SceneGraphSingleChildParent.h"

using namespace vxgraphics3d;

VX_NATIVE(void, SceneGraphSingleChildParent, setChild)(JNIEnv* env, jclass, jobject self, jobject child)
{
    native(env, "setChild",
           [&] { peer<SceneGraphSingleChildParent>(env, self).setChild(share<SceneGraphNode>(env, child, "child")); });
}

VX_NATIVE(jboolean, SceneGraphSingleChildParent, hasChild)(JNIEnv* env, jclass, jobject self)
{
    return native(env, "hasChild",
                  [&] { return toJava(peer<SceneGraphSingleChildParent>(env, self).doesChildExist(0)); });
}

VX_NATIVE(jint, SceneGraphSingleChildParent, getChildType)(JNIEnv* env, jclass, jobject self)
{
    return native(env, "getChildType", [&] {
        return cppSceneGraphNodeTypeToJava(peer<SceneGraphSingleChildParent>(env, self).getChildType(0));
    });
}

VX_NATIVE(jint, SceneGraphSingleChildParent, getChildObjectType)(JNIEnv* env, jclass, jobject self)
{
    return native(env, "getChildObjectType", [&] {
        return cppSceneGraphObjectTypeToJava(peer<SceneGraphSingleChildParent>(env, self).getChildObjectType(0));
    });
}
