#include "graphics3d/parts/meshablesheet.h"

#include <cstddef>
#include <initializer_list>
#include <limits>
#include <stdexcept>

namespace vxgraphics3d {

void MeshableSheet::setMesh(const Vector3f* points, std::span<const vxdatacarrier::Triangle> triangles,
                            std::span<const vxdatacarrier::Quad> quads)
{
    const std::size_t numCorners = 3 * triangles.size() + 4 * quads.size();
    if (numCorners > std::numeric_limits<int>::max() / 2) {
        throw std::invalid_argument("The mesh has too many elements.");
    }
    clearMesh();
    m_mesh.allocate(static_cast<int>(numCorners), static_cast<int>(triangles.size() + 2 * quads.size()));
    m_lines.internalAllocate(static_cast<int>(numCorners), 1);
    m_lines.newSegment();
    const auto appendElement = [&](std::initializer_list<int> corners) {
        const int* corner = corners.begin();
        const Vector3f& a = points[corner[0]];
        const Vector3f normal = (points[corner[1]] - a).cross(points[corner[2]] - a).normalize();
        const int first = m_mesh.vertices.getNumberOfVertices();
        const int count = static_cast<int>(corners.size());
        for (const int index : corners) {
            m_mesh.vertices.appendVertex(points[index], normal);
        }
        for (int i = 2; i < count; ++i) {
            m_mesh.indices.appendTriangle(first, first + i - 1, first + i);
        }
        for (int i = 0; i < count; ++i) {
            m_lines.appendLine(first + i, first + (i + 1) % count);
        }
    };
    for (const vxdatacarrier::Triangle& triangle : triangles) {
        appendElement({triangle.a, triangle.b, triangle.c});
    }
    for (const vxdatacarrier::Quad& quad : quads) {
        appendElement({quad.a, quad.b, quad.c, quad.d});
    }
}

void MeshableSheet::clearMesh()
{
    m_mesh.deallocate();
    m_lines.deallocate();
    m_meshChangeId.raise();
}

} // namespace vxgraphics3d
