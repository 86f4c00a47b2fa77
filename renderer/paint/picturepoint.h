#pragma once

#include "graphics3d/foundation/vector3f.h"

#include <optional>

namespace vxrenderer {

struct View;

/// Where a point of the scene lies in the picture, for what is drawn there in pixels.
struct PicturePoint {
    /// In pixels from the top left corner.
    float x;
    float y;
    float depth;
    /// The depth where it would be if it were nearer to the eye by some pixels: what lies on a point is compared with
    /// that, since the surface under the point rises before parts of it.
    float nearerDepth;

    /// @param reach how far in pixels what is drawn reaches from the point
    /// @return nothing for a point that is not in view
    static std::optional<PicturePoint> of(const vxgraphics3d::Vector3f& point, const View& view, float reach);
};

} // namespace vxrenderer
