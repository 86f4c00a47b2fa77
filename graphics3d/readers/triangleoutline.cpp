#include "graphics3d/readers/triangleoutline.h"

#include "graphics3d/buffers/indexbufferlines.h"
#include "graphics3d/buffers/indexbuffertriangles.h"
#include "graphics3d/readers/readerreports.h"

#include <algorithm>

namespace vxgraphics3d {

namespace {

constexpr int c_noNeighbour = -1;

} // namespace

TriangleOutline::TriangleOutline(int numPoints)
{
    Neighbours none;
    none.fill(c_noNeighbour);
    m_neighbours.resize(static_cast<std::size_t>(numPoints), none);
}

/// Stores a new edge; an edge that is already stored is an inner edge and is removed.
/// @return by how much the number of edges changes
int TriangleOutline::toggleEdge(Neighbours* table, int low, int high)
{
    Neighbours& neighbours = table[low];
    for (auto neighbour = neighbours.begin(); neighbour != neighbours.end(); ++neighbour) {
        if (*neighbour == c_noNeighbour) {
            *neighbour = high;
            return 1;
        }
        if (*neighbour == high) {
            std::copy(neighbour + 1, neighbours.end(), neighbour);
            neighbours.back() = c_noNeighbour;
            return -1;
        }
    }
    reportError(c_wholeFile, "To many lines connected to one vertex.");
    return 0;
}

int TriangleOutline::toggleEdges(Neighbours* table, int a, int b, int c)
{
    // In this order, which that of the outline depends on.
    int change = toggleEdge(table, std::min(a, b), std::max(a, b));
    change += toggleEdge(table, std::min(b, c), std::max(b, c));
    change += toggleEdge(table, std::min(c, a), std::max(c, a));
    return change;
}

void TriangleOutline::addTriangle(int a, int b, int c)
{
    m_numEdges += toggleEdges(m_neighbours.data(), a, b, c);
}

TriangleOutline TriangleOutline::of(const IndexBufferTriangles& triangles, int numPoints)
{
    TriangleOutline outline(numPoints);
    // Counts locally: a counter in memory would be read and written with each edge.
    const auto addAll = [&outline, count = triangles.getNumElements(0)](const auto* corners) {
        Neighbours* const table = outline.m_neighbours.data();
        int numEdges = 0;
        for (int i = 0; i < count; ++i, corners += 3) {
            numEdges += toggleEdges(table, static_cast<int>(corners[0]), static_cast<int>(corners[1]),
                                    static_cast<int>(corners[2]));
        }
        outline.m_numEdges = numEdges;
    };
    if (triangles.uses32BitIndices()) {
        addAll(triangles.getIndices32());
    } else {
        addAll(triangles.getIndices16());
    }
    return outline;
}

void TriangleOutline::writeTo(IndexBufferLines& lines) const
{
    lines.internalAllocate(m_numEdges, 1);
    lines.newSegment();
    for (std::size_t low = 0; low < m_neighbours.size(); ++low) {
        for (const int high : m_neighbours[low]) {
            if (high == c_noNeighbour) {
                break;
            }
            lines.appendLine(static_cast<int>(low), high);
        }
    }
}

} // namespace vxgraphics3d
