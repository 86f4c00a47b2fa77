#pragma once

#include "graphics3d/buffers/indexbuffertriangles.h"
#include "graphics3d/buffers/vertexbuffernormaltex.h"
#include "graphics3d/foundation/boundingbox.h"

#include <vector>

namespace vxgraphics3d {

// The contents of a plot's buffers in a form that tests can compare with literals.

/// One record of a vertex buffer: position, normal, u and v.
using Vertex = std::vector<float>;
using Vertices = std::vector<Vertex>;
using Triangles = std::vector<std::vector<int>>;

inline Vertices verticesOf(const VertexBufferNormalTex& buffer)
{
    Vertices result;
    for (int i = 0; i < buffer.getNumberOfVertices(); ++i) {
        const VertexNormalTex& v = buffer.vertices()[i];
        result.push_back({v.x, v.y, v.z, v.nx, v.ny, v.nz, v.u, v.v});
    }
    return result;
}

inline Triangles trianglesOf(const IndexBufferTriangles& buffer)
{
    Triangles result;
    for (int i = 0; i < buffer.getNumElements(0); ++i) {
        std::vector<int> corners(3);
        buffer.getTriangle(i, corners[0], corners[1], corners[2]);
        result.push_back(corners);
    }
    return result;
}

/// The limits of x, y and z.
inline std::vector<float> limitsOf(const BoundingBox& box)
{
    const Vector3f min = box.getMin();
    const Vector3f max = box.getMax();
    return {min.x, max.x, min.y, max.y, min.z, max.z};
}

} // namespace vxgraphics3d
