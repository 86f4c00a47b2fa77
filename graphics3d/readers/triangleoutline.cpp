#include "graphics3d/readers/triangleoutline.h"

#include "graphics3d/buffers/indexbufferlines.h"
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

void TriangleOutline::addTriangle(int a, int b, int c)
{
    for (const auto& [low, high] : {std::minmax({a, b}), std::minmax({b, c}), std::minmax({c, a})}) {
        toggleEdge(low, high);
    }
}

/// Stores a new edge; an edge that is already stored is an inner edge and is removed.
void TriangleOutline::toggleEdge(int low, int high)
{
    Neighbours& neighbours = m_neighbours[static_cast<std::size_t>(low)];
    for (auto neighbour = neighbours.begin(); neighbour != neighbours.end(); ++neighbour) {
        if (*neighbour == c_noNeighbour) {
            *neighbour = high;
            ++m_numEdges;
            return;
        }
        if (*neighbour == high) {
            std::copy(neighbour + 1, neighbours.end(), neighbour);
            neighbours.back() = c_noNeighbour;
            --m_numEdges;
            return;
        }
    }
    reportError(c_wholeFile, "To many lines connected to one vertex.");
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
