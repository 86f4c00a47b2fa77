#include "graphics3d/canvas/scenesettings.h"
#include "graphics3d/lights/directionlightsource.h"
#include "graphics3d/lights/scenelight.h"
#include "graphics3d/lights/scenesettingslight.h"
#include "graphics3d/plots/vector/scenegraphplotarrow2d.h"
#include "graphics3d/plots/vector/scenegraphplotarrow3d.h"
#include "graphics3d/plots/vector/scenegraphplotprincipal.h"
#include "graphics3d/plots/vector/scenegraphplotribbon3d.h"
#include "graphics3d/plots/vector/scenegraphplotsphere3d.h"
#include "graphics3d/plots/vector/scenegraphplottube2d.h"
#include "graphics3d/plots/vector/scenegraphplottube3d.h"
#include "tests/renderer/support/testscene.h"
#include "tests/support/postrecord.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <numbers>
#include <string>

namespace vxrenderer {
namespace {

using vxgraphics3d::BoundingBox;
using vxgraphics3d::Color;
using vxgraphics3d::PostRecord;
using vxgraphics3d::SceneGraphPlotArrow;
using vxgraphics3d::SceneGraphPlotArrow2d;
using vxgraphics3d::SceneGraphPlotArrow3d;
using vxgraphics3d::SceneGraphPlotPrincipal;
using vxgraphics3d::SceneGraphPlotRibbon3d;
using vxgraphics3d::SceneGraphPlotSphere3d;
using vxgraphics3d::SceneGraphPlotTube2d;
using vxgraphics3d::SceneGraphPlotTube3d;
using vxgraphics3d::Vector3f;
using Record = vxdatacarrier::PostDataObject;
using Scaling = SceneGraphPlotArrow::ScalingType;
using Anchor = SceneGraphPlotArrow::AnchorPoint;

constexpr Rgb c_red = {255, 0, 0};
constexpr Rgb c_green = {0, 255, 0};
constexpr Rgb c_blue = {0, 0, 255};

int brightest(const Rgb& color)
{
    return *std::ranges::max_element(color);
}

/// Plots of vectors and lines seen from above, without perspective and without light.
class VectorPaintersTest : public ::testing::Test {
protected:
    VectorPaintersTest() { showFromAbove(m_canvas, m_scene); }

    template <class Plot>
    boost::shared_ptr<Plot> add(const boost::shared_ptr<Plot>& plot)
    {
        plot->setColor(Color::fromRgb(0xff0000));
        m_scene.group->addPlot(plot);
        return plot;
    }

    bool isDrawn(const Picture& picture, float x, float y) const
    {
        return colorAt(m_canvas, picture, {x, y, 0.0f}) != c_white;
    }
    /// The first and the last x that is drawn in the row of y, in units of the scene.
    std::pair<double, double> extentAt(const Picture& picture, float y) const
    {
        const auto [origin, row] = pixelOf(m_canvas, {0.0f, y, 0.0f});
        const double unit = pixelOf(m_canvas, {1.0f, y, 0.0f})[0] - origin;
        double first = std::numeric_limits<double>::infinity();
        double last = -first;
        for (int x = 0; x < picture.width; ++x) {
            if (picture.at(x, static_cast<int>(row)) != c_white) {
                first = std::min(first, (x - origin) / unit);
                last = std::max(last, (x + 1 - origin) / unit);
            }
        }
        return {first, last};
    }

