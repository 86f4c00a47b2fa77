// Frames of the reference renderer with a cloud of spheres, lit, in 1600 by 1000 pixels, beside what the driver takes
// for as many triangles of the same size and place in one colour.

#include "benchmarks/renderer/bareshader.h"
#include "graphics3d/lights/directionlightsource.h"
#include "graphics3d/lights/scenelight.h"
#include "graphics3d/plots/vector/scenegraphplotsphere3d.h"
#include "renderer/gl/eglcontext.h"
#include "renderer/gl/glprogram.h"
#include "renderer/gl/target.h"
#include "renderer/upload/spherebuffer.h"
#include "renderer/upload/uniformblock.h"
#include "tests/renderer/support/testscene.h"
#include "tests/support/postrecord.h"
#include "tests/support/randomnumbers.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <vector>

namespace vxrenderer {
namespace {

using vxdatacarrier::PostDataObject;
using vxgraphics3d::SceneGraphPlotSphere3d;

constexpr int c_width = 1600;
constexpr int c_height = 1000;
constexpr int c_samples = 4;

/// Spheres at random places of the unit cube, small enough to leave space between them.
class Cloud {
public:
    explicit Cloud(std::size_t count)
    {
        vxgraphics3d::RandomNumbers random(1);
        PostDataObject::DoubleArrays axes(3);
        for (std::vector<double>& axis : axes) {
            for (std::size_t i = 0; i < count; ++i) {
                axis.push_back(static_cast<double>(random.uniform(0.0f, 1.0f)));
            }
        }
        const std::vector<double> values = axes[2];
        const double radius = 0.3 / std::cbrt(static_cast<double>(count));
        vxgraphics3d::PostRecord record;
        record.role(PostDataObject::ColorData, 0).role(PostDataObject::RadiusData, 1).bounds({{0, 1}, {0, 1}, {0, 1}});
        record.group(std::move(axes), {}, {values, std::vector<double>(count, radius)});
        plot->setColorTable("cloud", {{0.0, 0.0, 1.0}, {1.0, 1.0, 0.0}}, true);
        scene.group->addPlot(plot);
        plot->fillPlot(record);
        vxgraphics3d::SceneLight& light = *scene.scene->getSceneLight();
        vxgraphics3d::LightSource& lamp = *light.lightSource(light.createDirectionLight());
        lamp.setIntensity(0.6f);
        lamp.setActive(true);
        light.setAmbientIntensity(0.4f);
    }

    TestScene scene;
    boost::shared_ptr<SceneGraphPlotSphere3d> plot = boost::make_shared<SceneGraphPlotSphere3d>(1);
};

/// Frames after the first one: drawn and read back.
void drawSpheres(benchmark::State& state)
{
    const Cloud cloud(static_cast<std::size_t>(state.range(0)));
    OffscreenCanvas canvas(c_width, c_height, c_samples);
    canvas.setScene(cloud.scene.scene);
    lookFrom(canvas, -50.0, 30.0);
    canvas.zoomExtents();
    if (drawnAsIs(canvas).countDrawn(0, 0, c_width, c_height) < 100000) {
        state.SkipWithError("hardly anything was drawn");
    }
    const UploadCounts before = canvas.getUploadCounts();
    std::vector<std::uint8_t> pixels(canvas.imageSize());
    for (auto _ : state) {
        canvas.draw();
        canvas.readImage(pixels.data(), pixels.size());
    }
    if (canvas.getUploadCounts() != before) {
        state.SkipWithError("something was uploaded");
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
}

constexpr const char* c_bareVertexSource = R"(
layout(std140) uniform Bare {
    mat4 toClip;
    vec2 size;
};
layout(location = 0) in vec3 center;
layout(location = 1) in vec2 data;
const vec2 c_corners[3] = vec2[3](vec2(-1.7320508, -1.0), vec2(1.7320508, -1.0), vec2(0.0, 2.0));

void main()
{
    gl_Position = toClip * vec4(center, 1.0);
    gl_Position.xy += data.y * size * c_corners[gl_VertexID];
}
)";

struct BareBlock {
    static constexpr const char* c_block = "Bare";
    static constexpr GLuint c_binding = 0;

    std::array<float, 16> toClip;
    std::array<float, 2> size;
    std::array<float, 2> unused{};
};

void drawBare(benchmark::State& state)
{
    const Cloud cloud(static_cast<std::size_t>(state.range(0)));
    OffscreenCanvas canvas(c_width, c_height, 1);
    canvas.setScene(cloud.scene.scene);
    lookFrom(canvas, -50.0, 30.0);
    canvas.zoomExtents();
    canvas.draw();
    const View view = canvas.getView();

    const EglContext context;
    const EglContext::Current current(context);
    const Target target(c_width, c_height, c_samples);
    const GlProgram program("bare triangles", c_bareVertexSource, c_bareFragmentSource);
    SphereBuffer spheres;
    const auto records = cloud.plot->getSpheres();
    spheres.load({&records.front().x, 5 * records.size()}, false);
    program.use();
    const vxgraphics3d::Matrixf toClip = view.projection * view.sceneToEye;
    BareBlock values{};
    std::copy_n(toClip.data(), values.toClip.size(), values.toClip.begin());
    values.size = {view.projection.get(1, 1), view.projection.get(2, 2)};
    UniformBlock<BareBlock> block;
    block.attach(program);
    block.set(values);
    glEnable(GL_DEPTH_TEST);
    glClearColor(1.0f, 1.0f, 1.0f, 1.0f);
    std::vector<std::uint8_t> pixels(canvas.imageSize());
    for (auto _ : state) {
        target.beginScene();
        glClear(GL_COLOR_BUFFER_BIT);
        glViewport(view.area.x, c_height - view.area.y - view.area.height, view.area.width, view.area.height);
        spheres.draw(false);
        target.beginOverlay();
        target.read(pixels.data());
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
}

BENCHMARK(drawSpheres)->Arg(10000)->Arg(1000000)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(drawBare)->Name("drawSpheres_limit")->Arg(10000)->Arg(1000000)->Unit(benchmark::kMillisecond)->UseRealTime();

} // namespace
} // namespace vxrenderer
