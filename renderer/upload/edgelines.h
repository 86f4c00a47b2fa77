#pragma once

#include "graphics3d/foundation/vector3f.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <utility>
#include <vector>

namespace vxrenderer {

/// Sharp edges of a surface put together to lines, without those that distract.
///
/// Along a rounding the angle between triangles varies from one to the next, so that a line of sharp edges has gaps. A
/// gap is closed where edges that are almost as sharp lead straight from the end of a line to another line. Where a
/// line of sharp edges still ends on a surface, the surface is round there, and its triangles only happen to be large:
/// it is left out up to another line. Lines of clear edges may end, unless they are short: a rough surface has many of
/// those, and of short lines without any clear edge.
class EdgeLines {
public:
    /// A vertex at each end.
    using Edge = std::pair<std::uint32_t, std::uint32_t>;
    using PositionOf = std::function<vxgraphics3d::Vector3f(std::uint32_t vertex)>;
    /// Edges by how they may be shown, each in one of the lists.
    struct Found {
        /// Borders, and edges so sharp that no rounding has them.
        std::vector<Edge> clear;
        std::vector<Edge> sharp;
        /// Edges that may close gaps.
        std::vector<Edge> blunt;
    };

    /// @param numVertices more than the number of any vertex
    /// @param leastLength of a line with ends, or without a clear edge
    EdgeLines(Found found, std::size_t numVertices, const PositionOf& positionOf, float leastLength);

    /// The edges that are left: first those that are clear, then those that are sharp, in their order, and those that
    /// close gaps.
    std::vector<Edge>& getEdges() { return m_edges; }

private:
    std::vector<Edge> m_edges;
};

} // namespace vxrenderer
