#pragma once

#include <vector>

namespace vxgraphics3d {
class SceneGraphPlot;
}

namespace vxrenderer {

/// What the colour bar of a plot shows: values from its lower to its upper end, and the part of the colour table that
/// lies between them.
struct LegendScale {
    double lowerValue = 0.0;
    double upperValue = 1.0;
    /// Position in the colour table, 0 to 1, at the lower and at the upper end of the bar.
    float lowerColor = 0.0f;
    float upperColor = 1.0f;
    /// The rising levels of a plot between the ends, if they call for a logarithmic bar; otherwise empty, and the bar
    /// is linear.
    std::vector<double> logarithmicLevels{};

    bool isLogarithmic() const { return !logarithmicLevels.empty(); }
    /// Height of a value on the bar, 0 at its lower and 1 at its upper end; 0.5 on a bar of one value. What is not
    /// positive is infinitely far below a logarithmic bar.
    double heightOf(double value) const;
    /// Position in the colour table at a height of the bar. It is linear in the values on each bar, since so are the
    /// colours of plots.
    float colorAt(double height) const;
};

/// Whether levels call for a logarithmic scale. There are at least three, all positive and rising: by one factor, or by
/// factors that are as much alike as those of 1, 2, 5, 10 and in total a decade or more.
bool areLogarithmic(const std::vector<double>& levels);

/// Whether a plot shows a legend of its colours.
bool hasColorLegend(const vxgraphics3d::SceneGraphPlot& plot);

LegendScale legendScaleOf(const vxgraphics3d::SceneGraphPlot& plot);

} // namespace vxrenderer
