// Views of a whole scene in space: from the call to the end of the search, with the labels of the grid box, beside a
// bare loop that finds the limits of the same vertices.

#include "tests/renderer/support/testscene.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cmath>
#include <cstddef>

namespace vxrenderer {
namespace {

using vxgraphics3d::SceneGraphPlotSurface3d;

constexpr int c_width = 1600;
constexpr int c_height = 1000;

GridRecord wavesOf(int cells)
{
    GridRecord record;
    record.cells = cells;
    record.height = [](double x, double y) { return 0.1 * std::sin(20.0 * x) * std::cos(15.0 * y); };
    record.value = record.height;
    return record;
}

void fitScene(benchmark::State& state)
{
    TestScene scene;
    const auto plot = scene.add<SceneGraphPlotSurface3d>(1, wavesOf(static_cast<int>(state.range(0))), {0xff0000});
    OffscreenCanvas canvas(c_width, c_height, 1);
    canvas.setScene(scene.scene);
    lookFrom(canvas, -50.0, 30.0);
    for (auto _ : state) {
        canvas.zoomExtents();
    }
    canvas.draw();
    const auto [x, y] = pixelOf(canvas, {0.5f, 0.5f, 0.0f});
    if (!(std::abs(x - 0.5 * c_width) < 0.2 * c_width && std::abs(y - 0.5 * c_height) < 0.2 * c_height)) {
        state.SkipWithError("the scene is not in the middle");
    }
    state.SetItemsProcessed(state.iterations() * plot->getVertices().getNumberOfVertices());
}

void findLimits(benchmark::State& state)
{
    TestScene scene;
    const auto plot = scene.add<SceneGraphPlotSurface3d>(1, wavesOf(static_cast<int>(state.range(0))), {0xff0000});
    const auto* vertices = plot->getVertices().vertices();
    const int count = plot->getVertices().getNumberOfVertices();
    float low = 0.0f;
    float high = 0.0f;
    for (auto _ : state) {
        low = high = vertices[0].x;
        for (int i = 0; i < count; ++i) {
            const float across = 0.6f * vertices[i].x + 0.7f * vertices[i].y + 0.4f * vertices[i].z;
            low = std::min(low, across);
            high = std::max(high, across);
        }
        benchmark::DoNotOptimize(low);
        benchmark::DoNotOptimize(high);
    }
    if (!(low < 0.1f && high > 1.2f)) {
        state.SkipWithError("these are not the limits");
    }
    state.SetItemsProcessed(state.iterations() * count);
}

BENCHMARK(fitScene)->Name("fitScene")->Arg(10)->Arg(1000)->Unit(benchmark::kMillisecond);
BENCHMARK(findLimits)->Name("fitScene_limit")->Arg(10)->Arg(1000)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace vxrenderer
