// Profiles of lines.

#include "datacarrier/postdataobject.h"
#include "graphics3d/cameras/camera2d.h"
#include "graphics3d/canvas/canvas3dsettings.h"
#include "graphics3d/canvas/hardcopysettings.h"
#include "graphics3d/plots/graph/scenegraphplotgraph.h"
#include "graphics3d/settings/canvas3dglobalsettings.h"
#include "renderer/frame/appearance.h"
#include "renderer/frame/contrast.h"
#include "renderer/frame/view.h"
#include "tests/renderer/support/pngfile.h"
#include "tests/renderer/support/testscene.h"
#include "tests/support/postrecord.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <utility>

namespace vxrenderer {
namespace {

using namespace vxgraphics3d;

/// Black graphs in a flat view of the unit square without anything else.
class LinePainterTest : public ::testing::Test {
protected:
    using Points = std::vector<std::pair<double, double>>;

    explicit LinePainterTest(int samples = 1) : m_canvas(200, 200, samples)
    {
        m_canvas.getCanvas3dSettings()->setRenderMode(Canvas3dSettings::RenderMode2d);
        m_canvas.getCanvas3dSettings()->setRenderMask(RenderPlots | RenderBackground);
        m_canvas.setScene(m_scene.scene);
        m_scene.group->addPlot(m_graph);
        camera().setPreserveAspectRatio(false);
        camera().setAxisViewScalesAuto();
    }

    Camera2d& camera() { return *m_canvas.getCanvas3dSettings()->camera2d(); }

    Picture look(const Points& points, int lineWidth)
    {
        vxgraphics3d::PostRecord record = PostRecord().role(vxdatacarrier::PostDataObject::HeightData, 0);
        std::vector<double> x;
        std::vector<double> y;
        for (const auto& [atX, atY] : points) {
            x.push_back(atX);
            y.push_back(atY);
        }
        record.group({x}, {}, {y});
        m_graph->fillPlot(record);
        m_graph->setColor(Color::fromRgb(0));
        m_graph->setLineWidth(lineWidth);
        drawn(m_canvas);
        camera().setViewLimits(0.0f, 1.0f, 0.0f, 1.0f);
        return drawnAsIs(m_canvas);
    }

    static double darkness(const Picture& picture, int x, int y) { return (255 - picture.at(x, y)[0]) / 255.0; }
    static int largestDifference(const Picture& one, const Picture& other)
    {
        int largest = 0;
        for (std::size_t i = 0; i < one.bytes.size(); ++i) {
            largest = std::max(largest, std::abs(one.bytes[i] - other.bytes[i]));
        }
        return largest;
    }

