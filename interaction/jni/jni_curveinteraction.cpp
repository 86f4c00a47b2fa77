#include "base/java/conversions.h"
#include "base/java/nativeframe.h"
#include "base/java/peerhandle.h"
#include "graphics3d/canvas/canvas3dsettings.h"
#include "graphics3d/canvas/irenderercanvas.h"
#include "graphics3d/overlays/overlay.h"
#include "graphics3d/overlays/overlaycurve.h"
#include "interaction/curveinteraction.h"

#include <boost/make_shared.hpp>

#include "com_vexane_interaction_CurveInteraction.h"

using namespace vxbase;
using namespace vxinteraction;
using vxgraphics3d::IRendererCanvas;
using vxgraphics3d::Overlay;

namespace {

CurveInteraction& interaction(JNIEnv* env, jobject self)
{
    return peer<CurveInteraction>(env, self);
}

} // namespace

VX_NATIVE(void, CurveInteraction, connectNative)
(JNIEnv* env, jclass, jobject self, jobject renderer, jobject overlay, jint canvasHeight)
{
    guarded(env, [&] {
        attach(
            env, self,
            boost::make_shared<CurveInteraction>(peer<IRendererCanvas>(env, renderer, "renderer").getCanvas3dSettings(),
                                                 share<Overlay>(env, overlay, "overlay"), canvasHeight));
    });
}

VX_NATIVE(void, CurveInteraction, cleanupNative)(JNIEnv* env, jclass, jobject self)
{
    guarded(env, [&] { release(env, self); });
}

VX_NATIVE(void, CurveInteraction, setCanvasHeight)(JNIEnv* env, jclass, jobject self, jint canvasHeight)
{
    guarded(env, [&] { interaction(env, self).setCanvasHeight(canvasHeight); });
}

VX_NATIVE(jboolean, CurveInteraction, press)(JNIEnv* env, jclass, jobject self, jint x, jint y)
{
    return guarded(env, [&] { return toJava(interaction(env, self).press(x, y)); });
}

VX_NATIVE(jboolean, CurveInteraction, drag)(JNIEnv* env, jclass, jobject self, jint x, jint y)
{
    return guarded(env, [&] { return toJava(interaction(env, self).drag(x, y)); });
}

VX_NATIVE(void, CurveInteraction, release)(JNIEnv* env, jclass, jobject self)
{
    guarded(env, [&] { interaction(env, self).release(); });
}

VX_NATIVE(jboolean, CurveInteraction, cancel)(JNIEnv* env, jclass, jobject self)
{
    return guarded(env, [&] { return toJava(interaction(env, self).cancel()); });
}

VX_NATIVE(jboolean, CurveInteraction, isDragging)(JNIEnv* env, jclass, jobject self)
{
    return guarded(env, [&] { return toJava(interaction(env, self).isDragging()); });
}

VX_NATIVE(jint, CurveInteraction, getPickId)(JNIEnv* env, jclass, jobject self)
{
    return guarded(env, [&]() -> jint {
        const auto curve = interaction(env, self).getCurve();
        return curve ? curve->getObjectPickID() : -1;
    });
}

VX_NATIVE(jint, CurveInteraction, getVertex)(JNIEnv* env, jclass, jobject self)
{
    return guarded(env, [&]() -> jint { return interaction(env, self).getVertex(); });
}

VX_NATIVE(jint, CurveInteraction, getControlPoint)(JNIEnv* env, jclass, jobject self)
{
    return guarded(env, [&]() -> jint { return interaction(env, self).getControlPoint(); });
}
