#include "graphics3d/plots/vector/unitsphere.h"

#include <cmath>
#include <stdexcept>
#include <string>

namespace vxgraphics3d {

namespace {

constexpr float c_pi = 3.1415927f;
constexpr int c_maxResolution = 10000; // the corners of its triangles can be counted

} // namespace

UnitSphere::UnitSphere(int resolution) : m_sphereResolution(resolution)
{
    if (resolution < 1 || resolution > c_maxResolution) {
        throw std::invalid_argument("A sphere needs a resolution of 1 to " + std::to_string(c_maxResolution) + ".");
    }
    computeSphere();
}

void UnitSphere::computeSphere()
{
    const int n = m_sphereResolution;
    const int ring = 2 * n;
    m_sphere.allocate(2 + ring * (n - 1), 2 * ring * (n - 1));
    const auto angle = [n](int step) {
        return static_cast<double>(static_cast<float>(step) * c_pi / static_cast<float>(n));
    };
    const auto append = [this](float x, float y, float z) { m_sphere.vertices.appendVertex(x, y, z, x, y, z, 0.0f); };
    IndexBufferTriangles& triangles = m_sphere.indices;
    for (int i = 0; i <= n; ++i) {
        const int b = m_sphere.vertices.getNumberOfVertices();
        const auto z = static_cast<float>(std::cos(angle(i)));
        if (i == 0 || i == n) {
            append(0.0f, 0.0f, z);
        } else {
            const float r = std::sqrt(1.0f - z * z);
            for (int j = 0; j < ring; ++j) {
                append(static_cast<float>(std::cos(angle(j))) * r, static_cast<float>(std::sin(angle(j))) * r, z);
            }
        }
        // The triangles between this ring and the one above. Two poles alone have none.
        for (int j = 0; j < ring && i > 0 && n > 1; ++j) {
            const int next = (j + 1) % ring;
            if (i == 1) {
                triangles.appendTriangle(b - 1, b + j, b + next);
            } else if (i == n) {
                triangles.appendTriangle(b, b - ring + next, b - ring + j);
            } else {
                triangles.appendTriangle(b - ring + j, b + j, b + next);
                triangles.appendTriangle(b - ring + j, b + next, b - ring + next);
            }
        }
    }
}

} // namespace vxgraphics3d
