#include "graphics3d/plots/graph/graphpolylines.h"

#include "graphics3d/plots/graph/graphline.h"

#include <algorithm>

namespace vxgraphics3d {

GraphPolylines::GraphPolylines(const GraphPoints& points)
    : m_points(points),
      m_neighbours(new Neighbours[static_cast<std::size_t>(points.count)]),
      m_seen(static_cast<std::size_t>(points.count)),
      m_order(new int[static_cast<std::size_t>(points.count)])
{
    for (std::size_t i = 0; i < m_seen.size(); ++i) {
        m_neighbours[i] = {points.isInRange(i) ? c_none : c_noPoint, c_none};
    }
    joinEdges();
    for (int point = 0; point < points.count; ++point) {
        if (isEnd(point) && take(point)) {
            addPolylineFrom(point);
        }
    }
    // What remains are rings.
    for (int point = 0; point < points.count && m_numOrdered < points.count; ++point) {
        if (neighboursOf(point)[0] >= 0 && take(point)) {
            addRingFrom(point);
        }
    }
}

bool GraphPolylines::isEnd(int point) const
{
    const Neighbours& neighbours = m_neighbours[static_cast<std::size_t>(point)];
    return neighbours[0] >= 0 && neighbours[1] == c_none;
}

/// Adds a point to the order; false if it was there.
bool GraphPolylines::take(int point)
{
    unsigned char& seen = m_seen[static_cast<std::size_t>(point)];
    if (seen != 0) {
        return false;
    }
    seen = c_seen;
    m_order[static_cast<std::size_t>(m_numOrdered++)] = point;
    return true;
}

void GraphPolylines::join(Neighbours& neighbours, int point)
{
    // Without branches: which entry is free is as random as the order of the edges.
    int& entry = neighbours[neighbours[0] == c_none ? 0 : 1];
    entry = entry == c_none ? point : entry;
}

void GraphPolylines::joinEdges()
{
    const LineEnds& edges = *m_points.edges;
    for (int edge = 0; edge < edges.count; ++edge) {
        const int a = edges.from[edge];
        const int b = edges.to[edge];
        Neighbours& ofA = neighboursOf(a);
        Neighbours& ofB = neighboursOf(b);
        if (a != b && ofA[0] != c_noPoint && ofB[0] != c_noPoint) {
            join(ofA, b);
            join(ofB, a);
        }
    }
}

/// Calls `visit` for each point after the start until it returns false, or until a point has no further neighbour or
/// does not know the one before. Each step has only one step that may precede it, so a walk that repeats a step has
/// returned to its start before, where every visitor stops.
template <class Visit>
void GraphPolylines::walk(int start, Visit visit) const
{
    int previous = start;
    int current = m_neighbours[static_cast<std::size_t>(start)][0];
    while (current != c_none && visit(current)) {
        const Neighbours& neighbours = m_neighbours[static_cast<std::size_t>(current)];
        int next = c_none;
        if (neighbours[0] == previous) {
            next = neighbours[1];
        } else if (neighbours[1] == previous) {
            next = neighbours[0];
        }
        // Two equal edges make the same point both neighbours, but there is no way on.
        if (next == previous) {
            next = c_none;
        }
        previous = current;
        current = next;
    }
}

void GraphPolylines::addPolylineFrom(int point)
{
    const int first = m_numOrdered - 1;
    int farEnd = c_none;
    walk(point, [&](int next) {
        if (isEnd(next)) {
            farEnd = next;
            return false;
        }
        take(next);
        return true;
    });
    const double* x = m_points.x;
    const bool reachesOtherEnd = farEnd != c_none && take(farEnd);
    const int numPoints = m_numOrdered - first;
    // A walk from the far end passes the same points, since each of them knows both of its neighbours.
    if (reachesOtherEnd && x[static_cast<std::size_t>(farEnd)] < x[static_cast<std::size_t>(point)]) {
        std::reverse(m_order.get() + first, m_order.get() + m_numOrdered);
    }
    m_polylines.push_back({numPoints, farEnd == point});
    m_numPieces += reachesOtherEnd ? numPoints - 1 : numPoints;
}

void GraphPolylines::addRingFrom(int point)
{
    const int first = m_numOrdered - 1;
    bool isClosed = false;
    int previous = point;
    walk(point, [&](int next) {
        // Another ring that was left open went this way to its end: no point is left there.
        if (previous != point && isRingStart(previous) && next == neighboursOf(previous)[0]) {
            return false;
        }
        previous = next;
        isClosed = next == point;
        take(next);
        return !isClosed && !isEnd(next);
    });
    m_seen[static_cast<std::size_t>(point)] = c_ringStart;
    const int numPoints = m_numOrdered - first;
    m_polylines.push_back({numPoints, isClosed});
    m_numPieces += numPoints;
}

GraphLimits GraphPolylines::fill(GraphLine& line) const
{
    line.m_vertices.allocate(m_numOrdered);
    line.m_strips.internalAllocate(m_numPieces, static_cast<int>(m_polylines.size()));
    VertexCoords* out = line.m_vertices.appendUnwritten(m_numOrdered);
    GraphLimits limits;
    for (int i = 0; i < m_numOrdered; ++i) {
        const auto at = static_cast<std::size_t>(m_order[static_cast<std::size_t>(i)]);
        *out = {static_cast<float>(m_points.x[at]), static_cast<float>(m_points.y[at]), 0.0f};
        limits.cover(out->x, out->y);
        ++out;
    }
    int first = 0;
    for (const Polyline& polyline : m_polylines) {
        line.m_strips.newStripOf(first, polyline.numPoints);
        if (polyline.isClosed) {
            line.m_strips.appendStrip(first);
        }
        first += polyline.numPoints;
    }
    return limits;
}

} // namespace vxgraphics3d
