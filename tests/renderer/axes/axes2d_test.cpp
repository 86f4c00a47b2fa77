#include "renderer/axes/axes2d.h"

#include "graphics3d/cameras/camera2d.h"
#include "graphics3d/canvas/axissetup.h"
#include "renderer/axes/degreeaxis.h"
#include "renderer/axes/labelplacer.h"
#include "renderer/text/fontset.h"
#include "tests/renderer/support/squaremetrics.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <random>
#include <set>

namespace vxrenderer {
namespace {

using vxgraphics3d::AxisSetup;
using vxgraphics3d::Camera2d;
using vxgraphics3d::Vector3f;

/// A view of 400 by 200 pixels in a picture of 600 by 300.
struct Axes2d : ::testing::Test {
    Camera2d camera;
    AxisSetup setup;
    SquareMetrics metrics;
    PixelArea area = {120, 50, 400, 200};

    void show(float x0, float x1, float y0, float y1)
    {
        camera.setRenderArea(600, 300, area.x, 300 - area.y - area.height, area.width, area.height);
        ASSERT_TRUE(camera.setViewLimits(x0, x1, y0, y1, false));
    }

    Axes2dInput input() const { return {camera, setup, 600, 300}; }
    Axes2dLayout layout() { return layoutAxes2d(input(), area, metrics); }

    static std::string textOf(const Axes2dLayout& layout, bool isTitle)
    {
        std::string text;
        for (const AxisLabel& label : layout.labels) {
            text += label.isTitle == isTitle ? (text.empty() ? "" : " ") + label.markup : "";
        }
        return text;
    }

    static void expectLine(const AxisLine& line, const Vector3f& from, const Vector3f& to)
    {
        EXPECT_LT((line.from - from).length(), 1e-3f) << line.from;
        EXPECT_LT((line.to - to).length(), 1e-3f) << line.to;
    }

