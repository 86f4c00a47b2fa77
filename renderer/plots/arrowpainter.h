#pragma once

#include "graphics3d/foundation/vector3f.h"
#include "renderer/plots/plotpainter.h"

#include <functional>

namespace vxgraphics3d {
class SceneGraphPlotArrow;
}

namespace vxrenderer {

/// Receives an arrow that is drawn: its ends, the part of its length that is the head, and the radius of the head.
using TakeArrow = std::function<void(const vxgraphics3d::Vector3f& tail, const vxgraphics3d::Vector3f& tip,
                                     float headLength, float headRadius)>;

/// Calls a function with each arrow of a plot.
void forEachDrawnArrow(const vxgraphics3d::SceneGraphPlotArrow& plot, const TakeArrow& take);

/// Draws arrows, principal values and coordinate systems: copies of one mesh, or of one for heads and one for shafts if
/// all heads are equally large. In the plane they are flat.
class ArrowPainter : public PlotPainter {
public:
    bool draws(vxgraphics3d::SceneGraphPlot::PlotType type) const override;
    void draw(const PlotItem& item, const PaintContext& context) const override;
};

} // namespace vxrenderer
