#pragma once

#include "renderer/paint/scenelabel.h"
#include "renderer/plots/plotpainter.h"

namespace vxgraphics3d {
class SceneGraphPlotPointLabel;
}

namespace vxrenderer {

/// Passes on the labels of all points.
void visitLabels(const vxgraphics3d::SceneGraphPlotPointLabel& plot, const TakeLabel& take);

/// Draws point labels: texts next to their points in the colour of the plot, with a border in contrast to it. What lies
/// in front of a point hides its text.
class PointLabelPainter : public PlotPainter {
public:
    bool draws(vxgraphics3d::SceneGraphPlot::PlotType type) const override;
    void draw(const PlotItem& item, const PaintContext& context) const override;
};

} // namespace vxrenderer
