// Fills of tubes and ribbons, each compared with a bare loop that writes the same numbers into new memory. The rings of
// tubes are known to the loop, which only writes their vertices. Both results are compared once.

#include "benchmarks/wave.h"
#include "graphics3d/plots/vector/scenegraphplotribbon3d.h"
#include "graphics3d/plots/vector/scenegraphplottube2d.h"
#include "graphics3d/plots/vector/scenegraphplottube3d.h"
#include "tests/support/postrecord.h"

#include <benchmark/benchmark.h>

#include <cmath>
#include <cstring>
#include <memory>
#include <vector>

namespace vxgraphics3d {
namespace {

using Record = vxdatacarrier::PostDataObject;

/// One chain of lines that winds through space.
PostRecord lineRecord(std::size_t numLines)
{
    const std::size_t count = numLines + 1;
    PostRecord record;
    record.kind(Record::Lines3d).role(Record::ColorData, 0).role(Record::RadiusData, 1);
    Record::DoubleArrays data{wave(count, 0.01), wave(count, 0.02, 1.5)};
    for (int i = 0; i < 6; ++i) {
        record.role(Record::FirstDirectionX + i, 2 + i);
        data.push_back(wave(count, 0.1 * (i + 1)));
    }
    Record::DoubleArrays points{wave(count, 0.05), wave(count, 0.07), wave(count, 0.0)};
    Record::IntArrays ends(2);
    for (std::size_t i = 0; i < count; ++i) {
        points[2][i] = 0.1 * static_cast<double>(i);
        if (i > 0) {
            ends[0].push_back(static_cast<int>(i) - 1);
            ends[1].push_back(static_cast<int>(i));
        }
    }
    record.bounds({{-1, 1}, {-1, 1}, {0, 1}}).group(points, ends, data);
    return record;
}

/// What a plot of lines consists of: vertices and triangles, points and lines.
struct BareMesh {
    std::unique_ptr<VertexNormalTex[]> vertices;
    std::unique_ptr<unsigned int[]> indices;
    std::unique_ptr<float[]> points;
    std::unique_ptr<int[]> lines;
};

/// Copies the lines of a record, and as much of its points and data as a plot keeps.
template <class Point>
BareMesh bareLines(const Record& record)
{
    constexpr std::size_t c_numFloats = sizeof(Point) / sizeof(float);
    const std::size_t count = (*record.m_coordinates[0])[0].size();
    BareMesh mesh;
    mesh.points.reset(new float[c_numFloats * count]);
    const double* sources[c_numFloats];
    for (std::size_t part = 0; part < c_numFloats; ++part) {
        sources[part] = part < 3 ? (*record.m_coordinates[0])[part].data() : (*record.m_data[0])[part - 3].data();
    }
    for (std::size_t i = 0; i < count; ++i) {
        for (std::size_t part = 0; part < c_numFloats; ++part) {
            mesh.points[c_numFloats * i + part] = static_cast<float>(sources[part][i]);
        }
    }
    const std::vector<int>& from = (*record.m_elements[0])[0];
    const std::vector<int>& to = (*record.m_elements[0])[1];
    mesh.lines.reset(new int[2 * from.size()]);
    for (std::size_t i = 0; i < from.size(); ++i) {
        mesh.lines[2 * i] = from[i];
        mesh.lines[2 * i + 1] = to[i];
    }
    return mesh;
}

/// Bands between rows of vertices.
std::unique_ptr<unsigned int[]> bareBands(std::size_t numRows, unsigned rowLength)
{
    std::unique_ptr<unsigned int[]> indices(new unsigned int[(numRows - 1) * 6 * (rowLength - 1)]);
    unsigned int* out = indices.get();
    for (unsigned row = 0; row + 1 < numRows; ++row) {
        for (unsigned i = row * rowLength; i < (row + 1) * rowLength - 1; ++i, out += 6) {
            out[0] = i;
            out[1] = i + rowLength;
            out[2] = i + rowLength + 1;
            out[3] = i;
            out[4] = i + rowLength + 1;
            out[5] = i + 1;
        }
    }
    return indices;
}

/// A ring of a tube.
struct Ring {
    Vector3f centre, u, v;
    float radius, texCoord;
};

/// The rings of the first tube of a plot, found from its vertices.
std::vector<Ring> ringsOf(const SceneGraphPlotTube3d& plot)
{
    const VertexBufferNormalTex& source = plot.getTubes()[0]->m_tubeVertices;
    const int resolution = plot.getResolution();
    const float step = 2.0f * 3.1415927f / static_cast<float>(resolution);
    std::vector<Ring> rings;
    for (int first = 0; first < source.getNumberOfVertices(); first += resolution + 1) {
        const VertexNormalTex& a = source.vertices()[first];
        const VertexNormalTex& b = source.vertices()[first + 1];
        Ring ring;
        ring.u = Vector3f(a.nx, a.ny, a.nz);
        ring.v = (Vector3f(b.nx, b.ny, b.nz) - ring.u * std::cos(step)) / std::sin(step);
        for (int i = 0; i < resolution; ++i) {
            ring.centre += source.getCoord(first + i) / static_cast<float>(resolution);
        }
        ring.radius = (source.getCoord(first) - ring.centre).length();
        ring.texCoord = a.u;
        rings.push_back(ring);
    }
    return rings;
}

/// Writes the vertices of rings, the triangles between them, and the points and lines that a plot keeps.
BareMesh bareTube(const Record& record, const std::vector<Ring>& rings, int resolution)
{
    const auto rowLength = static_cast<std::size_t>(resolution) + 1;
    std::vector<float> cosines(rowLength);
    std::vector<float> sines(rowLength);
    for (std::size_t i = 0; i < rowLength; ++i) {
        const float angle = static_cast<float>(2 * i) * 3.1415927f / static_cast<float>(resolution);
        cosines[i] = std::cos(angle);
        sines[i] = std::sin(angle);
    }
    BareMesh mesh = bareLines<SceneGraphPlotTube3d::Point>(record);
    mesh.vertices.reset(new VertexNormalTex[rings.size() * rowLength]);
    VertexNormalTex* out = mesh.vertices.get();
    for (const Ring ring : rings) {
        for (std::size_t i = 0; i < rowLength; ++i) {
            const Vector3f n = ring.u * cosines[i] + ring.v * sines[i];
            const Vector3f p = ring.centre + n * ring.radius;
            *out++ = {p.x, p.y, p.z, n.x, n.y, n.z, ring.texCoord, 0.0f};
        }
    }
    mesh.indices = bareBands(rings.size(), static_cast<unsigned>(rowLength));
    return mesh;
}

/// Reports an error if a tube and a bare loop have vertices that differ by more than rounding, or other triangles.
void compare(benchmark::State& state, const SceneGraphPlotTube::Tube& tube, const BareMesh& bare)
{
    const VertexBufferNormalTex& vertices = tube.m_tubeVertices;
    for (int i = 0; i < vertices.getNumberOfVertices(); ++i) {
        const VertexNormalTex& v = bare.vertices[static_cast<std::size_t>(i)];
        if ((vertices.getCoord(i) - Vector3f(v.x, v.y, v.z)).length() > 0.01f) {
            state.SkipWithError("The bare loop gives other vertices.");
            return;
        }
    }
    if (std::memcmp(tube.m_tubeTriangles.getIndices32(), bare.indices.get(),
                    static_cast<std::size_t>(tube.m_tubeTriangles.getNumIndices()) * sizeof(unsigned int)) != 0) {
        state.SkipWithError("The bare loop gives other triangles.");
    }
    state.counters["vertices"] = vertices.getNumberOfVertices();
}

void tube3d(benchmark::State& state)
{
    const PostRecord record = lineRecord(static_cast<std::size_t>(state.range(0)));
    for (auto _ : state) {
        SceneGraphPlotTube3d plot(1);
        plot.fillPlot(record);
        benchmark::DoNotOptimize(plot.getTubes()[0]->m_tubeVertices.vertices());
    }
    state.counters["allowed"] = 1.3;
    SceneGraphPlotTube3d plot(1);
    plot.fillPlot(record);
    compare(state, *plot.getTubes()[0], bareTube(record, ringsOf(plot), plot.getResolution()));
}

void bareTube3d(benchmark::State& state)
{
    const PostRecord record = lineRecord(static_cast<std::size_t>(state.range(0)));
    SceneGraphPlotTube3d plot(1);
    plot.fillPlot(record);
    const std::vector<Ring> rings = ringsOf(plot);
    for (auto _ : state) {
        const BareMesh mesh = bareTube(record, rings, plot.getResolution());
        benchmark::DoNotOptimize(mesh.vertices.get());
        benchmark::DoNotOptimize(mesh.indices.get());
    }
}

/// A vector in the plane.
struct Vector2f {
    Vector2f normalized() const
    {
        const float length = std::sqrt(x * x + y * y);
        return {x / length, y / length};
    }
    float x, y;
};

/// Appends the vertices and triangles of a flat band with round ends.
struct BareBand {
    unsigned append(float x, float y, float u)
    {
        vertices[numVertices] = {x, y, 0.0f, 0.0f, 0.0f, 1.0f, u, 0.0f};
        return numVertices++;
    }
    void triangle(unsigned a, unsigned b, unsigned c)
    {
        indices[0] = a;
        indices[1] = b;
        indices[2] = c;
        indices += 3;
    }
    /// A semicircle of 16 steps, which turns with the sign of `side`.
    void fan(float x, float y, const Vector2f& across, float side, float u)
    {
        const unsigned centre = append(x, y, u);
        for (unsigned step = 0; step <= 16; ++step) {
            const float angle = side * 3.1415927f / 16.0f * static_cast<float>(step);
            const float c = std::cos(angle);
            const float s = std::sin(angle);
            append(x + c * across.x - s * across.y, y + s * across.x + c * across.y, u);
            if (step > 0) {
                triangle(centre, centre + step, centre + step + 1);
            }
        }
    }
    /// Joins two sides with the last two.
    void join(unsigned a, unsigned b, unsigned left, unsigned right)
    {
        triangle(a, b, right);
        triangle(a, right, left);
    }

