#pragma once

#include <optional>

namespace vxgraphics3d {
class SceneGraphPlot;
}

namespace vxrenderer {

/// By what the heights of a plot that is raised by them were multiplied when it was filled, without the height scale.
///
/// A plot does not keep the heights, but its texture coordinates are those of its values. Where these are the heights,
/// as in a relief that is coloured by its elevation, a sample of the vertices gives the factor; where they are not,
/// there is none.
std::optional<double> heightFactorOf(const vxgraphics3d::SceneGraphPlot& plot);

} // namespace vxrenderer
