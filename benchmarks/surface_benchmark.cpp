// Fills of surface plots, each compared with a bare loop that writes the same records and indices into new memory. The
// data are a square grid of points with two triangles in each cell. Both results are compared once, byte for byte.

#include "benchmarks/memory.h"
#include "graphics3d/plots/scalar/scenegraphplotsurface2d.h"
#include "graphics3d/plots/scalar/scenegraphplotsurface3d.h"
#include "tests/support/postrecord.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <memory>
#include <string>
#include <vector>

namespace vxgraphics3d {
namespace {

using Record = vxdatacarrier::PostDataObject;

enum class Kind { flat, raised, spatial };

/// A grid of side by side points. Array 0 contains colour data, array 1 heights.
PostRecord gridRecord(Kind kind, std::size_t side)
{
    const std::size_t count = side * side;
    Record::DoubleArrays coordinates(kind == Kind::spatial ? 3 : 2, std::vector<double>(count));
    Record::DoubleArrays data(kind == Kind::raised ? 2 : 1, std::vector<double>(count));
    Record::FloatArrays normals(kind == Kind::spatial ? 3 : 0, std::vector<float>(count));
    for (std::size_t i = 0; i < count; ++i) {
        const double x = static_cast<double>(i % side) / static_cast<double>(side);
        const double y = static_cast<double>(i / side) / static_cast<double>(side);
        coordinates[0][i] = x;
        coordinates[1][i] = y;
        data[0][i] = x * y + 0.1 * std::sin(40.0 * x);
        if (kind == Kind::raised) {
            data[1][i] = std::sin(9.0 * x) * std::cos(7.0 * y);
        }
        if (kind == Kind::spatial) {
            coordinates[2][i] = x * x - y * y;
            const Vector3f normal = Vector3f(-2.0 * x, 2.0 * y, 1.0).normalized();
            normals[0][i] = normal.x;
            normals[1][i] = normal.y;
            normals[2][i] = normal.z;
        }
    }
    Record::IntArrays corners(3);
    for (std::vector<int>& corner : corners) {
        corner.reserve(2 * (side - 1) * (side - 1));
    }
    const auto add = [&](std::size_t a, std::size_t b, std::size_t c) {
        corners[0].push_back(static_cast<int>(a));
        corners[1].push_back(static_cast<int>(b));
        corners[2].push_back(static_cast<int>(c));
    };
    for (std::size_t row = 0; row + 1 < side; ++row) {
        for (std::size_t column = 0; column + 1 < side; ++column) {
            const std::size_t i = row * side + column;
            add(i, i + 1, i + side);
            add(i + 1, i + side + 1, i + side);
        }
    }
    PostRecord record = PostRecord().kind(9).role(Record::ColorData, 0);
    if (kind == Kind::raised) {
        record.role(Record::HeightData, 1);
    }
    record.bounds(Record::DoubleArrays(coordinates.size(), {0.0, 1.0}));
    record.group(std::move(coordinates), std::move(corners), std::move(data), std::move(normals));
    return record;
}

/// The output of a bare loop.
struct BareSurface {
    std::unique_ptr<VertexNormalTex[]> vertices;
    std::unique_ptr<unsigned short[]> indices16;
    std::unique_ptr<unsigned int[]> indices32;
};

struct Corners {
    explicit Corners(const Record& record)
        : a((*record.m_elements[0])[0].data()),
          b((*record.m_elements[0])[1].data()),
          c((*record.m_elements[0])[2].data()),
          count((*record.m_elements[0])[0].size())
    {}
    const int* a;
    const int* b;
    const int* c;
    std::size_t count;
};

template <class Index>
std::unique_ptr<Index[]> bareTriangles(const Record& record)
{
    const Corners corners(record);
    std::unique_ptr<Index[]> indices(new Index[3 * corners.count]);
    Index* out = indices.get();
    for (std::size_t i = 0; i < corners.count; ++i) {
        out[3 * i] = static_cast<Index>(corners.a[i]);
        out[3 * i + 1] = static_cast<Index>(corners.b[i]);
        out[3 * i + 2] = static_cast<Index>(corners.c[i]);
    }
    return indices;
}

/// The arrays of a record from which a bare loop makes vertices.
struct Points {
    explicit Points(const Record& record)
        : x((*record.m_coordinates[0])[0].data()),
          y((*record.m_coordinates[0])[1].data()),
          values((*record.m_data[0])[0].data()),
          min((*record.m_dataMin[0])[0]),
          scale(1.0 / ((*record.m_dataMax[0])[0] - min)),
          count((*record.m_coordinates[0])[0].size())
    {}
    float u(std::size_t i) const { return static_cast<float>((values[i] - min) * scale); }

