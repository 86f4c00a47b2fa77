#include "renderer/decoration/legendscale.h"

#include "graphics3d/plots/scenegraphplot.h"

namespace vxrenderer {

using vxgraphics3d::SceneGraphPlot;

double LegendScale::heightOf(double value) const
{
    // Halves, so that ends as far apart as doubles can be do not overflow.
    const double span = 0.5 * upperValue - 0.5 * lowerValue;
    return span == 0.0 ? 0.5 : (0.5 * value - 0.5 * lowerValue) / span;
}

bool hasColorLegend(const SceneGraphPlot& plot)
{
    return plot.isActive() && plot.isValid() && plot.isShowLegend() && plot.hasColorTable() &&
           plot.getValueSource() != SceneGraphPlot::ValueSource::none;
}

LegendScale legendScaleOf(const SceneGraphPlot& plot)
{
    LegendScale scale;
    scale.lowerValue = plot.getLegendMin();
    scale.upperValue = plot.getLegendMax();
    // A return to automatic limits leaves the stored limits as they were. That the scale is that of the data shows in
    // the colour coordinates, which a symmetric scale does not have.
    const bool isOneColor = plot.getLegendTexMin() == plot.getLegendTexMax();
    const bool isDataScale = plot.getDataTexMin() == 0.0f && plot.getDataTexMax() == 1.0f;
    if (plot.isAutoLegendLimits() && (isOneColor || isDataScale)) {
        scale.lowerValue = plot.getValueMin();
        scale.upperValue = plot.getValueMax();
    }
    scale.lowerColor = plot.getLegendTexMin();
    scale.upperColor = plot.getLegendTexMax();
    if (plot.isReverseColorTable()) {
        scale.lowerColor = 1.0f - scale.lowerColor;
        scale.upperColor = 1.0f - scale.upperColor;
    }
    return scale;
}

} // namespace vxrenderer
