#pragma once

#include "graphics3d/buffers/vertexbufferof.h"
#include "graphics3d/buffers/vertexlayout.h"

namespace vxgraphics3d {

/// Vertices with a position on the colour scale, for lines and unlit surfaces that show data.
class VX_API VertexBufferTex : public VertexBufferOf<VertexTex> {
public:
    /// Appends with the position on the colour scale, 0 to 1; v is 0.
    int appendVertex(const Vector3f& p, float u) { return appendVertex(p.x, p.y, p.z, u); }
    int appendVertex(float x, float y, float z, float u) { return append({x, y, z, u, 0.0f}); }
};

} // namespace vxgraphics3d
