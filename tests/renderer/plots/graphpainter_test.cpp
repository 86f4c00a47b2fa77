#include "renderer/plots/graphpainter.h"

#include "graphics3d/cameras/camera2d.h"
#include "graphics3d/canvas/axissetup.h"
#include "graphics3d/canvas/canvas3dsettings.h"
#include "graphics3d/plots/graph/scenegraphplotgraph.h"
#include "renderer/frame/appearance.h"
#include "renderer/frame/view.h"
#include "tests/renderer/support/testscene.h"
#include "tests/support/postrecord.h"

#include <gtest/gtest.h>

#include <cmath>
#include <set>
#include <string>
#include <vector>

namespace vxrenderer {
namespace {

using vxgraphics3d::AxisSetup;
using vxgraphics3d::Color;
using vxgraphics3d::PostRecord;
using vxgraphics3d::SceneGraphPlotGraph;
using vxgraphics3d::Vector3f;
using Doubles = std::vector<double>;

constexpr Rgb c_red = {255, 0, 0};
constexpr Rgb c_blue = {0, 0, 255};

/// One graph in a flat view in which each axis has a scale of its own.
class GraphPainterTest : public testing::Test {
protected:
    GraphPainterTest()
    {
        m_scene.group->addPlot(m_graph);
        showFlat(m_canvas, m_scene);
        showPlotsAlone(m_canvas);
        camera().setPreserveAspectRatio(false);
        camera().setAxisViewScalesAuto();
    }
    ~GraphPainterTest() override { m_scene.group->removeAllPlots(); }

    vxgraphics3d::Camera2d& camera() { return *m_canvas.getCanvas3dSettings()->camera2d(); }
    AxisSetup& axes() { return *m_canvas.getCanvas3dSettings()->getAxisSetupPtr(); }

    void fill(const Doubles& x, const std::vector<Doubles>& lines)
    {
        PostRecord record = PostRecord().role(vxdatacarrier::PostDataObject::HeightData, 0);
        for (const Doubles& y : lines) {
            record.group({x}, {}, {y});
        }
        m_graph->fillPlot(record);
        m_graph->setColor(Color::fromRgb(0xff0000));
    }

    static int count(const Picture& picture, const Rgb& color, const PixelArea& area)
    {
        int result = 0;
        for (int y = area.y; y < area.y + area.height; ++y) {
            for (int x = area.x; x < area.x + area.width; ++x) {
                result += picture.at(x, y) == color ? 1 : 0;
            }
        }
        return result;
    }
    static int count(const Picture& picture, const Rgb& color)
    {
        return count(picture, color, {0, 0, picture.width, picture.height});
    }

    /// The area that lines cover, in pixels, in a colour that has one of red and blue.
    static double covered(const Picture& picture)
    {
        double area = 0.0;
        for (int y = 0; y < picture.height; ++y) {
            for (int x = 0; x < picture.width; ++x) {
                area += (255 - picture.at(x, y)[1]) / 255.0;
            }
        }
        return area;
    }

