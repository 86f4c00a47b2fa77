#pragma once

#include "renderer/plots/plotpainter.h"

namespace vxrenderer {

/// Draws tubes and ribbons. All of a plot are one mesh on the graphics hardware, as there may be many short ones.
/// Hemispheres at the ends of tubes get the normals of spheres, and the ends of closed tubes are joined.
class TubePainter : public PlotPainter {
public:
    bool draws(vxgraphics3d::SceneGraphPlot::PlotType type) const override;
    void draw(const PlotItem& item, const PaintContext& context) const override;
};

} // namespace vxrenderer
