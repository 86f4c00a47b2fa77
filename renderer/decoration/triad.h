#pragma once

#include "renderer/paint/linepainter.h"

#include <array>
#include <vector>

namespace vxgraphics3d {
class ICameraTransforms;
} // namespace vxgraphics3d

namespace vxrenderer {

/// The triad of axes that shows how a view is turned, laid out in pixels of the picture.
struct Triad {
    struct Axis {
        /// Shaft and arrow head.
        std::vector<LineSegment> lines;
        /// The middle of the letter.
        float letterX;
        float letterY;
        /// 0 to 2 for x, y and z.
        std::size_t index;
    };

    /// The farthest axis first, so that nearer ones lie over it.
    std::array<Axis, 3> axes;

    /// @param length of an axis that lies in the plane of the screen
    /// @param letterGap from the tip of an axis to the middle of its letter
    static Triad of(const vxgraphics3d::ICameraTransforms& camera, float originX, float originY, float length,
                    float letterGap);
};

} // namespace vxrenderer
