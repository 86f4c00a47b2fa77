// Pixels of spheres, discs, edges, point labels and interactive plots.

#include "graphics3d/canvas/canvas3dsettings.h"
#include "graphics3d/canvas/scenesettings.h"
#include "graphics3d/lights/directionlightsource.h"
#include "graphics3d/lights/scenelight.h"
#include "graphics3d/lights/scenesettingslight.h"
#include "graphics3d/plots/vector/scenegraphplotedge2d.h"
#include "graphics3d/plots/vector/scenegraphplotedge3d.h"
#include "graphics3d/plots/vector/scenegraphplotinteractive.h"
#include "graphics3d/plots/vector/scenegraphplotpointlabel.h"
#include "graphics3d/plots/vector/scenegraphplotsphere2d.h"
#include "graphics3d/plots/vector/scenegraphplotsphere3d.h"
#include "tests/renderer/support/testscene.h"
#include "tests/support/postrecord.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <numbers>

namespace vxrenderer {
namespace {

using namespace vxgraphics3d;
using Record = vxdatacarrier::PostDataObject;

constexpr int c_size = 300;
constexpr Rgb c_blue = {0, 0, 255};
constexpr Rgb c_red = {255, 0, 0};

/// A scene without light around the unit cube, which a white surface below it spans, seen from above: x to the right,
/// y upwards.
class PointPaintersTest : public ::testing::Test {
protected:
    PointPaintersTest()
    {
        m_scene.addSquare(9, 0xffffff, -0.5);
        showFromAbove(m_canvas, m_scene);
        m_canvas.getSceneSettings()->getLight()->setUseLight(false);
    }

    /// Adds a plot that is blue for the lower half of its values and red for the upper one.
    template <class Plot>
    boost::shared_ptr<Plot> add(boost::shared_ptr<Plot> plot, const Record& record)
    {
        plot->setColorTable("blue and red", {{0.0, 0.0, 1.0}, {1.0, 0.0, 0.0}}, false);
        plot->fillPlot(record);
        m_scene.group->addPlot(plot);
        return plot;
    }

    Rgb colorAt(const Picture& picture, float x, float y) const
    {
        return vxrenderer::colorAt(m_canvas, picture, {x, y, 0.0f});
    }
    double pixelsPerUnit() const
    {
        return pixelOf(m_canvas, {1.0f, 0.0f, 0.0f})[0] - pixelOf(m_canvas, {0.0f, 0.0f, 0.0f})[0];
    }
    static int countOf(const Picture& picture, const Rgb& color)
    {
        int count = 0;
        for (int y = 0; y < picture.height; ++y) {
            for (int x = 0; x < picture.width; ++x) {
                count += picture.at(x, y) == color ? 1 : 0;
            }
        }
        return count;
    }

