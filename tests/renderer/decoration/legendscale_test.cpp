#include "renderer/decoration/legendscale.h"

#include "graphics3d/plots/scalar/scenegraphplotisosurface3d.h"
#include "tests/renderer/support/testscene.h"

#include <gtest/gtest.h>

#include <limits>

namespace vxrenderer {
namespace {

using vxgraphics3d::SceneGraphPlotSurface2d;

/// Values at the two ends of the bar.
std::pair<double, double> endsOf(const vxgraphics3d::SceneGraphPlot& plot)
{
    const LegendScale scale = legendScaleOf(plot);
    return {scale.lowerValue, scale.upperValue};
}

std::pair<float, float> colorsOf(const vxgraphics3d::SceneGraphPlot& plot)
{
    const LegendScale scale = legendScaleOf(plot);
    return {scale.lowerColor, scale.upperColor};
}

using Ends = std::pair<double, double>;
using Colors = std::pair<float, float>;

TEST(LegendScale, followsTheCurrentLimitsAndTheDataWhenTheyAreAutomatic)
{
    TestScene scene;
    GridRecord record;
    record.value = [](double x, double) { return 4.0 * x - 1.0; };
    const auto plot = scene.add<SceneGraphPlotSurface2d>(1, record, {0, 0xffffff});
    EXPECT_EQ(endsOf(*plot), Ends(-1.0, 3.0));
    plot->setLegendLimits(0.0, 10.0);
    EXPECT_EQ(endsOf(*plot), Ends(0.0, 10.0));
    // The plot itself goes on reporting 0 and 10 here.
    plot->setAutoLegendLimits();
    EXPECT_EQ(endsOf(*plot), Ends(-1.0, 3.0));
    plot->setSymmetricColorTable(true);
    plot->fillPlot(record.make());
    EXPECT_EQ(endsOf(*plot), Ends(-3.0, 3.0));
    EXPECT_EQ(colorsOf(*plot), Colors(0.0f, 1.0f));
    plot->setReverseColorTable(true);
    EXPECT_EQ(colorsOf(*plot), Colors(1.0f, 0.0f));
}

TEST(LegendScale, ofConstantDataIsOneValueAndOneColorUntilLimitsAreGiven)
{
    TestScene scene;
    GridRecord record;
    record.value = [](double, double) { return 5.0; };
    const auto plot = scene.add<SceneGraphPlotSurface2d>(1, record, {0, 0xffffff});
    EXPECT_EQ(endsOf(*plot), Ends(5.0, 5.0));
    EXPECT_EQ(colorsOf(*plot), Colors(0.5f, 0.5f));
    EXPECT_EQ(legendScaleOf(*plot).heightOf(5.0), 0.5);
    plot->setLegendLimits(0.0, 10.0);
    EXPECT_EQ(endsOf(*plot), Ends(0.0, 10.0));
    EXPECT_EQ(colorsOf(*plot), Colors(0.0f, 1.0f));
    plot->setAutoLegendLimits();
    EXPECT_EQ(endsOf(*plot), Ends(5.0, 5.0));
}

TEST(LegendScale, placesValuesWhicheverWayItRuns)
{
    constexpr double max = std::numeric_limits<double>::max();
    const struct {
        double lower;
        double upper;
        double value;
        double height;
    } cases[] = {{0.0, 10.0, 2.5, 0.25}, {10.0, 0.0, 2.5, 0.75}, {-max, max, 0.0, 0.5}, {-max, max, max, 1.0}};
    for (const auto& c : cases) {
        EXPECT_EQ((LegendScale{c.lower, c.upper}.heightOf(c.value)), c.height) << c.lower << " to " << c.upper;
    }
}

TEST(LegendScale, isLogarithmicIfTheLevelsOfThePlotAre)
{
    const struct {
        std::vector<double> levels;
        bool isLogarithmic;
    } cases[] = {{{1, 10, 100}, true},
                 {{1, 2, 5, 10}, true},
                 {{0.3, 1, 3, 10}, true},
                 {{3, 6, 12}, true},
                 {{1, 2, 5}, false},
                 {{1, 2, 3}, false},
                 {{1, 10}, false},
                 {{0, 1, 10}, false},
                 {{1, 4, 7, 10}, false},
                 {{1, 1, 10, 100}, false},
                 {{1, 10, 1e300 * 1e300}, false}};
    for (const auto& c : cases) {
        EXPECT_EQ(areLogarithmic(c.levels), c.isLogarithmic) << c.levels[0] << " " << c.levels[1];
    }

    vxgraphics3d::SceneGraphPlotIsoSurface3d plot(1);
    plot.fillPlot(levelRecord({1, 10, 100, 1000}));
    LegendScale scale = legendScaleOf(plot);
    EXPECT_DOUBLE_EQ(scale.heightOf(10.0), 1.0 / 3.0);
    EXPECT_EQ(scale.heightOf(0.0), -std::numeric_limits<double>::infinity());
    // The colours of the plot are linear in its values.
    EXPECT_NEAR(scale.colorAt(scale.heightOf(500.5)), 0.5, 1e-6);
    plot.setLegendLimits(5.0, 500.0);
    EXPECT_EQ(legendScaleOf(plot).logarithmicLevels, (std::vector<double>{10, 100}));
    for (const auto& [low, high] : {std::pair(0.0, 1000.0), std::pair(5.0, 50.0), std::pair(1000.0, 1.0)}) {
        plot.setLegendLimits(low, high);
        EXPECT_FALSE(legendScaleOf(plot).isLogarithmic()) << low;
    }
    plot.fillPlot(levelRecord({0, 10, 20, 30}));
    EXPECT_FALSE(legendScaleOf(plot).isLogarithmic());
}

} // namespace
} // namespace vxrenderer
