#pragma once

#include "graphics3d/plots/colour/colortable.h"

#include <array>
#include <vector>

namespace vxrenderer {

/// A part of a colour bar whose colours change without a jump.
struct GradientPiece {
    struct Stop {
        /// Position on the bar, 0 to 1.
        double position;
        /// Red, green and blue.
        std::array<int, 3> color;
    };

    /// Where it begins on the bar, 0 to 1; it ends where the next one begins.
    double begin;
    /// Colours between two stops are linear. A single stop colours all of the piece.
    std::vector<Stop> stops;
};

/// The part of a colour table between two of its positions as gradients, for formats that cannot look colours up. They
/// differ from the table by one level of 255 at most at the middles of its steps.
/// @param from,to positions in the table at the ends of the bar, 0 to 1, in either direction
std::vector<GradientPiece> gradientOf(const vxgraphics3d::ColorTable& table, float from, float to);

} // namespace vxrenderer
