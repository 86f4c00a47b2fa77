// Frames of the reference renderer with a curve of many edges in an overlay, in 1600 by 1000 pixels, beside what the
// driver takes for the same lines if they are ready.

#include "graphics3d/cameras/camera2d.h"
#include "graphics3d/canvas/canvas3dsettings.h"
#include "graphics3d/overlays/overlay.h"
#include "graphics3d/overlays/overlaydrawcurve.h"
#include "graphics3d/overlays/overlayoutline.h"
#include "renderer/gl/eglcontext.h"
#include "renderer/gl/target.h"
#include "renderer/paint/linepainter.h"
#include "tests/renderer/support/testscene.h"
#include "tests/support/randomnumbers.h"

#include <benchmark/benchmark.h>

#include <cstdint>
#include <span>
#include <vector>

namespace vxrenderer {
namespace {

using vxgraphics3d::OverlayDrawCurve;
using vxgraphics3d::Vector3f;

constexpr int c_width = 1600;
constexpr int c_height = 1000;
constexpr int c_samples = 4;

/// Short cubic edges at random positions of the unit square.
boost::shared_ptr<OverlayDrawCurve> makeCurve(benchmark::State& state)
{
    vxgraphics3d::RandomNumbers random(2);
    const auto curve = boost::make_shared<OverlayDrawCurve>();
    for (int i = 0; i < state.range(0); ++i) {
        const double x = static_cast<double>(random.uniform(0.0f, 1.0f));
        const double y = static_cast<double>(random.uniform(0.0f, 1.0f));
        const int start = curve->addVertex(x, y);
        const int edge = curve->addEdge(start, curve->addVertex(x + 0.015, y));
        for (const double step : {0.0, 0.005, 0.01, 0.015}) {
            curve->addControlPoint(edge, x + step, y + static_cast<double>(random.uniform(-0.01f, 0.01f)));
        }
    }
    return curve;
}

void drawCurve(benchmark::State& state)
{
    const auto overlay = boost::make_shared<vxgraphics3d::Overlay>();
    overlay->addOverlayObject(makeCurve(state), 1);
    const TestScene scene;
    OffscreenCanvas canvas(c_width, c_height, c_samples);
    showFlat(canvas, scene);
    showPlotsAlone(canvas);
    canvas.setOverlay(overlay);
    canvas.draw();
    canvas.getCanvas3dSettings()->camera2d()->setViewLimits(0.0f, 1.0f, 0.0f, 1.0f);
    if (drawnAsIs(canvas).countDrawn(0, 0, c_width, c_height) < 100000) {
        state.SkipWithError("hardly anything was drawn");
    }
    std::vector<std::uint8_t> pixels(canvas.imageSize());
    for (auto _ : state) {
        canvas.draw();
        canvas.readImage(pixels.data(), pixels.size());
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
}

void drawLines(benchmark::State& state)
{
    const std::vector<Vector3f> outline = outlineOf(*makeCurve(state));
    const EglContext context;
    const EglContext::Current current(context);
    const Target target(c_width, c_height, c_samples);
    const LinePainter painter;
    std::vector<LineSegment> lines;
    for (std::size_t i = 0; i < outline.size(); i += 2) {
        lines.push_back({outline[i], outline[i + 1]});
    }
    vxgraphics3d::Matrixf toClip(vxgraphics3d::Matrixf::MatrixIdentity);
    toClip.translate(-1.0f, -1.0f, 0.0f).scale(2.0f, 2.0f, 1.0f);
    glClearColor(1.0f, 1.0f, 1.0f, 1.0f);
    std::vector<std::uint8_t> pixels(std::size_t(4) * c_width * c_height);
    for (auto _ : state) {
        target.beginScene();
        glClear(GL_COLOR_BUFFER_BIT);
        painter.draw(lines, {toClip, c_width, c_height, 1.0f}, {});
        target.beginOverlay();
        target.read(pixels.data());
    }
}

BENCHMARK(drawCurve)->Arg(10000)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(drawLines)->Name("drawCurve_limit")->Arg(10000)->Unit(benchmark::kMillisecond)->UseRealTime();

} // namespace
} // namespace vxrenderer
