#include "graphics3d/scenegraph/scenegraphgroup.h"
#include "graphics3d/scenegraph/scenegraphobject.h"
#include "graphics3d/scenegraph/scenegraphparent.h"
#include "jni/support/enumconversions.h"
#include "jni/support/native.h"

#include "com_vexane_graphics3d_SceneGraphGroup.h"

using namespace vxgraphics3d;

VX_NATIVE(void, SceneGraphGroup, createNative)(JNIEnv* env, jclass, jobject self)
{
    native(env, "createNative", [&] { attach(env, self, SceneGraphGroup::create()); });
}

VX_NATIVE(void, SceneGraphGroup, connectNative)(JNIEnv* env, jclass, jobject self, jobject owner, jint childId)
{
    native(env, "connectNative", [&] {
        attach(env, self,
               castTo<SceneGraphGroup>(peer<SceneGraphParent>(env, owner, "owner").childPtr(childId), "childId"));
    });
}

VX_NATIVE(void, SceneGraphGroup, addChild)(JNIEnv* env, jclass, jobject self, jobject child)
{
    native(env, "addChild",
           [&] { peer<SceneGraphGroup>(env, self).addChild(share<SceneGraphNode>(env, child, "child")); });
}

VX_NATIVE(void, SceneGraphGroup, removeChild)(JNIEnv* env, jclass, jobject self, jint childId)
{
    native(env, "removeChild", [&] { peer<SceneGraphGroup>(env, self).removeChild(childId); });
}

VX_NATIVE(void, SceneGraphGroup, removeAllChildren)(JNIEnv* env, jclass, jobject self)
{
    native(env, "removeAllChildren", [&] { peer<SceneGraphGroup>(env, self).removeAllChildren(); });
}

VX_NATIVE(jint, SceneGraphGroup, getNoOfChildren)(JNIEnv* env, jclass, jobject self)
{
    return native(env, "getNoOfChildren", [&] { return peer<SceneGraphGroup>(env, self).getNoOfChildren(); });
}

VX_NATIVE(jboolean, SceneGraphGroup, doesChildExist)(JNIEnv* env, jclass, jobject self, jint childId)
{
    return native(env, "doesChildExist",
                  [&] { return toJava(peer<SceneGraphGroup>(env, self).doesChildExist(childId)); });
}

VX_NATIVE(jint, SceneGraphGroup, getChildType)(JNIEnv* env, jclass, jobject self, jint childId)
{
    return native(env, "getChildType",
                  [&] { return cppSceneGraphNodeTypeToJava(peer<SceneGraphGroup>(env, self).getChildType(childId)); });
}

VX_NATIVE(jint, SceneGraphGroup, getChildObjectType)(JNIEnv* env, jclass, jobject self, jint childId)
{
    return native(env, "getChildObjectType", [&] {
        const SceneGraphNode& child = *peer<SceneGraphGroup>(env, self).getChild(childId);
        return cppSceneGraphObjectTypeToJava(castTo<const SceneGraphObject>(child, "childId").getObjectType());
    });
}
