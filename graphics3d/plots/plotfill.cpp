#include "graphics3d/plots/plotfill.h"

#include "graphics3d/buffers/indexbufferlines.h"
#include "graphics3d/buffers/vertexbuffertex.h"

#include <algorithm>
#include <cstddef>

namespace vxgraphics3d {

namespace {

/// Passes `write` a function from the index of a point to its texture coordinate: one for data, another for a constant,
/// so that the loop over points has no branches.
template <class Write>
void withColors(const PointColors& colors, Write write)
{
    if (colors.values != nullptr) {
        write([values = colors.values, scale = colors.scale](std::size_t i) { return scale(values[i]); });
    } else {
        write([u = colors.constant](std::size_t) { return u; });
    }
}

/// The same for positions in space, in the plane and on the x axis.
template <class Write>
void withPositions(const PointPositions& positions, Write write)
{
    if (positions.z != nullptr) {
        write(
            [x = positions.x, y = positions.y, z = positions.z](std::size_t i) { return Vector3f(x[i], y[i], z[i]); });
    } else if (positions.y != nullptr) {
        write([x = positions.x, y = positions.y](std::size_t i) { return Vector3f(x[i], y[i], 0.0); });
    } else {
        write([x = positions.x](std::size_t i) { return Vector3f(x[i], 0.0, 0.0); });
    }
}

template <class Write>
void withNormals(const PointNormals& normals, Write write)
{
    if (normals.x != nullptr) {
        write([x = normals.x, y = normals.y, z = normals.z](std::size_t i) { return Vector3f(x[i], y[i], z[i]); });
    } else if (normals.constant == Vector3f(0.0f, 0.0f, 1.0f)) {
        // By far the most frequent case; a compile-time constant lets the compiler combine it with the zeros next to
        // it.
        write([](std::size_t) { return Vector3f(0.0f, 0.0f, 1.0f); });
    } else {
        write([normal = normals.constant](std::size_t) { return normal; });
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

void appendRaisedPoints(VertexBufferTex& vertices, const PointPositions& positions, const HeightMap& heights,
                        const PointColors& colors)
{
    VertexTex* out = vertices.appendUnwritten(positions.count);
    const auto count = static_cast<std::size_t>(positions.count);
    withColors(colors, [=, x = positions.x, y = positions.y, z = heights](auto u) {
        for (std::size_t i = 0; i < count; ++i) {
            out[i] = {static_cast<float>(x[i]), static_cast<float>(y[i]), static_cast<float>(z(i)), u(i), 0.0f};
        }
    });
}

void allocateVertices(VertexBufferTex& vertices, const PointPositions& positions, const PointColors& colors)
{
    vertices.allocate(positions.count);
    appendPoints(vertices, positions, colors);
}

void fillSurface(SurfaceMesh& mesh, const PointPositions& positions, const PointNormals& normals,
                 const PointColors& colors, const TriangleCorners& triangles)
{
    mesh.allocate(positions.count, triangles.count);
    appendPoints(mesh.vertices, positions, normals, colors);
    appendTriangles(mesh.indices, triangles);
}

void fillRaisedSurface(SurfaceMesh& mesh, const PointPositions& positions, const HeightMap& heights,
                       const PointColors& colors, const TriangleCorners& triangles)
{
    mesh.allocate(positions.count, triangles.count);
    VertexNormalTex* out = mesh.vertices.appendUnwritten(positions.count);
    const auto count = static_cast<std::size_t>(positions.count);
    const double* x = positions.x;
    const double* y = positions.y;

    // The sums of normals accumulate in the vertices themselves, which are written completely afterwards.
    std::fill_n(out, count, VertexNormalTex{});
    const auto addNormal = [=, z = heights](int first, int second, int third) {
        const auto a = static_cast<std::size_t>(first);
        const auto b = static_cast<std::size_t>(second);
        const auto c = static_cast<std::size_t>(third);
        const Vector3f toA(x[a] - x[b], y[a] - y[b], z(a) - z(b));
        const Vector3f toC(x[c] - x[b], y[c] - y[b], z(c) - z(b));
        const Vector3f normal = toC.cross(toA);
        for (const std::size_t corner : {a, b, c}) {
            out[corner].nx += normal.x;
            out[corner].ny += normal.y;
            out[corner].nz += normal.z;
        }
    };
    mesh.indices.appendTriangles(triangles.a, triangles.b, triangles.c, triangles.count, addNormal);
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

void allocateElements(IndexBuffer& indices, int count)
{
    indices.internalAllocate(count, 1);
    indices.newSegment();
}

void appendTriangles(IndexBufferTriangles& indices, const TriangleCorners& triangles)
{
    indices.appendTriangles(triangles.a, triangles.b, triangles.c, triangles.count);
}

void appendLines(IndexBufferLines& indices, const LineEnds& ends)
{
    indices.appendLines(ends.from, ends.to, ends.count);
}

void fillLines(IndexBufferLines& lines, const LineEnds& ends)
{
    allocateElements(lines, ends.count);
    appendLines(lines, ends);
}

void appendEdges(IndexBufferLines& lines, const ElementCorners& elements)
{
    lines.appendEdges(elements.corners, elements.count);
}

} // namespace vxgraphics3d
