#pragma once

#include "graphics3d/plots/graph/graphlimits.h"
#include "graphics3d/plots/graph/graphpoints.h"

#include <array>
#include <cstddef>
#include <vector>

namespace vxgraphics3d {

class GraphLine;

/// The unordered edges of a group, joined into polylines and closed rings. A polyline starts at its end of smaller x.
///
/// Each point knows its first two neighbours; an edge that is the third one of a point is known at its other corner
/// only. Edges from a point to itself, and those with a coordinate out of range, are ignored.
class GraphPolylines {
public:
    /// Joins the edges; `limits` are extended to include their corners.
    GraphPolylines(const GraphPoints& points, GraphLimits& limits);

    /// Allocates the linear buffers of a line, with exact counts, and fills them.
    void fill(GraphLine& line);

private:
    static constexpr int c_none = -1;

    bool isEnd(int point) const
    {
        const Neighbours& neighbours = m_neighbours[static_cast<std::size_t>(point)];
        return neighbours[0] != c_none && neighbours[1] == c_none;
    }
    bool isSeen(int point) const { return m_seen[static_cast<std::size_t>(point)] != 0; }
    void markSeen(int point) { m_seen[static_cast<std::size_t>(point)] = 1; }
    void join(int a, int b);
    void countPolylineFrom(int point);
    void countRingFrom(int point);
    template <class Visit>
    void walk(int start, Visit visit) const;

    using Neighbours = std::array<int, 2>;

    const GraphPoints& m_points;
    std::vector<Neighbours> m_neighbours; ///< by point
    std::vector<unsigned char> m_seen;    ///< by point
    std::vector<int> m_starts;
    int m_numVertices = 0;
    int m_numPieces = 0;
};

} // namespace vxgraphics3d
