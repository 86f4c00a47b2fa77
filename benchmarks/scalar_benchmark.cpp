// Fills of level sets, slices and meshes, each compared with bare loops that write the same records and indices into
// new memory, and the outline of a surface, compared with a bare walk through the same table. Both results are compared
// once.

#include "graphics3d/buffers/indexbuffertriangles.h"
#include "graphics3d/plots/scalar/scenegraphplotcontour.h"
#include "graphics3d/plots/scalar/scenegraphplotisosurface3d.h"
#include "graphics3d/plots/scalar/scenegraphplotmesh3d.h"
#include "graphics3d/plots/scalar/scenegraphplotslice3d.h"
#include "graphics3d/readers/triangleoutline.h"
#include "tests/support/postrecord.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <vector>

namespace vxgraphics3d {
namespace {

using Record = vxdatacarrier::PostDataObject;

/// What the groups of a record consist of.
enum class Kind { isoSurface, contourLines, contourBands, slices, faces, points };

constexpr int c_numGroups = 5;

/// The triangles of a square grid, two per cell.
Record::IntArrays gridTriangles(int side)
{
    Record::IntArrays corners(3);
    const auto add = [&](int a, int b, int c) {
        corners[0].push_back(a);
        corners[1].push_back(b);
        corners[2].push_back(c);
    };
    for (int row = 0; row + 1 < side; ++row) {
        for (int i = row * side; i + 1 < (row + 1) * side; ++i) {
            add(i, i + 1, i + side);
            add(i + 1, i + side + 1, i + side);
        }
    }
    return corners;
}

/// Lines between neighbours in the rows of a grid.
Record::IntArrays gridLines(int side)
{
    Record::IntArrays ends(2);
    for (int i = 0; i < side * side; ++i) {
        if (i % side + 1 < side) {
            ends[0].push_back(i);
            ends[1].push_back(i + 1);
        }
    }
    return ends;
}

/// Grids of side by side points.
PostRecord gridsRecord(Kind kind, int side)
{
    const int plotKind = kind == Kind::isoSurface     ? Record::IsoSurface
                         : kind == Kind::contourLines ? Record::Contour2d
                         : kind == Kind::contourBands ? Record::Contour3d
                         : kind == Kind::slices       ? 0
                                                      : Record::Mesh3d;
    PostRecord record = PostRecord().kind(plotKind).bounds({{0.0, 1.0}, {0.0, 1.0}, {0.0, 1.0}});
    record.role(kind == Kind::slices || kind == Kind::faces || kind == Kind::points ? Record::ColorData
                                                                                    : Record::IsoLevelData,
                0);
    const auto count = static_cast<std::size_t>(side) * static_cast<std::size_t>(side);
    for (int group = 0; group < c_numGroups; ++group) {
        Record::DoubleArrays points(3, std::vector<double>(count));
        Record::FloatArrays normals(3, std::vector<float>(count));
        std::vector<double> values(count);
        for (std::size_t i = 0; i < count; ++i) {
            const int at = static_cast<int>(i);
            points[0][i] = static_cast<double>(at % side) / side;
            points[1][i] = static_cast<double>(at / side) / side;
            points[2][i] = std::sin(3.0 * points[0][i]) + group;
            normals[0][i] = static_cast<float>(points[1][i]);
            normals[2][i] = 1.0f;
            values[i] = kind == Kind::isoSurface || kind == Kind::contourLines ? group : points[2][i];
        }
        Record::IntArrays elements = kind == Kind::contourLines              ? gridLines(side)
                                     : kind == Kind::points                  ? Record::IntArrays(1)
                                     : kind == Kind::faces && group % 2 == 1 ? gridLines(side)
                                                                             : gridTriangles(side);
        record.group(std::move(points), std::move(elements), {std::move(values)}, std::move(normals));
        record.outline(gridLines(side));
    }
    return record;
}

/// What bare loops write for one group.
struct BareGroup {
    std::unique_ptr<VertexNormalTex[]> vertices;
    std::size_t numVertices = 0;
    std::unique_ptr<unsigned short[]> indices16;
    std::unique_ptr<unsigned int[]> indices32;
    std::size_t numIndices = 0;
    std::unique_ptr<unsigned short[]> lines16;
    std::unique_ptr<unsigned int[]> lines32;
    std::unique_ptr<double[]> levels;
};

template <class Index>
std::unique_ptr<Index[]> bareIndices(const Record::IntArrays& corners)
{
    const std::size_t count = corners[0].size();
    std::unique_ptr<Index[]> indices(new Index[corners.size() * count]);
    Index* out = indices.get();
    const int* a = corners[0].data();
    const int* b = corners[1].data();
    if (corners.size() == 2) {
        for (std::size_t i = 0; i < count; ++i, out += 2) {
            out[0] = static_cast<Index>(a[i]);
            out[1] = static_cast<Index>(b[i]);
        }
        return indices;
    }
    const int* c = corners[2].data();
    for (std::size_t i = 0; i < count; ++i, out += 3) {
        out[0] = static_cast<Index>(a[i]);
        out[1] = static_cast<Index>(b[i]);
        out[2] = static_cast<Index>(c[i]);
    }
    return indices;
}

/// The corners of a cube as multiples of half an edge, face by face, and the triangles of a face by its side.
constexpr float c_cube[24][3] = {{-1, -1, -1}, {-1, 1, -1}, {-1, -1, 1},  {-1, 1, 1},  {1, -1, -1},  {1, 1, -1},
                                 {1, -1, 1},   {1, 1, 1},   {-1, -1, -1}, {-1, -1, 1}, {1, -1, -1},  {1, -1, 1},
                                 {-1, 1, -1},  {-1, 1, 1},  {1, 1, -1},   {1, 1, 1},   {-1, -1, -1}, {1, -1, -1},
                                 {-1, 1, -1},  {1, 1, -1},  {-1, -1, 1},  {1, -1, 1},  {-1, 1, 1},   {1, 1, 1}};
constexpr unsigned c_cubeFaces[2][6] = {{0, 3, 1, 0, 2, 3}, {0, 1, 3, 0, 3, 2}};

template <class Index>
std::unique_ptr<Index[]> bareCubes(const double* x, const double* y, const double* z, const double* values, double min,
                                   double scale, std::size_t count, VertexNormalTex* out)
{
    const auto half = static_cast<float>(0.002 * 1.0);
    std::unique_ptr<Index[]> indices(new Index[36 * count]);
    Index* index = indices.get();
    for (std::size_t i = 0; i < count; ++i) {
        const auto px = static_cast<float>(x[i]);
        const auto py = static_cast<float>(y[i]);
        const auto pz = static_cast<float>(z[i]);
        const auto u = static_cast<float>((values[i] - min) * scale);
        for (std::size_t k = 0; k < 24; ++k) {
            const float(&c)[3] = c_cube[k];
            // Normals keep the sign of their zeros.
            const std::size_t axis = k / 8;
            const float side = c[axis];
            const float zero = side * 0.0f;
            *out++ = {px + half * c[0],
                      py + half * c[1],
                      pz + half * c[2],
                      axis == 0 ? side : zero,
                      axis == 1 ? side : zero,
                      axis == 2 ? side : zero,
                      u,
                      0.0f};
        }
        for (std::size_t face = 0; face < 6; ++face) {
            for (const unsigned corner : c_cubeFaces[face % 2]) {
                *index++ = static_cast<Index>(24 * i + 4 * face + corner);
            }
        }
    }
    return indices;
}

BareGroup bareFill(Kind kind, const Record& record, std::size_t group)
{
    const double* x = (*record.m_coordinates[group])[0].data();
    const double* y = (*record.m_coordinates[group])[1].data();
    const double* z = (*record.m_coordinates[group])[2].data();
    const float* nx = (*record.m_normals[group])[0].data();
    const float* ny = (*record.m_normals[group])[1].data();
    const float* nz = (*record.m_normals[group])[2].data();
    const std::vector<double>& values = (*record.m_data[group])[0];
    const std::size_t count = values.size();
    double min = (*record.m_dataMin[0])[0];
    double max = (*record.m_dataMax[0])[0];
    for (std::size_t i = 1; i < record.m_data.size(); ++i) {
        min = std::min(min, (*record.m_dataMin[i])[0]);
        max = std::max(max, (*record.m_dataMax[i])[0]);
    }
    const double scale = 1.0 / (max - min);
    const double* v = values.data();

    BareGroup bare;
    bare.numVertices = kind == Kind::points ? 24 * count : count;
    bare.vertices.reset(new VertexNormalTex[bare.numVertices]);
    VertexNormalTex* out = bare.vertices.get();
    const bool wide = bare.numVertices > 65535;
    if (kind == Kind::points) {
        bare.numIndices = 36 * count;
        if (wide) {
            bare.indices32 = bareCubes<unsigned int>(x, y, z, v, min, scale, count, out);
        } else {
            bare.indices16 = bareCubes<unsigned short>(x, y, z, v, min, scale, count, out);
        }
        return bare;
    }
    const bool isWireframe = kind == Kind::faces && group % 2 == 1;
    if (kind == Kind::contourLines) {
        const auto u = static_cast<float>((v[0] - min) * scale);
        for (std::size_t i = 0; i < count; ++i) {
            out[i] = {static_cast<float>(x[i]), static_cast<float>(y[i]), 0.0f, 0.0f, 0.0f, 1.0f, u, 0.0f};
        }
    } else if (isWireframe) {
        const Vector3f n = Vector3f(1.0f, 1.0f, 1.0f).normalized();
        for (std::size_t i = 0; i < count; ++i) {
            out[i] = {static_cast<float>(x[i]),
                      static_cast<float>(y[i]),
                      static_cast<float>(z[i]),
                      n.x,
                      n.y,
                      n.z,
                      0.0f,
                      0.0f};
        }
    } else if (kind == Kind::isoSurface) {
        const auto u = static_cast<float>((v[0] - min) * scale);
        for (std::size_t i = 0; i < count; ++i) {
            out[i] = {static_cast<float>(x[i]),
                      static_cast<float>(y[i]),
                      static_cast<float>(z[i]),
                      nx[i],
                      ny[i],
                      nz[i],
                      u,
                      0.0f};
        }
    } else {
        for (std::size_t i = 0; i < count; ++i) {
            out[i] = {static_cast<float>(x[i]),
                      static_cast<float>(y[i]),
                      static_cast<float>(z[i]),
                      nx[i],
                      ny[i],
                      nz[i],
                      static_cast<float>((v[i] - min) * scale),
                      0.0f};
        }
    }
    const Record::IntArrays& corners = *record.m_elements[group];
    bare.numIndices = corners.size() * corners[0].size();
    if (wide) {
        bare.indices32 = bareIndices<unsigned int>(corners);
    } else {
        bare.indices16 = bareIndices<unsigned short>(corners);
    }
    if (kind == Kind::slices) {
        if (wide) {
            bare.lines32 = bareIndices<unsigned int>(*record.m_lineElements[group]);
        } else {
            bare.lines16 = bareIndices<unsigned short>(*record.m_lineElements[group]);
        }
    } else if (kind != Kind::faces) {
        bare.levels.reset(new double[count]);
        std::memcpy(bare.levels.get(), v, count * sizeof(double));
    }
    return bare;
}

bool areEqual(const VertexBufferNormalTex& vertices, const IndexBuffer& indices, const BareGroup& bare)
{
    const auto numIndices = static_cast<std::size_t>(indices.getNumIndices());
    return static_cast<std::size_t>(vertices.getNumberOfVertices()) == bare.numVertices &&
           numIndices == bare.numIndices &&
           std::memcmp(vertices.vertexPointer(), bare.vertices.get(), bare.numVertices * sizeof(VertexNormalTex)) ==
               0 &&
           (indices.uses32BitIndices()
                ? std::memcmp(indices.getIndices32(), bare.indices32.get(), 4 * numIndices) == 0
                : std::memcmp(indices.getIndices16(), bare.indices16.get(), 2 * numIndices) == 0);
}

bool areEqual(const SceneGraphPlotIso& plot, int group, const BareGroup& bare)
{
    const SceneGraphPlotIso::IsoData& level = *plot.getSurface(group);
    return level.m_triangles.getNumElements(0) > 0 ? areEqual(level.m_vertices, level.m_triangles, bare)
                                                   : areEqual(level.m_vertices, level.m_lines, bare);
}

bool areEqual(const SceneGraphPlotSlice3d& plot, int group, const BareGroup& bare)
{
    return areEqual(plot.getSlice(group)->m_vertices, plot.getSlice(group)->m_triangles, bare);
}

bool areEqual(const SceneGraphPlotMesh3d& plot, int group, const BareGroup& bare)
{
    return plot.getTriangleBuffer(group).getNumElements(0) > 0
               ? areEqual(plot.getVertexBuffer(group), plot.getTriangleBuffer(group), bare)
               : areEqual(plot.getVertexBuffer(group), plot.getWireframeBuffer(group), bare);
}

std::unique_ptr<SceneGraphPlotMesh3d> make(SceneGraphPlotMesh3d*)
{
    return std::make_unique<SceneGraphPlotMesh3d>(1, 3);
}

template <class Plot>
std::unique_ptr<Plot> make(Plot*)
{
    return std::make_unique<Plot>(1);
}

/// Lets the allocator keep freed memory: it returns it to the system up to a size that grows with the blocks it has
/// seen, and a row would measure page faults or not depending on those before it.
void keepFreedMemory()
{
    void* volatile block = std::malloc(std::size_t{24} << 20);
    std::free(block);
}

template <class Plot, Kind kind>
void fill(benchmark::State& state)
{
    keepFreedMemory();
    const PostRecord record = gridsRecord(kind, static_cast<int>(state.range(0)));
    {
        const auto plot = make(static_cast<Plot*>(nullptr));
        plot->fillPlot(record);
        for (int group = 0; group < c_numGroups; ++group) {
            if (!areEqual(*plot, group, bareFill(kind, record, static_cast<std::size_t>(group)))) {
                state.SkipWithError("the plot and the bare loop wrote different buffers");
            }
        }
    }
    for (auto _ : state) {
        const auto plot = make(static_cast<Plot*>(nullptr));
        plot->fillPlot(record);
        benchmark::DoNotOptimize(plot.get());
        benchmark::ClobberMemory();
    }
    state.SetItemsProcessed(state.iterations() * c_numGroups * state.range(0) * state.range(0));
    state.counters["allowed"] = 1.3;
}

template <Kind kind>
void bareFills(benchmark::State& state)
{
    keepFreedMemory();
    const PostRecord record = gridsRecord(kind, static_cast<int>(state.range(0)));
    for (auto _ : state) {
        std::vector<BareGroup> groups;
        for (std::size_t group = 0; group < c_numGroups; ++group) {
            groups.push_back(bareFill(kind, record, group));
        }
        benchmark::DoNotOptimize(groups.data());
        benchmark::ClobberMemory();
    }
    state.SetItemsProcessed(state.iterations() * c_numGroups * state.range(0) * state.range(0));
}

#define FILL_BENCHMARK(name, plot, kind)                                                                               \
    BENCHMARK(fill<plot, Kind::kind>)->Name(name)->Arg(48)->Arg(512);                                                  \
    BENCHMARK(bareFills<Kind::kind>)->Name(name "_limit")->Arg(48)->Arg(512)
FILL_BENCHMARK("isoSurface3d", SceneGraphPlotIsoSurface3d, isoSurface);
FILL_BENCHMARK("contour_lines", SceneGraphPlotContour, contourLines);
FILL_BENCHMARK("contour_bands", SceneGraphPlotContour, contourBands);
FILL_BENCHMARK("slice3d", SceneGraphPlotSlice3d, slices);
FILL_BENCHMARK("mesh3d_faces", SceneGraphPlotMesh3d, faces);
#undef FILL_BENCHMARK
BENCHMARK(fill<SceneGraphPlotMesh3d, Kind::points>)->Name("mesh3d_points")->Arg(24)->Arg(128);
BENCHMARK(bareFills<Kind::points>)->Name("mesh3d_points_limit")->Arg(24)->Arg(128);

/// A square grid in buffers.
struct Grid {
    explicit Grid(int side)
    {
        const Record::IntArrays corners = gridTriangles(side);
        const int count = static_cast<int>(corners[0].size());
        vertices.allocate(side * side);
        triangles.internalAllocate(count, 1);
        triangles.newSegment();
        triangles.appendTriangles(corners[0].data(), corners[1].data(), corners[2].data(), count);
    }

