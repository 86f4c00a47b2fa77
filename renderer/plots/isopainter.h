#pragma once

#include "renderer/plots/plotpainter.h"

namespace vxrenderer {

/// Draws iso surfaces and contours: the levels that are shown, as surfaces, filled bands or lines with their labels.
class IsoPainter : public PlotPainter {
public:
    bool draws(vxgraphics3d::SceneGraphPlot::PlotType type) const override;
    void draw(const PlotItem& item, const PaintContext& context) const override;
};

} // namespace vxrenderer
