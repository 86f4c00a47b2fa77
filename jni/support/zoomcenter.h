#pragma once

#include "graphics3d/viewing/icameraactions.h"

namespace vxgraphics3d {

/// Magnifies the picture of any camera about its centre and keeps it so; a camera whose pixels have a fixed size in the
/// world, as under ResizePixels, shows what it showed before.
inline void zoomCenter(ICameraActions& camera, float factor)
{
    camera.setAdditionalScale(0.5f, 0.5f, 1.0f / factor);
    camera.mergeAdditionalTransformation();
}

} // namespace vxgraphics3d
