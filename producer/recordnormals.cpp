#include "producer/recordnormals.h"

#include "graphics3d/foundation/vector3f.h"

#include <cmath>
#include <cstddef>
#include <vector>

namespace vxproducer {

using vxdatacarrier::PostDataObject;
using vxgraphics3d::Vector3f;

PostDataObject::FloatArrays normalsOf(const PostDataObject::DoubleArrays& coordinates,
                                      const PostDataObject::IntArrays& triangles)
{
    const std::size_t numPoints = coordinates[0].size();
    std::vector<Vector3f> points(numPoints);
    for (std::size_t i = 0; i < numPoints; ++i) {
        points[i] = Vector3f(coordinates[0][i], coordinates[1][i], coordinates[2][i]);
    }
    std::vector<Vector3f> sums(numPoints);
    for (std::size_t i = 0; i < triangles[0].size(); ++i) {
        const auto a = static_cast<std::size_t>(triangles[0][i]);
        const auto b = static_cast<std::size_t>(triangles[1][i]);
        const auto c = static_cast<std::size_t>(triangles[2][i]);
        // The operations and their order are those of the file reader, for the same bits.
        const Vector3f reversed = (points[a] - points[b]).cross(points[c] - points[b]).normalized();
        if (std::isfinite(reversed.lengthSquared())) {
            sums[a] -= reversed;
            sums[b] -= reversed;
            sums[c] -= reversed;
        }
    }
    PostDataObject::FloatArrays normals(3, std::vector<float>(numPoints));
    for (std::size_t i = 0; i < numPoints; ++i) {
        const Vector3f& normal = sums[i].normalize();
        normals[0][i] = normal.x;
        normals[1][i] = normal.y;
        normals[2][i] = normal.z;
    }
    return normals;
}

} // namespace vxproducer
