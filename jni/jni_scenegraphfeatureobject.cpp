#include "graphics3d/construction/scenegraphfeatureobject.h"
#include "graphics3d/scenegraph/scenegraphparent.h"
#include "jni/support/native.h"

#include <vector>

#include "com_vexane_graphics3d_SceneGraphFeatureObject.h"

using namespace vxgraphics3d;

VX_NATIVE(void, SceneGraphFeatureObject, createNative)(JNIEnv* env, jclass, jobject self)
{
    native(env, "createNative", [&] { attach(env, self, SceneGraphFeatureObject::create()); });
}

VX_NATIVE(void, SceneGraphFeatureObject, connectNative)(JNIEnv* env, jclass, jobject self, jobject owner, jint childId)
{
    native(env, "connectNative", [&] {
        attach(
            env, self,
            castTo<SceneGraphFeatureObject>(peer<SceneGraphParent>(env, owner, "owner").childPtr(childId), "childId"));
    });
}

VX_NATIVE(void, SceneGraphFeatureObject, setWorkPlane)(JNIEnv* env, jclass, jobject self, jfloatArray data)
{
    native(env, "setWorkPlane", [&] {
        SceneGraphFeatureObject& object = peer<SceneGraphFeatureObject>(env, self);
        const auto values = fromJava<std::vector<float>>(env, data);
        if (values.size() == WorkPlane::c_numSetupValues) {
            object.setPlane(values.data());
        }
    });
}

VX_NATIVE(void, SceneGraphFeatureObject, setExtrude)(JNIEnv* env, jclass, jobject self, jfloatArray values)
{
    native(env, "setExtrude", [&] {
        SceneGraphFeatureObject& object = peer<SceneGraphFeatureObject>(env, self);
        const auto heights = fromJava<std::vector<float>>(env, values);
        object.setExtrudeOperation(heights.data(), static_cast<int>(heights.size()));
    });
}

VX_NATIVE(void, SceneGraphFeatureObject, setRevolve)(JNIEnv* env, jclass, jobject self, jfloatArray data)
{
    native(env, "setRevolve", [&] {
        SceneGraphFeatureObject& object = peer<SceneGraphFeatureObject>(env, self);
        const auto values = fromJava<std::vector<float>>(env, data);
        if (values.size() >= WorkPlane::c_numRevolveValues) {
            object.setRevolveOperation(values.data());
        }
    });
}