    OffscreenCanvas m_canvas{400, 400, 4};
    TestScene m_scene;
};

TEST_F(VectorPaintersTest, anArrowHasAShaftAndAHeadOfTheDescribedSizes)
{
    const auto plot = add(boost::make_shared<SceneGraphPlotArrow3d>(1));
    plot->setShaftRadius(0.05f);
    plot->setHeadRadius(0.2f);
    plot->setHeadLength(0.5f);
    plot->allocate(3);
    plot->appendArrow(0, 0, 0, 1, 0, 0, 0);
    plot->appendArrow(0, 0.5f, 0, 0, 0, 0, 0);                                        // no length
    plot->appendArrow(0, -0.5f, 0, std::numeric_limits<float>::quiet_NaN(), 0, 0, 0); // nowhere
    plot->finishArrows(BoundingBox(-1.0f, 1.0f, -1.0f, 1.0f, -1.0f, 1.0f));
    const Picture picture = drawn(m_canvas);
    EXPECT_TRUE(isDrawn(picture, 0.02f, 0.0f));
    EXPECT_TRUE(isDrawn(picture, 0.3f, 0.04f));
    EXPECT_FALSE(isDrawn(picture, 0.3f, 0.06f));
    EXPECT_FALSE(isDrawn(picture, 0.49f, 0.15f));
    EXPECT_TRUE(isDrawn(picture, 0.52f, 0.18f));
    EXPECT_TRUE(isDrawn(picture, 0.75f, 0.09f));
    EXPECT_FALSE(isDrawn(picture, 0.75f, 0.12f));
    EXPECT_TRUE(isDrawn(picture, 0.97f, 0.0f));
    EXPECT_FALSE(isDrawn(picture, 1.02f, 0.0f));
    EXPECT_FALSE(isDrawn(picture, -0.02f, 0.0f));
    EXPECT_FALSE(isDrawn(picture, 0.0f, 0.5f));
    EXPECT_FALSE(isDrawn(picture, 0.0f, -0.5f));
    EXPECT_EQ(colorAt(m_canvas, picture, {0.75f, 0.0f, 0.0f}), c_red);
}

TEST_F(VectorPaintersTest, scalingMapsLengthsAndTheAnchorMovesArrows)
{
    const auto plot = add(boost::make_shared<SceneGraphPlotArrow3d>(1));
    plot->setLogRange(100.0f);
    plot->allocate(3);
    plot->appendArrow(0, 1, 0, 1, 0, 0, 0);
    plot->appendArrow(0, 0, 0, 0.25f, 0, 0, 0);
    plot->appendArrow(0, -1, 0, 0.009f, 0, 0, 0); // below the logarithmic range
    plot->finishArrows(BoundingBox(-1.0f, 1.0f, -1.2f, 1.2f, -0.1f, 0.1f));
    const std::pair<Scaling, double> scalings[] = {{Scaling::proportional, 0.25},
                                                   {Scaling::normalized, 1.0},
                                                   {Scaling::logarithmic, 1.0 + std::log(0.25) / std::log(100.0)},
                                                   {Scaling::proportionalEqualHeads, 0.25},
                                                   {Scaling::squareRoot, 0.5}};
    const std::pair<Anchor, double> anchors[] = {{Anchor::tail, 0.0}, {Anchor::center, 0.5}, {Anchor::tip, 1.0}};
    for (const auto& [scaling, length] : scalings) {
        plot->setScalingType(scaling);
        for (const auto& [anchor, before] : anchors) {
            plot->setAnchorPoint(anchor);
            const Picture picture = drawn(m_canvas);
            const std::string name =
                std::to_string(static_cast<int>(scaling)) + " " + std::to_string(static_cast<int>(anchor));
            EXPECT_NEAR(extentAt(picture, 1.0f).first, -before, 0.02) << name;
            EXPECT_NEAR(extentAt(picture, 1.0f).second, 1.0 - before, 0.03) << name;
            EXPECT_NEAR(extentAt(picture, 0.0f).first, -before * length, 0.02) << name;
            EXPECT_NEAR(extentAt(picture, 0.0f).second, (1.0 - before) * length, 0.03) << name;
            if (scaling == Scaling::logarithmic) {
                EXPECT_GT(pixelOf(m_canvas, {0.0f, -1.0f, 0.0f})[1], picture.height) << "of no length " << name;
            }
        }
    }
    // A long arrow and a shorter one that still has a shaft, with heads of equal size.
    plot->setScalingType(Scaling::proportionalEqualHeads);
    plot->setAnchorPoint(Anchor::tail);
    plot->allocate(2);
    plot->appendArrow(0, 0.5f, 0, 1, 0, 0, 0);
    plot->appendArrow(0, -0.5f, 0, 0.5f, 0, 0, 0);
    const Picture picture = drawn(m_canvas);
    for (const float y : {0.5f, -0.5f}) {
        const float tip = y > 0 ? 1.0f : 0.5f;
        EXPECT_TRUE(isDrawn(picture, tip - 0.28f, y + 0.08f));
        EXPECT_FALSE(isDrawn(picture, tip - 0.32f, y + 0.08f));
        EXPECT_TRUE(isDrawn(picture, 0.1f, y + 0.02f));
        EXPECT_FALSE(isDrawn(picture, 0.1f, y + 0.05f));
    }
    plot->setCommonArrowScale(0.5f);
    EXPECT_NEAR(extentAt(drawn(m_canvas), 0.5f).second, 0.5, 0.03);
}

TEST_F(VectorPaintersTest, onlyChangesOfRecordsLoadArrowsAgain)
{
    const auto plot = add(boost::make_shared<SceneGraphPlotArrow3d>(1));
    plot->allocate(1);
    plot->appendArrow(0, 0, 0, 1, 0, 0, 0);
    plot->finishArrows(BoundingBox(-1.0f, 1.0f, -1.0f, 1.0f, -0.1f, 0.1f));
    const auto uploads = [&](auto change) {
        const int before = m_canvas.getUploadCounts().meshes;
        change();
        drawn(m_canvas);
        return m_canvas.getUploadCounts().meshes - before;
    };
    EXPECT_EQ(uploads([] {}), 2); // the mesh and its copies
    EXPECT_EQ(uploads([] {}), 0);
    EXPECT_EQ(uploads([&] { plot->setLegendLimits(0, 9); }), 0);
    EXPECT_EQ(uploads([&] { plot->setAnchorPoint(Anchor::center); }), 1);
    EXPECT_EQ(uploads([&] { plot->setHeadRadius(0.4f); }), 1);
    EXPECT_EQ(uploads([&] { plot->setCommonArrowScale(0.5f); }), 1);
    EXPECT_EQ(uploads([&] { plot->setScalingType(Scaling::proportionalEqualHeads); }), 4); // heads and shafts
    EXPECT_EQ(uploads([&] { plot->setAnchorPoint(Anchor::tail); }), 2);
    EXPECT_EQ(uploads([&] { plot->setScalingType(Scaling::proportional); }), 1);
}

TEST_F(VectorPaintersTest, arrowsInThePlaneAreFlatAndColoredByTheirData)
{
    const auto plot = add(boost::make_shared<SceneGraphPlotArrow2d>(1));
    plot->setColorTable("arrows", {{0, 0, 1}, {1, 0, 0}}, false);
    plot->setHeadRadius(0.2f);
    // Two points 2 apart: the longest arrow is 0.85 times 2 over the root of 2, halved for the missing extent in y.
    plot->fillPlot(PostRecord()
                       .role(Record::VectorX, 0)
                       .role(Record::VectorY, 1)
                       .role(Record::ColorData, 0)
                       .bounds({{0, 2}, {0, 2}})
                       .group({{0, 2}, {0, 2}}, {}, {{3, -3}, {0, 3}}));
    const float longest = 0.85f * std::sqrt(2.0f);
    for (const bool isFlat : {true, false}) {
        if (isFlat) {
            showFlat(m_canvas, m_scene);
        } else {
            showFromAbove(m_canvas, m_scene);
        }
        const Picture picture = drawn(m_canvas);
        const float part = std::sqrt(0.5f);
        EXPECT_EQ(colorAt(m_canvas, picture, {0.3f * part * longest, 0.0f, 0.0f}), c_red);
        EXPECT_EQ(colorAt(m_canvas, picture, {0.72f * part * longest, 0.17f * part * longest, 0.0f}), c_red);
        EXPECT_FALSE(isDrawn(picture, 0.6f * part * longest, 0.17f * part * longest));
        // To the upper left, from the second point.
        const auto along = [&](float ahead, float aside) {
            return Vector3f(2.0f + longest * part * (-ahead - aside), 2.0f + longest * part * (ahead - aside), 0.0f);
        };
        EXPECT_EQ(colorAt(m_canvas, picture, along(0.3f, 0.0f)), c_blue);
        EXPECT_EQ(colorAt(m_canvas, picture, along(0.72f, 0.16f)), c_blue);
        EXPECT_EQ(colorAt(m_canvas, picture, along(0.72f, -0.16f)), c_blue);
        EXPECT_EQ(colorAt(m_canvas, picture, along(0.72f, 0.21f)), c_white);
        EXPECT_EQ(colorAt(m_canvas, picture, along(0.6f, 0.16f)), c_white);
    }
}

/// A point with three axes along x, y and z.
PostRecord axes(const std::vector<double>& lengths)
{
    PostRecord record;
    Record::DoubleArrays data{{0.0}, {1.0}};
    for (int axis = 0; axis < 3; ++axis) {
        data.push_back({lengths[static_cast<std::size_t>(axis)]});
        record.role(Record::PrincipalLengths + axis, 2 + axis);
        for (int component = 0; component < 3; ++component) {
            record.role(Record::PrincipalX + 3 * component + axis, axis == component ? 1 : 0);
        }
    }
    return record.bounds({{-1, 1}, {-1, 1}, {-1, 1}}).group({{0}, {0}, {0}}, {}, data);
}

TEST_F(VectorPaintersTest, arrowsOfTensionPointOutwardsAndThoseOfCompressionInwards)
{
    const auto plot = add(boost::make_shared<SceneGraphPlotPrincipal>(3, true, 1));
    plot->setHeadRadius(0.2f);
    plot->setHeadLength(0.4f);
    plot->fillPlot(axes({2.0, -2.0, 0.0}));
    const float reach = plot->getMaxLength() * 0.4f;
    const Picture picture = drawn(m_canvas);
    for (const float side : {-1.0f, 1.0f}) {
        const float outer = side * 0.65f * reach; // where an outward head is wide
        const float inner = side * 0.35f * reach; // where an inward one is
        const float aside = 0.15f * reach;
        EXPECT_TRUE(isDrawn(picture, outer, aside)) << side;
        EXPECT_FALSE(isDrawn(picture, inner, aside)) << side;
        EXPECT_TRUE(isDrawn(picture, side * 0.95f * reach, 0.0f)) << side;
        EXPECT_TRUE(isDrawn(picture, aside, inner)) << side;
        EXPECT_FALSE(isDrawn(picture, aside, outer)) << side;
        EXPECT_TRUE(isDrawn(picture, 0.0f, side * 0.95f * reach)) << side;
        EXPECT_FALSE(isDrawn(picture, side * 1.05f * reach, 0.0f)) << side;
    }
}

TEST_F(VectorPaintersTest, axesOfCoordinateSystemsHaveTheColorsOfTheTableInTheirOrder)
{
    const auto plot = add(boost::make_shared<SceneGraphPlotPrincipal>(3, false, 1));
    plot->setColorTable("axes", {{1, 0, 0}, {0, 1, 0}, {0, 0, 1}}, false);
    plot->fillPlot(axes({0.0, 0.0, 0.0}));
    const float middle = plot->getMaxLength() * 0.4f * 0.5f;
    const Picture picture = drawn(m_canvas);
    EXPECT_EQ(colorAt(m_canvas, picture, {middle, 0.0f, 0.0f}), c_red);
    EXPECT_EQ(colorAt(m_canvas, picture, {0.0f, middle, 0.0f}), c_green);
    EXPECT_EQ(colorAt(m_canvas, picture, {0.0f, 0.0f, middle}), c_blue);
    EXPECT_GT(extentAt(picture, 0.0f).first, -0.5 * static_cast<double>(middle)) << "to one side";
    plot->setScalingType(Scaling::normalized);
    EXPECT_EQ(colorAt(m_canvas, drawn(m_canvas), {0.0f, middle, 0.0f}), c_green);
}

/// Two separate lines in the plane of x and y, one thick and one thin, with colours 0 and 1, for tubes and ribbons.
PostRecord twoLines()
{
    PostRecord record;
    record.role(Record::ColorData, 0).role(Record::RadiusData, 1);
    Record::DoubleArrays data{{0, 0, 1, 1}, {0.4, 0.4, 0.1, 0.1}};
    for (int i = 0; i < 6; ++i) {
        record.role(Record::FirstDirectionX + i, 2 + i);
        data.push_back(std::vector<double>(4, i == 1 || i == 5 ? 1.0 : 0.0)); // across along y, normal along z
    }
    return record.kind(Record::Lines3d)
        .bounds({{-1.4, 1.4}, {-1.4, 1.4}, {-0.4, 0.4}})
        .group({{-1, 1, -1, 1}, {1, 1, -1, -1}, {0, 0, 0, 0}}, {{0, 2}, {1, 3}}, data);
}

TEST_F(VectorPaintersTest, tubesAndRibbonsHaveTheWidthsAndColorsOfTheirData)
{
    struct Case {
        const char* name;
        boost::shared_ptr<vxgraphics3d::SceneGraphPlot> plot;
        bool hasRoundEnds;
    };
    const Case cases[] = {{"tube3d", boost::make_shared<SceneGraphPlotTube3d>(1), true},
                          {"tube2d", boost::make_shared<SceneGraphPlotTube2d>(1), true},
                          {"ribbon3d", boost::make_shared<SceneGraphPlotRibbon3d>(1), false}};
    for (const Case& test : cases) {
        add(test.plot);
        test.plot->setColorTable("tubes", {{0, 0, 1}, {1, 0, 0}}, false);
        test.plot->fillPlot(twoLines());
        const Picture picture = drawn(m_canvas);
        EXPECT_EQ(colorAt(m_canvas, picture, {0.0f, 1.38f, 0.0f}), c_blue) << test.name;
        EXPECT_EQ(colorAt(m_canvas, picture, {0.5f, 0.62f, 0.0f}), c_blue) << test.name;
        EXPECT_FALSE(isDrawn(picture, 0.0f, 0.58f)) << test.name;
        EXPECT_EQ(colorAt(m_canvas, picture, {0.0f, -1.08f, 0.0f}), c_red) << test.name;
        EXPECT_FALSE(isDrawn(picture, 0.0f, -1.12f)) << test.name;
        for (const float side : {-1.0f, 1.0f}) {
            EXPECT_EQ(isDrawn(picture, side * 1.35f, 1.0f), test.hasRoundEnds) << test.name;
            EXPECT_FALSE(isDrawn(picture, side * 1.35f, 1.3f)) << test.name;
        }
        const int uploads = m_canvas.getUploadCounts().meshes;
        test.plot->setLegendLimits(-5.0, 1.0);
        EXPECT_EQ(colorAt(m_canvas, drawn(m_canvas), {0.0f, 1.0f, 0.0f}), c_red) << test.name;
        EXPECT_EQ(m_canvas.getUploadCounts().meshes, uploads) << test.name;
        m_scene.group->removeAllPlots();
    }
}

TEST_F(VectorPaintersTest, theEndOfATubeIsLitLikeASphere)
{
    const auto tube = add(boost::make_shared<SceneGraphPlotTube3d>(1));
    const auto sphere = add(boost::make_shared<SceneGraphPlotSphere3d>(2));
    const auto record = [](int kind, Record::DoubleArrays points, Record::IntArrays lines, std::vector<double> radii) {
        return PostRecord()
            .kind(kind)
            .role(Record::RadiusData, 0)
            .role(Record::ColorData, 0)
            .bounds({{-1, 1}, {-1, 1}, {0, 0}})
            .group(std::move(points), std::move(lines), {std::move(radii)});
    };
    tube->fillPlot(record(Record::Lines3d, {{-0.4, 0.4}, {0.5, 0.5}, {0, 0}}, {{0}, {1}}, {0.4, 0.4}));
    sphere->fillPlot(record(0, {{0.4}, {-0.5}, {0}}, {}, {0.4}));
    tube->setLegendLimits(0.0, 1.0);
    sphere->setLegendLimits(0.0, 1.0);
    m_canvas.getSceneSettings()->getLight()->setUseLight(true);
    vxgraphics3d::SceneLight& light = *m_scene.scene->getSceneLight();
    auto& lamp = static_cast<vxgraphics3d::DirectionLightSource&>(*light.lightSource(light.createDirectionLight()));
    lamp.setFromDirection(true, Vector3f(1.0f, 0.0f, 0.5f));
    lamp.setIntensity(0.7f);
    lamp.setActive(true);
    light.setAmbientIntensity(0.1f);
    const Picture picture = drawn(m_canvas);
    for (const float x : {0.45f, 0.55f, 0.65f, 0.75f}) {
        for (const float y : {-0.15f, 0.0f, 0.15f}) {
            const Rgb ofTube = colorAt(m_canvas, picture, {x, 0.5f + y, 0.0f});
            const Rgb ofSphere = colorAt(m_canvas, picture, {x, -0.5f + y, 0.0f});
            EXPECT_NEAR(brightest(ofTube), brightest(ofSphere), 6) << x << ", " << y;
        }
    }
}

TEST_F(VectorPaintersTest, aClosedTubeHasNoJoint)
{
    constexpr int c_numPoints = 48;
    const auto plot = add(boost::make_shared<SceneGraphPlotTube3d>(1));
    Record::DoubleArrays points(3, std::vector<double>(c_numPoints));
    Record::IntArrays lines(2, std::vector<int>(c_numPoints));
    for (int i = 0; i < c_numPoints; ++i) {
        const auto at = static_cast<std::size_t>(i);
        // Not in one plane, so that the rings turn.
        const double angle = 2.0 * std::numbers::pi * i / c_numPoints;
        points[0][at] = std::cos(angle);
        points[1][at] = std::sin(angle);
        points[2][at] = 0.3 * std::sin(2.0 * angle);
        lines[0][at] = i;
        lines[1][at] = (i + 1) % c_numPoints;
    }
    plot->fillPlot(PostRecord()
                       .kind(Record::Lines3d)
                       .role(Record::ColorData, 0)
                       .role(Record::RadiusData, 0)
                       .bounds({{-1.3, 1.3}, {-1.3, 1.3}, {-0.6, 0.6}})
                       .group(points, lines, {std::vector<double>(c_numPoints, 0.3)}));
    const Picture bare = drawn(m_canvas);
    m_canvas.setStyle({.showFeatureEdges = true});
    const Picture picture = drawn(m_canvas);
    for (int i = 0; i < 720; ++i) {
        const auto angle = static_cast<float>(2.0 * std::numbers::pi * i / 720);
        for (const float radius : {0.8f, 0.9f, 1.0f, 1.1f, 1.2f}) {
            const Vector3f point(radius * std::cos(angle), radius * std::sin(angle), 0.0f);
            EXPECT_EQ(colorAt(m_canvas, picture, point), colorAt(m_canvas, bare, point)) << radius << " at " << angle;
        }
    }
}

TEST_F(VectorPaintersTest, bothFacesOfARibbonAreLitAlike)
{
    const auto plot = add(boost::make_shared<SceneGraphPlotRibbon3d>(1));
    plot->fillPlot(twoLines());
    const auto light = m_scene.scene->getSceneLight();
    const auto colorFrom = [&](double elevation) {
        lookFrom(m_canvas, -90.0, elevation);
        return colorAt(m_canvas, drawn(m_canvas), {0.0f, 1.0f, 0.0f});
    };
    EXPECT_EQ(colorFrom(60.0), colorFrom(-60.0));
}

} // namespace
} // namespace vxrenderer
