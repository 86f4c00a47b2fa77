#pragma once

#include "renderer/plots/plotpainter.h"

namespace vxrenderer {

/// Draws mesh plots: faces with their wireframes, lines, and the cubes of points.
class MeshPlotPainter : public PlotPainter {
public:
    bool draws(vxgraphics3d::SceneGraphPlot::PlotType type) const override;
    void draw(const PlotItem& item, const PaintContext& context) const override;
};

} // namespace vxrenderer
