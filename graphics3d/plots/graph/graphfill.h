#pragma once

#include "graphics3d/plots/graph/graphlimits.h"
#include "graphics3d/plots/graph/graphpoints.h"

namespace vxgraphics3d {

class GraphLine;

/// The limits of the four versions of a graph.
struct GraphVersionLimits {
    GraphLimits linear;
    GraphLimits logX;
    GraphLimits logY;
    GraphLimits logXY;
};

/// Fills the four versions of a line; the limits are extended to include its points.
void fillGraphLine(GraphLine& line, const GraphPoints& points, GraphVersionLimits& limits);

} // namespace vxgraphics3d