    VertexNormalTex* vertices;
    unsigned int* indices;
    unsigned numVertices = 0;
};

/// A flat band along a chain of lines with positive radii.
BareMesh bareTube(const Record& record)
{
    const Record::DoubleArrays& p = *record.m_coordinates[0];
    const Record::DoubleArrays& data = *record.m_data[0];
    const std::size_t count = p[0].size();
    const double min = (*record.m_dataMin[0])[0];
    const double scale = 1.0 / ((*record.m_dataMax[0])[0] - min);
    BareMesh mesh = bareLines<SceneGraphPlotTube2d::Point>(record);
    mesh.vertices.reset(new VertexNormalTex[36 + 2 * (count - 2)]);
    mesh.indices.reset(new unsigned int[3 * (32 + 2 * (count - 1))]);
    BareBand band{mesh.vertices.get(), mesh.indices.get()};
    const auto x = [&](std::size_t i) { return static_cast<float>(p[0][i]); };
    const auto y = [&](std::size_t i) { return static_cast<float>(p[1][i]); };
    const auto u = [&](std::size_t i) { return static_cast<float>((data[0][i] - min) * scale); };
    const auto radius = [&](std::size_t i) { return static_cast<float>(data[1][i]); };
    const auto directionFrom = [&](std::size_t i) { return Vector2f{x(i + 1) - x(i), y(i + 1) - y(i)}.normalized(); };
    Vector2f direction = directionFrom(0);
    band.fan(x(0), y(0), {-direction.y * radius(0), direction.x * radius(0)}, 1.0f, u(0));
    unsigned left = 1;
    unsigned right = band.numVertices - 1;
    for (std::size_t i = 1; i + 1 < count; ++i) {
        const Vector2f next = directionFrom(i);
        const Vector2f mean = Vector2f{direction.x + next.x, direction.y + next.y}.normalized();
        const Vector2f across = {-mean.y * radius(i), mean.x * radius(i)};
        const unsigned nextLeft = band.append(x(i) + across.x, y(i) + across.y, u(i));
        const unsigned nextRight = band.append(x(i) - across.x, y(i) - across.y, u(i));
        band.join(left, right, nextLeft, nextRight);
        left = nextLeft;
        right = nextRight;
        direction = next;
    }
    const std::size_t last = count - 1;
    const unsigned centre = band.numVertices;
    band.fan(x(last), y(last), {-direction.y * radius(last), direction.x * radius(last)}, -1.0f, u(last));
    band.join(left, right, centre + 1, band.numVertices - 1);
    return mesh;
}

void tube2d(benchmark::State& state)
{
    PostRecord record = lineRecord(static_cast<std::size_t>(state.range(0)));
    record.kind(0);
    for (auto _ : state) {
        SceneGraphPlotTube2d plot(1);
        plot.fillPlot(record);
        benchmark::DoNotOptimize(plot.getTubes()[0]->m_tubeVertices.vertices());
    }
    state.counters["allowed"] = 1.3;
    SceneGraphPlotTube2d plot(1);
    plot.fillPlot(record);
    compare(state, *plot.getTubes()[0], bareTube(record));
}

void bareTube2d(benchmark::State& state)
{
    const PostRecord record = lineRecord(static_cast<std::size_t>(state.range(0)));
    for (auto _ : state) {
        const BareMesh mesh = bareTube(record);
        benchmark::DoNotOptimize(mesh.vertices.get());
        benchmark::DoNotOptimize(mesh.indices.get());
    }
}

BareMesh bareRibbon(const Record& record)
{
    const Record::DoubleArrays& p = *record.m_coordinates[0];
    const Record::DoubleArrays& data = *record.m_data[0];
    const std::size_t count = p[0].size();
    const double min = (*record.m_dataMin[0])[0];
    const double scale = 1.0 / ((*record.m_dataMax[0])[0] - min);
    BareMesh mesh = bareLines<SceneGraphPlotRibbon3d::Point>(record);
    mesh.vertices.reset(new VertexNormalTex[3 * count]);
    VertexNormalTex* out = mesh.vertices.get();
    for (std::size_t i = 0; i < count; ++i) {
        const Vector3f position(p[0][i], p[1][i], p[2][i]);
        const Vector3f across(data[2][i], data[3][i], data[4][i]);
        const Vector3f normal(data[5][i], data[6][i], data[7][i]);
        const auto u = static_cast<float>((data[0][i] - min) * scale);
        for (int side = -1; side <= 1; ++side) {
            const Vector3f v = position + across * (static_cast<float>(side) * static_cast<float>(data[1][i]));
            *out++ = {v.x, v.y, v.z, normal.x, normal.y, normal.z, u, 0.0f};
        }
    }
    mesh.indices = bareBands(count, 3);
    return mesh;
}

void ribbon3d(benchmark::State& state)
{
    const PostRecord record = lineRecord(static_cast<std::size_t>(state.range(0)));
    for (auto _ : state) {
        SceneGraphPlotRibbon3d plot(1);
        plot.fillPlot(record);
        benchmark::DoNotOptimize(plot.getRibbons()[0]->m_ribbonVertices.vertices());
    }
    state.counters["allowed"] = 1.3;
    SceneGraphPlotRibbon3d plot(1);
    plot.fillPlot(record);
    const BareMesh bare = bareRibbon(record);
    const VertexBufferNormalTex& vertices = plot.getRibbons()[0]->m_ribbonVertices;
    if (std::memcmp(vertices.vertices(), bare.vertices.get(),
                    static_cast<std::size_t>(vertices.getNumberOfVertices()) * sizeof(VertexNormalTex)) != 0) {
        state.SkipWithError("The bare loop gives other vertices.");
    }
}

void bareRibbon3d(benchmark::State& state)
{
    const PostRecord record = lineRecord(static_cast<std::size_t>(state.range(0)));
    for (auto _ : state) {
        const BareMesh mesh = bareRibbon(record);
        benchmark::DoNotOptimize(mesh.vertices.get());
        benchmark::DoNotOptimize(mesh.indices.get());
    }
}

// Enough vertices for indices of 32 bits.
BENCHMARK(tube2d)->Arg(40'000)->Arg(400'000);
BENCHMARK(bareTube2d)->Name("tube2d_limit")->Arg(40'000)->Arg(400'000);
BENCHMARK(tube3d)->Arg(9'000)->Arg(90'000);
BENCHMARK(bareTube3d)->Name("tube3d_limit")->Arg(9'000)->Arg(90'000);
BENCHMARK(ribbon3d)->Arg(50'000);
BENCHMARK(bareRibbon3d)->Name("ribbon3d_limit")->Arg(50'000);

} // namespace
} // namespace vxgraphics3d
