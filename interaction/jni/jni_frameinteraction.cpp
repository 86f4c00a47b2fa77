#include "base/java/conversions.h"
#include "base/java/nativeframe.h"
#include "base/java/peerhandle.h"
#include "graphics3d/overlays/overlaytransformation.h"
#include "interaction/frameinteraction.h"
#include "interaction/jni/overlayviewof.h"

#include <boost/make_shared.hpp>

#include <algorithm>

#include "com_vexane_interaction_FrameInteraction.h"

using namespace vxbase;
using namespace vxinteraction;
using vxgraphics3d::OverlayTransformation;

VX_NATIVE(void, FrameInteraction, connectNative)
(JNIEnv* env, jclass, jobject self, jobject renderer, jobject frame, jint canvasHeight)
{
    guarded(env, [&] {
        attach(env, self,
               boost::make_shared<FrameInteraction>(overlayViewOf(env, renderer, canvasHeight),
                                                    share<OverlayTransformation>(env, frame, "frame")));
    });
}

VX_NATIVE(void, FrameInteraction, getTransformation)(JNIEnv* env, jclass, jobject self, jfloatArray out)
{
    guarded(env, [&] {
        jfloatArrayRH::atLeast(env, out, 16);
        std::copy_n(peer<FrameInteraction>(env, self).getTransformation().data(), 16, jfloatArrayRH(env, out).get());
    });
}
