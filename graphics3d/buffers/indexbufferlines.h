#pragma once

#include "graphics3d/buffers/indexbuffer.h"

#include <cstddef>
#include <span>

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

    /// Appends, for each of `count` elements, a line from each corner to each later one.
    /// @param corners one array per corner, with an index per element; none to four arrays
    /// @throws std::out_of_range, and appends none, if there is not enough space
    void appendEdges(std::span<const int* const> corners, int count);

    /// The ends of a line, counted from the start of the array across segments; the index is not checked.
    void getLine(int line, int& from, int& to) const;

private:
    template <std::size_t c_numCorners>
    void appendEdgesOf(std::span<const int* const> corners, int count);
};

} // namespace vxgraphics3d
