#pragma once

#include "base/java/peerhandle.h"
#include "graphics3d/canvas/irenderercanvas.h"
#include "interaction/overlayplane.h"

#include <jni.h>

namespace vxinteraction {

/// The view of a renderer's peer.
inline OverlayView overlayViewOf(JNIEnv* env, jobject renderer, jint canvasHeight)
{
    return {vxbase::peer<vxgraphics3d::IRendererCanvas>(env, renderer, "renderer").getCanvas3dSettings(), canvasHeight};
}

} // namespace vxinteraction
