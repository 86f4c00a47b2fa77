#pragma once

#include "graphics3d/buffers/indexbuffer.h"

namespace vxgraphics3d {

/// Triangles, three indices each in the order of their corners; none is turned or sorted.
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
    /// Appends the triangles of `3 * count` indices. Throws std::out_of_range, and appends none, if there is no room.
    void appendTriangles(const int* indices, int count);
    /// Appends triangles whose corners stand in three arrays, adding an offset to each index. Throws std::out_of_range,
    /// and appends none, if there is no room.
    void appendTriangles(const int* a, const int* b, const int* c, int count, int offset = 0);

    /// The corners of a triangle counted from the start of the array, across segments; the number is not tested.
    void getTriangle(int triangle, int& a, int& b, int& c) const;
};

} // namespace vxgraphics3d
