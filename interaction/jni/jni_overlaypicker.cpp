#include "base/java/conversions.h"
#include "base/java/nativeframe.h"
#include "base/java/peerhandle.h"
#include "graphics3d/foundation/vector3f.h"
#include "graphics3d/overlays/overlay.h"
#include "graphics3d/picking/pickedobjectcollection.h"
#include "interaction/jni/overlayviewof.h"
#include "interaction/overlaypicker.h"

#include <boost/make_shared.hpp>

#include <optional>

#include "com_vexane_interaction_OverlayPicker.h"

using namespace vxbase;
using namespace vxinteraction;
using vxgraphics3d::Overlay;
using vxgraphics3d::PickedObjectCollection;

namespace {

/// Writes a position to the first two elements of an array.
/// @return whether there is one
bool fillPosition(JNIEnv* env, jdoubleArray out, const std::optional<PlanePoint>& position)
{
    jdoubleArrayRH::atLeast(env, out, 2);
    if (position) {
        const jdoubleArrayRH elements(env, out);
        elements.get()[0] = position->x;
        elements.get()[1] = position->y;
    }
    return position.has_value();
}

} // namespace

VX_NATIVE(void, OverlayPicker, connectNative)
(JNIEnv* env, jclass, jobject self, jobject renderer, jobject overlay, jint canvasHeight)
{
    guarded(env, [&] {
        attach(env, self,
               boost::make_shared<OverlayPicker>(overlayViewOf(env, renderer, canvasHeight),
                                                 share<Overlay>(env, overlay, "overlay")));
    });
}

VX_NATIVE(void, OverlayPicker, cleanupNative)(JNIEnv* env, jclass, jobject self)
{
    guarded(env, [&] { release(env, self); });
}

VX_NATIVE(void, OverlayPicker, setCanvasHeight)(JNIEnv* env, jclass, jobject self, jint canvasHeight)
{
    guarded(env, [&] { peer<OverlayPicker>(env, self).setCanvasHeight(canvasHeight); });
}

VX_NATIVE(jboolean, OverlayPicker, pick)(JNIEnv* env, jclass, jobject self, jint x, jint y, jobject picked)
{
    return guarded(env, [&] {
        return peer<OverlayPicker>(env, self).pick(x, y, peer<PickedObjectCollection>(env, picked, "picked"));
    });
}

VX_NATIVE(jboolean, OverlayPicker, toPlane)(JNIEnv* env, jclass, jobject self, jint x, jint y, jdoubleArray out)
{
    return guarded(env, [&] {
        return fillPosition(env, out, peer<OverlayPicker>(env, self).plane().toPlane(PlanePoint::ofPixel(x, y)));
    });
}

VX_NATIVE(jboolean, OverlayPicker, toPicture)
(JNIEnv* env, jclass, jobject self, jdouble x, jdouble y, jdouble z, jdoubleArray out)
{
    return guarded(env, [&] {
        return fillPosition(env, out,
                            peer<OverlayPicker>(env, self).plane().toPicture(vxgraphics3d::Vector3f(x, y, z)));
    });
}
