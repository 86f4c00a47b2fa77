#include "graphics3d/cameras/axisorientationindicator.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace vxgraphics3d {
namespace {

using Indicator = AxisOrientationIndicator;

void expectSameSettings(const Indicator& a, const Indicator& b)
{
    EXPECT_EQ(a.isShown(), b.isShown());
    EXPECT_EQ(a.getAxisLength(), b.getAxisLength());
    EXPECT_EQ(a.getExtraSize(), b.getExtraSize());
    EXPECT_EQ(a.getLineWidth(), b.getLineWidth());
    EXPECT_EQ(a.getExtraColor(), b.getExtraColor());
    for (const Indicator::Axis axis : {Indicator::AxisX, Indicator::AxisY, Indicator::AxisZ}) {
        EXPECT_EQ(a.getLabel(axis), b.getLabel(axis));
        EXPECT_EQ(a.getColor(axis), b.getColor(axis));
    }
}

Indicator changedIndicator()
{
    Indicator indicator;
    indicator.show(true);
    indicator.setAxisLength(3.0f);
    indicator.setLineWidth(2.0f);
    indicator.setLabel(Indicator::AxisY, "r");
    indicator.setColor(Indicator::AxisZ, {1, 2, 3, 4});
    return indicator;
}

TEST(AxisOrientationIndicator, startsHiddenInRedGreenAndBlue)
{
    const Indicator indicator;
    EXPECT_EQ(indicator.getChangeId(), 1);
    EXPECT_FALSE(indicator.isShown());
    EXPECT_EQ(indicator.getAxisLength(), 10.0f);
    EXPECT_EQ(indicator.getExtraSize(), 12.0f);
    EXPECT_EQ(indicator.getLineWidth(), 0.75f);
    EXPECT_EQ(indicator.getExtraColor(), (Color{0, 0, 0, 255}));
    EXPECT_EQ(indicator.getLabel(Indicator::AxisX), "x");
    EXPECT_EQ(indicator.getLabel(Indicator::AxisZ), "z");
    EXPECT_EQ(indicator.getColor(Indicator::AxisX), (Color{255, 0, 0, 255}));
    EXPECT_EQ(indicator.getColor(Indicator::AxisY), (Color{0, 255, 0, 255}));
}

TEST(AxisOrientationIndicator, everySetterCountsEvenForTheCurrentValue)
{
    Indicator indicator;
    indicator.show(false);
    indicator.setAxisLength(10.0f);
    indicator.setLineWidth(0.75f);
    indicator.setLabel(Indicator::AxisX, "x");
    indicator.setColor(Indicator::AxisX, indicator.getColor(Indicator::AxisX));
    EXPECT_EQ(indicator.getChangeId(), 6);
    expectSameSettings(indicator, Indicator());
}

TEST(AxisOrientationIndicator, importCopiesAllSettingsAndCountsOnce)
{
    const Indicator source = changedIndicator();
    Indicator target;
    target.import(source);
    EXPECT_EQ(target.getChangeId(), 2);
    expectSameSettings(target, source);
    EXPECT_EQ(target.getLabel(Indicator::AxisY), "r");
    EXPECT_EQ(target.getColor(Indicator::AxisZ), (Color{1, 2, 3, 4}));

    target.import(target);
    EXPECT_EQ(target.getChangeId(), 2);
}

TEST(AxisOrientationIndicator, aCopyStartsItsOwnCount)
{
    Indicator source = changedIndicator();
    source.show(true);
    const Indicator copy(source);
    EXPECT_EQ(copy.getChangeId(), 1);
    expectSameSettings(copy, source);
}

TEST(AxisOrientationIndicator, refusesInvalidAxes)
{
    Indicator indicator;
    const auto none = static_cast<Indicator::Axis>(3);
    EXPECT_THROW(indicator.setLabel(none, "w"), std::out_of_range);
    EXPECT_THROW(indicator.setColor(none, Color()), std::out_of_range);
    EXPECT_EQ(indicator.getChangeId(), 1);
}

} // namespace
} // namespace vxgraphics3d
