#include "graphics3d/overlays/overlaydrawcurve.h"
#include "jni/support/native.h"

#include <boost/make_shared.hpp>

#include "com_vexane_graphics3d_OverlayDrawCurve.h"

using namespace vxgraphics3d;

VX_NATIVE(void, OverlayDrawCurve, createNative)(JNIEnv* env, jclass, jobject self)
{
    native(env, "createNative", [&] { attach(env, self, boost::make_shared<OverlayDrawCurve>()); });
}

VX_NATIVE(void, OverlayDrawCurve, cleanupNative)(JNIEnv* env, jclass, jobject self)
{
    native(env, "cleanupNative", [&] { release(env, self); });
}

VX_NATIVE(jint, OverlayDrawCurve, addVertex)(JNIEnv* env, jclass, jobject self, jdouble x, jdouble y)
{
    return native(env, "addVertex", [&] { return peer<OverlayDrawCurve>(env, self).addVertex(x, y); });
}

VX_NATIVE(jint, OverlayDrawCurve, addControlPoint)(JNIEnv* env, jclass, jobject self, jint edge, jdouble x, jdouble y)
{
    return native(env, "addControlPoint",
                  [&] { return peer<OverlayDrawCurve>(env, self).addControlPoint(edge, x, y); });
}

VX_NATIVE(jint, OverlayDrawCurve, addEdge)(JNIEnv* env, jclass, jobject self, jint startVertex, jint endVertex)
{
    return native(env, "addEdge", [&] { return peer<OverlayDrawCurve>(env, self).addEdge(startVertex, endVertex); });
}

VX_NATIVE(void, OverlayDrawCurve, setEdge)(JNIEnv* env, jclass, jobject self, jint startVertex, jint endVertex)
{
    native(env, "setEdge", [&] { peer<OverlayDrawCurve>(env, self).addEdge(startVertex, endVertex); });
}
