#pragma once

#include "graphics3d/buffers/indexbuffer.h"

namespace vxgraphics3d {

/// Triangles, three indices each in the order of their corners; none is reoriented or sorted.
class VX_API IndexBufferTriangles : public IndexBuffer {
public:
    explicit IndexBufferTriangles(const VertexBuffer& vertexBuffer) : IndexBuffer(Triangles, vertexBuffer) {}

    void appendTriangle(int a, int b, int c)
    {
        append(3, [=](auto* out) {
            put(out[0], a);
            put(out[1], b);
            put(out[2], c);
        });
    }
    /// Appends the triangles of `3 * count` indices. Throws std::out_of_range, and appends none, if there is not enough
    /// space.
    void appendTriangles(const int* indices, int count);
    /// Appends triangles whose corners are in three arrays, adding an offset to each index. Throws std::out_of_range,
    /// and appends none, if there is not enough space.
    void appendTriangles(const int* a, const int* b, const int* c, int count, int offset = 0);
    /// The same without an offset, calling `each(a, b, c)` for every triangle: a single pass over the corners for a
    /// fill that also computes with them.
    template <class Each>
    void appendTriangles(const int* a, const int* b, const int* c, int count, Each each)
    {
        requireSpace(count, 3);
        append(3 * count, [=](auto* out) {
            for (int i = 0; i < count; ++i, out += 3) {
                put(out[0], a[i]);
                put(out[1], b[i]);
                put(out[2], c[i]);
                each(a[i], b[i], c[i]);
            }
        });
    }
    /// Appends `count` triangles `at(i)` of any type that has the corners a, b and c. Throws std::out_of_range, and
    /// appends none, if there is not enough space.
    template <class TriangleAt>
    void appendTrianglesOf(int count, TriangleAt at)
    {
        requireSpace(count, 3);
        append(3 * count, [=](auto* out) {
            for (int i = 0; i < count; ++i, out += 3) {
                const auto& triangle = at(i);
                put(out[0], triangle.a);
                put(out[1], triangle.b);
                put(out[2], triangle.c);
            }
        });
    }
    /// Appends the triangles between consecutive rows of vertices, two for each vertex except for the last of a row:
    /// (i, i + n, i + n + 1) and (i, i + n + 1, i + 1) in rows of n vertices. Throws std::out_of_range, and appends
    /// none, if there is not enough space.
    /// @param first the first vertex of the first row
    void appendBands(int first, int rowLength, int numBands);

    /// Appends `numCopies` times the triangles of `3 * count` indices, each time for the next `numVertices` vertices.
    /// Throws std::out_of_range, and appends none, if there is not enough space.
    void appendCopies(const int* indices, int count, int numCopies, int numVertices);

    /// The corners of a triangle, counted from the start of the array across segments; the index is not checked.
    void getTriangle(int triangle, int& a, int& b, int& c) const;
};

} // namespace vxgraphics3d
