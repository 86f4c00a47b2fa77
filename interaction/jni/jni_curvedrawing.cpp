#include "base/java/nativeframe.h"
#include "base/java/peerhandle.h"
#include "graphics3d/overlays/overlay.h"
#include "graphics3d/overlays/overlaydrawcurve.h"
#include "interaction/curvedrawing.h"
#include "interaction/jni/overlayviewof.h"

#include <boost/make_shared.hpp>

#include "com_vexane_interaction_CurveDrawing.h"

using namespace vxbase;
using namespace vxinteraction;
using vxgraphics3d::Overlay;
using vxgraphics3d::OverlayDrawCurve;

VX_NATIVE(void, CurveDrawing, connectNative)
(JNIEnv* env, jclass, jobject self, jobject renderer, jobject overlay, jobject curve, jint canvasHeight)
{
    guarded(env, [&] {
        attach(env, self,
               boost::make_shared<CurveDrawing>(overlayViewOf(env, renderer, canvasHeight),
                                                share<Overlay>(env, overlay, "overlay"),
                                                share<OverlayDrawCurve>(env, curve, "curve")));
    });
}

VX_NATIVE(void, CurveDrawing, setDegree)(JNIEnv* env, jclass, jobject self, jint degree)
{
    guarded(env, [&] { peer<CurveDrawing>(env, self).setDegree(degree); });
}

VX_NATIVE(jboolean, CurveDrawing, finish)(JNIEnv* env, jclass, jobject self)
{
    return guarded(env, [&] { return peer<CurveDrawing>(env, self).finish(); });
}
