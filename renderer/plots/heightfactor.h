#pragma once

#include <optional>

namespace vxgraphics3d {
class SceneGraphPlot;
}

namespace vxrenderer {

/// By what the heights of a plot that is raised by them were multiplied when it was filled, without the height scale.
///
/// A plot does not keep the heights, but its texture coordinates are those of its values. Where these are the heights,
/// as in a relief that is coloured by its elevation, a sample of its points gives the factor; where they are not,
/// there is none. It holds for surfaces, edges and the middle lines of tubes.
std::optional<double> heightFactorOf(const vxgraphics3d::SceneGraphPlot& plot);

/// Whether two plots are raised at the same points to the same heights, whatever their values are: both were filled
/// with the same heights then, and have the same factor. A sample of the points is compared, in their order.
bool haveSameHeights(const vxgraphics3d::SceneGraphPlot& plot, const vxgraphics3d::SceneGraphPlot& other);

} // namespace vxrenderer
