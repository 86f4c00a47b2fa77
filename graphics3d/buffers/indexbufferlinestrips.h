#pragma once

#include "graphics3d/buffers/indexbuffer.h"

namespace vxgraphics3d {

/// Strips of connected line pieces, a segment each: a strip of k pieces has k + 1 indices.
class VX_API IndexBufferLineStrips : public IndexBuffer {
public:
    explicit IndexBufferLineStrips(const VertexBuffer& vertexBuffer) : IndexBuffer(LineStrips, vertexBuffer) {}

    /// Opens a strip at its first vertex.
    void newStrip(int firstVertex)
    {
        newSegment();
        appendStrip(firstVertex);
    }
    /// Goes on to the next vertex of the present strip.
    void appendStrip(int vertex)
    {
        append(1, [=](auto* out) { put(out[0], vertex); });
    }
};

} // namespace vxgraphics3d
