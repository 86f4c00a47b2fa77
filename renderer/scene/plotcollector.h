#pragma once

#include "renderer/plots/plotpainter.h"

#include <vector>

namespace vxgraphics3d {
class SceneGraphRoot;
}

namespace vxrenderer {

/// The plots of a scene that are to be drawn, in the order of the tree: those that are active and have something to
/// show, in plot groups that are active as all nodes above them are.
std::vector<PlotItem> collectPlots(const vxgraphics3d::SceneGraphRoot& root);

} // namespace vxrenderer
