#pragma once

#include "renderer/axes/ticks.h"

#include <functional>
#include <string>
#include <vector>

namespace vxrenderer {

/// What a straight scale shows, and how much space it has.
struct AxisScale {
    /// The ends in the units of the view: decimal logarithms for a logarithmic scale.
    double low = 0.0;
    double high = 1.0;
    bool isLog = false;
    /// Distance of lines in data units, 0 for one that suits the space. Logarithmic scales choose their own.
    double spacing = 0.0;
    /// What distances suit a linear scale.
    TickSteps steps = TickSteps::decimal;
    /// Further positions of lines, in data units also on a logarithmic scale.
    std::vector<double> extra;
    /// Significant digits of a label.
    int digits = 4;
    /// From end to end, in pixels.
    double length = 0.0;
    /// Distance in pixels that suits neighbouring labels well.
    double tickDistance = 70.0;
    /// The smallest distance of lines in pixels.
    double closestLines = 4.0;
    /// What a label takes along the scale in pixels, including the gap to the next one.
    std::function<double(const std::string& markup)> labelLength;
};

/// A position on a scale where a line crosses it.
struct AxisTick {
    /// In the units of the view: the decimal logarithm for a logarithmic scale.
    double position;
    /// In title markup, empty for a line without a label.
    std::string label;
    bool isMinor = false;
};

struct AxisTicks {
    /// By rising position.
    std::vector<AxisTick> ticks;
    /// The labels have to be multiplied by ten to this power.
    int exponent = 0;
};

/// Ticks whose labels have space next to each other.
///
/// Linear scales take multiples of a round step, or of the spacing; where lines would
/// be too close, of a whole multiple of it. A spacing of which fewer than two multiples are in sight is not
/// used. Logarithmic scales take decades, every second, fifth and so on where there are many, with minor lines between
/// them; where few decades are in sight they take plain numbers. At least two ticks are labelled wherever two labels
/// have space. Extra positions take precedence where labels would overlap. Ends that are not finite or not in rising
/// order, and a scale without length, give none.
AxisTicks makeAxisTicks(const AxisScale& scale);

} // namespace vxrenderer