    static void expectLabel(const AxisLabel& label, float x, float y, float alignX, float alignY)
    {
        EXPECT_NEAR(label.x, x, 1e-3) << label.markup;
        EXPECT_NEAR(label.y, y, 1e-3) << label.markup;
        EXPECT_EQ(label.alignX, alignX) << label.markup;
        EXPECT_EQ(label.alignY, alignY) << label.markup;
    }
};

TEST_F(Axes2d, areLeftAndBelow)
{
    show(0.0f, 10.0f, 0.0f, 1.0f);
    const Axes2dLayout layout = this->layout();
    EXPECT_EQ(textOf(layout, false), "0 2 4 6 8 10 0.0 0.2 0.4 0.6 0.8 1.0");
    EXPECT_EQ(textOf(layout, true), "");
    ASSERT_EQ(layout.frame.size(), 4u);
    expectLine(layout.frame[0], {120.0f, 50.0f, 0.0f}, {520.0f, 50.0f, 0.0f});
    // Without those at the frame.
    ASSERT_EQ(layout.grid.size(), 8u);
    expectLine(layout.grid[1], {280.0f, 250.0f, 0.0f}, {280.0f, 50.0f, 0.0f});
    expectLine(layout.grid[4], {120.0f, 210.0f, 0.0f}, {520.0f, 210.0f, 0.0f});
    ASSERT_EQ(layout.ticks.size(), 12u);
    expectLine(layout.ticks[2], {280.0f, 250.0f, 0.0f}, {280.0f, 254.0f, 0.0f});
    expectLine(layout.ticks[7], {120.0f, 210.0f, 0.0f}, {116.0f, 210.0f, 0.0f});
    // Quarters of 2 and of 0.2.
    ASSERT_EQ(layout.minorTicks.size(), 30u);
    expectLine(layout.minorTicks[0], {140.0f, 250.0f, 0.0f}, {140.0f, 252.0f, 0.0f});
    expectLine(layout.minorTicks[15], {120.0f, 240.0f, 0.0f}, {118.0f, 240.0f, 0.0f});
    expectLabel(layout.labels[2], 280.0f, 257.0f, 0.5f, 0.0f);
    expectLabel(layout.labels[7], 113.0f, 210.0f, 1.0f, 0.5f);
}

TEST_F(Axes2d, titlesTakeThePowersOfTen)
{
    show(0.0f, 2e5f, 0.0f, 4e6f);
    Axes2dLayout layout = this->layout();
    EXPECT_EQ(textOf(layout, true), "\\times10^{5} \\times10^{6}");
    // The script makes a line 11.8 high.
    expectLabel(layout.labels[0], 520.0f, 271.8f, 1.0f, 0.0f);
    expectLabel(layout.labels[1], 120.0f, 47.0f, 0.0f, 1.0f);

    setup.setXAxisTitle("t");
    setup.setYAxisTitle("U");
    layout = this->layout();
    EXPECT_EQ(textOf(layout, true), "\\begin{center}\\unicode{t}\\end{center} (\\times10^{5}) "
                                    "\\begin{center}\\unicode{U}\\end{center} (\\times10^{6})");
    expectLabel(layout.labels[0], 320.0f, 271.8f, 0.5f, 0.0f);
    // Ticks take 7 pixels, the numbers 0 to 4 take 10, and the gap 3.
    expectLabel(layout.labels[1], 100.0f, 150.0f, 1.0f, 0.5f);
    EXPECT_FALSE(layout.labels[0].isVertical);
    EXPECT_TRUE(layout.labels[1].isVertical);
}

TEST_F(Axes2d, theSymmetryAxisIsNamedAboveTheFrame)
{
    setup.setSymmetryAxis("r");
    show(-1.0f, 3.0f, 0.0f, 1.0f);
    Axes2dLayout layout = this->layout();
    ASSERT_EQ(layout.frame.size(), 5u);
    expectLine(layout.frame[4], {220.0f, 250.0f, 0.0f}, {220.0f, 50.0f, 0.0f});
    EXPECT_EQ(textOf(layout, true), "\\begin{center}\\unicode{r=0}\\end{center}");
    expectLabel(layout.labels[0], 220.0f, 47.0f, 0.5f, 1.0f);
    show(0.0f, 3.0f, 0.0f, 4e6f);
    EXPECT_EQ(textOf(this->layout(), true), "\\times10^{6} \\begin{center}\\unicode{r=0}\\end{center}");
    show(1.0f, 3.0f, 0.0f, 1.0f);
    EXPECT_EQ(this->layout().frame.size(), 4u) << "out of sight";
    show(-1.0f, 3.0f, 0.0f, 1.0f);
    setup.setXAxisLog(true);
    EXPECT_EQ(this->layout().frame.size(), 4u) << "a logarithmic axis has no 0";
}

TEST_F(Axes2d, followTheSetup)
{
    show(0.0f, 10.0f, 0.0f, 4.0f);
    setup.setXSpacing(2.5);
    setup.setYSpacing(1.0);
    EXPECT_EQ(textOf(layout(), false), "0 2 4 6 8 10 0 1 2 3 4") << "spacings wait until they are asked for";
    setup.setAutoSpacing(false);
    setup.setExtraY({3.3});
    setup.setYAxisLog(true);
    EXPECT_EQ(textOf(layout(), false), "0.0 2.5 5.0 7.5 10.0 10^{0} 3.3 10^{1} 10^{2} 10^{3} 10^{4}");
    camera.setCameraMode(Camera2d::ModeOneDimensional);
    EXPECT_EQ(textOf(layout(), false), "0.0 2.5 5.0 7.5 10.0");
    area = {0, 0, 0, 200};
    EXPECT_TRUE(layout().frame.empty());
}

TEST_F(Axes2d, aPolarViewHasCirclesAndSpokes)
{
    area = {100, 50, 200, 200};
    camera.setCameraMode(Camera2d::ModePolar);
    camera.setPolarLimits(5.0f, 1.0f);
    const Axes2dLayout layout = this->layout();
    const Vector3f center(200.0f, 150.0f, 0.0f);
    for (const AxisLine& line : layout.frame) {
        EXPECT_NEAR((line.from - center).length(), 100.0, 1e-3);
    }
    expectLine({layout.frame.back().to, layout.frame.front().from}, {300.0f, 150.0f, 0.0f}, {300.0f, 150.0f, 0.0f});
    // At radius 1 is the middle; the spokes come first, every 45 degrees.
    EXPECT_EQ(textOf(layout, false), "0\xC2\xB0 45\xC2\xB0 90\xC2\xB0 135\xC2\xB0 180\xC2\xB0 225\xC2\xB0 270\xC2\xB0 "
                                     "315\xC2\xB0 2 4");
    expectLine(layout.grid[2], center, {200.0f, 50.0f, 0.0f});
    expectLabel(layout.labels[0], 303.0f, 150.0f, 0.0f, 0.5f);
    expectLabel(layout.labels[8], 203.0f, 125.0f, 0.0f, 0.0f);
    std::vector<int> radii;
    for (std::size_t i = 8; i < layout.grid.size(); ++i) {
        radii.push_back(static_cast<int>(std::lround((layout.grid[i].from - center).length())));
    }
    EXPECT_EQ(std::count(radii.begin(), radii.end(), 25), 25);
    EXPECT_EQ(std::count(radii.begin(), radii.end(), 75), 43);
    EXPECT_EQ(radii.size(), 68u);
}

TEST_F(Axes2d, aPolarSetupHasCirclesAndRaysAboutTheOrigin)
{
    setup.setAxisType(AxisSetup::AxisPolar);
    show(-4.0f, 4.0f, -2.0f, 2.0f);
    Axes2dLayout layout = this->layout();
    EXPECT_EQ(layout.frame.size(), 4u) << "the frame of the area";
    EXPECT_TRUE(layout.ticks.empty());
    // 50 pixels per unit, the origin at (320, 150).
    const Vector3f center(320.0f, 150.0f, 0.0f);
    EXPECT_EQ(textOf(layout, false), "180\xC2\xB0 225\xC2\xB0 270\xC2\xB0 315\xC2\xB0 0\xC2\xB0 45\xC2\xB0 90\xC2\xB0 "
                                     "135\xC2\xB0 1 2");
    expectLine(layout.grid[4], center, {520.0f, 150.0f, 0.0f});
    expectLine(layout.grid[5], center, {420.0f, 50.0f, 0.0f});
    expectLabel(layout.labels[4], 523.0f, 150.0f, 0.0f, 0.5f);
    expectLabel(layout.labels[5], 420.0f, 47.0f, 0.5f, 1.0f);
    expectLabel(layout.labels[8], 323.0f, 100.0f, 0.0f, 0.0f);
    for (std::size_t i = 8; i < layout.grid.size(); ++i) {
        const double radius = static_cast<double>((layout.grid[i].from - center).length()) / 50.0;
        EXPECT_NEAR(radius, std::round(radius), 1e-4);
    }
    EXPECT_EQ(axes2dMargins(input(), metrics).right, 46.0f) << "330 degrees, with gaps";

    // Far from the origin: a narrow sector.
    show(100.0f, 104.0f, -1.0f, 1.0f);
    layout = this->layout();
    EXPECT_EQ(textOf(layout, false), "0\xC2\xB0 100 101 102 103");
    for (const AxisLine& line : layout.grid) {
        EXPECT_LT((line.from - line.to).length(), 500.0f);
    }
    camera.setCameraMode(Camera2d::ModeOneDimensional);
    EXPECT_FALSE(this->layout().ticks.empty()) << "a height that means nothing has no radii";
}

TEST_F(Axes2d, linesAreClearOfTheFrame)
{
    // 0 and 1 lie 4 and 2 pixels from the frame.
    show(-0.01f, 1.01f, -0.01f, 1.01f);
    const Axes2dLayout layout = this->layout();
    EXPECT_EQ(textOf(layout, false), "0.0 0.2 0.4 0.6 0.8 1.0 0.0 0.2 0.4 0.6 0.8 1.0");
    EXPECT_EQ(layout.ticks.size(), 12u);
    EXPECT_EQ(layout.grid.size(), 8u);
    for (const std::vector<AxisLine>* lines : {&layout.ticks, &layout.minorTicks}) {
        for (const AxisLine& tick : *lines) {
            EXPECT_TRUE(tick.from.x == 120.0f || tick.from.y == 250.0f) << "from the frame";
            EXPECT_TRUE(tick.to.x < 120.0f || tick.to.y > 250.0f) << "outwards";
        }
    }
}

TEST_F(Axes2d, theNumbersAtTheLeftTakeWhatTheyNeed)
{
    setup.setYAxisTitle("U");
    const auto gapOf = [&](float low, float high) {
        show(0.0f, 1.0f, low, high);
        area = axes2dArea(input(), {0, 0, 600, 300}, metrics);
        show(0.0f, 1.0f, low, high);
        const Axes2dLayout layout = this->layout();
        float numbers = 600.0f;
        float title = 0.0f;
        for (const AxisLabel& label : layout.labels) {
            const LabelRect rect = rectOf(label, metrics);
            (label.isTitle                             ? title = rect.right
             : rect.right < static_cast<float>(area.x) ? numbers = std::min(numbers, rect.left)
                                                       : 0.0f);
        }
        EXPECT_NEAR(numbers - title, 3.0, 1e-3) << low;
        return area.x;
    };
    const int narrow = gapOf(0.0f, 5.0f);
    EXPECT_GT(gapOf(-0.005f, 0.005f), narrow + 40);
    EXPECT_EQ(gapOf(2.0f, 9.0f), narrow);
}

/// Characters of sizes that no pixels have.
struct NarrowMetrics : TextMetrics {
    float size = 13.0f;

