#pragma once

#include "renderer/plots/plotpainter.h"

namespace vxrenderer {

/// Draws arrows, principal values and coordinate systems: copies of one mesh, or of one for heads and one for shafts if
/// all heads are equally large. In the plane they are flat.
class ArrowPainter : public PlotPainter {
public:
    bool draws(vxgraphics3d::SceneGraphPlot::PlotType type) const override;
    void draw(const PlotItem& item, const PaintContext& context) const override;
};

} // namespace vxrenderer
