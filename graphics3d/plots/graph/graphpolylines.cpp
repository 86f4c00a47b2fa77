#include "graphics3d/plots/graph/graphpolylines.h"

#include "graphics3d/plots/graph/graphline.h"

#include <algorithm>

namespace vxgraphics3d {

GraphPolylines::GraphPolylines(const GraphPoints& points, GraphLimits& limits)
    : m_points(points),
      m_neighbours(static_cast<std::size_t>(points.count), Neighbours{c_none, c_none}),
      m_seen(static_cast<std::size_t>(points.count))
{
    for (int edge = 0; edge < points.edges->count; ++edge) {
        const int a = points.edges->from[edge];
        const int b = points.edges->to[edge];
        const auto atA = static_cast<std::size_t>(a);
        const auto atB = static_cast<std::size_t>(b);
        if (a != b && points.isInRange(atA) && points.isInRange(atB)) {
            join(a, b);
            join(b, a);
            limits.cover(static_cast<float>(points.x[atA]), static_cast<float>(points.y[atA]));
            limits.cover(static_cast<float>(points.x[atB]), static_cast<float>(points.y[atB]));
        }
    }
    m_starts.reserve(static_cast<std::size_t>(points.count));
    for (int point = 0; point < points.count; ++point) {
        if (isEnd(point) && !isSeen(point)) {
            countPolylineFrom(point);
        }
    }
    for (int point = 0; point < points.count && m_numVertices < points.count; ++point) {
        if (!isSeen(point) && m_neighbours[static_cast<std::size_t>(point)][0] != c_none) {
            countRingFrom(point);
        }
    }
}

void GraphPolylines::join(int a, int b)
{
    Neighbours& neighbours = m_neighbours[static_cast<std::size_t>(a)];
    if (neighbours[0] == c_none) {
        neighbours[0] = b;
    } else if (neighbours[1] == c_none) {
        neighbours[1] = b;
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
        previous = current;
        current = next;
    }
}

void GraphPolylines::countPolylineFrom(int point)
{
    markSeen(point);
    ++m_numVertices;
    ++m_numPieces;
    int farEnd = point;
    walk(point, [&](int next) {
        if (isEnd(next)) {
            farEnd = next;
            return false;
        }
        if (!isSeen(next)) {
            markSeen(next);
            ++m_numVertices;
            ++m_numPieces;
        }
        return true;
    });
    if (!isSeen(farEnd)) {
        markSeen(farEnd);
        ++m_numVertices;
    }
    const double* x = m_points.x;
    m_starts.push_back(x[static_cast<std::size_t>(farEnd)] < x[static_cast<std::size_t>(point)] ? farEnd : point);
}

void GraphPolylines::countRingFrom(int point)
{
    markSeen(point);
    ++m_numVertices;
    ++m_numPieces;
    walk(point, [&](int next) {
        if (!isSeen(next)) {
            markSeen(next);
            ++m_numVertices;
            ++m_numPieces;
        }
        return next != point;
    });
    m_starts.push_back(point);
}

void GraphPolylines::fill(GraphLine& line)
{
    line.m_vertices.allocate(m_numVertices);
    line.m_strips.internalAllocate(m_numPieces, static_cast<int>(m_starts.size()));
    const auto append = [&](int point) {
        markSeen(point);
        return line.m_vertices.appendVertex(static_cast<float>(m_points.x[static_cast<std::size_t>(point)]),
                                            static_cast<float>(m_points.y[static_cast<std::size_t>(point)]), 0.0f);
    };
    std::fill(m_seen.begin(), m_seen.end(), static_cast<unsigned char>(0));
    for (const int start : m_starts) {
        if (isSeen(start)) {
            continue;
        }
        const int first = append(start);
        line.m_strips.newStrip(first);
        walk(start, [&](int point) {
            if (point == start) {
                line.m_strips.appendStrip(first);
                return false;
            }
            if (!isSeen(point)) {
                line.m_strips.appendStrip(append(point));
            }
            return !isEnd(point);
        });
    }
}

} // namespace vxgraphics3d
