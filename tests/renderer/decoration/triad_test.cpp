#include "renderer/decoration/triad.h"

#include "graphics3d/cameras/axisorientationindicator.h"
#include "graphics3d/cameras/camera3d.h"
#include "graphics3d/canvas/canvas3dsettings.h"
#include "renderer/frame/appearance.h"
#include "tests/renderer/support/testscene.h"

#include <gtest/gtest.h>

namespace vxrenderer {
namespace {

using vxgraphics3d::Camera3d;
using vxgraphics3d::Vector3f;

void expectNear(const Vector3f& point, float x, float y)
{
    EXPECT_NEAR(point.x, x, 1e-3f);
    EXPECT_NEAR(point.y, y, 1e-3f);
    EXPECT_EQ(point.z, 0.0f);
}

TEST(Triad, showsEachAxisWhereItPointsOnTheScreen)
{
    Camera3d camera;
    // x towards the eye, y to the right, z upwards; the position of the camera and the stretching of axes do not
    // matter.
    camera.lookAt({10.0f, 0.0f, 0.0f}, {-1.0f, 0.0f, 0.0f}, {0.0f, 0.0f, 1.0f});
    camera.setAxisViewScales(1.0f, 2.0f, 3.0f);
    const Triad triad = Triad::of(camera, 100.0f, 80.0f, 50.0f, 10.0f);
    const struct {
        std::size_t index;
        float tipX, tipY, letterX, letterY;
    } axes[] = {
        {1, 150.0f, 80.0f, 160.0f, 80.0f}, {2, 100.0f, 30.0f, 100.0f, 20.0f}, {0, 100.0f, 80.0f, 107.0f, 73.0f}};
    for (std::size_t i = 0; i < 3; ++i) {
        SCOPED_TRACE(i);
        EXPECT_EQ(triad.axes[i].index, axes[i].index);
        ASSERT_EQ(triad.axes[i].lines.size(), 3u);
        expectNear(triad.axes[i].lines[0].from, 100.0f, 80.0f);
        for (const LineSegment& line : triad.axes[i].lines) {
            expectNear(line.to, axes[i].tipX, axes[i].tipY);
        }
        expectNear({triad.axes[i].letterX, triad.axes[i].letterY, 0.0f}, axes[i].letterX, axes[i].letterY);
    }
    // Heads are 0.22 of the axis long and 0.09 wide on each side.
    expectNear(triad.axes[0].lines[1].from, 139.0f, 75.5f);
    expectNear(triad.axes[0].lines[2].from, 139.0f, 84.5f);
    expectNear(triad.axes[1].lines[1].from, 95.5f, 41.0f);
    expectNear(triad.axes[1].lines[2].from, 104.5f, 41.0f);
}

TEST(Triad, drawsTheNearestAxisLast)
{
    Camera3d camera;
    const auto order = [&](const Vector3f& direction) {
        camera.lookAt({}, direction, {0.1f, 0.2f, 1.0f});
        std::vector<std::size_t> indices;
        for (const Triad::Axis& axis : Triad::of(camera, 0.0f, 0.0f, 1.0f, 1.0f).axes) {
            indices.push_back(axis.index);
        }
        return indices;
    };
    // An axis is the nearer the more it points against the direction of the view.
    EXPECT_EQ(order({-3.0f, -2.0f, -1.0f}), (std::vector<std::size_t>{2, 1, 0}));
    EXPECT_EQ(order({1.0f, -2.0f, 3.0f}), (std::vector<std::size_t>{2, 0, 1}));
    EXPECT_EQ(order({2.0f, 3.0f, 1.0f}), (std::vector<std::size_t>{1, 0, 2}));
}

TEST(Triad, showsIn3dViewsThatAskForIt)
{
    OffscreenCanvas canvas(200, 200, 1);
    TestScene scene;
    scene.addSquare(1, 0xffffff);
    showFromAbove(canvas, scene);
    const auto settings = canvas.getCanvas3dSettings();
    settings->addRenderMask(RenderAxisOrientation);
    auto& indicator = *settings->getAxisOrientationIndicatorPtr();
    const auto count = [&] {
        const Picture picture = drawn(canvas);
        return picture.countDrawn(0, 0, 200, 200);
    };
    EXPECT_EQ(count(), 0);
    indicator.show(true);
    EXPECT_GT(count(), 50);
    settings->removeRenderMask(RenderAxisOrientation);
    EXPECT_EQ(count(), 0);
    settings->addRenderMask(RenderAxisOrientation);
    settings->setRenderMode(vxgraphics3d::Canvas3dSettings::RenderMode2d);
    EXPECT_EQ(count(), 0);
    settings->setRenderMode(vxgraphics3d::Canvas3dSettings::RenderMode3d);
    // 25.4 mm are 72 pixels of the screen: a line of 3 pixels to the right, in its own colour.
    indicator.setAxisLength(25.4f);
    indicator.setLineWidth(25.4f / 24.0f);
    indicator.setColor(vxgraphics3d::AxisOrientationIndicator::AxisX, vxgraphics3d::Color::fromRgb(0x123456));
    const Picture picture = drawn(canvas);
    int rows = 0;
    for (int y = 0; y < 200; ++y) {
        int pixels = 0;
        for (int x = 0; x < 200; ++x) {
            pixels += picture.at(x, y) == Rgb{0x12, 0x34, 0x56} ? 1 : 0;
        }
        rows += pixels > 60 ? 1 : 0;
    }
    EXPECT_EQ(rows, 3);
}

TEST(Triad, lettersAndNamesOfAxesAreNotMarkup)
{
    OffscreenCanvas canvas(300, 300, 1);
    TestScene scene;
    scene.addSquare(1, 0xffffff);
    showFromAbove(canvas, scene);
    const auto settings = canvas.getCanvas3dSettings();
    auto& indicator = *settings->getAxisOrientationIndicatorPtr();
    indicator.show(true);
    for (const unsigned decoration : {RenderAxisOrientation, RenderAxes}) {
        settings->setRenderMask(RenderPlots | RenderBackground | decoration);
        const auto count = [&](const char* label) {
            indicator.setLabel(vxgraphics3d::AxisOrientationIndicator::AxisX, label);
            return drawn(canvas).countDrawn(0, 0, 300, 300);
        };
        EXPECT_GT(count("{}"), count("") + 10) << "in markup an empty group";
    }
}

} // namespace
} // namespace vxrenderer
