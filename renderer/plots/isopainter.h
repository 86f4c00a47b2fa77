#pragma once

#include "renderer/paint/scenelabel.h"
#include "renderer/plots/plotpainter.h"

namespace vxgraphics3d {
class SceneGraphPlotIso;
}

namespace vxrenderer {

/// Passes on the labels of the levels that are shown as lines.
void visitLabels(const vxgraphics3d::SceneGraphPlotIso& plot, const TakeLabel& take);

/// Draws iso surfaces and contours: the levels that are shown, as surfaces, filled bands or lines with their labels.
class IsoPainter : public PlotPainter {
public:
    bool draws(vxgraphics3d::SceneGraphPlot::PlotType type) const override;
    void draw(const PlotItem& item, const PaintContext& context) const override;
};

} // namespace vxrenderer
