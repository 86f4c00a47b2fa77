// Pixels of level sets, slices and meshes, without light.

#include "graphics3d/canvas/canvas3dsettings.h"
#include "graphics3d/canvas/scenesettings.h"
#include "graphics3d/lights/scenesettingslight.h"
#include "graphics3d/plots/scalar/scenegraphplotcontour.h"
#include "graphics3d/plots/scalar/scenegraphplotisosurface3d.h"
#include "graphics3d/plots/scalar/scenegraphplotmesh3d.h"
#include "graphics3d/plots/scalar/scenegraphplotslice3d.h"
#include "renderer/frame/appearance.h"
#include "tests/renderer/support/testscene.h"
#include "tests/support/postrecord.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <string>
#include <vector>

namespace vxrenderer {
namespace {

using vxgraphics3d::PostRecord;
using vxgraphics3d::SceneGraphPlot;
using vxgraphics3d::SceneGraphPlotContour;
using vxgraphics3d::SceneGraphPlotIso;
using vxgraphics3d::SceneGraphPlotIsoSurface3d;
using vxgraphics3d::SceneGraphPlotMesh3d;
using vxgraphics3d::SceneGraphPlotSlice3d;
using vxgraphics3d::Vector3f;
using Record = vxdatacarrier::PostDataObject;

constexpr Rgb c_red = {255, 0, 0};
constexpr Rgb c_green = {0, 255, 0};
constexpr Rgb c_blue = {0, 0, 255};
constexpr Rgb c_yellow = {255, 255, 0};

/// The corners of the unit square at a height, and its two triangles.
Record::DoubleArrays square(double z)
{
    return {{0, 1, 1, 0}, {0, 0, 1, 1}, {z, z, z, z}};
}
const Record::IntArrays c_squareTriangles = {{0, 0}, {1, 2}, {2, 3}};
const Record::IntArrays c_squareEdges = {{0, 1, 2, 3}, {1, 2, 3, 0}};
const Record::FloatArrays c_upwards = {{0, 0, 0, 0}, {0, 0, 0, 0}, {1, 1, 1, 1}};

class ScalarPaintersTest : public ::testing::Test {
protected:
    ScalarPaintersTest()
    {
        showFromAbove(m_canvas, m_scene);
        m_canvas.getSceneSettings()->getLight()->setUseLight(false);
    }

    /// Adds a filled plot with bands of red, green, blue and yellow.
    template <class Plot>
    void add(Plot& plot, const Record& record)
    {
        plot.setColorTable("four", {{1, 0, 0}, {0, 1, 0}, {0, 0, 1}, {1, 1, 0}}, false);
        m_scene.group->addPlot(boost::static_pointer_cast<Plot>(plot.shared_from_this()));
        plot.fillPlot(record);
    }
    Picture look() { return drawn(m_canvas); }
    Rgb at(const Picture& picture, float x, float y, float z = 0.0f) const
    {
        return colorAt(m_canvas, picture, {x, y, z});
    }
    int meshes() const { return m_canvas.getUploadCounts().meshes; }
    /// Pixels of a colour in the column through a point, from the top of the picture.
    std::vector<int> rowsOf(const Picture& picture, float x, const Rgb& color) const
    {
        const int column = static_cast<int>(pixelOf(m_canvas, {x, 0.5f, 0.0f})[0]);
        std::vector<int> rows;
        for (int y = 0; y < picture.height; ++y) {
            if (picture.at(column, y) == color) {
                rows.push_back(y);
            }
        }
        return rows;
    }

