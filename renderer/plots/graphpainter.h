#pragma once

#include "renderer/plots/plotpainter.h"

namespace vxrenderer {

/// Draws graphs: the version of each line that suits the axes, in its style, and its symbols over it. In space all
/// styles but none are solid.
class GraphPainter : public PlotPainter {
public:
    bool draws(vxgraphics3d::SceneGraphPlot::PlotType type) const override;
    void draw(const PlotItem& item, const PaintContext& context) const override;
};

} // namespace vxrenderer
