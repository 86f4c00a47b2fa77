#include "renderer/decoration/legendscale.h"

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

} // namespace
} // namespace vxrenderer
