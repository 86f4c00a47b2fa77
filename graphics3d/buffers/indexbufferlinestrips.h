#pragma once

#include "graphics3d/buffers/indexbuffer.h"

namespace vxgraphics3d {

/// Strips of connected line pieces, one segment per strip: a strip of k pieces has k + 1 indices.
class VX_API IndexBufferLineStrips : public IndexBuffer {
public:
    explicit IndexBufferLineStrips(const VertexBuffer& vertexBuffer) : IndexBuffer(LineStrips, vertexBuffer) {}

    /// Opens a strip with its first vertex.
    void newStrip(int firstVertex)
    {
        newSegment();
        appendStrip(firstVertex);
    }
    /// Extends the current strip to the next vertex.
    void appendStrip(int vertex)
    {
        append(1, [=](auto* out) { put(out[0], vertex); });
    }
    /// Opens a strip of `count` consecutive vertices. Throws std::out_of_range, and opens none, if there is not enough
    /// space.
    void newStripOf(int firstVertex, int count);
};

} // namespace vxgraphics3d