    const double* x;
    const double* y;
    const double* values;
    double min;
    double scale;
    std::size_t count;
};

/// Writes the indices and sums the normals of triangles in one pass, directly into the vertices, so that only the
/// memory of the result is accessed; the vertices are completed in a second pass. Returns the indices.
template <class Index>
std::unique_ptr<Index[]> bareRaised(const Record& record, VertexNormalTex* out)
{
    const Corners corners(record);
    const Points points(record);
    const double* heights = (*record.m_data[0])[1].data();
    const double heightScale = 1.0 / ((*record.m_dataMax[0])[1] - (*record.m_dataMin[0])[1]);
    const auto height = [=](std::size_t i) { return heights[i] * heightScale; };
    std::fill_n(out, points.count, VertexNormalTex{});
    std::unique_ptr<Index[]> indices(new Index[3 * corners.count]);
    Index* index = indices.get();
    for (std::size_t i = 0; i < corners.count; ++i, index += 3) {
        const auto a = static_cast<std::size_t>(corners.a[i]);
        const auto b = static_cast<std::size_t>(corners.b[i]);
        const auto c = static_cast<std::size_t>(corners.c[i]);
        const Vector3f e1(points.x[a] - points.x[b], points.y[a] - points.y[b], height(a) - height(b));
        const Vector3f e2(points.x[c] - points.x[b], points.y[c] - points.y[b], height(c) - height(b));
        const Vector3f normal = e2.cross(e1);
        for (const std::size_t corner : {a, b, c}) {
            out[corner].nx += normal.x;
            out[corner].ny += normal.y;
            out[corner].nz += normal.z;
        }
        index[0] = static_cast<Index>(a);
        index[1] = static_cast<Index>(b);
        index[2] = static_cast<Index>(c);
    }
    for (std::size_t i = 0; i < points.count; ++i) {
        const Vector3f n = Vector3f(out[i].nx, out[i].ny, out[i].nz).normalized();
        out[i] = {static_cast<float>(points.x[i]),
                  static_cast<float>(points.y[i]),
                  static_cast<float>(height(i)),
                  n.x,
                  n.y,
                  n.z,
                  points.u(i),
                  0.0f};
    }
    return indices;
}

BareSurface bareFill(Kind kind, const Record& record)
{
    const Points points(record);
    const double* x = points.x;
    const double* y = points.y;
    BareSurface surface;
    surface.vertices.reset(new VertexNormalTex[points.count]);
    VertexNormalTex* out = surface.vertices.get();
    const bool wide = points.count > 65535;
    if (kind == Kind::raised) {
        if (wide) {
            surface.indices32 = bareRaised<unsigned int>(record, out);
        } else {
            surface.indices16 = bareRaised<unsigned short>(record, out);
        }
        return surface;
    }
    if (kind == Kind::flat) {
        for (std::size_t i = 0; i < points.count; ++i) {
            out[i] = {static_cast<float>(x[i]), static_cast<float>(y[i]), 0.0f, 0.0f, 0.0f, 1.0f, points.u(i), 0.0f};
        }
    } else {
        const double* z = (*record.m_coordinates[0])[2].data();
        const float* nx = (*record.m_normals[0])[0].data();
        const float* ny = (*record.m_normals[0])[1].data();
        const float* nz = (*record.m_normals[0])[2].data();
        for (std::size_t i = 0; i < points.count; ++i) {
            out[i] = {static_cast<float>(x[i]),
                      static_cast<float>(y[i]),
                      static_cast<float>(z[i]),
                      nx[i],
                      ny[i],
                      nz[i],
                      points.u(i),
                      0.0f};
        }
    }
    if (wide) {
        surface.indices32 = bareTriangles<unsigned int>(record);
    } else {
        surface.indices16 = bareTriangles<unsigned short>(record);
    }
    return surface;
}

bool areEqual(const SceneGraphPlotSurface& plot, const BareSurface& bare)
{
    const VertexBufferNormalTex& vertices = plot.getVertices();
    const IndexBufferTriangles& triangles = plot.getTriangles();
    const auto numVertices = static_cast<std::size_t>(vertices.getNumberOfVertices());
    const auto numIndices = static_cast<std::size_t>(triangles.getNumIndices());
    return std::memcmp(vertices.vertexPointer(), bare.vertices.get(), numVertices * sizeof(VertexNormalTex)) == 0 &&
           (triangles.uses32BitIndices()
                ? std::memcmp(triangles.getIndices32(), bare.indices32.get(), 4 * numIndices) == 0
                : std::memcmp(triangles.getIndices16(), bare.indices16.get(), 2 * numIndices) == 0);
}

template <class Plot, Kind kind>
void fill(benchmark::State& state)
{
    const PostRecord record = gridRecord(kind, static_cast<std::size_t>(state.range(0)));
    {
        Plot plot(1);
        plot.fillPlot(record);
        if (!plot.isValid() || !areEqual(plot, bareFill(kind, record))) {
            state.SkipWithError("the plot and the bare loop wrote different buffers");
        }
    }
    for (auto _ : state) {
        Plot plot(1);
        plot.fillPlot(record);
        benchmark::DoNotOptimize(plot.getVertices().vertexPointer());
        benchmark::ClobberMemory();
    }
    state.SetItemsProcessed(state.iterations() * state.range(0) * state.range(0));
    state.counters["allowed"] = 1.3;
}

template <Kind kind>
void bareFill(benchmark::State& state)
{
    const PostRecord record = gridRecord(kind, static_cast<std::size_t>(state.range(0)));
    for (auto _ : state) {
        const BareSurface surface = bareFill(kind, record);
        benchmark::DoNotOptimize(surface.vertices.get());
        benchmark::ClobberMemory();
    }
    state.SetItemsProcessed(state.iterations() * state.range(0) * state.range(0));
}

/// The peak memory use during a fill of ten million points beyond that of the record: the buffers themselves.
template <class Plot, Kind kind>
void fillTenMillion(benchmark::State& state)
{
    const PostRecord record = gridRecord(kind, 3163);
    for (auto _ : state) {
        state.PauseTiming();
        const MemoryWatch watch;
        Plot plot(1);
        state.ResumeTiming();
        plot.fillPlot(record);
        state.PauseTiming();
        const double numPoints = plot.getVertices().getNumberOfVertices();
        const double buffers = 32.0 * numPoints + 4.0 * plot.getTriangles().getNumIndices();
        watch.report(state, buffers, buffers);
        state.ResumeTiming();
    }
}

#define VX_SIZES ->Arg(128)->Arg(512)->Arg(1536)
BENCHMARK(fill<SceneGraphPlotSurface3d, Kind::spatial>)->Name("surface3d") VX_SIZES;
BENCHMARK(bareFill<Kind::spatial>)->Name("surface3d_limit") VX_SIZES;
BENCHMARK(fill<SceneGraphPlotSurface2d, Kind::flat>)->Name("surface2d") VX_SIZES;
BENCHMARK(bareFill<Kind::flat>)->Name("surface2d_limit") VX_SIZES;
BENCHMARK(fill<SceneGraphPlotSurface2d, Kind::raised>)->Name("surface2d_height") VX_SIZES;
BENCHMARK(bareFill<Kind::raised>)->Name("surface2d_height_limit") VX_SIZES;
BENCHMARK(fillTenMillion<SceneGraphPlotSurface3d, Kind::spatial>)->Name("surface3d_memory")->Iterations(1);
BENCHMARK(fillTenMillion<SceneGraphPlotSurface2d, Kind::raised>)->Name("surface2d_height_memory")->Iterations(1);

} // namespace
} // namespace vxgraphics3d
