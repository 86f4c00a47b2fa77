#pragma once

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

    /// Height of a value on the bar, 0 at its lower and 1 at its upper end; 0.5 on a bar of one value.
    double heightOf(double value) const;
};

/// Whether a plot shows a legend of its colours.
bool hasColorLegend(const vxgraphics3d::SceneGraphPlot& plot);

LegendScale legendScaleOf(const vxgraphics3d::SceneGraphPlot& plot);

} // namespace vxrenderer
