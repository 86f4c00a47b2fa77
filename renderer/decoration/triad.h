#pragma once

#include "graphics3d/foundation/vector3f.h"
#include "renderer/paint/solidpainter.h"

#include <array>
#include <cstddef>
#include <vector>

namespace vxgraphics3d {
class ICameraTransforms;
} // namespace vxgraphics3d

namespace vxrenderer {

/// The triad of axes that shows how a view is turned. Positions are in pixels from its origin, x to the right, y
/// upwards and z towards the viewer.
struct Triad {
    /// Sizes of its arrows, in pixels.
    struct Sizes {
        /// Of an axis that lies in the plane of the screen.
        float length;
        float shaftRadius;
        float headRadius;
        float headLength;
    };

    /// A letter with the space around it that is to stay free, in pixels.
    struct Letter {
        float width;
        float height;
    };

    struct Position {
        float x;
        float y;
    };

    Sizes sizes;
    /// Where the axes x, y and z point, as unit vectors.
    std::array<vxgraphics3d::Vector3f, 3> directions;

    Triad(const vxgraphics3d::ICameraTransforms& camera, const Sizes& ofArrows);

    /// Its bodies from the farthest to the nearest: arrows away from the viewer, a ball at the origin, arrows towards
    /// the viewer.
    std::vector<Solid> solids(const std::array<vxgraphics3d::Color, 3>& colors) const;

    /// The middles of the letters of x, y and z: each near the tip of its axis, as far as possible in its direction,
    /// where it touches no axis and no other letter.
    /// @param gap what is at least between a tip and its letter
    std::array<Position, 3> placeLetters(const std::array<Letter, 3>& letters, float gap) const;
};

} // namespace vxrenderer
