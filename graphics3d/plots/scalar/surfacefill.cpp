#include "graphics3d/plots/scalar/surfacefill.h"

#include "graphics3d/buffers/indexbuffertriangles.h"
#include "graphics3d/buffers/vertexbuffernormaltex.h"

#include <cstddef>

using vxdatacarrier::PostDataObject;

namespace vxgraphics3d {

namespace {

/// Calls `write(vertex, i, u)` for every point, with the test for missing values outside the loop.
template <class Write>
void appendEach(VertexBufferNormalTex& vertices, std::size_t count, const std::vector<double>* values,
                const ValueScale& scale, Write write)
{
    VertexNormalTex* out = vertices.appendUnwritten(static_cast<int>(count));
    if (values == nullptr) {
        for (std::size_t i = 0; i < count; ++i) {
            write(out[i], i, 0.0f);
        }
        return;
    }
    const double* value = values->data();
    const ValueScale toTexture = scale;
    for (std::size_t i = 0; i < count; ++i) {
        write(out[i], i, toTexture(value[i]));
    }
}

} // namespace

void appendPoints(VertexBufferNormalTex& vertices, const PostDataObject::DoubleArrays& coordinates,
                  const PostDataObject::FloatArrays& normals, const std::vector<double>* values,
                  const ValueScale& scale)
{
    const double* x = coordinates[0].data();
    const double* y = coordinates[1].data();
    const double* z = coordinates[2].data();
    const float* nx = normals[0].data();
    const float* ny = normals[1].data();
    const float* nz = normals[2].data();
    appendEach(vertices, coordinates[0].size(), values, scale, [=](VertexNormalTex& vertex, std::size_t i, float u) {
        vertex = {
            static_cast<float>(x[i]), static_cast<float>(y[i]), static_cast<float>(z[i]), nx[i], ny[i], nz[i], u, 0.0f};
    });
}

void appendFlatPoints(VertexBufferNormalTex& vertices, const PostDataObject::DoubleArrays& coordinates,
                      const std::vector<double>* values, const ValueScale& scale)
{
    const double* x = coordinates[0].data();
    const double* y = coordinates[1].data();
    appendEach(vertices, coordinates[0].size(), values, scale, [=](VertexNormalTex& vertex, std::size_t i, float u) {
        vertex = {static_cast<float>(x[i]), static_cast<float>(y[i]), 0.0f, 0.0f, 0.0f, 1.0f, u, 0.0f};
    });
}

void fillTriangles(IndexBufferTriangles& triangles, const PostDataObject::IntArrays& elements)
{
    const int count = static_cast<int>(elements[0].size());
    triangles.internalAllocate(count, 1);
    triangles.newSegment();
    if (count > 0) {
        triangles.appendTriangles(elements[0].data(), elements[1].data(), elements[2].data(), count);
    }
}

} // namespace vxgraphics3d
