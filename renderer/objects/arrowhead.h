#pragma once

#include "graphics3d/foundation/vector3f.h"
#include "renderer/paint/linepainter.h"

#include <vector>

namespace vxrenderer {

/// Adds the two lines of an arrow head that lies in the plane of the picture. All are in the eye's coordinates. An
/// arrow that points at the eye has no head.
inline void addArrowHead(std::vector<LineSegment>& segments, const vxgraphics3d::Vector3f& tip,
                         const vxgraphics3d::Vector3f& direction, float length)
{
    /// Half the width for each unit of length.
    constexpr float c_slope = 0.45f;
    const vxgraphics3d::Vector3f along = vxgraphics3d::Vector3f(direction.x, direction.y, 0.0f).normalized();
    const vxgraphics3d::Vector3f side(-along.y * c_slope, along.x * c_slope, 0.0f);
    if (along.lengthSquared() > 0.0f) {
        segments.push_back({tip, tip + length * (side - along)});
        segments.push_back({tip, tip - length * (side + along)});
    }
}

} // namespace vxrenderer
