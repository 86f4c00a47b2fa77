#include "renderer/decoration/legendmarks.h"

#include "graphics3d/plots/scalar/scenegraphplotisosurface3d.h"
#include "renderer/decoration/legendscale.h"
#include "tests/renderer/support/testscene.h"

#include <gtest/gtest.h>

namespace vxrenderer {
namespace {

using vxgraphics3d::SceneGraphPlotSurface2d;
using Beyond = LegendMarks::Beyond;

/// A plot of values from -1 to 3.
class LegendMarksTest : public ::testing::Test {
protected:
    LegendMarksTest()
    {
        GridRecord record;
        record.value = [](double x, double) { return 4.0 * x - 1.0; };
        m_plot = m_scene.add<SceneGraphPlotSurface2d>(1, record, {0, 0xffffff});
    }

    LegendMarks marks(int count = 4, int minMaxDigits = 5) const
    {
        return LegendMarks::of(*m_plot, legendScaleOf(*m_plot), count, 5, minMaxDigits);
    }

    TestScene m_scene;
    boost::shared_ptr<SceneGraphPlotSurface2d> m_plot;
};

TEST_F(LegendMarksTest, anEndIsClippedIfShownValuesLieBeyondIt)
{
    const struct {
        double low, high;
        bool below, above;
    } cases[] = {{-1.0, 3.0, false, false}, {-2.0, 4.0, false, false}, {0.0, 3.0, true, false},
                 {-1.0, 2.0, false, true},  {0.0, 2.0, true, true},    {5.0, 6.0, true, false}};
    for (const auto& c : cases) {
        m_plot->setLegendLimits(c.low, c.high);
        EXPECT_EQ(marks().below, c.below ? Beyond::shown : Beyond::nothing) << c.low << " to " << c.high;
        EXPECT_EQ(marks().above, c.above ? Beyond::shown : Beyond::nothing) << c.low << " to " << c.high;
    }
    // A restriction may hide all that is beyond an end.
    m_plot->setLegendLimits(0.0, 2.0);
    m_plot->setValueRestrictions(0.5, 2.5);
    EXPECT_EQ(marks().below, Beyond::hidden);
    EXPECT_EQ(marks().above, Beyond::shown);
    EXPECT_EQ(marks().shownFrom, 0.25);
    EXPECT_EQ(marks().shownTo, 1.0);
    m_plot->setValueRestrictions(-0.5, 1.0);
    EXPECT_EQ(marks().below, Beyond::shown);
    EXPECT_EQ(marks().above, Beyond::hidden);
    m_plot->setLegendLimits(-1.0, 3.0);
    EXPECT_EQ(marks().below, Beyond::nothing) << "what is hidden is an empty part of the bar";
    EXPECT_EQ(marks().above, Beyond::nothing);
}

TEST_F(LegendMarksTest, extremesAreMarkedOnTheBarInTheFormatOfTheTicks)
{
    m_plot->setLegendLimits(-2.0, 2.0);
    LegendMarks of = marks();
    EXPECT_EQ(of.smallestAt, 0.25);
    EXPECT_EQ(of.largestAt, std::nullopt);
    EXPECT_EQ(of.smallest, "\xE2\x88\x92"
                           "1");
    EXPECT_EQ(of.largest, "3");
    // Ticks in steps of 0.5 have one decimal.
    of = marks(8);
    EXPECT_EQ(of.ticks.front().label, "\xE2\x88\x92"
                                      "2.0");
    EXPECT_EQ(of.smallest, "\xE2\x88\x92"
                           "1.0");
    EXPECT_EQ(of.largest, "3.0");
    // A common power of ten.
    GridRecord record;
    record.value = [](double x, double) { return 1234567.0 * x; };
    m_plot->fillPlot(record.make());
    m_plot->setAutoLegendLimits();
    of = marks(4);
    EXPECT_EQ(of.format.exponent, 6);
    EXPECT_EQ(of.largest, "1.2346");
    EXPECT_EQ(of.smallest, "0.0000");
    EXPECT_EQ(marks(4, 3).largest, "1.23");
    // The precision is that of the larger one.
    record.value = [](double x, double) { return 150.914 * x + 0.0086; };
    m_plot->fillPlot(record.make());
    m_plot->setLegendLimits(0.0, 70.0);
    EXPECT_EQ(marks().smallest, "0.01");
    EXPECT_EQ(marks().largest, "150.92");
}

TEST_F(LegendMarksTest, minorTicksDivideEachStepIntoRoundParts)
{
    // Steps of 1, 2 and 5 in 5, 4 and 5 parts.
    const struct {
        double limit;
        std::size_t major, minor;
    } cases[] = {{4.0, 5, 16}, {8.0, 5, 12}, {20.0, 5, 16}};
    for (const auto& c : cases) {
        m_plot->setLegendLimits(0.0, c.limit);
        EXPECT_EQ(marks().ticks.size(), c.major) << c.limit;
        EXPECT_EQ(marks().minorTicks.size(), c.minor) << c.limit;
    }
    EXPECT_DOUBLE_EQ(marks().minorTicks.front(), 0.05);
}

TEST(LogarithmicLegendMarks, labelsLevelsAndDividesDecades)
{
    vxgraphics3d::SceneGraphPlotIsoSurface3d plot(1);
    plot.fillPlot(levelRecord({1, 10, 100, 1000}));
    const auto marksOf = [&](int count) { return LegendMarks::of(plot, legendScaleOf(plot), count, 5, 5); };
    LegendMarks marks = marksOf(8);
    ASSERT_EQ(marks.ticks.size(), 4u);
    EXPECT_DOUBLE_EQ(marks.ticks[2].position, 2.0 / 3.0);
    EXPECT_EQ(marks.ticks[2].label, "100");
    EXPECT_EQ(marks.minorTicks.size(), 24u) << "2 to 9 in each decade";
    EXPECT_EQ(marks.smallest, "1");
    EXPECT_EQ(marks.largest, "1000");
    // Little space: every second level has a label, the others a short tick.
    marks = marksOf(2);
    ASSERT_EQ(marks.ticks.size(), 2u);
    EXPECT_EQ(marks.ticks[1].label, "100");
    EXPECT_EQ(marks.minorTicks.size(), 25u);
    plot.setLegendLimits(2.0, 200.0);
    marks = marksOf(8);
    EXPECT_EQ(marks.below, Beyond::shown);
    EXPECT_EQ(marks.ticks[0].label, "10");
    plot.fillPlot(levelRecord({1e-9, 1e-3, 1e3}));
    EXPECT_EQ(marksOf(8).minorTicks.size(), 10u) << "the powers of ten between the labels";
}

TEST(LevelLabels, haveOneFormatOrPowersOfTen)
{
    using Labels = std::vector<std::string>;
    EXPECT_EQ(levelLabels({0.5, 1.0, 1.25}, 5), (Labels{"0.50", "1.00", "1.25"}));
    EXPECT_EQ(levelLabels({0.1, 1.0, 10.0}, 5), (Labels{"0.1", "1", "10"}));
    EXPECT_EQ(levelLabels({1e-3, 1e-1, 1e1, 1e3}, 5), (Labels{"10^{\xE2\x88\x92"
                                                              "3}",
                                                              "10^{\xE2\x88\x92"
                                                              "1}",
                                                              "10^{1}", "10^{3}"}));
    EXPECT_EQ(levelLabels({2e0, 2e3, 2e6}, 5), (Labels{"2\\times10^{0}", "2\\times10^{3}", "2\\times10^{6}"}));
}

TEST(UnitOf, aTitleIsInBracketsOrAfterInAndLeavesTheName)
{
    const struct {
        const char* title;
        const char* unit;
        const char* name;
    } cases[] = {{"Temperature in \\degree C", "\\degree C", "Temperature"},
                 {"Stress (MPa)", "MPa", "Stress"},
                 {"Speed [m/s]", "m/s", "Speed"},
                 {"Depth in 100 m", "100 m", "Depth"},
                 {"Angle in degrees", "degrees", "Angle"},
                 {"Moment in kN m ", "kN m", "Moment"},
                 {"Height over 531 m", "", "Height over 531 m"},
                 {"Waves in water", "", "Waves in water"},
                 {"Summer in Paris", "", "Summer in Paris"},
                 {"Magnitude", "", "Magnitude"},
                 {"", "", ""}};
    for (const auto& c : cases) {
        EXPECT_EQ(unitOf(c.title), c.unit) << c.title;
        EXPECT_EQ(withoutUnit(c.title), c.name) << c.title;
    }
}

} // namespace
} // namespace vxrenderer
