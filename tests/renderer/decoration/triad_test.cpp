#include "renderer/decoration/triad.h"

#include "graphics3d/cameras/axisorientationindicator.h"
#include "graphics3d/cameras/camera3d.h"
#include "graphics3d/canvas/canvas3dsettings.h"
#include "renderer/frame/appearance.h"
#include "tests/renderer/support/testscene.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <vector>

namespace vxrenderer {
namespace {

using vxgraphics3d::AxisOrientationIndicator;
using vxgraphics3d::Camera3d;
using vxgraphics3d::Color;
using vxgraphics3d::Vector3f;

constexpr Triad::Sizes c_sizes = {50.0f, 2.0f, 5.0f, 15.0f};

void expectNear(const Vector3f& point, const Vector3f& expected)
{
    EXPECT_LT((point - expected).length(), 1e-3f) << point << ", not " << expected;
}

TEST(Triad, hasArrowsInTheDirectionsOfTheAxesFromFarToNear)
{
    Camera3d camera;
    // x towards the eye, y to the right, z upwards and a little away; the position of the camera and the stretching of
    // axes do not matter.
    camera.lookAt({10.0f, 0.0f, 0.0f}, {-0.8f, 0.0f, 0.6f}, {0.6f, 0.0f, 0.8f});
    camera.setAxisViewScales(1.0f, 2.0f, 3.0f);
    const std::array<Color, 3> colors = {Color::fromRgb(1), Color::fromRgb(2), Color::fromRgb(3)};
    const std::vector<Solid> solids = Triad(camera, c_sizes).solids(colors);
    using enum Solid::Shape;
    const struct {
        Solid::Shape shape;
        int color;
        Vector3f from, to;
    } expected[] = {{cone, 3, {0.0f, 28.0f, -21.0f}, {0.0f, 40.0f, -30.0f}},
                    {cylinder, 3, {0.0f, 0.0f, 0.0f}, {0.0f, 28.0f, -21.0f}},
                    {ball, 0x969696, {0.0f, 0.0f, 0.0f}, {0.0f, 0.0f, 0.0f}},
                    {cylinder, 2, {0.0f, 0.0f, 0.0f}, {35.0f, 0.0f, 0.0f}},
                    {cone, 2, {35.0f, 0.0f, 0.0f}, {50.0f, 0.0f, 0.0f}},
                    {cylinder, 1, {0.0f, 0.0f, 0.0f}, {0.0f, 21.0f, 28.0f}},
                    {cone, 1, {0.0f, 21.0f, 28.0f}, {0.0f, 30.0f, 40.0f}}};
    ASSERT_EQ(solids.size(), std::size(expected));
    for (std::size_t i = 0; i < solids.size(); ++i) {
        SCOPED_TRACE(i);
        EXPECT_EQ(solids[i].shape, expected[i].shape);
        EXPECT_EQ(solids[i].color.toRgb(), expected[i].color);
        expectNear(solids[i].from, expected[i].from);
        expectNear(solids[i].to, expected[i].to);
    }
}

/// Pixels of the triad that are drawn in one picture and not in the other.
std::vector<std::array<int, 2>> differences(const Picture& one, const Picture& other)
{
    std::vector<std::array<int, 2>> pixels;
    for (int y = 0; y < one.height; ++y) {
        for (int x = 0; x < one.width; ++x) {
            if (one.at(x, y) != other.at(x, y)) {
                pixels.push_back({x, y});
            }
        }
    }
    return pixels;
}

TEST(Triad, lettersTouchNoAxisFromAnyDirection)
{
    OffscreenCanvas canvas(160, 160, 4);
    TestScene scene;
    scene.addSquare(1, 0xffffff);
    showFromAbove(canvas, scene);
    const auto settings = canvas.getCanvas3dSettings();
    settings->setRenderMask(RenderBackground | RenderAxisOrientation);
    auto& indicator = *settings->getAxisOrientationIndicatorPtr();
    indicator.show(true);
    const auto drawnWith = [&](const std::array<const char*, 3>& letters) {
        for (std::size_t i = 0; i < letters.size(); ++i) {
            indicator.setLabel(static_cast<AxisOrientationIndicator::Axis>(i), letters[i]);
        }
        return drawnAsIs(canvas);
    };
    std::vector<std::array<double, 2>> views = {{0.0, 90.0}, {0.0, -90.0}, {90.0, 0.0}, {180.0, 0.0}, {45.0, 0.0}};
    for (int i = 0; i < 60; ++i) {
        views.push_back({137.5 * i, -89.0 + 178.0 * i / 59.0});
    }
    for (const auto& [azimuth, elevation] : views) {
        lookFrom(canvas, azimuth, elevation);
        const Picture axes = drawnWith({"", "", ""});
        const Picture x = drawnWith({"x", "", ""});
        const Picture all = drawnWith({"x", "Y", "zz"});
        ASSERT_GT(differences(x, axes).size(), 5u);
        ASSERT_GT(differences(all, axes).size(), 40u);
        int numTouching = 0;
        for (const auto& [column, row] : differences(all, axes)) {
            for (int y = std::max(row - 1, 0); y <= std::min(row + 1, 159); ++y) {
                for (int x1 = std::max(column - 1, 0); x1 <= std::min(column + 1, 159); ++x1) {
                    numTouching += axes.at(x1, y) != c_white ? 1 : 0;
                }
            }
        }
        EXPECT_EQ(numTouching, 0) << azimuth << ", " << elevation;
    }
}

TEST(Triad, lettersStayNearTheirTips)
{
    const std::array<Triad::Letter, 3> letters = {{{10.0f, 12.0f}, {10.0f, 12.0f}, {10.0f, 12.0f}}};
    Camera3d camera;
    for (int i = 0; i < 200; ++i) {
        const float turn = 0.37f * static_cast<float>(i);
        const float height = -0.99f + 1.98f * static_cast<float>(i) / 199.0f;
        const float round = std::sqrt(1.0f - height * height);
        camera.lookAt({}, {round * std::cos(turn), round * std::sin(turn), height}, {0.0f, 0.1f, 1.0f});
        const Triad triad(camera, c_sizes);
        const auto positions = triad.placeLetters(letters, 3.0f);
        for (std::size_t axis = 0; axis < 3; ++axis) {
            const float distance = std::hypot(positions[axis].x - 50.0f * triad.directions[axis].x,
                                              positions[axis].y - 50.0f * triad.directions[axis].y);
            EXPECT_LT(distance, 40.0f) << i;
        }
    }
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
    // 25.4 mm are 72 pixels of the screen. A shaft of 9 pixels to the right is lit from above, in shades of its colour.
    indicator.setAxisLength(25.4f);
    indicator.setLineWidth(25.4f / 12.0f);
    indicator.setColor(vxgraphics3d::AxisOrientationIndicator::AxisX, Color::fromRgb(0x800000));
    const Picture picture = drawn(canvas);
    std::vector<int> shades;
    for (int y = 0; y < 200; ++y) {
        int pixels = 0;
        int red = 0;
        for (int x = 0; x < 200; ++x) {
            const Rgb pixel = picture.at(x, y);
            const bool isRed = pixel[0] > pixel[1] + 40 && pixel[1] == pixel[2];
            pixels += isRed ? 1 : 0;
            red += isRed ? pixel[0] : 0;
        }
        if (pixels > 35) {
            shades.push_back(red / pixels);
        }
    }
    ASSERT_EQ(shades.size(), 9u);
    EXPECT_GT(shades[2], shades[8] + 30);
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
