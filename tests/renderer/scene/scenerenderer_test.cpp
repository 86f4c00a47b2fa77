#include "renderer/scene/scenerenderer.h"

#include "base/ustring.h"
#include "graphics3d/canvas/canvas3dsettings.h"
#include "graphics3d/canvas/gridboxsettings.h"
#include "graphics3d/canvas/scenesettings.h"
#include "graphics3d/lights/scenesettingslight.h"
#include "graphics3d/plots/colour/colortable.h"
#include "graphics3d/settings/canvas3dglobalsettings.h"
#include "renderer/frame/appearance.h"
#include "renderer/frame/view.h"
#include "tests/renderer/support/testscene.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <utility>

namespace vxrenderer {
namespace {

using vxgraphics3d::SceneGraphPlotSurface2d;

constexpr Rgb c_blue = {0, 0, 255};
constexpr Rgb c_red = {255, 0, 0};
const std::vector<int> c_twoColors = {0x0000ff, 0xff0000};

/// Title and legends about a flat plot, in a picture of 400 by 300 pixels.
class SceneRendererTest : public ::testing::Test {
protected:
    SceneRendererTest()
    {
        showFlat(m_canvas, m_scene);
        m_canvas.getCanvas3dSettings()->removeRenderMask(RenderAxes);
        m_canvas.getSceneSettings()->setShowMinMax(false);
    }

    /// Rows of a column that have a colour.
    static std::vector<int> rowsOf(const Picture& picture, int x, const Rgb& color)
    {
        std::vector<int> rows;
        for (int y = 0; y < picture.height; ++y) {
            if (picture.at(x, y) == color) {
                rows.push_back(y);
            }
        }
        return rows;
    }
    /// The middle of the first bar right of the scene.
    int barColumn() const
    {
        const PixelArea& area = m_canvas.getView().area;
        return area.x + area.width + 20;
    }

