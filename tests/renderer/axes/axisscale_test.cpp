#include "renderer/axes/axisscale.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>

namespace vxrenderer {
namespace {

/// Every byte of a label takes ten pixels.
AxisScale scaleOf(double low, double high, double length = 500.0, bool isLog = false)
{
    AxisScale scale;
    scale.low = low;
    scale.high = high;
    scale.length = length;
    scale.isLog = isLog;
    scale.tickDistance = 50.0;
    scale.labelLength = [](const std::string& markup) { return 10.0 * static_cast<double>(markup.size()); };
    return scale;
}

/// Labels with blanks between them; lines without a label as `|`, minor ones as a point.
std::string textOf(const AxisScale& scale)
{
    std::string text;
    const AxisTicks ticks = makeAxisTicks(scale);
    for (const AxisTick& tick : ticks.ticks) {
        text += text.empty() ? "" : " ";
        text += !tick.label.empty() ? tick.label : tick.isMinor ? "." : "|";
    }
    return text + (ticks.exponent == 0 ? "" : " e" + std::to_string(ticks.exponent));
}

TEST(AxisScale, linearTicksFollowTheSpace)
{
    EXPECT_EQ(textOf(scaleOf(0.0, 10.0)), "0 1 2 3 4 5 6 7 8 9 10");
    EXPECT_EQ(textOf(scaleOf(0.0, 10.0, 100.0)), "0 5 10");
    EXPECT_EQ(textOf(scaleOf(0.0, 4000.0, 120.0)), "0 2000 4000");
    EXPECT_EQ(textOf(scaleOf(0.0, 4e6, 200.0)), "0 1 2 3 4 e6");
}

TEST(AxisScale, aSpacingGivesItsMultiples)
{
    AxisScale scale = scaleOf(0.0, 1.0);
    scale.spacing = 0.25;
    EXPECT_EQ(textOf(scale), "0.00 0.25 0.50 0.75 1.00");
    scale.spacing = 0.1;
    scale.length = 150.0;
    EXPECT_EQ(textOf(scale), "0.0 | | | | 0.5 | | | | 1.0") << "labels every fifth line";
    // 1000 lines on 150 pixels: 37 have space, so every 50th.
    scale.spacing = 0.001;
    EXPECT_EQ(makeAxisTicks(scale).ticks.size(), 21u);
    EXPECT_NEAR(makeAxisTicks(scale).ticks[1].position, 0.05, 1e-12);
    for (const double unusable : {3.0, -1.0, std::nan(""), 1e-300}) {
        scale.spacing = unusable;
        EXPECT_EQ(textOf(scale), "0.0 0.5 1.0") << unusable;
    }
}

TEST(AxisScale, twoTicksAreLabelledWhereverTheyHaveSpace)
{
    EXPECT_EQ(textOf(scaleOf(0.0, 4000.0, 40.0)), "0 | 4000") << "the coarsest step of one label is not enough";
    EXPECT_EQ(textOf(scaleOf(-65.0, 65.0, 60.0)), "\xE2\x88\x92"
                                                  "50 | 50")
        << "0 would stand alone";
    EXPECT_EQ(textOf(scaleOf(1.1, 1.9, 60.0)), "1.2 1.6") << "finer ticks come closer to the ends";
    EXPECT_EQ(textOf(scaleOf(0.3, 1.48, 60.0, true)), "2 | 10 |") << "a single decade";
    EXPECT_EQ(textOf(scaleOf(0.9, 4.1, 80.0, true)), "10^{1} | | 10^{4}") << "every second decade has no space";
    AxisScale scale = scaleOf(0.0, 1.0, 60.0);
    scale.spacing = 0.125;
    EXPECT_EQ(textOf(scale), "0.000 | | | | | | | 1.000");
    EXPECT_EQ(textOf(scaleOf(0.0, 4000.0, 20.0)), "0") << "no space for a second one";
}

TEST(AxisScale, extraPositionsTakePrecedence)
{
    AxisScale scale = scaleOf(0.0, 10.0, 100.0);
    scale.extra = {5.5, 5.5, -1.0, 11.0, std::nan(""), 10.0};
    EXPECT_EQ(textOf(scale), "0 | 5.5 10");
    scale = scaleOf(0.0, 4e6, 200.0);
    scale.extra = {2.5e6};
    EXPECT_EQ(textOf(scale), "0 1 2 2.5 3 4 e6") << "in the units of the other labels";
    scale = scaleOf(0.0, 4.0, 1000.0, true);
    scale.extra = {-1.0, 0.0, 50.0};
    const AxisTicks ticks = makeAxisTicks(scale);
    int found = 0;
    for (const AxisTick& tick : ticks.ticks) {
        if (tick.label == "50") {
            EXPECT_EQ(tick.position, std::log10(50.0));
            ++found;
        }
    }
    EXPECT_EQ(found, 1);
}

TEST(AxisScale, logarithmicTicksAreDecades)
{
    EXPECT_EQ(textOf(scaleOf(-2.5, 1.2, 400.0, true)), ". . . . . . 10^{\xE2\x88\x92"
                                                       "2} . . . . . . . . 10^{\xE2\x88\x92"
                                                       "1} . . . . . . . . 10^{0} . . . . . . . . 10^{1}");
    EXPECT_EQ(textOf(scaleOf(0.0, 4.0, 300.0, true)), "10^{0} 10^{1} 10^{2} 10^{3} 10^{4}") << "no room for lines";
    EXPECT_EQ(textOf(scaleOf(0.0, 12.0, 600.0, true)),
              "10^{0} . 10^{2} . 10^{4} . 10^{6} . 10^{8} . 10^{10} . 10^{12}");
    EXPECT_EQ(textOf(scaleOf(0.0, 100.0, 380.0, true)), "10^{0} . . . . . . . . . 10^{20} . . . . . . . . . 10^{40} "
                                                        ". . . . . . . . . 10^{60} . . . . . . . . . 10^{80} "
                                                        ". . . . . . . . . 10^{100}");
}

TEST(AxisScale, fewDecadesShowNumbers)
{
    EXPECT_EQ(textOf(scaleOf(0.0, 1.0, 80.0, true)), "1 2 5 10") << "80 pixels of a decade: no minor lines";
    EXPECT_EQ(textOf(scaleOf(std::log10(0.3), std::log10(3.0), 100.0, true)), ". . 0.5 . . . . 1 2 .");
    EXPECT_EQ(textOf(scaleOf(std::log10(3.0), std::log10(3.4), 250.0, true)), "3.0 3.1 3.2 3.3 3.4");
    EXPECT_EQ(textOf(scaleOf(6.4, 6.9, 250.0, true)), "4 6 e6");
    EXPECT_EQ(textOf(scaleOf(6.0, 7.0, 400.0, true)), "10^{6} 2\\times10^{6} . . 5\\times10^{6} . . . . 10^{7}");
}

TEST(AxisScale, withoutARangeThereAreNone)
{
    constexpr double inf = std::numeric_limits<double>::infinity();
    for (const bool isLog : {false, true}) {
        EXPECT_EQ(textOf(scaleOf(1.0, 1.0, 500.0, isLog)), "");
        EXPECT_EQ(textOf(scaleOf(2.0, 1.0, 500.0, isLog)), "");
        EXPECT_EQ(textOf(scaleOf(0.0, inf, 500.0, isLog)), "");
        EXPECT_EQ(textOf(scaleOf(std::nan(""), 1.0, 500.0, isLog)), "");
        EXPECT_EQ(textOf(scaleOf(0.0, 1.0, 0.0, isLog)), "");
        EXPECT_EQ(textOf(scaleOf(0.0, 1.0, inf, isLog)), "");
    }
    EXPECT_EQ(textOf(scaleOf(0.0, 1e30, 500.0, true)), "");
}

TEST(AxisScale, labelsNeverOverlap)
{
    std::mt19937 random(7);
    std::uniform_real_distribution<double> unit(0.0, 1.0);
    for (int i = 0; i < 2000; ++i) {
        const bool isLog = i % 2 == 0;
        const double low = (unit(random) - 0.5) * (isLog ? 40.0 : std::pow(10.0, 12.0 * unit(random) - 6.0));
        const double range = std::pow(10.0, 4.0 * unit(random) - (isLog ? 2.5 : 6.0));
        AxisScale scale = scaleOf(low, low + range, 1.0 + 1000.0 * unit(random), isLog);
        scale.spacing = i % 3 == 0 ? range * unit(random) : 0.0;
        if (i % 5 != 0) {
            scale.extra = {low + 0.3 * range, low + 0.31 * range, low + range};
        }
        double end = -HUGE_VAL;
        int numLabels = 0;
        for (const AxisTick& tick : makeAxisTicks(scale).ticks) {
            ASSERT_GE(tick.position, low - 1e-5 * range);
            ASSERT_LE(tick.position, low + range * (1.0 + 1e-5));
            if (!tick.label.empty()) {
                const double half = 0.5 * scale.labelLength(tick.label);
                const double middle = (tick.position - low) / range * scale.length;
                ASSERT_GE(middle - half, end - 1e-6);
                end = middle + half;
                ++numLabels;
            }
        }
        // No label is longer than 200 pixels.
        EXPECT_GE(numLabels, scale.length > 700.0 ? 2 : 1) << low << " + " << range << ", " << scale.length;
    }
}

} // namespace
} // namespace vxrenderer
