// Frames of the reference renderer: a surface of two triangles in each cell of a grid, lit, with title, legend and grid
// box, in 1600 by 1000 pixels.

#include "benchmarks/memory.h"
#include "graphics3d/lights/directionlightsource.h"
#include "graphics3d/lights/scenelight.h"
#include "tests/renderer/support/testscene.h"

#include <benchmark/benchmark.h>

#include <cmath>

namespace vxrenderer {
namespace {

using vxgraphics3d::MemoryWatch;
using vxgraphics3d::SceneGraphPlotSurface3d;

/// A wavy surface and a lamp.
class Waves {
public:
    explicit Waves(int cells)
    {
        GridRecord record;
        record.cells = cells;
        record.height = [](double x, double y) { return 0.1 * std::sin(20.0 * x) * std::cos(15.0 * y); };
        record.value = record.height;
        plot = scene.add<SceneGraphPlotSurface3d>(1, record, {0x0000ff, 0xffffff, 0xff0000});
        vxgraphics3d::SceneLight& light = *scene.scene->getSceneLight();
        vxgraphics3d::LightSource& lamp = *light.lightSource(light.createDirectionLight());
        lamp.setIntensity(0.6f);
        lamp.setActive(true);
        light.setAmbientIntensity(0.4f);
    }

    TestScene scene;
    boost::shared_ptr<SceneGraphPlotSurface3d> plot;
};

/// Frames after the first one, in which nothing is uploaded.
void drawFrame(benchmark::State& state)
{
    const Waves waves(static_cast<int>(state.range(0)));
    OffscreenCanvas canvas(1600, 1000, 4);
    canvas.setScene(waves.scene.scene);
    lookFrom(canvas, -50.0, 30.0);
    if (drawn(canvas).countDrawn(0, 0, 1600, 1000) < 100000) {
        state.SkipWithError("hardly anything was drawn");
    }
    const UploadCounts before = canvas.getUploadCounts();
    for (auto _ : state) {
        canvas.draw();
    }
    if (canvas.getUploadCounts() != before) {
        state.SkipWithError("something was uploaded");
    }
    state.SetItemsProcessed(state.iterations() * waves.plot->getTriangles().getNumIndices() / 3);
}

/// The highest use of memory while ten million points are drawn for the first time. Without graphics hardware the
/// driver's copy of the buffers lies in main memory; beside it there is the picture, and nothing else.
void drawTenMillion(benchmark::State& state)
{
    const Waves waves(3162);
    OffscreenCanvas canvas(1600, 1000, 1);
    canvas.draw();
    for (auto _ : state) {
        const MemoryWatch watch;
        canvas.setScene(waves.scene.scene);
        lookFrom(canvas, -50.0, 30.0);
        canvas.zoomExtents();
        canvas.draw();
        const double numPoints = waves.plot->getVertices().getNumberOfVertices();
        const double buffers = 32.0 * numPoints + 4.0 * waves.plot->getTriangles().getNumIndices();
        watch.report(state, buffers, buffers);
    }
}

BENCHMARK(drawFrame)->Arg(224)->Arg(708)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(drawTenMillion)->Name("draw_memory")->Iterations(1)->Unit(benchmark::kMillisecond)->UseRealTime();

} // namespace
} // namespace vxrenderer