    VertexBufferNormalTex vertices;
    IndexBufferTriangles triangles{vertices};
};

/// The same walk through a plain table.
template <class Index>
std::unique_ptr<Index[]> bareOutline(const Index* corners, std::size_t numTriangles, std::size_t numPoints)
{
    constexpr std::size_t c_width = 10;
    std::vector<int> table(c_width * numPoints, -1);
    std::size_t count = 0;
    for (std::size_t i = 0; i < 3 * numTriangles; i += 3) {
        for (std::size_t k = 0; k < 3; ++k) {
            const int a = static_cast<int>(corners[i + k]);
            const int b = static_cast<int>(corners[i + (k + 1) % 3]);
            const int high = std::max(a, b);
            int* row = table.data() + c_width * static_cast<std::size_t>(std::min(a, b));
            for (std::size_t place = 0; place < c_width; ++place) {
                if (row[place] == -1) {
                    row[place] = high;
                    ++count;
                    break;
                }
                if (row[place] == high) {
                    std::memmove(row + place, row + place + 1, (c_width - 1 - place) * sizeof(int));
                    row[c_width - 1] = -1;
                    --count;
                    break;
                }
            }
        }
    }
    std::unique_ptr<Index[]> lines(new Index[2 * count]);
    Index* out = lines.get();
    for (std::size_t low = 0; low < numPoints; ++low) {
        for (std::size_t place = 0; place < c_width && table[c_width * low + place] != -1; ++place) {
            *out++ = static_cast<Index>(low);
            *out++ = static_cast<Index>(table[c_width * low + place]);
        }
    }
    return lines;
}

void outline(benchmark::State& state)
{
    const Grid grid(static_cast<int>(state.range(0)));
    const int numPoints = grid.vertices.getCapacity();
    IndexBufferLines lines(grid.vertices);
    for (auto _ : state) {
        TriangleOutline::of(grid.triangles, numPoints).writeTo(lines);
        benchmark::ClobberMemory();
    }
    const auto numTriangles = static_cast<std::size_t>(grid.triangles.getNumElements(0));
    const std::size_t size = 2 * static_cast<std::size_t>(lines.getNumElements());
    const bool isEqual =
        lines.uses32BitIndices()
            ? std::memcmp(
                  lines.getIndices32(),
                  bareOutline(grid.triangles.getIndices32(), numTriangles, static_cast<std::size_t>(numPoints)).get(),
                  4 * size) == 0
            : std::memcmp(
                  lines.getIndices16(),
                  bareOutline(grid.triangles.getIndices16(), numTriangles, static_cast<std::size_t>(numPoints)).get(),
                  2 * size) == 0;
    if (!isEqual || size != 2 * 4 * static_cast<std::size_t>(state.range(0) - 1)) {
        state.SkipWithError("the outlines differ");
    }
    state.SetItemsProcessed(state.iterations() * grid.triangles.getNumElements(0));
    state.counters["allowed"] = 1.3;
}

void outlineLimit(benchmark::State& state)
{
    const Grid grid(static_cast<int>(state.range(0)));
    const auto numPoints = static_cast<std::size_t>(grid.vertices.getCapacity());
    const auto numTriangles = static_cast<std::size_t>(grid.triangles.getNumElements(0));
    for (auto _ : state) {
        if (grid.triangles.uses32BitIndices()) {
            benchmark::DoNotOptimize(bareOutline(grid.triangles.getIndices32(), numTriangles, numPoints));
        } else {
            benchmark::DoNotOptimize(bareOutline(grid.triangles.getIndices16(), numTriangles, numPoints));
        }
        benchmark::ClobberMemory();
    }
    state.SetItemsProcessed(state.iterations() * grid.triangles.getNumElements(0));
}

BENCHMARK(outline)->Name("outline")->Arg(48)->Arg(512)->Arg(1024);
BENCHMARK(outlineLimit)->Name("outline_limit")->Arg(48)->Arg(512)->Arg(1024);

} // namespace
} // namespace vxgraphics3d