    OffscreenCanvas m_canvas{400, 300, 4};
    TestScene m_scene;
};

TEST_F(SceneRendererTest, theSceneKeepsClearOfTitleAndLegends)
{
    m_scene.add<SceneGraphPlotSurface2d>(1, {}, c_twoColors)->setTitle(TextFormat::plain, "A title");
    drawn(m_canvas);
    const PixelArea withBoth = m_canvas.getView().area;
    m_canvas.getSceneSettings()->setShowTitle(false);
    drawn(m_canvas);
    const PixelArea withLegend = m_canvas.getView().area;
    m_canvas.getSceneSettings()->setShowLegends(false);
    const Picture bare = drawn(m_canvas);
    const PixelArea alone = m_canvas.getView().area;
    EXPECT_LT(withLegend.y, withBoth.y);
    EXPECT_LT(withLegend.width, alone.width);
    // What is drawn next to the scene is what was asked for, and nothing else.
    EXPECT_EQ(bare.countDrawn(0, 0, 400, alone.y), 0);
    EXPECT_EQ(bare.countDrawn(alone.x + alone.width, 0, 400, 300), 0);
    m_canvas.getSceneSettings()->setShowTitle(true);
    m_canvas.getSceneSettings()->setShowLegends(true);
    const Picture full = drawn(m_canvas);
    EXPECT_GT(full.countDrawn(0, 0, withBoth.x + withBoth.width, withBoth.y), 100) << "the title";
    EXPECT_GT(full.countDrawn(withBoth.x + withBoth.width, withBoth.y, 400, 300), 1000) << "the legend";
    EXPECT_EQ(full.countDrawn(withBoth.x + withBoth.width, withBoth.y, withBoth.x + withBoth.width + 8, 300), 0);
}

TEST_F(SceneRendererTest, theBarRunsFromTheLowestColorBelowToTheHighestAbove)
{
    const auto plot = m_scene.add<SceneGraphPlotSurface2d>(1, {}, c_twoColors);
    const Picture picture = drawn(m_canvas);
    const auto red = rowsOf(picture, barColumn(), c_red);
    const auto blue = rowsOf(picture, barColumn(), c_blue);
    ASSERT_GT(red.size(), 50u);
    EXPECT_NEAR(static_cast<double>(red.size()), static_cast<double>(blue.size()), 1.0);
    EXPECT_EQ(red.back() + 1, blue.front());
    // Limits move the data within the colours; the bar goes on showing all of them.
    plot->setLegendLimits(-5.0, 5.0);
    EXPECT_EQ(rowsOf(drawn(m_canvas), barColumn(), c_red), red);
    plot->setReverseColorTable(true);
    EXPECT_EQ(rowsOf(drawn(m_canvas), barColumn(), c_blue), red);
}

TEST_F(SceneRendererTest, constantDataShowOneColorAndOneLabel)
{
    GridRecord record;
    record.value = [](double, double) { return 5.0; };
    m_scene.add<SceneGraphPlotSurface2d>(1, record, {0x0000ff, 0x00ff00, 0xff0000});
    const Picture picture = drawn(m_canvas);
    EXPECT_TRUE(rowsOf(picture, barColumn(), c_blue).empty());
    EXPECT_TRUE(rowsOf(picture, barColumn(), c_red).empty());
    EXPECT_GT(rowsOf(picture, barColumn(), {0, 255, 0}).size(), 100u);
    // Right of the bar there is something at half its height and nowhere else.
    const auto green = rowsOf(picture, barColumn(), {0, 255, 0});
    const int middle = (green.front() + green.back()) / 2;
    const int right = barColumn() + 14;
    EXPECT_GT(picture.countDrawn(right, middle - 10, 400, middle + 10), 10);
    EXPECT_EQ(picture.countDrawn(right, 0, 400, middle - 10), 0);
    EXPECT_EQ(picture.countDrawn(right, middle + 10, 400, 300), 0);
}

TEST_F(SceneRendererTest, ticksAreAtTheHeightOfTheirValues)
{
    m_scene.add<SceneGraphPlotSurface2d>(1, {}, c_twoColors);
    const Picture picture = drawn(m_canvas);
    // The ends of the ticks, just right of the frame of the bar.
    int frame = barColumn();
    while (picture.at(frame, 150) == c_red || picture.at(frame, 150) == c_blue) {
        ++frame;
    }
    std::vector<int> ticks;
    for (int y = 0; y < 300; ++y) {
        // Shorter ones lie between them.
        if (picture.at(frame + 3, y) != c_white) {
            ticks.push_back(y);
        }
    }
    // 0.0 to 1.0 in steps of 0.2; the first and last in the rows of the frame's ends.
    ASSERT_EQ(ticks.size(), 6u);
    const auto red = rowsOf(picture, barColumn(), c_red);
    const auto blue = rowsOf(picture, barColumn(), c_blue);
    EXPECT_EQ(ticks.front(), red.front() - 1);
    EXPECT_EQ(ticks.back(), blue.back() + 1);
    for (std::size_t i = 1; i < ticks.size(); ++i) {
        EXPECT_NEAR(ticks[i] - ticks[i - 1], (ticks.back() - ticks.front()) / 5.0, 1.0);
    }
}

TEST_F(SceneRendererTest, showsALegendForEachPlotThatHasOne)
{
    m_scene.add<SceneGraphPlotSurface2d>(1, {}, c_twoColors);
    drawn(m_canvas);
    const int one = m_canvas.getView().area.width;
    const auto second = m_scene.add<SceneGraphPlotSurface2d>(2, {}, c_twoColors);
    drawn(m_canvas);
    EXPECT_LT(m_canvas.getView().area.width, one - 30);
    second->setShowLegend(false);
    drawn(m_canvas);
    EXPECT_EQ(m_canvas.getView().area.width, one);
    second->setShowLegend(true);
    second->setColor({255, 255, 255, 255});
    drawn(m_canvas);
    EXPECT_EQ(m_canvas.getView().area.width, one);
}

TEST_F(SceneRendererTest, theTitleIsOverTheMiddleOfTheScene)
{
    m_scene.add<SceneGraphPlotSurface2d>(1, {}, c_twoColors)->setTitle(TextFormat::plain, "HHHH");
    const Picture picture = drawn(m_canvas);
    const PixelArea& area = m_canvas.getView().area;
    int left = 400;
    int right = 0;
    for (int x = 0; x < 400; ++x) {
        if (picture.countDrawn(x, 0, x + 1, area.y) > 0) {
            left = std::min(left, x);
            right = x + 1;
        }
    }
    const double middle = pixelOf(m_canvas, {0.5f, 0.5f, 0.0f})[0];
    EXPECT_NEAR(left + right, 2.0 * middle, 4.0);
    EXPECT_GT(400 - area.width, 60) << "beside a legend";
}

TEST_F(SceneRendererTest, withoutAGridTheAxesRemain)
{
    m_scene.add<SceneGraphPlotSurface2d>(1, {}, {0xff0000});
    const auto settings = m_canvas.getCanvas3dSettings();
    settings->setRenderMask(RenderPlots | RenderAxes | RenderBackground);
    const auto count = [&](bool isGridShown) {
        settings->getGridBoxSettingsPtr()->setShowGrid(isGridShown);
        const Picture picture = drawn(m_canvas);
        const PixelArea& area = m_canvas.getView().area;
        int numLines = 0;
        for (int x = area.x + 1; x < area.x + area.width - 1; ++x) {
            // Over the data and next to them, in a row without a line of equal y.
            const Rgb pixel = picture.at(x, area.y + area.height / 2 + 5);
            numLines += pixel != c_white && pixel != c_red ? 1 : 0;
        }
        const int numAround =
            picture.countDrawn(0, area.y, static_cast<int>(pixelOf(m_canvas, {0.0f, 0.0f, 0.0f})[0]) - 12, 300);
        return std::pair(numLines, numAround);
    };
    const auto with = count(true);
    const auto without = count(false);
    EXPECT_LE(without.first, 4) << "the sides of the square and of the frame";
    EXPECT_GT(with.first, without.first) << "a line of the grid between the sides";
    EXPECT_EQ(without.second, with.second);
    EXPECT_GT(without.second, 50) << "labels and ticks";
    lookFrom(m_canvas, 30.0, 30.0);
    settings->getGridBoxSettingsPtr()->setShowGrid(false);
    const int box = drawn(m_canvas).countDrawn(0, 0, 400, 300);
    settings->removeRenderMask(RenderAxes);
    EXPECT_GT(box, drawnAsIs(m_canvas).countDrawn(0, 0, 400, 300) + 300);
}

TEST_F(SceneRendererTest, theTitleFollowsItsChanges)
{
    const auto plot = m_scene.add<SceneGraphPlotSurface2d>(1, {}, c_twoColors);
    const auto top = [&] {
        drawn(m_canvas);
        return m_canvas.getView().area.y;
    };
    const int none = top();
    m_scene.group->setTitle(TextFormat::plain, "One line");
    const int one = top();
    EXPECT_GT(one, none);
    m_scene.group->setTitle(TextFormat::plain, "Two\nlines");
    EXPECT_GT(top(), one);
    m_scene.group->setTitle(TextFormat::plain, "");
    EXPECT_EQ(top(), none);
    // Another group whose titles were changed as often.
    m_scene.group->setTitle(TextFormat::plain, "One line");
    EXPECT_EQ(top(), one);
    const auto other = vxgraphics3d::SceneGraphPlotGroup::create();
    m_scene.group->removePlot(1);
    other->addPlot(plot);
    while (other->getTitleChangeId() < m_scene.group->getTitleChangeId()) {
        other->setTitle(TextFormat::plain, "");
    }
    m_scene.root->setChild(other);
    EXPECT_EQ(top(), none);
}

TEST_F(SceneRendererTest, longTitlesAndSmallPicturesStayReadable)
{
    const auto plot = m_scene.add<SceneGraphPlotSurface2d>(1, {}, c_twoColors);
    std::string text;
    for (int i = 0; i < 500; ++i) {
        text += "word ";
    }
    plot->setTitle(TextFormat::plain, vxbase::UString(text));
    drawn(m_canvas);
    EXPECT_GE(m_canvas.getView().area.height, 150);
    EXPECT_GE(m_canvas.getView().area.width, 150);
    for (const int size : {1, 2, 10, 30, 60}) {
        m_canvas.resize(size, size);
        drawn(m_canvas);
        EXPECT_LE(m_canvas.getView().area.width, size);
    }
}

/// Numbers of the process, restored at the end.
class Precisions {
public:
    Precisions(int tick, int minMax) { set(tick, minMax); }
    ~Precisions() { set(m_tick, m_minMax); }
    Precisions(const Precisions&) = delete;
    Precisions& operator=(const Precisions&) = delete;

private:
    static void set(int tick, int minMax)
    {
        vxgraphics3d::Canvas3dGlobalSettings::getInstance()->setLegendTickPrecision(tick);
        vxgraphics3d::Canvas3dGlobalSettings::getInstance()->setLegendMinMaxPrecision(minMax);
    }
    int m_tick = vxgraphics3d::Canvas3dGlobalSettings::getInstance()->getLegendTickPrecision();
    int m_minMax = vxgraphics3d::Canvas3dGlobalSettings::getInstance()->getLegendMinMaxPrecision();
};

TEST_F(SceneRendererTest, marksOfTheExtremesAreAboveAndBelowTheBar)
{
    m_scene.add<SceneGraphPlotSurface2d>(1, {}, c_twoColors);
    // Colours of the column of the bar: nothing above its frame without marks.
    const auto ends = [&] {
        const Picture picture = drawn(m_canvas);
        const int bar = rowsOf(picture, barColumn(), c_red).front();
        const int foot = rowsOf(picture, barColumn(), c_blue).back();
        const int left = barColumn() - 12;
        return std::array{bar, picture.countDrawn(left, 0, left + 16, bar - 2), foot,
                          picture.countDrawn(left, foot + 3, left + 16, 300)};
    };
    const auto without = ends();
    m_canvas.getSceneSettings()->setShowMinMax(true);
    const auto with = ends();
    EXPECT_EQ(without[1], 0);
    EXPECT_EQ(without[3], 0);
    EXPECT_GT(with[1], 20);
    EXPECT_GT(with[3], 20);
    EXPECT_GT(with[0], without[0] + 5) << "the bar gives way";
    EXPECT_LT(with[2], without[2] - 5);
}

TEST_F(SceneRendererTest, bothKindsOfNumbersHaveTheirDigits)
{
    GridRecord record;
    record.value = [](double, double) { return 1.0 / 3.0; };
    m_scene.add<SceneGraphPlotSurface2d>(1, record, c_twoColors);
    // What legends take: 0.33 or 0.33333 next to the bar, and with a mark before it above and below.
    const auto room = [&](int tick, int minMax) {
        const Precisions precisions(tick, minMax);
        drawn(m_canvas);
        return 400 - m_canvas.getView().area.width;
    };
    EXPECT_GT(room(5, 2), room(2, 2) + 18) << "three digits of about eight pixels";
    EXPECT_EQ(room(2, 5), room(2, 2)) << "not shown";
    m_canvas.getSceneSettings()->setShowMinMax(true);
    EXPECT_GT(room(2, 9), room(2, 2) + 20);
}

TEST(SceneOpacity, mixesPlotsFromFarToNear)
{
    OffscreenCanvas canvas(100, 100, 1);
    TestScene scene;
    // The near one comes first in the group and turns its back to the eye.
    const auto near = scene.addSquare(1, 0x0000ff, 1.0);
    GridRecord turned;
    turned.height = [](double, double) { return 1.0; };
    auto record = turned.make();
    std::swap((*record.m_elements[0])[0], (*record.m_elements[0])[1]);
    near->fillPlot(record);
    const auto far = scene.addSquare(2, 0xff0000, 0.0);
    showFromAbove(canvas, scene);
    canvas.getSceneSettings()->getLight()->setUseLight(false);
    const auto settings = canvas.getSceneSettings();
    const auto middle = [&] { return colorAt(canvas, drawn(canvas), {0.4f, 0.5f, 0.0f}); };
    EXPECT_EQ(middle(), (Rgb{0, 0, 255}));
    settings->setGlobalOpacity(0.6f);
    EXPECT_EQ(middle(), (Rgb{102, 41, 194}))
        << "0.6 of blue over 0.6 of red, which left 102 of the white: 255, 102, 102";
    lookFrom(canvas, -90.0, -90.0);
    EXPECT_EQ(middle(), (Rgb{194, 41, 102})) << "the other one is nearer";
    far->setActive(false);
    EXPECT_EQ(middle(), (Rgb{102, 102, 255}));
    settings->setGlobalOpacity(0.0f);
    EXPECT_EQ(drawn(canvas).countDrawn(0, 0, 100, 100), 0);
    settings->setGlobalOpacity(7.0f);
    EXPECT_EQ(middle(), (Rgb{0, 0, 255}));
}

TEST(SceneOpacity, theGridIsSeenThroughPlots)
{
    OffscreenCanvas canvas(200, 200, 1);
    TestScene scene;
    scene.addSquare(1, 0xff0000);
    showFromAbove(canvas, scene);
    canvas.getCanvas3dSettings()->addRenderMask(RenderAxes);
    const auto settings = canvas.getSceneSettings();
    settings->getLight()->setUseLight(false);
    // Pixels within the square that lines of the grid change.
    const auto lines = [&](float opacity, const Rgb& plain) {
        settings->setGlobalOpacity(opacity);
        const Picture picture = drawn(canvas);
        const auto [left, bottom] = pixelOf(canvas, {0.02f, 0.02f, 0.0f});
        const auto [right, top] = pixelOf(canvas, {0.98f, 0.98f, 0.0f});
        int changed = 0;
        for (int y = static_cast<int>(top); y < static_cast<int>(bottom); ++y) {
            for (int x = static_cast<int>(left); x < static_cast<int>(right); ++x) {
                changed += picture.at(x, y) != plain ? 1 : 0;
            }
        }
        return changed;
    };
    EXPECT_EQ(lines(1.0f, c_red), 0);
    const int seenThrough = lines(0.6f, {255, 102, 102});
    EXPECT_GT(seenThrough, 100);
    EXPECT_EQ(lines(0.0f, c_white), seenThrough);
}

} // namespace
} // namespace vxrenderer
