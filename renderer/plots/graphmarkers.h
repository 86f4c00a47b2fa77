#pragma once

#include "graphics3d/foundation/vector3f.h"
#include "graphics3d/plots/graph/graphline.h"

#include <vector>

namespace vxgraphics3d {
class BoundingBox;
}

namespace vxrenderer {

/// The positions of markers on one version of a line.
///
/// Interpolated markers are at equal distances along the line from its first point to its last, in the shape that it
/// has in a view that its box fills; a single one is in the middle, and those of a ring do not repeat its first point.
/// All strips count as one line. Other markers are at all points.
/// @param box of this version of all lines of the graph
std::vector<vxgraphics3d::Vector3f> markersOf(const vxgraphics3d::GraphLine::Version& version,
                                              const vxgraphics3d::BoundingBox& box, bool interpolates, int count);

} // namespace vxrenderer
