#pragma once

#include "graphics3d/plots/graph/graphlimits.h"
#include "graphics3d/plots/graph/graphpoints.h"

#include <array>
#include <cstddef>
#include <memory>
#include <vector>

namespace vxgraphics3d {

class GraphLine;

/// The unordered edges of a group, joined to polylines and closed rings. A polyline starts at its end of smaller x.
///
/// Each point knows its first two neighbours; an edge that is the third one of a point is known at its other corner
/// only. Edges from a point to itself, and those with a coordinate out of range, are ignored.
class GraphPolylines {
public:
    explicit GraphPolylines(const GraphPoints& points);

    /// Allocates the linear buffers of a line and fills them.
    /// @return the limits of its points
    GraphLimits fill(GraphLine& line) const;

private:
    static constexpr int c_none = -1;
    /// In place of the first neighbour of a point out of range.
    static constexpr int c_noPoint = -2;
    static constexpr unsigned char c_seen = 1;
    static constexpr unsigned char c_ringStart = 2;

    using Neighbours = std::array<int, 2>;

    struct Polyline {
        int numPoints;
        bool isClosed; ///< returns to its first point
    };

    Neighbours& neighboursOf(int point) { return m_neighbours[static_cast<std::size_t>(point)]; }
    bool isEnd(int point) const;
    bool isRingStart(int point) const { return m_seen[static_cast<std::size_t>(point)] == c_ringStart; }
    bool take(int point);
    static void join(Neighbours& neighbours, int point);
    void joinEdges();
    void addPolylineFrom(int point);
    void addRingFrom(int point);
    template <class Visit>
    void walk(int start, Visit visit) const;

    const GraphPoints& m_points;
    std::unique_ptr<Neighbours[]> m_neighbours; ///< by point
    std::vector<unsigned char> m_seen;          ///< by point
    std::unique_ptr<int[]> m_order;             ///< the points of all polylines, one after the other
    int m_numOrdered = 0;
    std::vector<Polyline> m_polylines;
    int m_numPieces = 0;
};

} // namespace vxgraphics3d