    OffscreenCanvas m_canvas;
    TestScene m_scene;
    boost::shared_ptr<SceneGraphPlotGraph> m_graph = boost::make_shared<SceneGraphPlotGraph>(1);
};

TEST_F(LinePainterTest, everyColumnOfASlantedLineTakesItsWidth)
{
    for (const int width : {1, 2, 3, 7}) {
        for (const double slope : {0.0, 0.1, 0.5, 0.9}) {
            const Picture picture = look({{0.0, 0.05}, {1.0, 0.05 + slope}}, width);
            const auto first = static_cast<int>(pixelOf(m_canvas, {0.0f, 0.0f, 0.0f})[0]) + 10;
            const auto last = static_cast<int>(pixelOf(m_canvas, {1.0f, 0.0f, 0.0f})[0]) - 10;
            ASSERT_GT(last, first + 50);
            const double expected = width * std::hypot(1.0, slope);
            for (int x = first; x < last; ++x) {
                double sum = 0.0;
                for (int y = 0; y < picture.height; ++y) {
                    sum += darkness(picture, x, y);
                }
                EXPECT_NEAR(sum, expected, 0.1 * expected) << width << ' ' << slope << ' ' << x;
            }
        }
    }
}

TEST_F(LinePainterTest, piecesOfALineLookLikeOneLine)
{
    for (const int width : {1, 2, 5}) {
        const Points whole = {{0.05, 0.1}, {0.95, 0.6}};
        Points pieces;
        for (int i = 0; i <= 90; ++i) {
            pieces.emplace_back(0.05 + 0.01 * i, 0.1 + 0.5 * i / 90.0);
        }
        EXPECT_LE(largestDifference(look(whole, width), look(pieces, width)), 3) << width;
    }
}

TEST_F(LinePainterTest, cornersAreClosedAndDrawnOnce)
{
    for (const int width : {2, 5, 9}) {
        const Picture picture = look({{0.2, 0.2}, {0.5, 0.8}, {0.8, 0.2}}, width);
        const auto [x, y] = pixelOf(m_canvas, {0.5f, 0.8f, 0.0f});
        // Below the corner everything is dark, and the picture is symmetrical to it.
        EXPECT_GT(darkness(picture, static_cast<int>(x), static_cast<int>(y + 1.0)), 0.95) << width;
        for (int row = 0; row < picture.height; ++row) {
            for (int off = 0; off < 80; ++off) {
                const int left = static_cast<int>(std::floor(x)) - 1 - off;
                const int right = static_cast<int>(std::floor(x)) + off;
                if (std::abs(x - std::round(x)) < 1e-3) {
                    EXPECT_NEAR(darkness(picture, left, row), darkness(picture, right, row), 0.05) << width;
                }
            }
        }
    }
}

/// The same with several samples.
class SampledLineTest : public LinePainterTest {
protected:
    SampledLineTest() : LinePainterTest(4) {}
};

TEST_F(SampledLineTest, linesDoNotDependOnSamples)
{
    Points wave;
    for (int i = 0; i <= 60; ++i) {
        wave.emplace_back(i / 60.0, 0.5 + 0.4 * std::sin(0.2 * i));
    }
    for (const int width : {1, 2, 4}) {
        look(wave, width);
        const Picture full = drawnAsIs(m_canvas);
        const Picture draft = drawnAsIs(m_canvas, Quality::draft);
        // Except where a pixel at the end of a piece has samples beyond it.
        int numOthers = 0;
        for (std::size_t i = 0; i < full.bytes.size(); i += 4) {
            numOthers += std::abs(full.bytes[i] - draft.bytes[i]) > 3 ? 1 : 0;
        }
        EXPECT_LT(numOthers, 12) << width;
    }
}

/// Flat axes over a surface, in exports.
TEST(GridLines, haveOneProfileThatGrowsWithTheResolution)
{
    TestScene scene;
    scene.add<SceneGraphPlotSurface2d>(1, {}, {0xffffff});
    OffscreenCanvas canvas(300, 300, 4);
    showFlat(canvas, scene);
    canvas.getCanvas3dSettings()->setRenderMask(RenderAxes | RenderBackground);
    canvas.zoomExtents();
    canvas.draw();
    canvas.getCanvas3dSettings()->camera2d()->setViewLimits(0.03f, 0.97f, 0.03f, 0.97f);
    canvas.draw();
    for (const auto& [scale, supersampling] : {std::pair(1, 1), std::pair(2, 1), std::pair(3, 1), std::pair(1, 3)}) {
        RenderStyle style;
        style.supersampling = supersampling;
        canvas.setStyle(style);
        HardcopySettings settings;
        settings.setDpi(scale * Canvas3dGlobalSettings::getInstance()->getOnScreenResolution());
        settings.setAxisShown(true);
        const PngFile file(canvas.encodeHardcopy(settings, 300 * scale, 300 * scale));
        // Along a row and a column between grid lines of the other direction: runs of pixels that are not white.
        std::vector<std::vector<int>> profiles;
        for (const bool isRow : {true, false}) {
            std::vector<int> run;
            const int fixed = static_cast<int>(0.47 * 300 * scale);
            for (int i = 90 * scale; i < 240 * scale; ++i) {
                const int offset = isRow ? fixed * file.width + i : i * file.width + fixed;
                const int level = file.pixels[static_cast<std::size_t>(3 * offset)];
                if (level != 255) {
                    run.push_back(level);
                } else if (!run.empty()) {
                    profiles.push_back(run);
                    run.clear();
                }
            }
        }
        ASSERT_GE(profiles.size(), 4u) << scale;
        for (const std::vector<int>& profile : profiles) {
            EXPECT_EQ(profile, std::vector<int>(static_cast<std::size_t>(scale), profiles[0][0])) << scale;
        }
    }
}

TEST(GridLines, areDistinguishedFromDataOfAnyColor)
{
    for (const int color : {0x000000, 0xffffff, 0x808080, 0xff0000, 0x0000ff, 0x00ff00, 0x7f7f00, 0x663388}) {
        TestScene scene;
        scene.add<SceneGraphPlotSurface2d>(1, {}, {color});
        OffscreenCanvas canvas(300, 300, 1);
        showFlat(canvas, scene);
        canvas.getCanvas3dSettings()->setRenderMask(RenderPlots | RenderAxes | RenderBackground);
        const Picture picture = drawn(canvas);
        const Color data = Color::fromRgb(color);
        const auto [left, y] = pixelOf(canvas, {0.02f, 0.47f, 0.0f});
        const auto right = pixelOf(canvas, {0.98f, 0.47f, 0.0f})[0];
        int numLines = 0;
        for (int x = static_cast<int>(left); x < static_cast<int>(right); ++x) {
            const Rgb pixel = picture.at(x, static_cast<int>(y));
            if (pixel != Rgb{data.red, data.green, data.blue}) {
                EXPECT_GE(contrastOf({pixel[0], pixel[1], pixel[2]}, data), 1.5) << std::hex << color;
                ++numLines;
            }
        }
        EXPECT_GE(numLines, 1) << std::hex << color;
    }
}

} // namespace
} // namespace vxrenderer