    OffscreenCanvas m_canvas{200, 200, 1};
    TestScene m_scene;
};

/// Three squares above each other, with the levels 0, 5 and 20 from below.
Record levels()
{
    PostRecord record = PostRecord().kind(6).role(Record::IsoLevelData, 0).bounds({{0, 1}, {0, 1}, {0, 2}});
    double z = 0.0;
    for (const double level : {0.0, 5.0, 20.0}) {
        record.group(square(z), c_squareTriangles, {{level}}, c_upwards);
        z += 1.0;
    }
    return record.record();
}

TEST_F(ScalarPaintersTest, levelsAreHiddenAndColoredAgainWithoutAFill)
{
    const auto plot = boost::make_shared<SceneGraphPlotIsoSurface3d>(1);
    add(*plot, levels());
    EXPECT_EQ(at(look(), 0.5f, 0.4f), c_yellow);
    EXPECT_EQ(meshes(), 3);
    plot->setSurfaceShown(2, false);
    EXPECT_EQ(at(look(), 0.5f, 0.4f), c_green) << "5 of 20";
    plot->setSurfaceShown(1, false);
    EXPECT_EQ(at(look(), 0.5f, 0.4f), c_red);
    plot->setSurfaceShownForAll(false);
    EXPECT_EQ(at(look(), 0.5f, 0.4f), c_white);
    EXPECT_EQ(meshes(), 3);

    plot->setSurfaceShown(1, true);
    plot->setLegendLevels({-5.0, 5.0, 10.0});
    EXPECT_EQ(at(look(), 0.5f, 0.4f), c_blue) << "10 of 15";
    EXPECT_EQ(meshes(), 4) << "only the level that is shown is loaded again";
    plot->setLabels({"a"}); // counts as a change of geometry, with equal buffers
    look();
    EXPECT_EQ(meshes(), 4);
    plot->setValueRestrictions(0.0, 1.0);
    EXPECT_EQ(at(look(), 0.5f, 0.4f), c_white);
}

/// Horizontal lines across the unit square at y of 0.25 and 0.75, with the levels 0 and 1.
Record contourLines(int kind)
{
    PostRecord record = PostRecord().kind(kind).role(Record::IsoLevelData, 0).bounds({{0, 1}, {0, 1}, {0, 0}});
    record.group({{0, 0.5, 1}, {0.25, 0.25, 0.25}, {0, 0, 0}}, {{0, 1}, {1, 2}}, {{0}});
    record.group({{0, 0.5, 1}, {0.75, 0.75, 0.75}, {0, 0, 0}}, {{0, 1}, {1, 2}}, {{1}});
    return record.record();
}

TEST_F(ScalarPaintersTest, contourLinesAreTwoPixelsWideAndBandsAreFilled)
{
    const auto lines = boost::make_shared<SceneGraphPlotContour>(1);
    add(*lines, contourLines(17));
    const Picture picture = look();
    // What both lines together take of the blue of the background.
    const int column = static_cast<int>(pixelOf(m_canvas, {0.3f, 0.5f, 0.0f})[0]);
    double covered = 0.0;
    for (int y = 0; y < picture.height; ++y) {
        covered += (255 - picture.at(column, y)[2]) / 255.0;
    }
    EXPECT_NEAR(covered, 4.0, 0.05);
    ASSERT_FALSE(rowsOf(picture, 0.3f, c_red).empty());
    ASSERT_FALSE(rowsOf(picture, 0.3f, c_yellow).empty());
    EXPECT_LT(rowsOf(picture, 0.3f, c_yellow)[0], rowsOf(picture, 0.3f, c_red)[0]);
    lines->setSurfaceShown(0, false);
    EXPECT_TRUE(rowsOf(look(), 0.3f, c_red).empty());

    m_scene.group->removeAllPlots();
    const auto bands = boost::make_shared<SceneGraphPlotContour>(2);
    add(*bands, PostRecord()
                    .kind(17)
                    .role(Record::IsoLevelData, 0)
                    .bounds({{0, 1}, {0, 1}})
                    .group({{0, 1, 1, 0}, {0, 0, 0.5, 0.5}}, c_squareTriangles, {{0, 0, 0, 0}})
                    .group({{0, 1, 1, 0}, {0.5, 0.5, 1, 1}}, c_squareTriangles, {{4, 4, 4, 4}}));
    EXPECT_EQ(at(look(), 0.3f, 0.4f), c_red);
    EXPECT_EQ(at(look(), 0.3f, 0.6f), c_yellow);
}

TEST_F(ScalarPaintersTest, labelsOfShownLevelsFaceTheEyeWithAHalo)
{
    const auto plot = boost::make_shared<SceneGraphPlotContour>(1);
    add(*plot, contourLines(18));
    const auto pixelsAround = [&](const Picture& picture, const Vector3f& point) {
        const auto [x, y] = pixelOf(m_canvas, point);
        std::string shape;
        for (int dy = -10; dy <= 10; ++dy) {
            for (int dx = -12; dx <= 12; ++dx) {
                const Rgb color =
                    picture.at(static_cast<int>(std::floor(x)) + dx, static_cast<int>(std::floor(y)) + dy);
                shape += color[2] > color[0] + 60 ? '#' : color == c_red ? 'r' : '.';
            }
        }
        return shape;
    };
    const auto labelOf = [&](int level) { return plot->getSurface(level)->m_labelPosition; };
    const std::string bare = pixelsAround(look(), labelOf(0));
    EXPECT_EQ(std::ranges::count(bare, '#'), 0);
    plot->setLabelColor(vxgraphics3d::Color::fromRgb(0x0000ff));
    plot->setLabels({"L", ""});
    const std::string fromAbove = pixelsAround(look(), labelOf(0));
    EXPECT_GT(std::ranges::count(fromAbove, '#'), 10);
    EXPECT_LT(std::ranges::count(fromAbove, 'r'), std::ranges::count(bare, 'r')) << "the halo covers the line";
    EXPECT_EQ(std::ranges::count(pixelsAround(look(), labelOf(1)), '#'), 0);

    lookFrom(m_canvas, 90.0, -90.0); // from below, where the plane is mirrored
    std::string fromBelow = pixelsAround(look(), labelOf(0));
    std::ranges::replace(fromBelow, 'r', '.');
    std::string letter = fromAbove;
    std::ranges::replace(letter, 'r', '.');
    EXPECT_EQ(fromBelow, letter);
    plot->setShowLabels(false);
    EXPECT_EQ(std::ranges::count(pixelsAround(look(), labelOf(0)), '#'), 0);
    plot->setShowLabels(true);
    plot->setSurfaceShown(0, false);
    EXPECT_EQ(std::ranges::count(pixelsAround(look(), labelOf(0)), '#'), 0);
}

TEST_F(ScalarPaintersTest, slicesHaveOutlinesThatAValueRestrictionCutsToo)
{
    const auto plot = boost::make_shared<SceneGraphPlotSlice3d>(1);
    PostRecord record = PostRecord().role(Record::ColorData, 0).bounds({{0, 2}, {0, 1}, {0, 0}});
    record.group(square(0.0), c_squareTriangles, {{0, 0, 0, 0}}, c_upwards).outline({{0, 3}, {1, 2}});
    record.group({{1, 2, 2, 1}, {0, 0, 1, 1}, {0, 0, 0, 0}}, c_squareTriangles, {{3, 3, 3, 3}}, c_upwards);
    record.outline({{0}, {1}});
    add(*plot, record);
    // Rows that a line of one pixel covers by a quarter or more.
    const auto darkRows = [&](const Picture& picture, float x) {
        const int column = static_cast<int>(pixelOf(m_canvas, {x, 0.5f, 0.0f})[0]);
        std::vector<int> rows;
        for (int y = 0; y < picture.height; ++y) {
            if (std::ranges::max(picture.at(column, y)) < 200) {
                rows.push_back(y);
            }
        }
        return rows;
    };
    Picture picture = look();
    EXPECT_EQ(at(picture, 0.5f, 0.5f), c_red);
    EXPECT_EQ(at(picture, 1.5f, 0.5f), c_yellow);
    EXPECT_GT(darkRows(picture, 0.5f).back(), darkRows(picture, 0.5f).front() + 50) << "above and below";
    EXPECT_LE(darkRows(picture, 1.5f).size(), 2u) << "below only";
    EXPECT_EQ(darkRows(picture, 1.5f).back(), darkRows(picture, 0.5f).back());
    plot->setValueRestrictions(1.0, 3.0);
    picture = look();
    EXPECT_EQ(at(picture, 0.5f, 0.5f), c_white);
    EXPECT_TRUE(darkRows(picture, 0.5f).empty());
    EXPECT_FALSE(darkRows(picture, 1.5f).empty());
    EXPECT_EQ(meshes(), 4);
}

TEST_F(ScalarPaintersTest, interiorAndWireframeOfAMeshAreSwitchedAloneAndPointsAreCubes)
{
    const auto plot = boost::make_shared<SceneGraphPlotMesh3d>(1, 3);
    PostRecord record = PostRecord().kind(12).role(Record::ColorData, 0).bounds({{0, 10}, {0, 1}, {0, 0}});
    record.group(square(0.0), c_squareTriangles, {{0, 0, 0, 0}}, c_upwards);
    record.group(square(0.0), c_squareEdges, {{0, 0, 0, 0}}, c_upwards);
    record.group({{3, 4}, {0.5, 0.5}, {0, 0}}, {{0}, {1}}, {{9, 9}});
    record.group({{10}, {0.5}, {0}}, {{0}}, {{9}});
    add(*plot, record);
    plot->setWireframeColor(vxgraphics3d::Color::fromRgb(0x0000ff));
    m_canvas.resize(800, 200);
    Picture picture = look();
    EXPECT_EQ(at(picture, 0.5f, 0.4f), c_red);
    // Lines of one pixel, which lie between pixels.
    const auto blueRows = [&] {
        const int column = static_cast<int>(pixelOf(m_canvas, {0.5f, 0.5f, 0.0f})[0]);
        std::vector<int> rows;
        for (int y = 0; y < picture.height; ++y) {
            const Rgb pixel = picture.at(column, y);
            if (pixel[2] > 60 && pixel != c_white) {
                rows.push_back(y);
            }
        }
        return rows;
    };
    const auto isNear = [](const Rgb& pixel, const Rgb& color) {
        return std::abs(pixel[0] - color[0]) + std::abs(pixel[1] - color[1]) + std::abs(pixel[2] - color[2]) < 200;
    };
    ASSERT_GE(blueRows().size(), 2u);
    EXPECT_LE(blueRows().size(), 4u);
    EXPECT_GT(blueRows().back(), blueRows().front() + 20) << "its upper and its lower edge";
    EXPECT_TRUE(isNear(at(picture, 3.5f, 0.5f), c_yellow));
    EXPECT_EQ(at(picture, 10.0f, 0.5f), c_yellow) << "a point";
    plot->setDisplayWireframe(false);
    picture = look();
    EXPECT_EQ(at(picture, 0.5f, 0.4f), c_red);
    EXPECT_TRUE(blueRows().empty());
    plot->setColor(vxgraphics3d::Color::fromRgb(0x00ff00));
    plot->setDisplayInterior(false);
    plot->setDisplayWireframe(true);
    picture = look();
    EXPECT_EQ(at(picture, 0.5f, 0.4f), c_white);
    EXPECT_GE(blueRows().size(), 2u);
    EXPECT_TRUE(isNear(at(picture, 3.5f, 0.5f), c_green));
    EXPECT_EQ(at(picture, 10.0f, 0.5f), c_green) << "points have no interior";
    EXPECT_EQ(meshes(), 4);
}

TEST_F(ScalarPaintersTest, aLegendOfLevelsHasAStripeInTheColorOfEach)
{
    const auto plot = boost::make_shared<SceneGraphPlotIsoSurface3d>(1);
    add(*plot, levels());
    m_canvas.resize(400, 300);
    m_canvas.getCanvas3dSettings()->setRenderMask(RenderPlots | RenderBackground | RenderLegends);
    const auto heightsOf = [&](const std::vector<Rgb>& colors) {
        const Picture picture = look();
        const PixelArea& area = m_canvas.getView().area;
        std::vector<int> heights(colors.size());
        for (int y = 0; y < picture.height; ++y) {
            const auto color = std::ranges::find(colors, picture.at(area.x + area.width + 22, y));
            if (color != colors.end()) {
                ++heights[static_cast<std::size_t>(color - colors.begin())];
            }
        }
        return heights;
    };
    const std::vector<Rgb> colors = {c_red, c_green, c_blue, c_yellow};
    const std::vector<int> continuous = heightsOf(colors);
    EXPECT_TRUE(std::ranges::all_of(continuous, [](int height) { return height > 30; }));
    plot->setLegendLevels({0.0, 5.0, 20.0});
    const std::vector<int> striped = heightsOf(colors);
    EXPECT_EQ(striped[2], 0);
    for (const std::size_t i : {0u, 1u, 3u}) {
        EXPECT_GT(striped[i], 15);
        EXPECT_LT(striped[i], 40);
    }
    plot->setLegendLevels({0.0, 5.0, 8.0}); // 5 is now at 0.625
    EXPECT_GT(heightsOf(colors)[2], 15);
    EXPECT_EQ(heightsOf(colors)[1], 0);
    plot->setReverseColorTable(true);
    EXPECT_GT(heightsOf(colors)[1], 15);
    plot->setLegendLevels({});
    EXPECT_GT(heightsOf(colors)[2], 30);
}

} // namespace
} // namespace vxrenderer
