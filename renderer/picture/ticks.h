#pragma once

#include <string>
#include <vector>

namespace vxrenderer {

/// Round values on a scale, with their labels.
struct Ticks {
    struct Tick {
        double value;
        /// In title markup, as UTF-8.
        std::string label;
    };

    /// By rising value.
    std::vector<Tick> ticks;
    /// The labels have to be multiplied by ten to this power: 0 while numbers of ordinary size are shown.
    int exponent = 0;
};

/// The ticks between two ends of a scale, in either order and both included: multiples of 1, 2 or 5 times a power of
/// ten. Ends that are equal, or so close that no tick lies between them, give one tick in the middle; ends that are not
/// finite give none.
/// @param aboutCount how many are wanted, at least 1; there is at most one more
Ticks makeTicks(double end, double otherEnd, int aboutCount);

/// A number with six digits at most, in title markup: `1.5`, `2.5\times10^{-7}`.
std::string numberText(double value);

} // namespace vxrenderer
