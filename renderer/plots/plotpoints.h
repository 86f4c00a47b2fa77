#pragma once

#include "renderer/frame/pointrun.h"

namespace vxgraphics3d {
class SceneGraphPlot;
}

namespace vxrenderer {

/// Passes on the points that an active and valid plot is drawn from: vertices, ends of arrows, spheres with their
/// radii. Sizes that are fixed in pixels, such as those of symbols, are left out.
void visitPlotPoints(const vxgraphics3d::SceneGraphPlot& plot, const TakePoints& take);

} // namespace vxrenderer