    float fontSize() const override { return size; }
    float advance(char32_t, const TextStyle&) override { return 0.61f * size; }
    float kerning(char32_t, char32_t, const TextStyle&) override { return 0.0f; }
    float ascent(const TextStyle&) override { return 0.93f * size; }
    float descent(const TextStyle&) override { return 0.24f * size; }
};

TEST_F(Axes2d, theNumberNextToTheTitleIsShownWhereverTheAxesAre)
{
    setup.setYAxisTitle("U");
    NarrowMetrics narrow;
    for (area.x = 100; area.x < 160; ++area.x) {
        for (narrow.size = 11.0f; narrow.size < 21.0f; narrow.size += 1.3f) {
            show(0.0f, 10.0f, 10.0f, 30.0f);
            const Axes2dLayout layout = layoutAxes2d(input(), area, narrow);
            EXPECT_NE(textOf(layout, false).find(" 20 "), std::string::npos) << area.x << ", " << narrow.size;
        }
    }
}

TEST_F(Axes2d, anglesRunInStepsOf15To45Degrees)
{
    setup.setAxisType(AxisSetup::AxisPolar);
    const std::set<int> allowed = {15, 30, 45};
    std::set<int> found;
    for (const int side : {30, 60, 100, 200, 250, 400, 900}) {
        for (const auto mode : {Camera2d::ModePolar, Camera2d::ModeOrdinary}) {
            camera.setCameraMode(mode);
            camera.setRenderArea(side + 100, side + 100, 50, 50, side, side);
            mode == Camera2d::ModePolar ? camera.setPolarLimits(5.0f, 0.0f)
                                        : static_cast<void>(camera.setViewLimits(-1.0f, 1.0f, -1.0f, 1.0f, true));
            const Axes2dInput round = {camera, setup, side + 100, side + 100};
            const Axes2dLayout layout = layoutAxes2d(round, {50, 50, side, side}, metrics);
            const auto numRays = std::count_if(layout.grid.begin(), layout.grid.end(), [](const AxisLine& line) {
                return !line.isArc && !line.isMinor && (line.to - line.from).length() > 14.0f;
            });
            if (mode == Camera2d::ModePolar) {
                ASSERT_GT(numRays, 0);
                found.insert(static_cast<int>(360 / numRays));
            }
            for (const AxisLabel& label : layout.labels) {
                const std::size_t degree = label.markup.find("\xC2\xB0");
                if (degree != std::string::npos) {
                    EXPECT_EQ(std::stoi(label.markup) % 15, 0) << side;
                }
            }
        }
    }
    EXPECT_EQ(found, allowed);
}

TEST_F(Axes2d, straightAxesInDegreesHaveStepsThatDivideATurn)
{
    for (const char* title :
         {"Longitude in degrees", "Phase (deg)", "Angle [\\degree]", "\\theta in ^\\circ", "Bearing / \u00B0",
          "Latitude in degrees North", "lat [degrees_north]", "lon (\u00B0 E)", "DEGREES"}) {
        EXPECT_EQ(stepsOf(title), TickSteps::degrees) << title;
    }
    for (const char* title :
         {"", "x", "Temperature in \\degree C", "Temperature in degrees Celsius", "(\u00B0F)", "Turn in deg/s",
          "Stress at 45 degrees", "Stress at 45^\\circ", "Undeg", "deg of freedom"}) {
        EXPECT_EQ(stepsOf(title), TickSteps::decimal) << title;
    }
    setup.setXAxisTitle("Longitude in degrees");
    setup.setYAxisTitle("Latitude in degrees");
    show(-90.0f, 90.0f, -50.0f, 50.0f);
    const Axes2dLayout map = layout();
    EXPECT_EQ(textOf(map, false), "\u221290 \u221260 \u221230 0 30 60 90 \u221230 0 30");
    EXPECT_EQ(map.minorTicks.size(), 12u + 8u) << "every ten degrees between the numbers";
    setup.setYAxisTitle("Temperature in \\degree C");
    EXPECT_EQ(textOf(layout(), false), "\u221290 \u221260 \u221230 0 30 60 90 \u221240 \u221220 0 20 40");
}

TEST_F(Axes2d, marginsFollowTheTitles)
{
    const AxisMargins margins = axes2dMargins(input(), metrics);
    EXPECT_NEAR(margins.left, 80.0, 1e-3);
    EXPECT_NEAR(margins.bottom, 36.6, 1e-3);
    EXPECT_NEAR(margins.right, 38.0, 1e-3);
    EXPECT_NEAR(margins.top, 17.8, 1e-3);
    setup.setYAxisTitle("U");
    EXPECT_NEAR(axes2dMargins(input(), metrics).left, 94.8, 1e-3);
}

TEST_F(Axes2d, everyLabelHasSpaceInsideTheMargins)
{
    FontLibrary library;
    FontSet fonts(library, "default", 14);
    setup.setXAxisTitle("two\nlines");
    setup.setSymmetryAxis("r");
    std::mt19937 random(3);
    std::uniform_real_distribution<float> unit(0.0f, 1.0f);
    for (int round = 0; round < 1000; ++round) {
        TextMetrics& font = round % 2 == 0 ? static_cast<TextMetrics&>(metrics) : fonts;
        setup.setXAxisLog(round % 4 < 2);
        setup.setYAxisLog(round % 3 == 0);
        setup.setExtraX({static_cast<double>(unit(random)), 1.0});
        camera.setCameraMode(round % 7 == 0 ? Camera2d::ModePolar : Camera2d::ModeOrdinary);
        area = axes2dArea(input(), {0, 0, 600, 300}, font);
        const auto limit = [&](bool isLog) {
            return isLog ? std::floor(20.0f * unit(random) - 10.0f)
                         : (unit(random) - 0.5f) * std::pow(10.0f, 12.0f * unit(random) - 6.0f);
        };
        const float x = limit(setup.getXAxisLog());
        const float y = limit(setup.getYAxisLog());
        const auto range = [&](float low, bool isLog) {
            return (isLog ? 10.0f : std::abs(low)) * (0.01f + unit(random));
        };
        show(x, x + range(x, setup.getXAxisLog()), y, y + range(y, setup.getYAxisLog()));
        area = axes2dArea(input(), {0, 0, 600, 300}, font);
        camera.setRenderArea(600, 300, area.x, 300 - area.y - area.height, area.width, area.height);
        const PixelArea later = axes2dArea(input(), {0, 0, 600, 300}, font);
        ASSERT_TRUE(later.x == area.x && later.width == area.width && later.height == area.height)
            << "the limits that follow the area must not move it";

        const Axes2dLayout layout = layoutAxes2d(input(), area, font);
        std::vector<LabelRect> rects;
        for (const AxisLabel& label : layout.labels) {
            const LabelRect rect = rectOf(label, font);
            ASSERT_TRUE(rect.left >= 0.0f && rect.top >= 0.0f && rect.right <= 600.0f && rect.bottom <= 300.0f);
            for (const LabelRect& other : rects) {
                ASSERT_FALSE(rect.left < other.right && other.left < rect.right && rect.top < other.bottom &&
                             other.top < rect.bottom)
                    << label.markup;
            }
            rects.push_back(rect);
        }
        const auto numTitles = static_cast<std::size_t>(
            std::count_if(layout.labels.begin(), layout.labels.end(), [](const AxisLabel& l) { return l.isTitle; }));
        if (camera.getCameraMode() == Camera2d::ModeOrdinary) {
            ASSERT_EQ(layout.labels.size() - numTitles, layout.ticks.size()) << round << " " << textOf(layout, false);
            const auto numAcross = std::count_if(layout.ticks.begin(), layout.ticks.end(),
                                                 [](const AxisLine& tick) { return tick.from.y == tick.to.y; });
            ASSERT_GE(numAcross, 2) << round << " " << textOf(layout, false);
            ASSERT_GE(layout.ticks.size(), static_cast<std::size_t>(numAcross) + 2) << round;
            ASSERT_GE(numTitles, layout.frame.size() - 3u) << "the title of x, and of the symmetry axis";
        }
        for (const AxisLine& line : layout.grid) {
            ASSERT_TRUE(std::isfinite((line.to - line.from).length()));
        }
    }
}

} // namespace
} // namespace vxrenderer
