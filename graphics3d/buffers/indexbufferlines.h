#pragma once

#include "graphics3d/buffers/indexbuffer.h"

namespace vxgraphics3d {

/// Single line pieces, two indices each.
class VX_API IndexBufferLines : public IndexBuffer {
public:
    explicit IndexBufferLines(const VertexBuffer& vertexBuffer) : IndexBuffer(Lines, vertexBuffer) {}

    void appendLine(int from, int to)
    {
        append(2, [=](auto* out) {
            put(out[0], from);
            put(out[1], to);
        });
    }
    /// Appends line i from `from[i] + offset` to `to[i] + offset`, for i below `count`. Throws std::out_of_range, and
    /// appends none, if there is not enough space.
    void appendLines(const int* from, const int* to, int count, int offset = 0);

    /// The ends of a line, counted from the start of the array across segments; the index is not checked.
    void getLine(int line, int& from, int& to) const;
};

} // namespace vxgraphics3d
