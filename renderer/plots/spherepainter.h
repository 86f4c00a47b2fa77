#pragma once

#include "renderer/plots/plotpainter.h"

namespace vxrenderer {

/// Draws sphere plots: spheres in space, lit and round in every size, and discs in the plane.
class SpherePainter : public PlotPainter {
public:
    bool draws(vxgraphics3d::SceneGraphPlot::PlotType type) const override;
    void draw(const PlotItem& item, const PaintContext& context) const override;
};

} // namespace vxrenderer
