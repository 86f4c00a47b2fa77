#pragma once

#include "graphics3d/buffers/vertexbufferof.h"
#include "graphics3d/buffers/vertexlayout.h"

namespace vxgraphics3d {

/// Vertices with normals, two texture coordinates and an additional coordinate triple.
class VX_API VertexBufferNormalTexTexCoord : public VertexBufferOf<VertexNormalTexTexCoord> {
public:
    /// Appends with the first coordinates of both textures, and the triple c; v and t are 0.
    int appendVertex(const Vector3f& p, const Vector3f& n, float u, float s, const Vector3f& c)
    {
        return appendVertex(p.x, p.y, p.z, n.x, n.y, n.z, u, s, c.x, c.y, c.z);
    }
    int appendVertex(float x, float y, float z, float nx, float ny, float nz, float u, float s, float cx, float cy,
                     float cz)
    {
        return append({x, y, z, nx, ny, nz, u, 0.0f, s, 0.0f, cx, cy, cz});
    }
};

} // namespace vxgraphics3d
