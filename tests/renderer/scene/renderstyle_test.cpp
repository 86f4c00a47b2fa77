// What the style of a view does to its pictures: creases, feature edges, studio light.

#include "graphics3d/canvas/canvas3dsettings.h"
#include "graphics3d/canvas/hardcopysettings.h"
#include "graphics3d/canvas/scenesettings.h"
#include "graphics3d/lights/directionlightsource.h"
#include "graphics3d/lights/scenelight.h"
#include "graphics3d/lights/scenesettingslight.h"
#include "renderer/frame/view.h"
#include "tests/renderer/support/testscene.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>
#include <set>
#include <stdexcept>

namespace vxrenderer {
namespace {

using vxdatacarrier::PostDataObject;
using vxgraphics3d::SceneGraphPlotSurface2d;
using vxgraphics3d::SceneGraphPlotSurface3d;
using vxgraphics3d::Vector3f;

constexpr int c_size = 240;
constexpr RenderStyle c_plain;
constexpr RenderStyle c_studio = {.isStudio = true};
constexpr RenderStyle c_edges = {.showFeatureEdges = true};

/// A body with one normal per point, away from the origin. The values are the x coordinates.
PostDataObject bodyOf(const std::vector<Vector3f>& points, const std::vector<std::array<int, 3>>& triangles)
{
    GridRecord grid;
    grid.height = [](double, double) { return 0.0; };
    PostDataObject record = grid.make();
    auto& axes = *record.m_coordinates[0];
    auto& normals = *record.m_normals[0];
    auto& corners = *record.m_elements[0];
    axes.assign(3, {});
    normals.assign(3, {});
    corners.assign(3, {});
    for (const Vector3f& point : points) {
        const Vector3f normal = point.normalized();
        for (std::size_t axis = 0; axis < 3; ++axis) {
            axes[axis].push_back(static_cast<double>(std::array{point.x, point.y, point.z}[axis]));
            normals[axis].push_back(std::array{normal.x, normal.y, normal.z}[axis]);
        }
    }
    for (const auto& triangle : triangles) {
        for (std::size_t corner = 0; corner < 3; ++corner) {
            corners[corner].push_back(triangle[corner]);
        }
    }
    (*record.m_data[0])[0] = axes[0];
    for (std::size_t axis = 0; axis < 3; ++axis) {
        const auto [min, max] = std::ranges::minmax(axes[axis]);
        (*record.m_bounds)[axis] = {min, max};
    }
    *record.m_dataMin[0] = {(*record.m_bounds)[0][0]};
    *record.m_dataMax[0] = {(*record.m_bounds)[0][1]};
    return record;
}

/// The cube from -1 to 1 with eight points.
PostDataObject cube()
{
    std::vector<Vector3f> points;
    for (int i = 0; i < 8; ++i) {
        points.emplace_back(static_cast<float>((i & 1) * 2 - 1), static_cast<float>((i & 2) - 1),
                            static_cast<float>((i >> 2) * 2 - 1));
    }
    return bodyOf(points, {{0, 2, 3},
                           {0, 3, 1},
                           {4, 5, 7},
                           {4, 7, 6},
                           {0, 1, 5},
                           {0, 5, 4},
                           {2, 6, 7},
                           {2, 7, 3},
                           {0, 4, 6},
                           {0, 6, 2},
                           {1, 3, 7},
                           {1, 7, 5}});
}

PostDataObject globe(int cells)
{
    std::vector<Vector3f> points;
    std::vector<std::array<int, 3>> triangles;
    for (int row = 0; row <= cells; ++row) {
        for (int column = 0; column < 2 * cells; ++column) {
            const double up = std::numbers::pi * (row - 0.5 * cells) / cells;
            const double around = std::numbers::pi * column / cells;
            points.emplace_back(static_cast<float>(std::cos(up) * std::cos(around)),
                                static_cast<float>(std::cos(up) * std::sin(around)), static_cast<float>(std::sin(up)));
            const int next = (column + 1) % (2 * cells);
            const int a = row * 2 * cells;
            if (row < cells) {
                triangles.push_back({a + column, a + next, a + 2 * cells + next});
                triangles.push_back({a + column, a + 2 * cells + next, a + 2 * cells + column});
            }
        }
    }
    return bodyOf(points, triangles);
}

int brightness(const Rgb& color)
{
    return std::max({color[0], color[1], color[2]});
}

class RenderStyleTest : public ::testing::Test {
protected:
    RenderStyleTest()
    {
        showFromAbove(m_canvas, m_scene);
        auto& light = *m_scene.scene->getSceneLight();
        auto& lamp = static_cast<vxgraphics3d::DirectionLightSource&>(*light.lightSource(light.createDirectionLight()));
        lamp.setFromDirection(false, Vector3f(-0.25f, 0.35f, 1.0f));
        lamp.setIntensity(0.6f);
        lamp.setActive(true);
        light.setAmbientIntensity(0.4f);
    }

