#include "base/java/conversions.h"
#include "base/java/nativeframe.h"
#include "base/java/peerhandle.h"
#include "graphics3d/overlays/overlay.h"
#include "graphics3d/overlays/overlayrectangle.h"
#include "interaction/rubberband.h"

#include <boost/make_shared.hpp>

#include <algorithm>

#include "com_vexane_interaction_RubberBand.h"

using namespace vxbase;
using namespace vxinteraction;
using vxgraphics3d::Overlay;
using vxgraphics3d::OverlayRectangle;

VX_NATIVE(void, RubberBand, createNative)(JNIEnv* env, jclass, jobject self, jobject overlay, jobject rectangle)
{
    guarded(env, [&] {
        attach(env, self,
               boost::make_shared<RubberBand>(share<Overlay>(env, overlay, "overlay"),
                                              share<OverlayRectangle>(env, rectangle, "rectangle")));
    });
}

VX_NATIVE(void, RubberBand, cleanupNative)(JNIEnv* env, jclass, jobject self)
{
    guarded(env, [&] {
        // Not in the destructor: a lost peer is released on any thread, which must not change the overlay.
        if (const auto open = detach<RubberBand>(env, self)) {
            open->cancel();
        }
    });
}

VX_NATIVE(void, RubberBand, press)(JNIEnv* env, jclass, jobject self, jint x, jint y)
{
    guarded(env, [&] { peer<RubberBand>(env, self).press(x, y); });
}

VX_NATIVE(jboolean, RubberBand, drag)(JNIEnv* env, jclass, jobject self, jint x, jint y)
{
    return guarded(env, [&] { return peer<RubberBand>(env, self).drag(x, y); });
}

VX_NATIVE(jboolean, RubberBand, release)(JNIEnv* env, jclass, jobject self, jintArray corners)
{
    return guarded(env, [&] {
        jintArrayRH::atLeast(env, corners, 4);
        const auto found = peer<RubberBand>(env, self).release();
        if (found) {
            std::copy(found->begin(), found->end(), jintArrayRH(env, corners).get());
        }
        return found.has_value();
    });
}

VX_NATIVE(jboolean, RubberBand, cancel)(JNIEnv* env, jclass, jobject self)
{
    return guarded(env, [&] { return peer<RubberBand>(env, self).cancel(); });
}

VX_NATIVE(jboolean, RubberBand, isActive)(JNIEnv* env, jclass, jobject self)
{
    return guarded(env, [&] { return peer<RubberBand>(env, self).isActive(); });
}
