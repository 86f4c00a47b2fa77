#include "graphics3d/plots/plotfill.h"

#include "graphics3d/buffers/indexbufferlines.h"
#include "graphics3d/buffers/vertexbuffertex.h"

#include <algorithm>
#include <cstddef>

namespace vxgraphics3d {

namespace {

/// How many triangles are worked on at once: few enough for their corners to stay in the first cache.
constexpr int c_trianglesPerBlock = 512;

/// Hands `write` a function from the index of a point to its texture coordinate: one for data, another for a constant,
/// so that a loop over points tests nothing.
template <class Write>
void withColors(const PointColors& colors, Write write)
{
    if (colors.values != nullptr) {
        write([values = colors.values, scale = colors.scale](std::size_t i) { return scale(values[i]); });
    } else {
        write([u = colors.constant](std::size_t) { return u; });
    }
}

/// The same for positions in space and in the plane; one axis alone is rare and needs no loop of its own.
template <class Write>
void withPositions(const PointPositions& positions, Write write)
{
    if (positions.z != nullptr) {
        write(
            [x = positions.x, y = positions.y, z = positions.z](std::size_t i) { return Vector3f(x[i], y[i], z[i]); });
    } else {
        write([x = positions.x, y = positions.y](std::size_t i) {
            return Vector3f(x[i], y != nullptr ? y[i] : 0.0, 0.0);
        });
    }
}

template <class Write>
void withNormals(const PointNormals& normals, Write write)
{
    if (normals.x != nullptr) {
        write([x = normals.x, y = normals.y, z = normals.z](std::size_t i) { return Vector3f(x[i], y[i], z[i]); });
    } else {
        write([normal = normals.constant](std::size_t) { return normal; });
    }
}

/// Adds the normals of some triangles to those of their corners.
void addNormals(VertexNormalTex* vertices, const double* x, const double* y, const HeightMap& heights, const int* a,
                const int* b, const int* c, int count)
{
    const HeightMap z = heights;
    for (int i = 0; i < count; ++i) {
        const auto ia = static_cast<std::size_t>(a[i]);
        const auto ib = static_cast<std::size_t>(b[i]);
        const auto ic = static_cast<std::size_t>(c[i]);
        const Vector3f toA(x[ia] - x[ib], y[ia] - y[ib], z(ia) - z(ib));
        const Vector3f toC(x[ic] - x[ib], y[ic] - y[ib], z(ic) - z(ib));
        const Vector3f normal = toC.cross(toA);
        for (const std::size_t corner : {ia, ib, ic}) {
            vertices[corner].nx += normal.x;
            vertices[corner].ny += normal.y;
            vertices[corner].nz += normal.z;
        }
    }
}

} // namespace

void appendPoints(VertexBufferNormalTex& vertices, const PointPositions& positions, const PointNormals& normals,
                  const PointColors& colors)
{
    VertexNormalTex* out = vertices.appendUnwritten(positions.count);
    const auto count = static_cast<std::size_t>(positions.count);
    withPositions(positions, [&](auto position) {
        withNormals(normals, [&](auto normal) {
            withColors(colors, [&](auto u) {
                for (std::size_t i = 0; i < count; ++i) {
                    const Vector3f p = position(i);
                    const Vector3f n = normal(i);
                    out[i] = {p.x, p.y, p.z, n.x, n.y, n.z, u(i), 0.0f};
                }
            });
        });
    });
}

void appendPoints(VertexBufferTex& vertices, const PointPositions& positions, const PointColors& colors)
{
    VertexTex* out = vertices.appendUnwritten(positions.count);
    const auto count = static_cast<std::size_t>(positions.count);
    withPositions(positions, [&](auto position) {
        withColors(colors, [&](auto u) {
            for (std::size_t i = 0; i < count; ++i) {
                const Vector3f p = position(i);
                out[i] = {p.x, p.y, p.z, u(i), 0.0f};
            }
        });
    });
}

void fillSurface(SurfaceMesh& mesh, const PointPositions& positions, const PointNormals& normals,
                 const PointColors& colors, const TriangleCorners& triangles)
{
    mesh.allocate(positions.count, triangles.count);
    appendPoints(mesh.vertices, positions, normals, colors);
    mesh.indices.appendTriangles(triangles.a, triangles.b, triangles.c, triangles.count);
}

void fillRaisedSurface(SurfaceMesh& mesh, const PointPositions& positions, const HeightMap& heights,
                       const PointColors& colors, const TriangleCorners& triangles)
{
    mesh.allocate(positions.count, triangles.count);
    VertexNormalTex* out = mesh.vertices.appendUnwritten(positions.count);
    const auto count = static_cast<std::size_t>(positions.count);
    const double* x = positions.x;
    const double* y = positions.y;

    // The sums of normals grow in the vertices themselves, which are written as a whole only afterwards.
    std::fill_n(out, count, VertexNormalTex{});
    for (int first = 0; first < triangles.count; first += c_trianglesPerBlock) {
        const int inBlock = std::min(c_trianglesPerBlock, triangles.count - first);
        const int* a = triangles.a + first;
        const int* b = triangles.b + first;
        const int* c = triangles.c + first;
        mesh.indices.appendTriangles(a, b, c, inBlock);
        addNormals(out, x, y, heights, a, b, c, inBlock);
    }
    withColors(colors, [=, z = heights](auto u) {
        for (std::size_t i = 0; i < count; ++i) {
            const Vector3f normal = Vector3f(out[i].nx, out[i].ny, out[i].nz).normalized();
            out[i] = {static_cast<float>(x[i]),
                      static_cast<float>(y[i]),
                      static_cast<float>(z(i)),
                      normal.x,
                      normal.y,
                      normal.z,
                      u(i),
                      0.0f};
        }
    });
}

void fillLines(IndexBufferLines& lines, const LineEnds& ends)
{
    lines.internalAllocate(ends.count, 1);
    lines.newSegment();
    lines.appendLines(ends.from, ends.to, ends.count);
}

} // namespace vxgraphics3d
