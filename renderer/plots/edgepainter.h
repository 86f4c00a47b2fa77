#pragma once

#include "renderer/plots/plotpainter.h"

namespace vxrenderer {

/// Draws edge plots: lines in the colours of their data, of at least one pixel.
class EdgePainter : public PlotPainter {
public:
    bool draws(vxgraphics3d::SceneGraphPlot::PlotType type) const override;
    void draw(const PlotItem& item, const PaintContext& context) const override;
};

} // namespace vxrenderer
