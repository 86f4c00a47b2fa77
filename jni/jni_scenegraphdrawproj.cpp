#include "datacarrier/renderdrawproj2d.h"
#include "graphics3d/construction/scenegraphdrawproj.h"
#include "jni/support/native.h"

#include "com_vexane_graphics3d_SceneGraphDrawProj.h"

using namespace vxgraphics3d;

VX_NATIVE(void, SceneGraphDrawProj, createNative)(JNIEnv* env, jclass, jobject self, jint id)
{
    native(env, "createNative", [&] { attach(env, self, SceneGraphDrawProj::create(id)); });
}

VX_NATIVE(void, SceneGraphDrawProj, fillObject)(JNIEnv* env, jclass, jobject self, jobject record)
{
    native(env, "fillObject", [&] {
        peer<SceneGraphDrawProj>(env, self).fillData(anyPeer<vxdatacarrier::RenderDrawProj2D>(env, record, "record"));
    });
}

VX_NATIVE(jint, SceneGraphDrawProj, getId)(JNIEnv* env, jclass, jobject self)
{
    return native(env, "getId", [&] { return peer<SceneGraphDrawProj>(env, self).getId(); });
}
