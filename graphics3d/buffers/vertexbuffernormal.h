#pragma once

#include "graphics3d/buffers/vertexbufferof.h"
#include "graphics3d/buffers/vertexlayout.h"

namespace vxgraphics3d {

/// Vertices with normals, for lit surfaces of one colour.
class VX_API VertexBufferNormal : public VertexBufferOf<VertexNormal> {
public:
    int appendVertex(const Vector3f& p, const Vector3f& n) { return appendVertex(p.x, p.y, p.z, n.x, n.y, n.z); }
    int appendVertex(float x, float y, float z, float nx, float ny, float nz) { return append({x, y, z, nx, ny, nz}); }

    /// Copies `count` records after the existing ones and returns the index of the first. Without space for all of them
    /// it logs an error, appends none and returns 0.
    int appendVertices(const Vertex* vertices, int count) { return appendCopies(vertices, count); }
};

} // namespace vxgraphics3d
