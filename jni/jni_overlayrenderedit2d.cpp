#include "graphics3d/overlays/overlayrenderedit2d.h"
#include "jni/support/native.h"

#include <boost/make_shared.hpp>

#include <vector>

#include "com_vexane_graphics3d_OverlayRenderEdit2D.h"
#include "com_vexane_graphics3d_OverlayRenderEdit2d.h"

using namespace vxgraphics3d;

VX_NATIVE(void, OverlayRenderEdit2d, createNative)(JNIEnv* env, jclass, jobject self)
{
    native(env, "createNative", [&] { attach(env, self, boost::make_shared<OverlayRenderEdit2d>()); });
}

VX_NATIVE(void, OverlayRenderEdit2D, cleanupNative)(JNIEnv* env, jclass, jobject self)
{
    native(env, "cleanupNative", [&] { release(env, self); });
}

VX_NATIVE(void, OverlayRenderEdit2d, connectRenderDrawEditObject)(JNIEnv* env, jclass, jobject self, jobject record)
{
    native(env, "connectRenderDrawEditObject", [&] {
        auto& curve = peer<OverlayRenderEdit2d>(env, self);
        anyPeer<OverlayRenderEdit2d::Record>(env, record, "record");
        curve.connectRenderDrawEdit(share<OverlayRenderEdit2d::Record>(env, record, "record"));
    });
}

VX_NATIVE(jboolean, OverlayRenderEdit2d, isEdgeModified)(JNIEnv* env, jclass, jobject self, jint edge)
{
    return native(env, "isEdgeModified",
                  [&] { return toJava(peer<OverlayRenderEdit2d>(env, self).isEdgeModified(edge)); });
}

VX_NATIVE(jboolean, OverlayRenderEdit2d, isVertexModified)(JNIEnv* env, jclass, jobject self, jint vertex)
{
    return native(env, "isVertexModified",
                  [&] { return toJava(peer<OverlayRenderEdit2d>(env, self).isVertexModified(vertex)); });
}

VX_NATIVE(jobjectArray, OverlayRenderEdit2d, getEdgeData)(JNIEnv* env, jclass, jobject self, jint edge)
{
    return native(env, "getEdgeData", [&] {
        std::vector<std::vector<double>> rows;
        peer<OverlayRenderEdit2d>(env, self).getEdgeData(edge, rows);
        return toJavaNew(env, rows);
    });
}

VX_NATIVE(jint, OverlayRenderEdit2d, getEdgeDegree)(JNIEnv* env, jclass, jobject self, jint edge)
{
    return native(env, "getEdgeDegree", [&] { return peer<OverlayRenderEdit2d>(env, self).getDegree(edge); });
}
