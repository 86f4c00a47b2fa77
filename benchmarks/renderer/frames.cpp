// Frames of the reference renderer: a surface of two triangles in each cell of a grid, lit, with title, legend and grid
// box, in 1600 by 1000 pixels, beside what the driver takes for the triangles alone.

#include "benchmarks/memory.h"
#include "benchmarks/renderer/bareshader.h"
#include "graphics3d/canvas/scenesettings.h"
#include "graphics3d/lights/directionlightsource.h"
#include "graphics3d/lights/scenelight.h"
#include "renderer/frame/view.h"
#include "renderer/gl/eglcontext.h"
#include "renderer/gl/glprogram.h"
#include "renderer/gl/target.h"
#include "renderer/upload/mesh.h"
#include "renderer/upload/uniformblock.h"
#include "tests/renderer/support/testscene.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <vector>

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

constexpr int c_width = 1600;
constexpr int c_height = 1000;
constexpr int c_samples = 4;
/// Fewer pixels than the surface covers.
constexpr int c_fewPixels = 100000;

/// Frames after the first one, in which nothing is uploaded: drawn and read back.
void drawFrame(benchmark::State& state, Quality quality, float opacity, const RenderStyle& style = {})
{
    const Waves waves(static_cast<int>(state.range(0)));
    OffscreenCanvas canvas(c_width, c_height, c_samples);
    canvas.setStyle(style);
    canvas.setScene(waves.scene.scene);
    canvas.getSceneSettings()->setGlobalOpacity(opacity);
    lookFrom(canvas, -50.0, 30.0);
    canvas.zoomExtents();
    if (drawnAsIs(canvas, quality).countDrawn(0, 0, c_width, c_height) < c_fewPixels) {
        state.SkipWithError("hardly anything was drawn");
    }
    const UploadCounts before = canvas.getUploadCounts();
    std::vector<std::uint8_t> pixels(canvas.imageSize());
    for (auto _ : state) {
        canvas.draw(quality);
        canvas.readImage(pixels.data(), pixels.size());
    }
    if (canvas.getUploadCounts() != before) {
        state.SkipWithError("something was uploaded");
    }
    state.SetItemsProcessed(state.iterations() * waves.plot->getTriangles().getNumIndices() / 3);
}

constexpr const char* c_bareVertexSource = R"(
layout(std140) uniform Bare {
    mat4 toClip;
};
layout(location = 0) in vec3 position;

void main()
{
    gl_Position = toClip * vec4(position, 1.0);
}
)";

struct BareBlock {
    static constexpr const char* c_block = "Bare";
    static constexpr GLuint c_binding = 0;

    std::array<float, 16> toClip;
};

/// What the driver alone takes for the same triangles at the same place in a picture of the same kind: cleared, drawn
/// in one colour with a depth test, resolved and read back.
void drawBare(benchmark::State& state, int samples)
{
    const Waves waves(static_cast<int>(state.range(0)));
    OffscreenCanvas canvas(c_width, c_height, 1);
    canvas.setScene(waves.scene.scene);
    lookFrom(canvas, -50.0, 30.0);
    canvas.zoomExtents();
    canvas.draw();
    const View view = canvas.getView();

    const EglContext context;
    const EglContext::Current current(context);
    const Target target(c_width, c_height, samples);
    const GlProgram program("bare triangles", c_bareVertexSource, c_bareFragmentSource);
    Mesh mesh;
    mesh.load(waves.plot->getVertices(), waves.plot->getTriangles());
    program.use();
    const vxgraphics3d::Matrixf toClip = view.projection * view.sceneToEye;
    BareBlock values{};
    std::copy_n(toClip.data(), values.toClip.size(), values.toClip.begin());
    UniformBlock<BareBlock> block;
    block.attach(program);
    block.set(values);
    glEnable(GL_DEPTH_TEST);
    glClearColor(1.0f, 1.0f, 1.0f, 1.0f);
    std::vector<std::uint8_t> pixels(canvas.imageSize());
    const auto draw = [&] {
        target.beginScene();
        glClear(GL_COLOR_BUFFER_BIT);
        glViewport(view.area.x, c_height - view.area.y - view.area.height, view.area.width, view.area.height);
        mesh.draw();
        target.beginOverlay();
        target.read(pixels.data());
    };
    draw();
    // White, except for three channels of the drawn pixels.
    if (std::count(pixels.begin(), pixels.end(), std::uint8_t(255)) > 4 * c_width * c_height - 3 * c_fewPixels) {
        state.SkipWithError("hardly anything was drawn");
    }
    for (auto _ : state) {
        draw();
    }
    state.SetItemsProcessed(state.iterations() * waves.plot->getTriangles().getNumIndices() / 3);
}

/// The upload of a surface, with the search for its creases or, as the limit, without.
void upload(benchmark::State& state, bool isBody)
{
    const Waves waves(static_cast<int>(state.range(0)));
    const EglContext context;
    const EglContext::Current current(context);
    Mesh mesh;
    for (auto _ : state) {
        if (isBody) {
            mesh.loadBody(waves.plot->getVertices(), waves.plot->getTriangles(), 0.6f);
        } else {
            mesh.load(waves.plot->getVertices(), waves.plot->getTriangles());
        }
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

/// Grids of 100,352 and 1,002,528 triangles.
void sizes(benchmark::internal::Benchmark* frames)
{
    frames->Arg(224)->Arg(708)->Unit(benchmark::kMillisecond)->UseRealTime();
}

BENCHMARK_CAPTURE(drawFrame, full, Quality::full, 1.0f)->Name("drawFrame")->Apply(sizes);
BENCHMARK_CAPTURE(drawBare, full, c_samples)->Name("drawFrame_limit")->Apply(sizes);
// In studio light with feature edges, beside the plain picture of the same surface.
constexpr RenderStyle c_studio = {.isStudio = true, .showFeatureEdges = true};
BENCHMARK_CAPTURE(drawFrame, studio, Quality::full, 1.0f, c_studio)->Name("drawStudio")->Apply(sizes);
BENCHMARK_CAPTURE(drawFrame, full, Quality::full, 1.0f)->Name("drawStudio_limit")->Apply(sizes);
BENCHMARK_CAPTURE(drawFrame, draft, Quality::draft, 1.0f)->Name("drawDraft")->Apply(sizes);
BENCHMARK_CAPTURE(drawBare, draft, 1)->Name("drawDraft_limit")->Apply(sizes);
// The surface seen through itself, in layers and in a draft as one.
BENCHMARK_CAPTURE(drawFrame, translucent, Quality::full, 0.5f)->Name("drawTranslucent")->Apply(sizes);
BENCHMARK_CAPTURE(drawBare, translucent, c_samples)->Name("drawTranslucent_limit")->Apply(sizes);
BENCHMARK_CAPTURE(drawFrame, translucentDraft, Quality::draft, 0.5f)->Name("drawTranslucentDraft")->Apply(sizes);
BENCHMARK_CAPTURE(drawBare, translucentDraft, 1)->Name("drawTranslucentDraft_limit")->Apply(sizes);
BENCHMARK_CAPTURE(upload, body, true)->Name("uploadBody")->Apply(sizes);
BENCHMARK_CAPTURE(upload, mesh, false)->Name("uploadBody_limit")->Apply(sizes);
BENCHMARK(drawTenMillion)->Name("draw_memory")->Iterations(1)->Unit(benchmark::kMillisecond)->UseRealTime();

} // namespace
} // namespace vxrenderer