    /// Adds a body in one colour.
    boost::shared_ptr<SceneGraphPlotSurface3d> add(int id, const PostDataObject& record)
    {
        const auto plot = m_scene.addSquare(id, 0xc0c0c0);
        plot->fillPlot(record);
        return plot;
    }
    Picture pictureIn(const RenderStyle& style)
    {
        m_canvas.setStyle(style);
        return drawn(m_canvas);
    }
    Rgb at(const Picture& picture, const Vector3f& point) const { return colorAt(m_canvas, picture, point); }

    OffscreenCanvas m_canvas{c_size, c_size, 4};
    TestScene m_scene;
};

TEST_F(RenderStyleTest, aCubeOfEightPointsHasOneColourPerFace)
{
    add(1, cube());
    lookFrom(m_canvas, -40.0, 30.0);
    for (const RenderStyle& style : {c_plain, c_edges}) {
        const Picture picture = pictureIn(style);
        std::set<Rgb> colors;
        for (int axis = 0; axis < 3; ++axis) {
            const auto onFace = [&](float a, float b) {
                return axis == 0 ? Vector3f(1.0f, a, b) : axis == 1 ? Vector3f(a, -1.0f, b) : Vector3f(a, b, 1.0f);
            };
            const Rgb color = at(picture, onFace(0.0f, 0.0f));
            colors.insert(color);
            for (const float a : {-0.8f, -0.3f, 0.8f}) {
                for (const float b : {-0.8f, 0.4f, 0.8f}) {
                    EXPECT_EQ(at(picture, onFace(a, b)), color) << axis << ' ' << a << ' ' << b;
                }
            }
        }
        EXPECT_EQ(colors.size(), 3u);
    }
    RenderStyle smooth;
    smooth.creaseAngle = RenderStyle::c_widestAngle;
    const Picture picture = pictureIn(smooth);
    EXPECT_NE(at(picture, {1.0f, -0.8f, 0.0f}), at(picture, {1.0f, 0.8f, 0.0f})) << "the normals of the points";
}

TEST_F(RenderStyleTest, featureEdgesAreDarkWhereTheyAreSeenAndNowhereElse)
{
    const auto plot = add(1, cube());
    lookFrom(m_canvas, -40.0, 30.0);
    const Picture bare = pictureIn(c_plain);
    const Picture picture = pictureIn(c_edges);
    // Three edges at the corner that is nearest, one of the outline, and three that are behind the body.
    for (const Vector3f& middle : {Vector3f(1.0f, -1.0f, 0.3f), Vector3f(0.3f, -1.0f, 1.0f), Vector3f(1.0f, 0.3f, 1.0f),
                                   Vector3f(-1.0f, -1.0f, 0.3f)}) {
        EXPECT_LT(brightness(at(picture, middle)), 90);
        EXPECT_GT(brightness(at(bare, middle)), 110);
    }
    for (const Vector3f& middle :
         {Vector3f(-1.0f, 1.0f, -0.3f), Vector3f(-0.3f, 1.0f, -1.0f), Vector3f(-1.0f, -0.3f, -1.0f)}) {
        EXPECT_EQ(at(picture, middle), at(bare, middle));
    }
    int changed = 0;
    for (int y = 0; y < c_size; ++y) {
        for (int x = 0; x < c_size; ++x) {
            changed += picture.at(x, y) != bare.at(x, y) ? 1 : 0;
        }
    }
    // Nine edges of about 65 pixels, two to three pixels wide with their smooth borders.
    EXPECT_GT(changed, 900);
    EXPECT_LT(changed, 2200);

    plot->setValueRestrictions(-0.5, 2.0);
    EXPECT_EQ(at(pictureIn(c_edges), {-1.0f, -1.0f, 0.3f}), c_white) << "an edge of what a restriction hides";
}

TEST_F(RenderStyleTest, theEdgesOfALineMeetWithoutAGap)
{
    // The same triangle with one border in five pieces, whose points are in no order.
    const std::vector<Vector3f> points = {{1.0f, -0.7f, 0.0f},  {-1.0f, -1.0f, 0.0f},  {0.0f, 1.0f, 0.0f},
                                          {0.2f, -0.82f, 0.0f}, {-0.6f, -0.94f, 0.0f}, {0.6f, -0.76f, 0.0f},
                                          {-0.2f, -0.88f, 0.0f}};
    const auto plot = add(1, bodyOf(points, {{1, 4, 2}, {4, 6, 2}, {6, 3, 2}, {3, 5, 2}, {5, 0, 2}}));
    const Picture pieces = pictureIn(c_edges);
    plot->fillPlot(bodyOf({points[0], points[1], points[2]}, {{1, 0, 2}}));
    const Picture whole = pictureIn(c_edges);
    for (float x = -0.95f; x < 0.95f; x += 0.01f) {
        const Vector3f point(x, -0.85f + 0.15f * x, 0.0f);
        EXPECT_NEAR(brightness(at(pieces, point)), brightness(at(whole, point)), 2) << x;
    }
}

TEST_F(RenderStyleTest, aLowStepHasNoSilhouetteAndAHighOneADarkOne)
{
    const RenderStyle style = {.creaseAngle = RenderStyle::c_widestAngle, .showFeatureEdges = true};
    const auto plot = add(1, cube());
    lookFrom(m_canvas, -90.0, 90.0);
    const auto step = [&](float height) {
        const std::vector<Vector3f> points = {{-1.0f, -1.0f, 0.0f},  {-1.0f, 1.0f, 0.0f},   {0.0f, -1.0f, 0.0f},
                                              {0.0f, 1.0f, 0.0f},    {0.0f, -1.0f, height}, {0.0f, 1.0f, height},
                                              {1.0f, -1.0f, height}, {1.0f, 1.0f, height}};
        plot->fillPlot(bodyOf(points, {{0, 2, 3}, {0, 3, 1}, {2, 4, 5}, {2, 5, 3}, {4, 6, 7}, {4, 7, 5}}));
        const Picture bare = pictureIn({.creaseAngle = RenderStyle::c_widestAngle});
        const Picture picture = pictureIn(style);
        float darkest = 1.0f;
        for (float x = -0.05f; x < 0.05f; x += 0.005f) {
            const Vector3f point(x, 0.0f, height);
            darkest = std::min(darkest, static_cast<float>(brightness(at(picture, point))) /
                                            static_cast<float>(brightness(at(bare, point))));
        }
        return darkest;
    };
    pictureIn(style);
    const auto pixel =
        static_cast<float>(1.0 / (pixelOf(m_canvas, {1.0f, 0.0f, 0.0f})[0] - pixelOf(m_canvas, {0.0f, 0.0f, 0.0f})[0]));
    EXPECT_GT(step(3.0f * pixel), 0.98f);
    EXPECT_LT(step(20.0f * pixel), 0.7f);
}

TEST_F(RenderStyleTest, silhouettesFollowTheOutlineInFrontOfOtherBodiesAndNothingInside)
{
    add(1, globe(20));
    m_scene.addSquare(2, 0xc0c0c0, -3.0)->setHeightScale(1.0f);
    lookFrom(m_canvas, -90.0, 90.0);
    for (const Quality quality : {Quality::full, Quality::draft}) {
        m_canvas.zoomExtents();
        m_canvas.setStyle(c_plain);
        const Picture bare = drawnAsIs(m_canvas, quality);
        m_canvas.setStyle(c_edges);
        const Picture picture = drawnAsIs(m_canvas, quality);
        int darkest = 255;
        for (int step = 0; step < 200; ++step) {
            const double around = 0.25 * std::numbers::pi * step / 200;
            const auto point = [&](double radius) {
                return Vector3f(static_cast<float>(radius * std::cos(around)),
                                static_cast<float>(radius * std::sin(around)), 0.0f);
            };
            EXPECT_EQ(at(picture, point(0.9)), at(bare, point(0.9)));
            const int outline = std::min({brightness(at(picture, point(0.99))), brightness(at(picture, point(1.0))),
                                          brightness(at(picture, point(1.01)))});
            EXPECT_LT(outline, 130) << around;
            darkest = std::min(darkest, outline);
        }
        EXPECT_LT(darkest, 60);
    }
}

TEST_F(RenderStyleTest, aHeightFieldHasNoCreases)
{
    GridRecord record;
    record.cells = 8;
    record.value = [](double x, double) { return x; };
    const auto plot = m_scene.add<SceneGraphPlotSurface2d>(1, record, {0xc0c0c0});
    PostDataObject raised = record.make();
    raised.m_dataIndex[PostDataObject::HeightData] = 0;
    (*raised.m_data[0])[0][40] = 0.9;
    plot->fillPlot(raised);
    lookFrom(m_canvas, -40.0, 30.0);
    RenderStyle sharp;
    sharp.creaseAngle = 5.0f;
    EXPECT_EQ(pictureIn(sharp).bytes, pictureIn({.creaseAngle = RenderStyle::c_widestAngle}).bytes);
    const Picture picture = pictureIn(c_plain);
    std::set<Rgb> colors;
    for (int y = 0; y < c_size; ++y) {
        for (int x = 0; x < c_size; ++x) {
            colors.insert(picture.at(x, y));
        }
    }
    EXPECT_GT(colors.size(), 20u) << "it is not raised";
}

TEST_F(RenderStyleTest, ambientLightIsWeakerInAnInnerCornerAndTheSameOnAFlatPlate)
{
    m_scene.addSquare(1, 0xc0c0c0);
    lookFrom(m_canvas, -60.0, 40.0);
    const auto onFloor = [](float y) { return Vector3f(0.5f, y, 0.0f); };
    const Picture plate = pictureIn(c_studio);
    const Rgb open = at(plate, onFloor(0.5f));
    for (const float y : {0.05f, 0.3f, 0.7f, 0.95f}) {
        EXPECT_EQ(at(plate, onFloor(y)), open);
    }
    // A wall along the border farther away.
    add(2, bodyOf({{0.0f, 1.0f, 0.0f}, {1.0f, 1.0f, 0.0f}, {1.0f, 1.0f, 0.8f}, {0.0f, 1.0f, 0.8f}},
                  {{0, 1, 2}, {0, 2, 3}}));
    const Picture corner = pictureIn(c_studio);
    EXPECT_EQ(at(corner, onFloor(0.3f)), open);
    int last = brightness(open);
    for (const float y : {0.9f, 0.94f, 0.98f}) {
        const int here = brightness(at(corner, onFloor(y)));
        EXPECT_LE(here, last + 1) << y;
        last = here;
    }
    EXPECT_LT(last, brightness(open) - 15);
    EXPECT_EQ(corner.at(0, 0), c_white);
    // What is drawn is drawn in the same pixels as with plain light: the background around it is not touched.
    const Picture plain = pictureIn(c_plain);
    EXPECT_EQ(corner.countDrawn(0, 0, c_size, c_size), plain.countDrawn(0, 0, c_size, c_size));
}

TEST_F(RenderStyleTest, theShadeInFrontOfSomethingSmallHasNoPattern)
{
    m_canvas.resize(800, 800);
    m_scene.addSquare(1, 0xc0c0c0);
    add(2, bodyOf({{0.48f, 0.5f, 0.0f}, {0.52f, 0.5f, 0.0f}, {0.52f, 0.5f, 0.04f}, {0.48f, 0.5f, 0.04f}},
                  {{0, 1, 2}, {0, 2, 3}}));
    lookFrom(m_canvas, -90.0, 45.0);
    const Picture picture = pictureIn(c_studio);
    const auto [x0, y0] = pixelOf(m_canvas, {0.5f, 0.5f, 0.0f});
    // Shade that changes evenly has small second differences.
    int roughest = 0;
    int darkest = 255;
    for (int y = static_cast<int>(y0) + 8; y < static_cast<int>(y0) + 40; ++y) {
        for (int x = static_cast<int>(x0) - 40; x < static_cast<int>(x0) + 40; ++x) {
            const int here = brightness(picture.at(x, y));
            roughest = std::max(
                roughest, std::abs(brightness(picture.at(x - 4, y)) - 2 * here + brightness(picture.at(x + 4, y))));
            darkest = std::min(darkest, here);
        }
    }
    EXPECT_LE(roughest, 4);
    EXPECT_LT(darkest, 190);
}

TEST_F(RenderStyleTest, studioLightKeepsHueAndSaturationWherePlainLightClips)
{
    auto& light = *m_scene.scene->getSceneLight();
    light.setAmbientIntensity(1.0f);
    light.lightSource(light.createDirectionLight())->setActive(true);
    m_scene.addSquare(1, 0xe08040);
    const Vector3f middle(0.5f, 0.5f, 0.0f);
    EXPECT_EQ(at(pictureIn(c_plain), middle)[0], 255);
    const Picture studio = pictureIn(c_studio);
    const Rgb color = at(studio, middle);
    EXPECT_GT(color[0], 0xe0 * 9 / 10) << "hardly darker than in the table";
    EXPECT_LT(color[0], 255);
    EXPECT_NEAR(color[1] / static_cast<double>(color[0]), 0x80 / 224.0, 0.01);
    EXPECT_NEAR(color[2] / static_cast<double>(color[0]), 0x40 / 224.0, 0.01);
}

TEST_F(RenderStyleTest, aPictureIsTheSameEachTimeAndInFlatOrUnlitViewsWithEachLight)
{
    add(1, globe(12));
    add(2, cube());
    const RenderStyle all = {.isStudio = true, .showFeatureEdges = true};
    lookFrom(m_canvas, -40.0, 30.0);
    const Picture first = pictureIn(all);
    EXPECT_NE(first.bytes, pictureIn(c_plain).bytes);
    drawnAsIs(m_canvas, Quality::draft);
    EXPECT_EQ(pictureIn(all).bytes, first.bytes);
    OffscreenCanvas other(c_size, c_size, 4);
    showFromAbove(other, m_scene);
    lookFrom(other, -40.0, 30.0);
    other.setStyle(all);
    EXPECT_EQ(drawn(other).bytes, first.bytes);

    vxgraphics3d::HardcopySettings hardcopy;
    const auto exported = m_canvas.encodeHardcopy(hardcopy, c_size, c_size);
    EXPECT_EQ(m_canvas.encodeHardcopy(hardcopy, c_size, c_size), exported);
    m_canvas.setStyle(c_plain);
    EXPECT_NE(m_canvas.encodeHardcopy(hardcopy, c_size, c_size), exported);

    m_canvas.getSceneSettings()->getLight()->setUseLight(false);
    const Picture unlit = pictureIn(c_plain);
    EXPECT_EQ(pictureIn(c_studio).bytes, unlit.bytes);
    showFlat(m_canvas, m_scene);
    EXPECT_EQ(pictureIn(all).bytes, pictureIn(c_plain).bytes);
}

TEST_F(RenderStyleTest, refusesNumbersThatMakeNoSense)
{
    for (const float angle : {-1.0f, 181.0f, std::nanf("")}) {
        EXPECT_THROW(m_canvas.setStyle({.creaseAngle = angle}), std::invalid_argument) << angle;
    }
    for (const int factor : {0, 5}) {
        EXPECT_THROW(m_canvas.setStyle({.supersampling = factor}), std::invalid_argument) << factor;
    }
    EXPECT_EQ(m_canvas.getStyle().supersampling, 1);
}

} // namespace
} // namespace vxrenderer
