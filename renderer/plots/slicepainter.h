#pragma once

#include "renderer/plots/plotpainter.h"

namespace vxrenderer {

/// Draws slices, seen from both sides, with their outlines.
class SlicePainter : public PlotPainter {
public:
    bool draws(vxgraphics3d::SceneGraphPlot::PlotType type) const override;
    void draw(const PlotItem& item, const PaintContext& context) const override;
};

} // namespace vxrenderer
