#include "base/java/nativeframe.h"
#include "base/java/peerhandle.h"
#include "graphics3d/canvas/canvas3dsettings.h"
#include "graphics3d/canvas/irenderercanvas.h"
#include "interaction/camerainteraction.h"

#include <boost/make_shared.hpp>

#include "com_vexane_interaction_CameraInteraction.h"

using namespace vxbase;
using namespace vxinteraction;
using vxgraphics3d::IRendererCanvas;

namespace {

CameraInteraction& interaction(JNIEnv* env, jobject self)
{
    return peer<CameraInteraction>(env, self);
}

} // namespace

VX_NATIVE(void, CameraInteraction, connectNative)
(JNIEnv* env, jclass, jobject self, jobject renderer, jint canvasHeight)
{
    guarded(env, [&] {
        attach(env, self,
               boost::make_shared<CameraInteraction>(
                   peer<IRendererCanvas>(env, renderer, "renderer").getCanvas3dSettings(), canvasHeight));
    });
}

VX_NATIVE(void, CameraInteraction, cleanupNative)(JNIEnv* env, jclass, jobject self)
{
    guarded(env, [&] {
        // Not in the destructor: a lost peer is released on any thread, which must not change the camera.
        if (const auto open = detach<CameraInteraction>(env, self)) {
            open->cancel();
        }
    });
}

VX_NATIVE(void, CameraInteraction, setCanvasHeight)(JNIEnv* env, jclass, jobject self, jint canvasHeight)
{
    guarded(env, [&] { interaction(env, self).setCanvasHeight(canvasHeight); });
}

VX_NATIVE(jboolean, CameraInteraction, press)
(JNIEnv* env, jclass, jobject self, jint button, jint keyMask, jint x, jint y)
{
    return guarded(env, [&] { return interaction(env, self).press(button, keyMask, x, y); });
}

VX_NATIVE(jboolean, CameraInteraction, drag)(JNIEnv* env, jclass, jobject self, jint x, jint y)
{
    return guarded(env, [&] { return interaction(env, self).drag(x, y); });
}

VX_NATIVE(void, CameraInteraction, release)(JNIEnv* env, jclass, jobject self)
{
    guarded(env, [&] { interaction(env, self).release(); });
}

VX_NATIVE(jboolean, CameraInteraction, cancel)(JNIEnv* env, jclass, jobject self)
{
    return guarded(env, [&] { return interaction(env, self).cancel(); });
}

VX_NATIVE(jboolean, CameraInteraction, wheel)(JNIEnv* env, jclass, jobject self, jdouble notches, jint x, jint y)
{
    return guarded(env, [&] { return interaction(env, self).wheel(notches, x, y); });
}

VX_NATIVE(jboolean, CameraInteraction, zoomToRectangle)
(JNIEnv* env, jclass, jobject self, jint x0, jint y0, jint x1, jint y1)
{
    return guarded(env, [&] { return interaction(env, self).zoomToRectangle(x0, y0, x1, y1); });
}

VX_NATIVE(jboolean, CameraInteraction, isDragging)(JNIEnv* env, jclass, jobject self)
{
    return guarded(env, [&] { return interaction(env, self).isDragging(); });
}

VX_NATIVE(jint, CameraInteraction, getAction)(JNIEnv* env, jclass, jobject self)
{
    return guarded(env, [&] { return static_cast<jint>(interaction(env, self).getAction()); });
}
