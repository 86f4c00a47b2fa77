#include "base/java/nativeframe.h"
#include "base/java/peerhandle.h"
#include "interaction/overlayinteraction.h"

#include "com_vexane_interaction_OverlayInteraction.h"

using namespace vxbase;
using namespace vxinteraction;

VX_NATIVE(void, OverlayInteraction, cleanupNative)(JNIEnv* env, jclass, jobject self)
{
    guarded(env, [&] {
        // Not in the destructor: a lost peer is released on any thread, which must not change the overlay.
        if (const auto open = detach<OverlayInteraction>(env, self)) {
            open->cancel();
        }
    });
}

VX_NATIVE(void, OverlayInteraction, setCanvasHeight)(JNIEnv* env, jclass, jobject self, jint canvasHeight)
{
    guarded(env, [&] { peer<OverlayInteraction>(env, self).setCanvasHeight(canvasHeight); });
}

VX_NATIVE(jboolean, OverlayInteraction, press)(JNIEnv* env, jclass, jobject self, jint x, jint y)
{
    return guarded(env, [&] { return peer<OverlayInteraction>(env, self).press(x, y); });
}

VX_NATIVE(jboolean, OverlayInteraction, drag)(JNIEnv* env, jclass, jobject self, jint x, jint y)
{
    return guarded(env, [&] { return peer<OverlayInteraction>(env, self).drag(x, y); });
}

VX_NATIVE(jboolean, OverlayInteraction, release)(JNIEnv* env, jclass, jobject self)
{
    return guarded(env, [&] { return peer<OverlayInteraction>(env, self).release(); });
}

VX_NATIVE(jboolean, OverlayInteraction, cancel)(JNIEnv* env, jclass, jobject self)
{
    return guarded(env, [&] { return peer<OverlayInteraction>(env, self).cancel(); });
}

VX_NATIVE(jboolean, OverlayInteraction, isActive)(JNIEnv* env, jclass, jobject self)
{
    return guarded(env, [&] { return peer<OverlayInteraction>(env, self).isActive(); });
}
