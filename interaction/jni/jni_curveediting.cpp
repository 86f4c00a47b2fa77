#include "base/java/nativeframe.h"
#include "base/java/peerhandle.h"
#include "graphics3d/overlays/overlaycurve.h"
#include "interaction/curveediting.h"
#include "interaction/jni/overlayviewof.h"

#include <boost/make_shared.hpp>

#include "com_vexane_interaction_CurveEditing.h"

using namespace vxbase;
using namespace vxinteraction;
using vxgraphics3d::OverlayCurve;

VX_NATIVE(void, CurveEditing, connectNative)
(JNIEnv* env, jclass, jobject self, jobject renderer, jobject curve, jint canvasHeight)
{
    guarded(env, [&] {
        attach(env, self,
               boost::make_shared<CurveEditing>(overlayViewOf(env, renderer, canvasHeight),
                                                share<OverlayCurve>(env, curve, "curve")));
    });
}

VX_NATIVE(jint, CurveEditing, getVertex)(JNIEnv* env, jclass, jobject self)
{
    return guarded(env, [&] { return peer<CurveEditing>(env, self).getVertex(); });
}

VX_NATIVE(jint, CurveEditing, getControlPoint)(JNIEnv* env, jclass, jobject self)
{
    return guarded(env, [&] { return peer<CurveEditing>(env, self).getControlPoint(); });
}
