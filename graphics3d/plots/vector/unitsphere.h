#pragma once

#include "base/export.h"
#include "graphics3d/plots/surfacemesh.h"

namespace vxgraphics3d {

/// Triangles of a sphere of radius 1 about the origin, with its poles on the z axis: rings of points at equal angles,
/// from the upper pole to the lower one. A resolution of n makes n - 1 rings of 2 n points.
class VX_API UnitSphere {
public:
    static constexpr int c_resolution = 6;

    /// @param resolution 1 to 10000
    /// @throws std::invalid_argument for a lower one
    explicit UnitSphere(int resolution = c_resolution);

    int getResolution() const { return m_sphereResolution; }
    /// 2 + 2 n (n - 1) vertices, whose normals are their positions and whose texture coordinates are 0.
    const VertexBufferNormalTex& getVertices() const { return m_sphere.vertices; }
    /// 4 n (n - 1) triangles.
    const IndexBufferTriangles& getTriangles() const { return m_sphere.indices; }

private:
    void computeSphere();

    int m_sphereResolution;
    SurfaceMesh m_sphere;
};

} // namespace vxgraphics3d