    TestScene m_scene;
    OffscreenCanvas m_canvas{c_size, c_size, 4};
};

/// Two spheres, the right one four times as large, and a third that has no radius.
PostRecord spheres(double radius)
{
    return PostRecord()
        .role(Record::ColorData, 0)
        .role(Record::RadiusData, 1)
        .bounds({{0, 1}, {0, 1}, {0, 1}})
        .group({{0.25, 0.7, 0.5}, {0.5, 0.5, 0.1}, {0, 0, 0}}, {}, {{0, 1, 1}, {radius, 4 * radius, 0}});
}

TEST_F(PointPaintersTest, spheresAndDiscsAreRoundWithTheirRadiusAndColorInEverySize)
{
    const auto spatial = boost::make_shared<SceneGraphPlotSphere3d>(1);
    const auto flat = boost::make_shared<SceneGraphPlotSphere2d>(2);
    add(spatial, spheres(0.05));
    add(flat, spheres(0.05));
    for (const bool areDiscs : {false, true}) {
        spatial->setActive(!areDiscs);
        flat->setActive(areDiscs);
        // Small ones are drawn in another way than large ones.
        for (const float factor : {1.0f, 0.3f}) {
            spatial->setRadiusScaleFactor(factor);
            flat->setRadiusScaleFactor(factor);
            const Picture shown = drawn(m_canvas);
            EXPECT_EQ(colorAt(shown, 0.25f, 0.5f), c_blue);
            EXPECT_EQ(colorAt(shown, 0.7f, 0.5f), c_red);
            EXPECT_EQ(colorAt(shown, 0.5f, 0.1f), c_white);
            const double radius = 0.2 * static_cast<double>(factor) * pixelsPerUnit();
            EXPECT_NEAR(countOf(shown, c_red), std::numbers::pi * radius * radius, 5.0 * radius);
            for (int step = 0; step < 12; ++step) {
                const float angle = 0.5f + 0.5236f * static_cast<float>(step);
                const auto at = [&](float distance) {
                    const float reach = 0.2f * factor + distance / static_cast<float>(pixelsPerUnit());
                    return colorAt(shown, 0.7f + reach * std::cos(angle), 0.5f + reach * std::sin(angle));
                };
                EXPECT_EQ(at(-2.5f), c_red) << areDiscs << ' ' << factor << ' ' << step;
                EXPECT_EQ(at(2.5f), c_white) << areDiscs << ' ' << factor << ' ' << step;
            }
        }
    }
}

TEST_F(PointPaintersTest, oneUploadServesEveryLegendRestrictionAndRadiusScale)
{
    const auto plot = boost::make_shared<SceneGraphPlotSphere3d>(1);
    add(plot, spheres(0.05));
    drawn(m_canvas);
    const UploadCounts before = m_canvas.getUploadCounts();
    plot->setLegendLimits(0.0, 4.0);
    EXPECT_EQ(colorAt(drawn(m_canvas), 0.7f, 0.5f), c_blue);
    plot->setValueRestrictions(0.5, 1.0);
    plot->setRadiusScaleFactor(0.9f);
    const Picture restricted = drawn(m_canvas);
    EXPECT_EQ(colorAt(restricted, 0.25f, 0.5f), c_white);
    EXPECT_EQ(colorAt(restricted, 0.7f, 0.5f), c_blue);
    EXPECT_EQ(m_canvas.getUploadCounts(), before);
}

TEST_F(PointPaintersTest, spheresOfHalfTheDistanceOfTheirCentresCutEachOtherInTheMiddle)
{
    const auto plot = boost::make_shared<SceneGraphPlotSphere3d>(1);
    // The left one is drawn last, so only depths can put the border into the middle.
    add(plot, PostRecord()
                  .role(Record::ColorData, 0)
                  .bounds({{0, 1}, {0, 1}, {0, 1}})
                  .group({{0.7, 0.3}, {0.5, 0.5}, {0, 0}}, {}, {{1, 0}}));
    plot->setRadiusScaleFactor(0.3f);
    const Picture shown = drawn(m_canvas);
    EXPECT_EQ(colorAt(shown, 0.47f, 0.5f), c_blue);
    EXPECT_EQ(colorAt(shown, 0.53f, 0.5f), c_red);
}

TEST_F(PointPaintersTest, aSphereIsLitOnTheSideOfTheLight)
{
    const auto plot = boost::make_shared<SceneGraphPlotSphere3d>(1);
    add(plot, spheres(0.05));
    plot->setColor(Color::fromRgb(0xffffff));
    m_canvas.getSceneSettings()->getLight()->setUseLight(true);
    SceneLight& light = *m_scene.scene->getSceneLight();
    auto& lamp = static_cast<DirectionLightSource&>(*light.lightSource(light.createDirectionLight()));
    lamp.setFromDirection(true, Vector3f(1.0f, 0.0f, 0.3f));
    lamp.setIntensity(0.7f);
    lamp.setActive(true);
    light.setAmbientIntensity(0.1f);
    const Picture shown = drawn(m_canvas);
    EXPECT_GT(colorAt(shown, 0.8f, 0.5f)[0], colorAt(shown, 0.7f, 0.5f)[0] + 30);
    EXPECT_GT(colorAt(shown, 0.7f, 0.5f)[0], colorAt(shown, 0.58f, 0.5f)[0] + 30);
}

TEST_F(PointPaintersTest, outlinesAreSmoothAndLeaveThePictureOpaque)
{
    const auto plot = boost::make_shared<SceneGraphPlotSphere3d>(1);
    add(plot, spheres(0.05));
    plot->setColor(Color::fromRgb(0x000000));
    const Picture shown = drawn(m_canvas);
    int between = 0;
    for (std::size_t i = 0; i < shown.bytes.size(); i += 4) {
        between += shown.bytes[i] > 20 && shown.bytes[i] < 235 ? 1 : 0;
        ASSERT_EQ(shown.bytes[i + 3], 255);
    }
    EXPECT_GT(between, 100);
}

TEST_F(PointPaintersTest, edgesHaveTheirWidthAndTheColorsOfTheirData)
{
    const auto plot = boost::make_shared<SceneGraphPlotEdge3d>(1);
    add(plot, PostRecord()
                  .role(Record::ColorData, 0)
                  .bounds({{0, 1}, {0, 1}, {0, 1}})
                  .group({{0.1, 0.9, 0.9}, {0.5, 0.5, 0.9}, {0, 0, 0}}, {{0}, {1}, {2}}, {{0, 1, 1}}));
    const auto heightAt = [&](const Picture& picture, float x, const Rgb& color) {
        const int column = static_cast<int>(pixelOf(m_canvas, {x, 0.0f, 0.0f})[0]);
        int height = 0;
        for (int y = static_cast<int>(pixelOf(m_canvas, {0.0f, 0.6f, 0.0f})[1]); y < picture.height; ++y) {
            height += picture.at(column, y) == color ? 1 : 0;
        }
        return height;
    };
    plot->setLineWidth(6.0f);
    Picture shown = drawn(m_canvas);
    EXPECT_NEAR(heightAt(shown, 0.4f, c_blue), 6, 1);
    EXPECT_NEAR(heightAt(shown, 0.8f, c_red), 6, 1);
    EXPECT_EQ(colorAt(shown, 0.9f, 0.7f), c_red);
    EXPECT_EQ(colorAt(shown, 0.5f, 0.6f), c_white);
    const UploadCounts before = m_canvas.getUploadCounts();
    plot->setLineWidth(0.25f);
    shown = drawn(m_canvas);
    EXPECT_GT(countOf(shown, c_white), c_size * c_size - 1200);
    EXPECT_LT(countOf(shown, c_white), c_size * c_size - 200) << "a line of less than a pixel is as wide as a pixel";
    EXPECT_EQ(m_canvas.getUploadCounts(), before) << "another width loads nothing";
}

/// The rows and columns of a picture that have dark pixels.
PixelArea darkArea(const Picture& picture)
{
    int left = picture.width, top = picture.height, right = 0, bottom = 0;
    for (int y = 0; y < picture.height; ++y) {
        for (int x = 0; x < picture.width; ++x) {
            if (picture.at(x, y)[0] < 100) {
                left = std::min(left, x);
                right = std::max(right, x + 1);
                top = std::min(top, y);
                bottom = std::max(bottom, y + 1);
            }
        }
    }
    return {left, top, right - left, bottom - top};
}

TEST_F(PointPaintersTest, aLabelIsAboveItsPointAndHiddenByWhatLiesInFrontOfIt)
{
    const auto plot = boost::make_shared<SceneGraphPlotPointLabel>(3, 1);
    plot->setColor(Color::fromRgb(0x000000));
    plot->setLabels({"MMM", "without a point"});
    plot->fillPlot(PostRecord().bounds({{0, 1}, {0, 1}, {0, 1}}).group({{0.5}, {0.5}, {0}}, {}));
    m_scene.group->addPlot(plot);
    const PixelArea text = darkArea(drawn(m_canvas));
    const auto [x, y] = pixelOf(m_canvas, {0.5f, 0.5f, 0.0f});
    EXPECT_NEAR(text.x + 0.5 * text.width, x, 2.0);
    EXPECT_LE(text.y + text.height, y);
    EXPECT_GT(text.y + text.height, y - 12.0);
    EXPECT_GT(text.width, 2 * text.height);

    plot->setPlotPlaneOffset(-1.0f); // below the square
    EXPECT_TRUE(darkArea(drawn(m_canvas)).isEmpty());
}

TEST_F(PointPaintersTest, edgesAndLabelsOfThePlaneAreDrawnInIt)
{
    const auto edges = boost::make_shared<SceneGraphPlotEdge2d>(1);
    add(edges, PostRecord()
                   .role(Record::ColorData, 0)
                   .bounds({{0, 1}, {0, 1}})
                   .group({{0.1, 0.9}, {0.2, 0.2}}, {{0}, {1}}, {{0, 1}}));
    edges->setLineWidth(5.0f);
    Picture shown = drawn(m_canvas);
    EXPECT_EQ(colorAt(shown, 0.3f, 0.2f), c_blue);
    EXPECT_EQ(colorAt(shown, 0.7f, 0.2f), c_red);
    EXPECT_EQ(colorAt(shown, 0.5f, 0.3f), c_white);

    edges->setActive(false);
    const auto labels = boost::make_shared<SceneGraphPlotPointLabel>(2, 2);
    labels->setColor(Color::fromRgb(0x000000));
    labels->setLabels({"MMM"});
    labels->fillPlot(PostRecord().kind(Record::PointLabel2d).bounds({{0, 1}, {0, 1}}).group({{0.5}, {0.5}, {-3}}, {}));
    m_scene.group->addPlot(labels);
    shown = drawn(m_canvas);
    const PixelArea text = darkArea(shown);
    const auto [x, y] = pixelOf(m_canvas, {0.5f, 0.5f, 0.0f});
    EXPECT_NEAR(text.x + 0.5 * text.width, x, 2.0) << "the third coordinate, which would hide the text, is ignored";
    EXPECT_LE(text.y + text.height, y);
}

TEST_F(PointPaintersTest, labelsOfOnePointUseItsSidesAndTheirBordersContrast)
{
    m_scene.addSquare(8, 0x000000, -0.4);
    const auto plot = boost::make_shared<SceneGraphPlotPointLabel>(3, 1);
    plot->setColor(Color::fromRgb(0x000000));
    const std::vector<double> middle(20, 0.5);
    plot->fillPlot(PostRecord().bounds({{0, 1}, {0, 1}, {0, 1}}).group({middle, middle, middle}, {}));
    m_scene.group->addPlot(plot);
    std::vector<int> borders;
    for (const std::size_t count : {1u, 2u, 20u}) {
        plot->setLabels(std::vector<std::string>(count, "M"));
        const Picture shown = drawn(m_canvas);
        const auto [left, top] = pixelOf(m_canvas, {0.1f, 0.9f, 0.0f});
        const auto [right, bottom] = pixelOf(m_canvas, {0.9f, 0.1f, 0.0f});
        int white = 0;
        for (int y = static_cast<int>(top); y < static_cast<int>(bottom); ++y) {
            for (int x = static_cast<int>(left); x < static_cast<int>(right); ++x) {
                white += shown.at(x, y)[0] > 128 ? 1 : 0;
            }
        }
        borders.push_back(white);
    }
    EXPECT_GT(borders[0], 20);
    EXPECT_EQ(borders[1], 2 * borders[0]);
    EXPECT_EQ(borders[2], borders[1]) << "a label without a free side is left out";
}

TEST_F(PointPaintersTest, interactivePlotsShowSquaresSolidLinesAndDashes)
{
    const auto plot = boost::make_shared<SceneGraphPlotInteractive>(1);
    m_scene.group->addPlot(plot);
    plot->setColor(Color::fromRgb(0xff0000));
    plot->setPoints({{0.5}, {0.8}, {0}});
    plot->setSolidFraction(0.5f);
    plot->setLinePoints({{0, 1}, {0.5, 0.5}, {0, 0}});
    plot->fillPlot(PostRecord().group({{0, 1}, {0.2, 0.2}, {0, 0}}, {{0}, {1}}));
    const Picture shown = drawn(m_canvas);
    const auto redsBetween = [&](float from, float to, float height) {
        const auto [left, y] = pixelOf(m_canvas, {from, height, 0.0f});
        const double right = pixelOf(m_canvas, {to, height, 0.0f})[0];
        double reds = 0.0;
        for (int x = static_cast<int>(left); x < static_cast<int>(right); ++x) {
            reds += shown.at(x, static_cast<int>(y))[1] < 128 ? 1.0 : 0.0;
        }
        return reds / (static_cast<int>(right) - static_cast<int>(left));
    };
    EXPECT_EQ(redsBetween(0.05f, 0.48f, 0.5f), 1.0);
    const double dashes = redsBetween(0.55f, 0.95f, 0.5f);
    EXPECT_GT(dashes, 0.3);
    EXPECT_LT(dashes, 0.75);
    EXPECT_EQ(redsBetween(0.05f, 0.95f, 0.2f), 1.0);
    EXPECT_EQ(colorAt(shown, 0.5f, 0.8f), c_red);
    EXPECT_EQ(colorAt(shown, 0.5f, 0.75f), c_white);
    const UploadCounts before = m_canvas.getUploadCounts();
    plot->setColor(Color::fromRgb(0x0000ff));
    EXPECT_EQ(colorAt(drawn(m_canvas), 0.5f, 0.8f), c_blue);
    EXPECT_EQ(m_canvas.getUploadCounts(), before);
}

} // namespace
} // namespace vxrenderer
