#pragma once

#include <array>
#include <cstddef>
#include <vector>

namespace vxgraphics3d {

class IndexBufferLines;
class IndexBufferTriangles;

/// Finds the outline of a triangulated surface: the edges that exactly one triangle uses.
///
/// A point has edges to at most ten points of higher index at a time; further ones are reported and dropped.
class TriangleOutline {
public:
    /// @param numPoints the number of points to which the triangles refer
    explicit TriangleOutline(int numPoints);

    /// The outline of the triangles in the first segment of a buffer.
    static TriangleOutline of(const IndexBufferTriangles& triangles, int numPoints);

    /// Adds the edges of a triangle.
    void addTriangle(int a, int b, int c);

    /// Replaces the lines of a buffer by the edges of the outline, each from its lower to its higher index, in
    /// ascending order of the lower ones.
    void writeTo(IndexBufferLines& lines) const;

private:
    static constexpr std::size_t c_maxNeighbours = 10;
    using Neighbours = std::array<int, c_maxNeighbours>;

    static int toggleEdge(Neighbours* table, int low, int high);
    static int toggleEdges(Neighbours* table, int a, int b, int c);

    std::vector<Neighbours> m_neighbours; // by point: the far ends of its edges
    int m_numEdges = 0;
};

} // namespace vxgraphics3d
