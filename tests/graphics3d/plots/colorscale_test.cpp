#include "graphics3d/plots/colorscale.h"

#include <gtest/gtest.h>

#include <limits>
#include <vector>

namespace vxgraphics3d {
namespace {

using Doubles = std::vector<double>;
using Floats = std::vector<float>;

constexpr double c_infinity = std::numeric_limits<double>::infinity();
constexpr double c_nan = std::numeric_limits<double>::quiet_NaN();

ColorScale scaleOf(double min, double max)
{
    ColorScale scale;
    scale.setValues(min, max);
    return scale;
}

Doubles legend(const ColorScale& scale)
{
    return {scale.getLegendMin(), scale.getLegendMax()};
}

Floats legendFloats(const ColorScale& scale)
{
    return {scale.getDataTexMin(), scale.getDataTexMax(), scale.getLegendTexMin(), scale.getLegendTexMax()};
}

Doubles restriction(const ColorScale& scale)
{
    return {scale.getRestrictionMin(), scale.getRestrictionMax()};
}

Floats restrictionFloats(const ColorScale& scale)
{
    return {scale.getRestrictionTexMin(), scale.getRestrictionTexMax()};
}

TEST(ColorScale, setLegendLimitsPlacesTheDataOnTheLegend)
{
    struct Case {
        double dataMin, dataMax, legendMin, legendMax;
        Floats expected;
    };
    for (const Case& c :
         {Case{0.0, 10.0, -10.0, 30.0, {0.25f, 0.5f, 0.0f, 1.0f}}, Case{0.0, 10.0, 4.0, 5.0, {-4.0f, 6.0f, 0.0f, 1.0f}},
          Case{0.0, 10.0, 10.0, 0.0, {1.0f, 0.0f, 0.0f, 1.0f}}, Case{0.0, 10.0, 3.0, 3.0, {0.5f, 0.5f, 0.5f, 0.5f}},
          Case{5.0, 5.0, 0.0, 10.0, {0.5f, 0.5f, 0.0f, 1.0f}}, Case{5.0, 5.0, 5.0, 5.0, {0.5f, 0.5f, 0.5f, 0.5f}},
          // Floats cannot distinguish these values, so the arithmetic must be in double.
          Case{1.0e9, 1.0e9 + 3.0, 1.0e9 - 1.0, 1.0e9 + 7.0, {0.125f, 0.5f, 0.0f, 1.0f}}}) {
        ColorScale scale = scaleOf(c.dataMin, c.dataMax);
        EXPECT_TRUE(scale.hasAutoLegendLimits());
        scale.setLegendLimits(c.legendMin, c.legendMax);
        EXPECT_EQ(legendFloats(scale), c.expected) << c.legendMin << " to " << c.legendMax;
        EXPECT_EQ(legend(scale), (Doubles{c.legendMin, c.legendMax}));
        EXPECT_FALSE(scale.hasAutoLegendLimits());
    }
}

TEST(ColorScale, setAutoLegendLimitsResetsTheFloatsAndKeepsTheReportedLimits)
{
    for (const bool constant : {false, true}) {
        ColorScale scale = scaleOf(2.0, constant ? 2.0 : 4.0);
        scale.setLegendLimits(-1.0, 9.0);
        scale.setAutoLegendLimits();
        EXPECT_EQ(legendFloats(scale), constant ? (Floats{0.5f, 0.5f, 0.5f, 0.5f}) : (Floats{0.0f, 1.0f, 0.0f, 1.0f}));
        EXPECT_EQ(legend(scale), (Doubles{-1.0, 9.0}));
        EXPECT_TRUE(scale.hasAutoLegendLimits());
    }
}

TEST(ColorScale, setSymmetricAppliesTheRequestedLimitsEitherWay)
{
    ColorScale scale = scaleOf(0.0, 1.0);
    scale.setLegendLimits(-2.0, 1.0);
    scale.setAutoLegendLimits();
    scale.setSymmetric(true);
    EXPECT_EQ(legend(scale), (Doubles{-2.0, 2.0}));
    EXPECT_FALSE(scale.hasAutoLegendLimits());
    scale.setSymmetric(false);
    EXPECT_EQ(legend(scale), (Doubles{-2.0, 1.0}));

    scale.setSymmetric(true);
    scale.setValues(-1.0, 3.0); // symmetry is kept for new data
    EXPECT_EQ(legend(scale), (Doubles{-3.0, 3.0}));
    EXPECT_EQ(legendFloats(scale), (Floats{static_cast<float>(1.0 / 3.0), 1.0f, 0.0f, 1.0f}));
}

TEST(ColorScale, setRestrictionStoresClampedLimits)
{
    struct Case {
        double dataMax, min, max;
        Doubles stored;
        Floats floats;
    };
    for (const Case& c :
         {Case{8.0, 2.0, 6.0, {2.0, 6.0}, {0.25f, 0.75f}}, Case{8.0, -100.0, 100.0, {0.0, 8.0}, {0.0f, 1.0f}},
          Case{8.0, -3.0, -2.0, {0.0, 0.0}, {0.0f, 0.0f}}, Case{8.0, 9.0, 10.0, {8.0, 8.0}, {1.0f, 1.0f}},
          Case{8.0, -c_infinity, 2.0, {0.0, 2.0}, {0.0f, 0.25f}}, Case{8.0, 4.0, c_infinity, {4.0, 8.0}, {0.5f, 1.0f}},
          Case{8.0, c_nan, 2.0, {0.0, 2.0}, {0.0f, 0.25f}}, Case{8.0, 4.0, c_nan, {4.0, 8.0}, {0.5f, 1.0f}},
          Case{0.0, c_nan, c_nan, {0.0, 0.0}, {0.0f, 1.0f}}, Case{0.0, c_nan, -1.0, {0.0, 0.0}, {0.0f, 0.0f}},
          Case{0.0, -1.0, 1.0, {0.0, 0.0}, {0.0f, 1.0f}}, Case{0.0, 0.0, 0.0, {0.0, 0.0}, {0.0f, 1.0f}},
          Case{0.0, 1.0, 3.0, {0.0, 0.0}, {0.0f, 0.0f}}, Case{0.0, -3.0, -1.0, {0.0, 0.0}, {0.0f, 0.0f}}}) {
        ColorScale scale = scaleOf(0.0, c.dataMax);
        scale.setRestriction(c.min, c.max);
        EXPECT_TRUE(scale.hasRestriction());
        EXPECT_EQ(restriction(scale), c.stored) << c.min << " to " << c.max;
        EXPECT_EQ(restrictionFloats(scale), c.floats) << c.min << " to " << c.max;
    }
}

TEST(ColorScale, resetRestrictionWritesThePlainRangeUnderAutomaticLimits)
{
    ColorScale scale;
    scale.setSymmetric(true);
    scale.setValues(-1.0, 3.0);
    scale.setRestriction(0.0, 1.0);
    scale.resetRestriction();
    EXPECT_FALSE(scale.hasRestriction());
    EXPECT_EQ(restriction(scale), (Doubles{-1.0, 3.0}));
    EXPECT_EQ(restrictionFloats(scale), (Floats{0.0f, 1.0f}));
    EXPECT_EQ(legend(scale), (Doubles{-1.0, 3.0}));

    scale.setLegendLimits(-7.0, 5.0);
    scale.resetRestriction();
    EXPECT_EQ(legend(scale), (Doubles{-7.0, 7.0}));
}

} // namespace
} // namespace vxgraphics3d
