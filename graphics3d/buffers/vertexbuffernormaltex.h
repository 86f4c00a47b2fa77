#pragma once

#include "graphics3d/buffers/vertexbufferof.h"
#include "graphics3d/buffers/vertexlayout.h"

namespace vxgraphics3d {

/// Vertices with normals and a position on the colour scale, for lit surfaces that show data.
class VX_API VertexBufferNormalTex : public VertexBufferOf<VertexNormalTex> {
public:
    /// Appends with the position on the colour scale, 0 to 1; v is 0.
    int appendVertex(const Vector3f& p, const Vector3f& n, float u)
    {
        return appendVertex(p.x, p.y, p.z, n.x, n.y, n.z, u);
    }
    int appendVertex(float x, float y, float z, float nx, float ny, float nz, float u)
    {
        return append({x, y, z, nx, ny, nz, u, 0.0f});
    }
    /// Replaces the position on the colour scale of an appended record; the index is not checked.
    void setVertexTextureUCoord(int index, float u) { record(index).u = u; }
};

} // namespace vxgraphics3d
