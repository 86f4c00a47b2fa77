#include "renderer/upload/drawntriangles.h"

#include "graphics3d/buffers/vertexbuffer.h"
#include "graphics3d/buffers/vertexlayout.h"
#include "renderer/upload/checkedindices.h"

#include <array>
#include <cmath>
#include <cstddef>
#include <cstring>
#include <utility>

namespace vxrenderer {
namespace {

/// In double, so that no product of two floats overflows and thin triangles keep their side.
struct Vec3 {
    double x;
    double y;
    double z;

    Vec3 operator+(const Vec3& other) const { return {x + other.x, y + other.y, z + other.z}; }
    Vec3 operator-(const Vec3& other) const { return {x - other.x, y - other.y, z - other.z}; }
    Vec3 cross(const Vec3& other) const
    {
        return {y * other.z - z * other.y, z * other.x - x * other.z, x * other.y - y * other.x};
    }
    double dot(const Vec3& other) const { return x * other.x + y * other.y + z * other.z; }
    bool isFinite() const { return std::isfinite(x) && std::isfinite(y) && std::isfinite(z); }
};

Vec3 readVector(const std::byte* floats)
{
    std::array<float, 3> vector;
    std::memcpy(vector.data(), floats, sizeof vector);
    return {static_cast<double>(vector[0]), static_cast<double>(vector[1]), static_cast<double>(vector[2])};
}

} // namespace

DrawnTriangles::DrawnTriangles(const CheckedIndices& source, const vxgraphics3d::VertexBuffer& vertices,
                               const vxgraphics3d::VertexLayout& layout)
{
    const auto* const records = static_cast<const std::byte*>(vertices.vertexPointer());
    const auto hasValue = [&layout](const std::byte* record) {
        float u = 0.0f;
        if (layout.texture >= 0) {
            std::memcpy(&u, record + layout.texture, sizeof u);
        }
        return std::isfinite(u);
    };
    indices.reserve(static_cast<std::size_t>(source.size()));
    for (int i = 0; i + 2 < source.size(); i += 3) {
        std::array<std::uint32_t, 3> corners = {source[i], source[i + 1], source[i + 2]};
        const auto recordOf = [&](std::size_t corner) { return records + corners[corner] * layout.size; };
        const std::array<Vec3, 3> points = {readVector(recordOf(0)), readVector(recordOf(1)), readVector(recordOf(2))};
        if (!points[0].isFinite() || !points[1].isFinite() || !points[2].isFinite() || !hasValue(recordOf(0)) ||
            !hasValue(recordOf(1)) || !hasValue(recordOf(2))) {
            continue;
        }
        if (layout.normal >= 0) {
            Vec3 normal = {0.0, 0.0, 0.0};
            for (std::size_t corner = 0; corner < 3; ++corner) {
                const Vec3 own = readVector(recordOf(corner) + layout.normal);
                if (own.isFinite() && own.dot(own) > 0.0) {
                    normal = normal + own;
                } else {
                    haveNormals = false;
                }
            }
            if ((points[1] - points[0]).cross(points[2] - points[0]).dot(normal) < 0.0) {
                std::swap(corners[1], corners[2]);
            }
        }
        indices.insert(indices.end(), corners.begin(), corners.end());
    }
    haveNormals = haveNormals && layout.normal >= 0;
}

} // namespace vxrenderer
