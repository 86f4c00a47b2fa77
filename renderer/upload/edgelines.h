#pragma once

#include "graphics3d/foundation/vector3f.h"

#include <cstdint>
#include <functional>
#include <span>
#include <utility>
#include <vector>

namespace vxrenderer {

/// Edges of a surface put together to lines that one likes to see.
///
/// Along a rounding the angle between triangles varies from one to the next, so that a line of sharp edges has gaps. A
/// gap is closed where edges that are almost as sharp lead straight from the end of a line to another line. Short lines
/// that end somewhere on a surface are left out: a rough surface has many of them.
class EdgeLines {
public:
    /// A vertex at each end.
    using Edge = std::pair<std::uint32_t, std::uint32_t>;
    using PositionOf = std::function<vxgraphics3d::Vector3f(std::uint32_t vertex)>;

    /// @param sharp,blunt the edges to be shown and those that may close gaps
    /// @param leastLength of a line with ends
    EdgeLines(std::vector<Edge> sharp, std::span<const Edge> blunt, const PositionOf& positionOf, float leastLength);

    /// The sharp edges that are left, in their order, and those that close gaps.
    std::vector<Edge>& getEdges() { return m_edges; }

private:
    std::vector<Edge> m_edges;
};

} // namespace vxrenderer
