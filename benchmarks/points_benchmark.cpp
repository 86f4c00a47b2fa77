// Fills of sphere and edge plots, each compared with a bare loop that writes the same records and indices into new
// memory. Both results are compared once, byte for byte.

#include "graphics3d/plots/vector/scenegraphplotedge3d.h"
#include "graphics3d/plots/vector/scenegraphplotsphere3d.h"
#include "tests/support/postrecord.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cmath>
#include <cstring>
#include <memory>
#include <vector>

namespace vxgraphics3d {
namespace {

using Record = vxdatacarrier::PostDataObject;
using Sphere = SceneGraphPlotSphere3d::Sphere;

/// A cloud of points with colours and radii, and elements of four points that follow each other.
PostRecord cloud(std::size_t count)
{
    Record::DoubleArrays axes(3, std::vector<double>(count));
    Record::DoubleArrays data(2, std::vector<double>(count));
    for (std::size_t i = 0; i < count; ++i) {
        const auto t = static_cast<double>(i);
        axes[0][i] = std::sin(0.1 * t);
        axes[1][i] = std::cos(0.37 * t);
        axes[2][i] = std::sin(0.73 * t);
        data[0][i] = t;
        data[1][i] = 0.01 * (1.5 + std::sin(t));
    }
    Record::IntArrays corners(4);
    for (std::size_t corner = 0; corner < corners.size(); ++corner) {
        for (std::size_t i = 0; i + 3 < count; ++i) {
            corners[corner].push_back(static_cast<int>(i + corner));
        }
    }
    return PostRecord()
        .role(Record::ColorData, 0)
        .role(Record::RadiusData, 1)
        .bounds({{-1, 1}, {-1, 1}, {-1, 1}})
        .group(std::move(axes), std::move(corners), std::move(data));
}

struct Scale {
    explicit Scale(const Record& record)
        : min((*record.m_dataMin[0])[0]), factor(1.0 / ((*record.m_dataMax[0])[0] - min))
    {}
    float operator()(double value) const { return static_cast<float>((value - min) * factor); }
    double min;
    double factor;
};

/// Writes the spheres and finds their box in one pass.
std::unique_ptr<Sphere[]> bareSpheres(const Record& record, BoundingBox& box)
{
    const std::vector<double>& x = (*record.m_coordinates[0])[0];
    const std::vector<double>& y = (*record.m_coordinates[0])[1];
    const std::vector<double>& z = (*record.m_coordinates[0])[2];
    const std::vector<double>& values = (*record.m_data[0])[0];
    const std::vector<double>& radii = (*record.m_data[0])[1];
    const Scale u(record);
    std::unique_ptr<Sphere[]> spheres(new Sphere[x.size()]);
    Sphere* out = spheres.get();
    Vector3f low(x[0], y[0], z[0]);
    Vector3f high = low;
    for (std::size_t i = 0; i < x.size(); ++i) {
        if (std::isfinite(x[i] + y[i] + z[i])) {
            const Vector3f p(x[i], y[i], z[i]);
            low.init(std::min(low.x, p.x), std::min(low.y, p.y), std::min(low.z, p.z));
            high.init(std::max(high.x, p.x), std::max(high.y, p.y), std::max(high.z, p.z));
            *out++ = {p.x, p.y, p.z, u(values[i]), static_cast<float>(std::max(radii[i], 0.0))};
        }
    }
    box = BoundingBox(low.x, high.x, low.y, high.y, low.z, high.z);
    return spheres;
}

void fillSpheres(benchmark::State& state)
{
    const auto count = static_cast<std::size_t>(state.range(0));
    const PostRecord record = cloud(count);
    {
        SceneGraphPlotSphere3d plot(1);
        plot.fillPlot(record);
        BoundingBox box;
        const auto bare = bareSpheres(record, box);
        if (plot.getSpheres().size_bytes() != 20 * count || !(box == plot.getBoundingBox()) ||
            std::memcmp(plot.getSpheres().data(), bare.get(), 20 * count) != 0) {
            state.SkipWithError("the plot and the bare loop wrote different spheres");
        }
    }
    for (auto _ : state) {
        SceneGraphPlotSphere3d plot(1);
        plot.fillPlot(record);
        benchmark::DoNotOptimize(plot.getSpheres().data());
        benchmark::ClobberMemory();
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
    state.counters["allowed"] = 1.3;
}

void bareSphereLoop(benchmark::State& state)
{
    const PostRecord record = cloud(static_cast<std::size_t>(state.range(0)));
    for (auto _ : state) {
        BoundingBox box;
        const auto spheres = bareSpheres(record, box);
        benchmark::DoNotOptimize(spheres.get());
        benchmark::DoNotOptimize(box);
        benchmark::ClobberMemory();
    }
}

struct BareEdges {
    std::unique_ptr<VertexTex[]> vertices;
    std::unique_ptr<unsigned[]> indices;
    std::size_t numIndices;
};

/// The six edges of each tetrahedron.
BareEdges bareEdges(const Record& record)
{
    const std::vector<double>& x = (*record.m_coordinates[0])[0];
    const std::vector<double>& y = (*record.m_coordinates[0])[1];
    const std::vector<double>& z = (*record.m_coordinates[0])[2];
    const std::vector<double>& values = (*record.m_data[0])[0];
    const Scale u(record);
    const Record::IntArrays& corners = *record.m_elements[0];
    const int* a = corners[0].data();
    const int* b = corners[1].data();
    const int* c = corners[2].data();
    const int* d = corners[3].data();
    const std::size_t numElements = corners[0].size();
    BareEdges edges = {std::unique_ptr<VertexTex[]>(new VertexTex[x.size()]),
                       std::unique_ptr<unsigned[]>(new unsigned[12 * numElements]), 12 * numElements};
    for (std::size_t i = 0; i < x.size(); ++i) {
        edges.vertices[i] = {static_cast<float>(x[i]), static_cast<float>(y[i]), static_cast<float>(z[i]), u(values[i]),
                             0.0f};
    }
    unsigned* out = edges.indices.get();
    for (std::size_t i = 0; i < numElements; ++i, out += 12) {
        const auto p = static_cast<unsigned>(a[i]);
        const auto q = static_cast<unsigned>(b[i]);
        const auto r = static_cast<unsigned>(c[i]);
        const auto s = static_cast<unsigned>(d[i]);
        out[0] = out[2] = out[4] = p;
        out[1] = out[6] = out[8] = q;
        out[3] = out[7] = out[10] = r;
        out[5] = out[9] = out[11] = s;
    }
    return edges;
}

void fillEdges(benchmark::State& state)
{
    const PostRecord record = cloud(static_cast<std::size_t>(state.range(0)));
    {
        SceneGraphPlotEdge3d plot(1);
        plot.fillPlot(record);
        const BareEdges bare = bareEdges(record);
        if (!plot.isValid() || !plot.getLines().uses32BitIndices() ||
            std::memcmp(plot.getVertices().vertexPointer(), bare.vertices.get(),
                        20 * static_cast<std::size_t>(state.range(0))) != 0 ||
            std::memcmp(plot.getLines().getIndices32(), bare.indices.get(), 4 * bare.numIndices) != 0) {
            state.SkipWithError("the plot and the bare loop wrote different edges");
        }
    }
    for (auto _ : state) {
        SceneGraphPlotEdge3d plot(1);
        plot.fillPlot(record);
        benchmark::DoNotOptimize(plot.getLines().getIndices32());
        benchmark::ClobberMemory();
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
    state.counters["allowed"] = 1.3;
}

void bareEdgeLoop(benchmark::State& state)
{
    const PostRecord record = cloud(static_cast<std::size_t>(state.range(0)));
    for (auto _ : state) {
        const BareEdges edges = bareEdges(record);
        benchmark::DoNotOptimize(edges.indices.get());
        benchmark::ClobberMemory();
    }
}

BENCHMARK(fillSpheres)->Name("spheres3d")->Arg(100000)->Arg(1000000);
BENCHMARK(bareSphereLoop)->Name("spheres3d_limit")->Arg(100000)->Arg(1000000);
BENCHMARK(fillEdges)->Name("edges3d")->Arg(100000)->Arg(1000000);
BENCHMARK(bareEdgeLoop)->Name("edges3d_limit")->Arg(100000)->Arg(1000000);

} // namespace
} // namespace vxgraphics3d
