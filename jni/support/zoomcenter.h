#pragma once

#include "graphics3d/viewing/icameraactions.h"

namespace vxgraphics3d {

/// Magnifies the picture of any camera about its centre and commits the result.
inline void zoomCenter(ICameraActions& camera, float factor)
{
    camera.setAdditionalScale(0.5f, 0.5f, 1.0f / factor);
    camera.mergeAdditionalTransformation();
}

} // namespace vxgraphics3d
