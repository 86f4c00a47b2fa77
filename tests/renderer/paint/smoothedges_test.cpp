// Edges across triangles: where a restriction begins to hide values, where a colour table jumps, and the border of a
// cone of light.

#include "graphics3d/canvas/canvas3dsettings.h"
#include "graphics3d/canvas/scenesettings.h"
#include "graphics3d/lights/scenelight.h"
#include "graphics3d/lights/scenesettingslight.h"
#include "graphics3d/lights/spotlightsource.h"
#include "tests/renderer/support/testscene.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>

namespace vxrenderer {
namespace {

using vxgraphics3d::SceneGraphPlotSurface3d;
using vxgraphics3d::Vector3f;

constexpr int c_size = 240;
/// Values rise in the direction of (cos, sin) of a slanted angle.
constexpr double c_cos = 0.937;
constexpr double c_sin = 0.349;
/// The angle of a cone of light.
constexpr float c_spread = 0.5f;

/// Many small triangles over the unit square, seen from above or from the side.
class SmoothEdgesTest : public ::testing::Test {
protected:
    SmoothEdgesTest()
    {
        GridRecord record;
        record.cells = 61;
        record.value = [](double x, double y) { return c_cos * x + c_sin * y; };
        record.height = [](double, double) { return 0.0; };
        m_plot = m_scene.add<SceneGraphPlotSurface3d>(1, record, {0xff0000, 0x0000ff});
        showFromAbove(m_canvas, m_scene);
        m_canvas.getSceneSettings()->getLight()->setUseLight(false);
    }

    /// How far a pixel is beyond a line of one value, in pixels; positive on the side of higher values.
    double distanceTo(double value, int column, int row) const
    {
        const auto [left, bottom] = pixelOf(m_canvas, {0.0f, 0.0f, 0.0f});
        const auto [right, top] = pixelOf(m_canvas, {1.0f, 1.0f, 0.0f});
        const double scale = right - left;
        const double x = (column + 0.5 - left) / scale;
        const double y = (bottom - row - 0.5) / (bottom - top);
        return (c_cos * x + c_sin * y - value) / std::hypot(c_cos, c_sin) * scale;
    }
    /// Visits the pixels within the square, its border left out.
    template <class Visit>
    void forEachPixel(Visit visit) const
    {
        const auto [left, bottom] = pixelOf(m_canvas, {0.0f, 0.0f, 0.0f});
        const auto [right, top] = pixelOf(m_canvas, {1.0f, 1.0f, 0.0f});
        for (int row = static_cast<int>(top) + 2; row < static_cast<int>(bottom) - 2; ++row) {
            for (int column = static_cast<int>(left) + 2; column < static_cast<int>(right) - 2; ++column) {
                visit(column, row);
            }
        }
    }

    TestScene m_scene;
    boost::shared_ptr<SceneGraphPlotSurface3d> m_plot;
    OffscreenCanvas m_canvas{c_size, c_size, 4};
};

TEST_F(SmoothEdgesTest, restrictionsHideSamplesAndLeaveNoHolesBetweenTriangles)
{
    constexpr double low = 0.3;
    m_plot->setValueRestrictions(low, 0.61);
    const Picture picture = drawn(m_canvas);
    int numMixed = 0;
    forEachPixel([&](int column, int row) {
        const double distance = distanceTo(low, column, row);
        const double end = distanceTo(0.61, column, row);
        const Rgb color = picture.at(column, row);
        // Red where something is shown; the other channels are those of the background.
        const double covered = (255 - color[1]) / 255.0;
        if (distance > 1.5 && end < -1.5) {
            EXPECT_EQ(covered, 1.0) << column << ' ' << row;
        } else if (distance < -1.5 || end > 1.5) {
            EXPECT_EQ(covered, 0.0) << column << ' ' << row;
        } else {
            const double expected = std::clamp(0.5 + std::min(distance, -end), 0.0, 1.0);
            EXPECT_NEAR(covered, expected, 0.36) << column << ' ' << row;
            EXPECT_NEAR(covered * 4.0, std::round(covered * 4.0), 0.03);
            numMixed += covered > 0.0 && covered < 1.0 ? 1 : 0;
        }
    });
    EXPECT_GT(numMixed, 200);
}

TEST_F(SmoothEdgesTest, jumpsOfColorTablesAreTheMeanOfTheSamples)
{
    const Picture picture = drawn(m_canvas);
    const double middle = 0.5 * (c_cos + c_sin);
    int numMixed = 0;
    forEachPixel([&](int column, int row) {
        const double distance = distanceTo(middle, column, row);
        const Rgb color = picture.at(column, row);
        EXPECT_EQ(color[1], 0);
        if (std::abs(distance) > 1.5) {
            EXPECT_EQ(color, distance > 0.0 ? Rgb({0, 0, 255}) : Rgb({255, 0, 0})) << column << ' ' << row;
        } else {
            EXPECT_NEAR(color[2], 255.0 * std::clamp(0.5 + distance, 0.0, 1.0), 92) << column << ' ' << row;
            EXPECT_NEAR(color[0] + color[2], 255, 1);
            numMixed += color[0] > 0 && color[2] > 0 ? 1 : 0;
        }
    });
    EXPECT_GT(numMixed, 130);
}

TEST_F(SmoothEdgesTest, conesOfLightEndWithinAPixelAndAHalf)
{
    m_canvas.getSceneSettings()->getLight()->setUseLight(true);
    vxgraphics3d::SceneLight& light = *m_scene.scene->getSceneLight();
    light.setAmbientIntensity(0.0f);
    auto& spot = static_cast<vxgraphics3d::SpotLightSource&>(*light.lightSource(light.createSpotLight()));
    spot.setPosition(true, Vector3f(0.5f, 0.5f, 1.0f));
    spot.setAtDirection(Vector3f(0.0f, 0.0f, -1.0f));
    spot.setSpreadAngle(c_spread);
    spot.setIntensity(1.0f);
    spot.setActive(true);
    const Picture picture = drawn(m_canvas);
    const std::array<double, 2> middle = pixelOf(m_canvas, {0.5f, 0.5f, 0.0f});
    const double radius =
        std::tan(0.5 * static_cast<double>(c_spread)) * (pixelOf(m_canvas, {1.5f, 0.5f, 0.0f})[0] - middle[0]);
    int numMixed = 0;
    forEachPixel([&](int column, int row) {
        const double outside = std::hypot(column + 0.5 - middle[0], row + 0.5 - middle[1]) - radius;
        const Rgb color = picture.at(column, row);
        const int brightness = color[0] + color[2];
        if (std::abs(outside) > 1.5) {
            EXPECT_EQ(brightness > 0, outside < 0.0) << column << ' ' << row;
        } else {
            numMixed += brightness > 20 && brightness < 200 ? 1 : 0;
        }
    });
    EXPECT_GT(numMixed, 150);
}

} // namespace
} // namespace vxrenderer
