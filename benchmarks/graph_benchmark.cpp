// Fills of graphs with one line, compared with a bare loop that writes the same four versions of it into new memory.
// The points are in their order, or joined by edges in a random order. Both results are compared once, byte for byte.

#include "graphics3d/plots/graph/graphline.h"
#include "graphics3d/plots/graph/scenegraphplotgraph.h"
#include "tests/support/postrecord.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <cstring>
#include <memory>
#include <random>
#include <vector>

namespace vxgraphics3d {
namespace {

using Record = vxdatacarrier::PostDataObject;

enum class Kind { inOrder, edges };

/// A line of positive values with growing x.
PostRecord lineRecord(Kind kind, std::size_t count)
{
    std::vector<double> x(count);
    std::vector<double> y(count);
    for (std::size_t i = 0; i < count; ++i) {
        x[i] = 1.0 + static_cast<double>(i);
        y[i] = 2.0 + std::sin(0.01 * x[i]);
    }
    Record::IntArrays edges;
    if (kind == Kind::edges) {
        std::vector<int> order(count - 1);
        for (std::size_t i = 0; i < order.size(); ++i) {
            order[i] = static_cast<int>(i);
        }
        std::shuffle(order.begin(), order.end(), std::mt19937(1));
        edges.resize(2);
        for (const int first : order) {
            edges[0].push_back(first);
            edges[1].push_back(first + 1);
        }
    }
    return PostRecord().role(Record::HeightData, 0).group({std::move(x)}, std::move(edges), {std::move(y)});
}

/// The output of a bare loop: vertices and indices of linear axes, log x, log y and both.
struct BareLine {
    explicit BareLine(std::size_t count)
    {
        for (Version& version : versions) {
            version.vertices.reset(new VertexCoords[count]);
            version.indices.reset(new unsigned int[count]);
        }
    }
    void put(std::size_t i, float x, float y)
    {
        const float logX = std::log10(x);
        const float logY = std::log10(y);
        versions[0].vertices[i] = {x, y, 0.0f};
        versions[1].vertices[i] = {logX, y, 0.0f};
        versions[2].vertices[i] = {x, logY, 0.0f};
        versions[3].vertices[i] = {logX, logY, 0.0f};
        const float values[4] = {x, y, logX, logY};
        for (std::size_t k = 0; k < 4; ++k) {
            low[k] = std::min(low[k], values[k]);
            high[k] = std::max(high[k], values[k]);
            versions[k].indices[i] = static_cast<unsigned int>(i);
        }
    }

    /// Freed in the order of those of a plot, since that decides how much memory goes back to the system.
    struct Version {
        std::unique_ptr<VertexCoords[]> vertices;
        std::unique_ptr<unsigned int[]> indices;
    };
    std::array<Version, 4> versions;
    std::array<float, 4> low{1e30f, 1e30f, 1e30f, 1e30f};
    std::array<float, 4> high{-1e30f, -1e30f, -1e30f, -1e30f};
};

BareLine bareFill(Kind kind, const Record& record)
{
    const std::vector<double>& x = (*record.m_coordinates[0])[0];
    const std::vector<double>& y = (*record.m_data[0])[0];
    BareLine line(x.size());
    const auto put = [&](std::size_t i, std::size_t point) {
        line.put(i, static_cast<float>(x[point]), static_cast<float>(y[point]));
    };
    if (kind == Kind::inOrder) {
        for (std::size_t i = 0; i < x.size(); ++i) {
            put(i, i);
        }
        return line;
    }
    // The path between the two points that have one neighbour; the lower one has the smaller x.
    std::vector<std::array<int, 2>> neighbours(x.size(), {-1, -1});
    const auto join = [&](int a, int b) {
        std::array<int, 2>& pair = neighbours[static_cast<std::size_t>(a)];
        pair[pair[0] == -1 ? 0 : 1] = b;
    };
    const Record::IntArrays& edges = *record.m_elements[0];
    for (std::size_t i = 0; i < edges[0].size(); ++i) {
        join(edges[0][i], edges[1][i]);
        join(edges[1][i], edges[0][i]);
    }
    const auto start = std::find_if(neighbours.begin(), neighbours.end(), [](const auto& n) { return n[1] == -1; });
    int previous = -1;
    int current = static_cast<int>(start - neighbours.begin());
    for (std::size_t i = 0; current != -1; ++i) {
        const auto at = static_cast<std::size_t>(current);
        put(i, at);
        const int next = neighbours[at][neighbours[at][0] == previous ? 1 : 0];
        previous = current;
        current = next;
    }
    return line;
}

bool areEqual(const GraphLine& line, const BareLine& bare, std::size_t count)
{
    for (std::size_t axes = 0; axes < 4; ++axes) {
        const GraphLine::Version version = line.getVersion(static_cast<int>(axes));
        if (static_cast<std::size_t>(version.vertices.getNumberOfVertices()) != count ||
            version.strips.getSegmentStarts() != std::vector<int>{0, static_cast<int>(count)} ||
            std::memcmp(version.vertices.vertexPointer(), bare.versions[axes].vertices.get(),
                        count * sizeof(VertexCoords)) != 0 ||
            std::memcmp(version.strips.getIndices32(), bare.versions[axes].indices.get(),
                        count * sizeof(unsigned int)) != 0) {
            return false;
        }
    }
    return true;
}

template <Kind kind>
void fill(benchmark::State& state)
{
    const auto count = static_cast<std::size_t>(state.range(0));
    const PostRecord record = lineRecord(kind, count);
    {
        SceneGraphPlotGraph plot(1);
        plot.fillPlot(record);
        if (!areEqual(*plot.getLines()[0], bareFill(kind, record), count)) {
            state.SkipWithError("the plot and the bare loop wrote different buffers");
        }
    }
    for (auto _ : state) {
        SceneGraphPlotGraph plot(1);
        plot.fillPlot(record);
        benchmark::DoNotOptimize(plot.getLines()[0]->m_vertices.vertexPointer());
        benchmark::ClobberMemory();
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
    state.counters["allowed"] = 1.3;
}

template <Kind kind>
void bareFill(benchmark::State& state)
{
    const PostRecord record = lineRecord(kind, static_cast<std::size_t>(state.range(0)));
    for (auto _ : state) {
        const BareLine line = bareFill(kind, record);
        benchmark::DoNotOptimize(line.versions[0].vertices.get());
        benchmark::DoNotOptimize(line.high);
        benchmark::ClobberMemory();
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
}

#define VX_SIZES ->Arg(100000)->Arg(1000000)
BENCHMARK(fill<Kind::inOrder>)->Name("graph") VX_SIZES;
BENCHMARK(bareFill<Kind::inOrder>)->Name("graph_limit") VX_SIZES;
BENCHMARK(fill<Kind::edges>)->Name("graph_edges") VX_SIZES;
BENCHMARK(bareFill<Kind::edges>)->Name("graph_edges_limit") VX_SIZES;

} // namespace
} // namespace vxgraphics3d
