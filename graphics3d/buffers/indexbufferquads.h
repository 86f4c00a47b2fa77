#pragma once

#include "graphics3d/buffers/indexbuffer.h"

namespace vxgraphics3d {

/// Quadrilaterals, four indices each. Nothing fills them yet; the type is known to readers and renderers.
class VX_API IndexBufferQuads : public IndexBuffer {
public:
    explicit IndexBufferQuads(const VertexBuffer& vertexBuffer) : IndexBuffer(Quads, vertexBuffer) {}
};

} // namespace vxgraphics3d
