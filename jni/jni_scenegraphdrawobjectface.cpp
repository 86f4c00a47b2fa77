#include "datacarrier/renderdraw2d.h"
#include "datacarrier/renderdraw3d.h"
#include "graphics3d/geometry/scenegraphdrawobjectface.h"
#include "graphics3d/scenegraph/scenegraphparent.h"
#include "jni/support/native.h"

#include "com_vexane_graphics3d_SceneGraphDrawObjectFace.h"

using namespace vxgraphics3d;

VX_NATIVE(void, SceneGraphDrawObjectFace, fillObject2D)(JNIEnv* env, jclass, jobject self, jobject record)
{
    native(env, "fillObject2D", [&] {
        peer<SceneGraphDrawObjectFace>(env, self).fillData(anyPeer<vxdatacarrier::RenderDraw2D>(env, record, "record"));
    });
}

VX_NATIVE(void, SceneGraphDrawObjectFace, fillObject)(JNIEnv* env, jclass, jobject self, jobject record)
{
    native(env, "fillObject", [&] {
        peer<SceneGraphDrawObjectFace>(env, self).fillData(anyPeer<vxdatacarrier::RenderDraw3D>(env, record, "record"));
    });
}

VX_NATIVE(void, SceneGraphDrawObjectFace, createNative)(JNIEnv* env, jclass, jobject self, jint id)
{
    native(env, "createNative", [&] { attach(env, self, SceneGraphDrawObjectFace::create(id)); });
}

VX_NATIVE(void, SceneGraphDrawObjectFace, connectNative)(JNIEnv* env, jclass, jobject self, jobject owner, jint childId)
{
    native(env, "connectNative", [&] {
        attach(
            env, self,
            castTo<SceneGraphDrawObjectFace>(peer<SceneGraphParent>(env, owner, "owner").childPtr(childId), "childId"));
    });
}
