#include "datacarrier/renderdraw1d.h"
#include "datacarrier/renderdraw2d.h"
#include "datacarrier/renderdraw3d.h"
#include "graphics3d/geometry/scenegraphdrawobjectpoint.h"
#include "graphics3d/scenegraph/scenegraphparent.h"
#include "jni/support/native.h"

#include "com_vexane_graphics3d_SceneGraphDrawObjectPoint.h"

using namespace vxgraphics3d;

VX_NATIVE(void, SceneGraphDrawObjectPoint, fillObject1D)(JNIEnv* env, jclass, jobject self, jobject record)
{
    native(env, "fillObject1D", [&] {
        peer<SceneGraphDrawObjectPoint>(env, self).fillData(
            anyPeer<vxdatacarrier::RenderDraw1D>(env, record, "record"));
    });
}

VX_NATIVE(void, SceneGraphDrawObjectPoint, fillObject2D)(JNIEnv* env, jclass, jobject self, jobject record)
{
    native(env, "fillObject2D", [&] {
        peer<SceneGraphDrawObjectPoint>(env, self).fillData(
            anyPeer<vxdatacarrier::RenderDraw2D>(env, record, "record"));
    });
}

VX_NATIVE(void, SceneGraphDrawObjectPoint, fillObject)(JNIEnv* env, jclass, jobject self, jobject record)
{
    native(env, "fillObject", [&] {
        peer<SceneGraphDrawObjectPoint>(env, self).fillData(
            anyPeer<vxdatacarrier::RenderDraw3D>(env, record, "record"));
    });
}

VX_NATIVE(void, SceneGraphDrawObjectPoint, createNative)(JNIEnv* env, jclass, jobject self, jint id)
{
    native(env, "createNative", [&] { attach(env, self, SceneGraphDrawObjectPoint::create(id)); });
}

VX_NATIVE(void, SceneGraphDrawObjectPoint, connectNative)
(JNIEnv* env, jclass, jobject self, jobject owner, jint childId)
{
    native(env, "connectNative", [&] {
        attach(env, self,
               castTo<SceneGraphDrawObjectPoint>(peer<SceneGraphParent>(env, owner, "owner").childPtr(childId),
                                                 "childId"));
    });
}
