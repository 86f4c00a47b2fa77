#include "renderer/upload/sheetnormals.h"

#include "graphics3d/foundation/vector3f.h"

#include <cmath>
#include <cstddef>
#include <vector>

namespace vxrenderer {
namespace {

using vxgraphics3d::Vector3f;
using vxgraphics3d::VertexNormal;

// Cosines of 1 degree and of 40 degrees.
constexpr float c_flat = 0.99985f;
constexpr float c_far = 0.766f;

} // namespace

void correctNormals(std::span<VertexNormal> vertices, std::span<const std::uint32_t> triangles)
{
    const auto positionOf = [&](std::uint32_t vertex) {
        return Vector3f(vertices[vertex].x, vertices[vertex].y, vertices[vertex].z);
    };
    std::vector<Vector3f> areas;
    std::vector<Vector3f> sums(vertices.size());
    Vector3f whole;
    areas.reserve(triangles.size() / 3);
    for (std::size_t i = 0; i + 2 < triangles.size(); i += 3) {
        const Vector3f a = positionOf(triangles[i]);
        areas.push_back((positionOf(triangles[i + 1]) - a).cross(positionOf(triangles[i + 2]) - a));
        whole += areas.back();
        for (std::size_t k = 0; k < 3; ++k) {
            sums[triangles[i + k]] += areas.back();
        }
    }
    bool isFlat = true;
    for (const Vector3f& area : areas) {
        isFlat = isFlat && area.dot(whole) >= c_flat * area.length() * whole.length();
    }
    for (std::size_t i = 0; i < vertices.size(); ++i) {
        VertexNormal& vertex = vertices[i];
        const Vector3f normal(vertex.nx, vertex.ny, vertex.nz);
        const Vector3f right = isFlat ? whole : sums[i];
        const float sizes = normal.length() * right.length();
        // The comparison also fails for what is no number.
        if (sizes > 0.0f && normal.dot(right) < (isFlat ? c_flat : c_far) * sizes) {
            const Vector3f its = right.normalized();
            vertex = {vertex.x, vertex.y, vertex.z, its.x, its.y, its.z};
        }
    }
}

} // namespace vxrenderer
