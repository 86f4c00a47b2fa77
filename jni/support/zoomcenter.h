#pragma once

#include "graphics3d/viewing/icameraactions.h"

namespace vxgraphics3d {

/// Magnifies the picture of any camera about its centre and commits the result; a camera whose pixels have a fixed size
/// in the world, as under ResizePixels, shows the same as before.
inline void zoomCenter(ICameraActions& camera, float factor)
{
    camera.setAdditionalScale(0.5f, 0.5f, 1.0f / factor);
    camera.mergeAdditionalTransformation();
}

} // namespace vxgraphics3d
