#include "renderer/axes/ticks.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <vector>

namespace vxrenderer {
namespace {

/// Labels with blanks between them, a plain minus, and the common power of ten at the end.
std::string textOf(const Ticks& ticks)
{
    std::string text;
    for (const Ticks::Tick& tick : ticks.ticks) {
        text += text.empty() ? "" : " ";
        for (const char c : tick.label) {
            // The minus is a character of three bytes.
            text += c == '\xE2' ? "-" : c == '\x88' || c == '\x92' ? "" : std::string(1, c);
        }
    }
    return ticks.exponent == 0 ? text : text + " e" + std::to_string(ticks.exponent);
}

std::string textOf(double low, double high, int count)
{
    return textOf(makeTicks(low, high, count));
}

TEST(Ticks, areRoundAndReadable)
{
    const struct {
        double low;
        double high;
        int count;
        const char* expected;
    } cases[] = {
        {0.0, 1.0, 5, "0.0 0.2 0.4 0.6 0.8 1.0"},
        {0.0, 1.0, 2, "0.0 0.5 1.0"},
        {0.0, 10.0, 5, "0 2 4 6 8 10"},
        {1.0, 0.0, 2, "0.0 0.5 1.0"},
        {-1.5, 1.5, 3, "-1 0 1"},
        {0.03, 0.97, 5, "0.2 0.4 0.6 0.8"},
        {0.1, 0.7, 6, "0.1 0.2 0.3 0.4 0.5 0.6 0.7"},
        {99.98, 100.02, 4, "99.98 99.99 100.00 100.01 100.02"},
        {0.0, 90000.0, 3, "0 50000"},
        {0.0, 250000.0, 5, "0.0 0.5 1.0 1.5 2.0 2.5 e5"},
        {-3e7, 3e7, 3, "-2 0 2 e7"},
        {0.0, 0.004, 4, "0.000 0.001 0.002 0.003 0.004"},
        {0.0, 0.0004, 4, "0 1 2 3 4 e-4"},
        {-2.5e-9, -1.25e-9, 2, "-2 e-9"},
        {1e200, 3e200, 2, "1 2 3 e200"},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(textOf(c.low, c.high, c.count), c.expected) << c.low << " to " << c.high;
    }
}

TEST(Ticks, degreesHaveStepsThatDivideATurn)
{
    const auto textOf = [](double low, double high, int count, int digits = 4) {
        return vxrenderer::textOf(makeTicks(low, high, count, digits, TickSteps::degrees));
    };
    EXPECT_EQ(textOf(-2.0, 2.0, 4), "-2 -1 0 1 2");
    EXPECT_EQ(textOf(0.0, 0.4, 4), "0.0 0.1 0.2 0.3 0.4");
    EXPECT_EQ(textOf(0.0, 40.0, 4), "0 10 20 30 40");
    EXPECT_EQ(textOf(-12.0, 40.0, 5), "0 15 30");
    EXPECT_EQ(textOf(-90.0, 90.0, 6), "-90 -60 -30 0 30 60 90");
    EXPECT_EQ(textOf(-90.0, 90.0, 5), "-90 -45 0 45 90");
    EXPECT_EQ(textOf(180.0, -180.0, 5), "-180 -90 0 90 180");
    EXPECT_EQ(textOf(0.0, 400.0, 3), "0 180 360");
    EXPECT_EQ(textOf(0.0, 3600.0, 6), "0 720 1440 2160 2880 3600");
    EXPECT_EQ(textOf(0.0, 180.0, 12, 2), "0 15 30 45 60 75 90 105 120 135 150 165 180") << "whatever the digits";

    const auto minor = [](double step, double closest) {
        return makeMinorValues(0.0, step, 0.0, step, closest, TickSteps::degrees);
    };
    using Values = std::vector<double>;
    EXPECT_EQ(minor(10.0, 1.0), (Values{2.0, 4.0, 6.0, 8.0}));
    EXPECT_EQ(minor(15.0, 1.0), (Values{5.0, 10.0}));
    EXPECT_EQ(minor(30.0, 1.0), (Values{10.0, 20.0}));
    EXPECT_EQ(minor(30.0, 11.0), (Values{15.0}));
    EXPECT_EQ(minor(45.0, 1.0), (Values{15.0, 30.0}));
    EXPECT_EQ(minor(90.0, 1.0), (Values{30.0, 60.0}));
    EXPECT_EQ(minor(360.0, 1.0), (Values{90.0, 180.0, 270.0}));
}

TEST(Ticks, haveNoMoreDigitsThanWantedWhileTwoAreLeft)
{
    const struct {
        double low;
        double high;
        int digits;
        const char* expected;
    } cases[] = {
        {0.0, 1.0, 1, "0 1"},
        {1000.0, 1001.0, 4, "1000 1001"},
        {1000.0, 1000.8, 4, "1000.0 1000.2 1000.4 1000.6 1000.8"},
        {0.0, 20000.0, 3, "0.0 0.5 1.0 1.5 2.0 e4"},
        {0.0, 20000.0, 4, "0 5000 10000 15000 20000"},
        {0.0, 0.005, 3, "0.000 0.001 0.002 0.003 0.004 0.005"},
        {0.0, 0.0025, 3, "0.0 0.5 1.0 1.5 2.0 2.5 e-3"},
        {0.0, 1.0, -7, "0 1"},
        {0.0, 1.0, 99, "0.0 0.2 0.4 0.6 0.8 1.0"},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(textOf(makeTicks(c.low, c.high, 5, c.digits)), c.expected) << c.low << " to " << c.high;
    }
}

TEST(Ticks, multiplesOfAStepShowWhatItNeeds)
{
    const struct {
        double low;
        double high;
        double step;
        const char* expected;
    } cases[] = {
        {0.0, 0.5, 0.125, "0.000 0.125 0.250 0.375 0.500"},
        {-1.0, 1.0, 1.0 / 3.0, "-1.00 -0.67 -0.33 0.00 0.33 0.67 1.00"},
        {0.0, 90.0, 30.0, "0 30 60 90"},
        {1.0, 2.0, 0.7, "1.4"},
        {100.0, 100.5, 0.25, "100.00 100.25 100.50"},
        {0.0, 30000.0, 12500.0, "0.00 1.25 2.50 e4"},
        {-0.5, 0.5, 3.0, "0"},
        {0.5, 1.0, 3.0, ""},
        {0.0, 1.0, 0.0, ""},
        {0.0, 1.0, -1.0, ""},
        {0.0, 1.0, 1e-9, ""},
        {1e17, 1e17 + 64.0, 16.0, ""},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(textOf(makeMultiples(c.low, c.high, c.step, 3)), c.expected) << c.low << " to " << c.high;
    }
}

TEST(Ticks, areExactDecimalsWithinTheEnds)
{
    for (const double low : {-7.3e5, -1.0, 0.0, 3.3e-6, 12.75}) {
        for (const double span : {1e-5, 0.37, 4.0, 1e6}) {
            for (int count = 1; count <= 12; ++count) {
                const Ticks ticks = makeTicks(low, low + span, count);
                ASSERT_LE(static_cast<int>(ticks.ticks.size()), count + 1);
                ASSERT_GE(static_cast<int>(ticks.ticks.size()), count / 3);
                for (const Ticks::Tick& tick : ticks.ticks) {
                    EXPECT_GE(tick.value, low - 1e-5 * span);
                    EXPECT_LE(tick.value, low + span * (1.0 + 1e-5));
                }
            }
        }
    }
    for (const Ticks::Tick& tick : makeTicks(0.0, 1.0, 10).ticks) {
        EXPECT_EQ(tick.value, std::stod(tick.label));
    }
}

TEST(Ticks, oneValueIsItsOwnTick)
{
    EXPECT_EQ(textOf(5.0, 5.0, 5), "5");
    EXPECT_EQ(textOf(-0.125, -0.125, 5), "-0.125");
    EXPECT_EQ(textOf(0.0, 0.0, 5), "0");
    EXPECT_EQ(textOf(1.0, std::nextafter(1.0, 2.0), 5), "1");
    EXPECT_EQ(numberText(1.5e-7), "1.5\\times10^{\xE2\x88\x92"
                                  "7}");
    EXPECT_EQ(numberText(-123456789.0), "\xE2\x88\x92"
                                        "1.23457\\times10^{8}");
}

TEST(Ticks, endsBeyondTheNumbersGiveNoneOrTheMiddle)
{
    constexpr double inf = std::numeric_limits<double>::infinity();
    constexpr double max = std::numeric_limits<double>::max();
    EXPECT_EQ(textOf(0.0, inf, 5), "");
    EXPECT_EQ(textOf(std::nan(""), 1.0, 5), "");
    EXPECT_EQ(textOf(-max, max, 5), "0");
    EXPECT_EQ(textOf(0.0, std::numeric_limits<double>::denorm_min(), 5), "0");
}

} // namespace
} // namespace vxrenderer
