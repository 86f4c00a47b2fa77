#pragma once

#include "renderer/plots/plotpainter.h"

namespace vxrenderer {

/// Draws interactive plots: points as squares, lines and dashes, in the colour of the plot.
class InteractivePainter : public PlotPainter {
public:
    bool draws(vxgraphics3d::SceneGraphPlot::PlotType type) const override;
    void draw(const PlotItem& item, const PaintContext& context) const override;
};

} // namespace vxrenderer