    OffscreenCanvas m_canvas{200, 160, 1};
    TestScene m_scene;
    boost::shared_ptr<SceneGraphPlotGraph> m_graph = boost::make_shared<SceneGraphPlotGraph>(1);
};

TEST_F(GraphPainterTest, axesChooseTheVersionThatIsDrawnAndFitted)
{
    fill({-7, 1, 10, 100}, {{-7, 1, 100, 10000}});
    m_graph->setLineWidth(3);
    for (int run = 0; run < 2; ++run) {
        for (int logAxes = 0; logAxes < 4; ++logAxes) {
            axes().setXAxisLog((logAxes & 1) != 0);
            axes().setYAxisLog((logAxes & 2) != 0);
            const Picture picture = drawn(m_canvas);
            const Vector3f middle((logAxes & 1) != 0 ? 1.5 : 55.0, (logAxes & 2) != 0 ? 3.0 : 5050.0, 0.0);
            EXPECT_EQ(colorAt(m_canvas, picture, middle), c_red) << "axes " << logAxes;
            // The view is as wide as the box and a margin.
            const double width = pixelOf(m_canvas, {(logAxes & 1) != 0 ? 2.0f : 100.0f, 0.0f, 0.0f})[0] -
                                 pixelOf(m_canvas, {(logAxes & 1) != 0 ? 0.0f : -7.0f, 0.0f, 0.0f})[0];
            EXPECT_GT(width, 0.85 * m_canvas.getView().area.width) << "axes " << logAxes;
        }
        EXPECT_EQ(m_canvas.getUploadCounts().meshes, 4) << "each version is loaded once";
    }
}

TEST_F(GraphPainterTest, widthColorAndStyleOfLinesCostNoUpload)
{
    fill({0, 1}, {{0.5, 0.5}, {0.0, 1.0}});
    Picture picture = drawn(m_canvas);
    EXPECT_GT(covered(picture), 100.0);
    const UploadCounts before = m_canvas.getUploadCounts();
    m_graph->setLineStyle(false, LineStyle::none);
    EXPECT_EQ(count(drawn(m_canvas), c_red), 0);

    fill({0, 1}, {{0.5, 0.5}});
    m_graph->setLineWidth(4);
    const double solid = covered(drawn(m_canvas));
    EXPECT_NEAR(solid, 4.0 * m_canvas.getView().area.width * 20.0 / 21.0, 20.0);
    const std::vector<double> parts = {5.0 / 8.0, 1.0 / 3.0, 7.0 / 12.0};
    for (int style = 1; style < 4; ++style) {
        m_graph->setLineStyle(false, static_cast<LineStyle>(style));
        EXPECT_NEAR(covered(drawn(m_canvas)), solid * parts[static_cast<std::size_t>(style - 1)], 0.06 * solid);
    }
    m_graph->setLineStyle(false, LineStyle::solid);
    picture = drawn(m_canvas);
    const int red = count(picture, c_red);
    m_graph->setLineColorCycle(true, 0);
    EXPECT_EQ(count(drawn(m_canvas), c_blue), red);
    EXPECT_EQ(m_canvas.getUploadCounts().meshes, before.meshes + 1);
}

TEST_F(GraphPainterTest, wideLinesHaveRoundEndsAndClosedCorners)
{
    fill({0, 1, 2}, {{0, 1, 0}});
    m_graph->setLineWidth(21);
    drawn(m_canvas);
    camera().setViewLimits(-1.0f, 3.0f, -1.0f, 2.0f);
    const Picture picture = drawnAsIs(m_canvas);
    const auto isRed = [&](float x, float y, double right, double down) {
        const auto at = pixelOf(m_canvas, {x, y, 0.0f});
        return picture.at(static_cast<int>(at[0] + right), static_cast<int>(at[1] + down)) == c_red;
    };
    // The end of a square line would be at 10 pixels in all of these directions.
    for (double angle = 0.0; angle < 6.2; angle += 0.1) {
        EXPECT_TRUE(isRed(0.0f, 0.0f, 8.0 * std::cos(angle), 8.0 * std::sin(angle))) << angle;
        EXPECT_TRUE(isRed(1.0f, 1.0f, 8.0 * std::cos(angle), 8.0 * std::sin(angle))) << angle;
    }
    for (double angle = 1.6; angle < 3.9; angle += 0.1) {
        EXPECT_FALSE(isRed(0.0f, 0.0f, 12.0 * std::cos(angle), 12.0 * std::sin(angle))) << angle;
    }
}

TEST_F(GraphPainterTest, symbolsHaveShapesOfTheirOwnAtTheMarkers)
{
    fill({0, 4}, {{1, 1}});
    m_graph->setLineStyle(false, LineStyle::none);
    m_graph->setLineWidth(7); // symbols of 21 pixels
    m_graph->setMarkerType(false, RenderSymbol::circle);
    EXPECT_EQ(count(drawn(m_canvas), c_red), 0); // no markers yet
    m_graph->setNumberOfMarkers(3);
    std::set<std::string> pictures;
    for (int symbol = 0; symbol < 8; ++symbol) {
        m_graph->setMarkerType(false, static_cast<RenderSymbol>(symbol));
        const Picture picture = drawn(m_canvas);
        pictures.insert(std::string(picture.bytes.begin(), picture.bytes.end()));
        const auto [x, y] = pixelOf(m_canvas, {2.0f, 1.0f, 0.0f});
        const PixelArea around = {static_cast<int>(x) - 12, static_cast<int>(y) - 12, 25, 25};
        const int pixels = count(picture, c_red, around);
        EXPECT_GT(pixels, 90) << symbol;
        EXPECT_LT(pixels, 21 * 21) << symbol;
        EXPECT_EQ(colorAt(m_canvas, picture, {0.0f, 1.0f, 0.0f}), c_red) << symbol;
        EXPECT_EQ(colorAt(m_canvas, picture, {2.0f, 1.0f, 0.0f}), c_red) << symbol;
        EXPECT_EQ(colorAt(m_canvas, picture, {1.0f, 1.0f, 0.0f}), c_white) << symbol;
        const int lower = count(picture, c_red, {around.x, static_cast<int>(y) + 2, 25, 10});
        const int upper = count(picture, c_red, {around.x, static_cast<int>(y) - 12, 25, 10});
        if (symbol == static_cast<int>(RenderSymbol::triangleUp)) {
            EXPECT_GT(lower, upper + 30);
        } else if (symbol == static_cast<int>(RenderSymbol::triangleDown)) {
            EXPECT_GT(upper, lower + 30);
        }
    }
    EXPECT_EQ(pictures.size(), 8u);
    m_graph->setMarkersInterpolation(false); // at both points
    const Picture picture = drawn(m_canvas);
    EXPECT_EQ(colorAt(m_canvas, picture, {4.0f, 1.0f, 0.0f}), c_red);
    EXPECT_EQ(colorAt(m_canvas, picture, {2.0f, 1.0f, 0.0f}), c_white);
}

TEST_F(GraphPainterTest, linesAndSymbolsEndAtTheAxes)
{
    m_canvas.getCanvas3dSettings()->setRenderMask(RenderPlots | RenderBackground | RenderAxes);
    fill({0, 1, 2, 3, 4}, {{0, 1, 0, 1, 0}, {1, 0, 1, 0, 1}});
    m_graph->setLineWidth(5);
    m_graph->setLineStyle(true, LineStyle::solid);
    m_graph->setMarkerType(true, RenderSymbol::circle);
    m_graph->setMarkersInterpolation(false);
    drawn(m_canvas);
    camera().setViewLimits(1.0f, 2.0f, 0.2f, 0.9f);
    const Picture picture = drawnAsIs(m_canvas);
    const PixelArea area = m_canvas.getView().area;
    EXPECT_LT(area.width, 190);
    EXPECT_GT(count(picture, c_red, area), 100);
    EXPECT_EQ(count(picture, c_red), count(picture, c_red, area));
}

TEST_F(GraphPainterTest, unitCircleIsInTheViewOnLinearAxesOnly)
{
    fill({0.1, 0.5}, {{0.1, 0.5}});
    const Picture without = drawn(m_canvas);
    m_graph->setShowUnitCircle(true);
    Picture picture = drawn(m_canvas);
    for (double angle = 0.3; angle < 6.0; angle += 0.5) {
        const auto [x, y] = pixelOf(m_canvas, {std::cos(angle), std::sin(angle), 0.0});
        const int column = static_cast<int>(x);
        const int row = static_cast<int>(y);
        EXPECT_GE(picture.countDrawn(column - 1, row - 1, column + 2, row + 2), 3) << angle;
    }
    EXPECT_EQ(colorAt(m_canvas, picture, {0.0f, -0.5f, 0.0f}), c_white);
    axes().setXAxisLog(true);
    const Picture logarithmic = drawn(m_canvas);
    m_graph->setShowUnitCircle(false);
    EXPECT_EQ(drawn(m_canvas).bytes, logarithmic.bytes);
    axes().setXAxisLog(false);
    EXPECT_EQ(drawn(m_canvas).bytes, without.bytes);
}

TEST_F(GraphPainterTest, legendIsWhereTheAxisSetupPutsIt)
{
    fill({0, 1}, {{0, 1}, {1, 0}});
    m_graph->setLegendDescription(0, "first");
    m_graph->setLineColorCycle(true, 0);
    m_graph->setLineStyle(false, LineStyle::none);
    m_graph->setMarkerType(false, RenderSymbol::square); // without markers: only the legend shows them
    m_canvas.getCanvas3dSettings()->setRenderMask(RenderPlots | RenderBackground | RenderLegends | RenderAxes);
    m_canvas.resize(400, 300);
    EXPECT_EQ(count(drawn(m_canvas), c_blue), 0);
    const PixelArea whole = m_canvas.getView().area;

    m_graph->setShowLegends(true);
    std::set<std::string> pictures;
    for (int strategy = 0; strategy < 6; ++strategy) {
        for (int position = 0; position < 4; ++position) {
            axes().setLegendLayoutStrategy(strategy);
            axes().setLegendPosition(position);
            const Picture picture = drawn(m_canvas);
            const std::string what = std::to_string(strategy) + ", position " + std::to_string(position);
            pictures.insert(std::string(picture.bytes.begin(), picture.bytes.end()));
            const PixelArea area = m_canvas.getView().area;
            const int pixels = count(picture, c_blue);
            EXPECT_GT(pixels, 30) << what;
            const bool isInside = strategy != 1 && strategy != 2;
            EXPECT_EQ(count(picture, c_blue, area), isInside ? pixels : 0) << what;
            const bool isLeft = position >= 2;
            const bool isLower = position == 1 || position == 2;
            const int middleX = area.x + area.width / 2;
            const int middleY = area.y + area.height / 2;
            const int left = count(picture, c_blue, {0, 0, middleX, picture.height});
            const int upper = count(picture, c_blue, {0, 0, picture.width, middleY});
            if (strategy != 2) {
                EXPECT_EQ(left, isLeft ? pixels : 0) << what;
            }
            EXPECT_EQ(upper, isLower ? 0 : pixels) << what;
            EXPECT_EQ(area.width < whole.width, strategy == 1) << what;
            EXPECT_EQ(area.height < whole.height, strategy == 2) << what;
        }
    }
    EXPECT_EQ(pictures.size(), 24u);

    // A row that is wider than the axes stays in the picture.
    m_canvas.getCanvas3dSettings()->camera2d()->setPreserveAspectRatio(true);
    axes().setLegendLayoutStrategy(2);
    axes().setLegendPosition(0);
    const int pixels = count(drawn(m_canvas), c_blue);
    m_graph->setLegendDescription(0, "words that need more space than the axes");
    EXPECT_EQ(count(drawn(m_canvas), c_blue), pixels);
}

} // namespace
} // namespace vxrenderer
