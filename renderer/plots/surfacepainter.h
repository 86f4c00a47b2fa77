#pragma once

#include "renderer/plots/plotpainter.h"

namespace vxrenderer {

/// Draws surface plots: one mesh of triangles, seen from both sides.
class SurfacePainter : public PlotPainter {
public:
    bool draws(vxgraphics3d::SceneGraphPlot::PlotType type) const override;
    void draw(const PlotItem& item, const PaintContext& context) const override;
};

} // namespace vxrenderer
