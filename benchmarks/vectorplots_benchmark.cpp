// Fills of arrows, tubes and ribbons, each compared with a bare loop that writes the same numbers into new memory. The
// rings of tubes are known to the loop, which only writes their vertices. Both results are compared once.

#include "graphics3d/plots/vector/scenegraphplotarrow3d.h"
#include "graphics3d/plots/vector/scenegraphplotribbon3d.h"
#include "graphics3d/plots/vector/scenegraphplottube3d.h"
#include "tests/support/postrecord.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cmath>
#include <cstring>
#include <limits>
#include <memory>
#include <vector>

namespace vxgraphics3d {
namespace {

using Record = vxdatacarrier::PostDataObject;

std::vector<double> wave(std::size_t count, double frequency, double mean = 0.0)
{
    std::vector<double> values(count);
    for (std::size_t i = 0; i < count; ++i) {
        values[i] = mean + std::sin(frequency * static_cast<double>(i + 1));
    }
    return values;
}

PostRecord arrowRecord(std::size_t count)
{
    PostRecord record;
    record.role(Record::VectorX, 0).role(Record::VectorY, 1).role(Record::VectorZ, 2).role(Record::ColorData, 3);
    record.bounds({{-1, 1}, {-1, 1}, {-1, 1}});
    record.group({wave(count, 0.1), wave(count, 0.2), wave(count, 0.3)}, {},
                 {wave(count, 0.11), wave(count, 0.23), wave(count, 0.37), wave(count, 0.01)});
    return record;
}

/// The numbers of an arrow plot without the plot: angles, lengths, colours, scale and box.
struct BareArrows {
    std::unique_ptr<ArrowRecord3d[]> arrows;
    double box[6];
};

BareArrows bareArrows(const Record& record)
{
    const Record::DoubleArrays& p = *record.m_coordinates[0];
    const Record::DoubleArrays& v = *record.m_data[0];
    const std::size_t count = p[0].size();
    const double min = (*record.m_dataMin[0])[3];
    const double scale = 1.0 / ((*record.m_dataMax[0])[3] - min);
    BareArrows result{std::unique_ptr<ArrowRecord3d[]>(new ArrowRecord3d[count]), {}};
    ArrowRecord3d* out = result.arrows.get();
    float longest = 0.0f;
    for (std::size_t i = 0; i < count; ++i) {
        const Vector3f vector(v[0][i], v[1][i], v[2][i]);
        const float length = std::sqrt(vector.x * vector.x + vector.y * vector.y + vector.z * vector.z);
        out[i] = {static_cast<float>(p[0][i]),
                  static_cast<float>(p[1][i]),
                  static_cast<float>(p[2][i]),
                  std::atan2(vector.y / length, vector.x / length),
                  std::acos(std::clamp(vector.z / length, -1.0f, 1.0f)),
                  length,
                  static_cast<float>((v[3][i] - min) * scale)};
        longest = std::max(longest, length);
    }
    const double target = 2.0 / static_cast<double>(std::pow(static_cast<float>(count), 0.33333334f)) * 0.85;
    const double factor = target / static_cast<double>(longest);
    for (std::size_t i = 0; i < count; ++i) {
        out[i].length = static_cast<float>(static_cast<double>(out[i].length) * factor);
    }
    for (std::size_t axis = 0; axis < 3; ++axis) {
        double low = std::numeric_limits<double>::infinity();
        double high = -low;
        for (std::size_t i = 0; i < count; ++i) {
            const double tip = p[axis][i] + v[axis][i] * factor;
            low = std::min({low, p[axis][i], tip});
            high = std::max({high, p[axis][i], tip});
        }
        result.box[2 * axis] = low;
        result.box[2 * axis + 1] = high;
    }
    return result;
}

void arrows3d(benchmark::State& state)
{
    const PostRecord record = arrowRecord(static_cast<std::size_t>(state.range(0)));
    for (auto _ : state) {
        SceneGraphPlotArrow3d plot(1);
        plot.fillPlot(record);
        benchmark::DoNotOptimize(plot.getArrows());
    }
    state.counters["allowed"] = 1.15;
    SceneGraphPlotArrow3d plot(1);
    plot.fillPlot(record);
    const BareArrows bare = bareArrows(record);
    if (std::memcmp(plot.getArrows(), bare.arrows.get(),
                    static_cast<std::size_t>(state.range(0)) * sizeof(ArrowRecord3d)) != 0) {
        state.SkipWithError("The bare loop gives other arrows.");
    }
}

void bareArrows3d(benchmark::State& state)
{
    const PostRecord record = arrowRecord(static_cast<std::size_t>(state.range(0)));
    for (auto _ : state) {
        BareArrows bare = bareArrows(record);
        benchmark::DoNotOptimize(bare.arrows.get());
        benchmark::DoNotOptimize(bare.box);
    }
}

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
    const BareMesh bare = bareTube(record, ringsOf(plot), plot.getResolution());
    const VertexBufferNormalTex& vertices = plot.getTubes()[0]->m_tubeVertices;
    const IndexBufferTriangles& triangles = plot.getTubes()[0]->m_tubeTriangles;
    for (int i = 0; i < vertices.getNumberOfVertices(); ++i) {
        if ((vertices.getCoord(i) - Vector3f(bare.vertices[static_cast<std::size_t>(i)].x,
                                             bare.vertices[static_cast<std::size_t>(i)].y,
                                             bare.vertices[static_cast<std::size_t>(i)].z))
                .length() > 0.01f) {
            state.SkipWithError("The bare loop gives other vertices.");
            return;
        }
    }
    if (std::memcmp(triangles.getIndices32(), bare.indices.get(),
                    static_cast<std::size_t>(triangles.getNumIndices()) * sizeof(unsigned int)) != 0) {
        state.SkipWithError("The bare loop gives other triangles.");
    }
    state.counters["vertices"] = vertices.getNumberOfVertices();
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

BENCHMARK(arrows3d)->Arg(10'000)->Arg(1'000'000);
BENCHMARK(bareArrows3d)->Name("arrows3d_limit")->Arg(10'000)->Arg(1'000'000);
BENCHMARK(tube3d)->Arg(9'000)->Arg(90'000);
BENCHMARK(bareTube3d)->Name("tube3d_limit")->Arg(9'000)->Arg(90'000);
BENCHMARK(ribbon3d)->Arg(50'000);
BENCHMARK(bareRibbon3d)->Name("ribbon3d_limit")->Arg(50'000);

} // namespace
} // namespace vxgraphics3d
