#pragma once

#include "graphics3d/buffers/vertexbufferof.h"
#include "graphics3d/buffers/vertexlayout.h"

namespace vxgraphics3d {

/// Vertices that are positions only.
class VX_API VertexBufferCoords : public VertexBufferOf<VertexCoords> {
public:
    int appendVertex(const Vector3f& p) { return appendVertex(p.x, p.y, p.z); }
    int appendVertex(float x, float y, float z) { return append({x, y, z}); }

    /// Copies `count` records after the existing ones and returns the index of the first. Without space for all of them
    /// it logs an error, appends none and returns 0.
    int appendVertices(const Vertex* vertices, int count) { return appendCopies(vertices, count); }
};

} // namespace vxgraphics3d
