#include "graphics3d/parts/markingsetups.h"

#include <gtest/gtest.h>

#include <stdexcept>

using namespace vxgraphics3d;

namespace {

using Mode = MarkingSetups::MarkingMode;

constexpr Mode c_modes[] = {MarkingSetups::MarkingMode0, MarkingSetups::MarkingMode1, MarkingSetups::MarkingMode2};

Marking row(int sheet, int line, float lineWidth, int point, float pointSize, int label, int polygonLayer)
{
    Marking marking;
    marking.init(Color::fromRgb(sheet), Color::fromRgb(line), Color::fromRgb(point), lineWidth, pointSize,
                 Color::fromRgb(label), polygonLayer);
    return marking;
}

Marking hiddenRow()
{
    Marking marking;
    marking.initHidden();
    return marking;
}

MarkingType rowOf(int number)
{
    return static_cast<MarkingType>(number);
}

} // namespace

TEST(MarkingModeSetup, getMarkingTypeFirstRuleThatAppliesWins)
{
    struct {
        int flags;
        int row;
    } const cases[] = {
        {0, 0},     {0x1, 1},  {0x2, 2},  {0x3, 3},   {0x4, 8},   {0x10, 4},   {0x20, 5},    {0x30, 6},
        {0x40, 8},  {0x45, 8}, {0x44, 8}, {0x100, 7}, {0x101, 7}, {0x103, 7},  {0x104, 8},   {0x140, 8},
        {0x133, 7}, {0x12, 4}, {0x21, 1}, {0x22, 2},  {0x11, 1},  {0x31, 1},   {0x32, 6},    {0x33, 3},
        {0x13, 3},  {0x23, 3}, {0x8, 0},  {0x80, 0},  {0x200, 0}, {0x8000, 0}, {0x30000, 0}, {0x20011, 1},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(MarkingModeSetup::getMarkingType(c.flags), c.row) << std::hex << c.flags;
    }
}

TEST(MarkingModeSetup, newTableHasTenDefaultRows)
{
    const MarkingModeSetup setup;
    for (int number = 0; number < 10; ++number) {
        EXPECT_EQ(setup.getMarking(rowOf(number)), row(0, 0, 0.0f, 0, 0.0f, 0, 0)) << number;
    }
}

TEST(MarkingSetups, everyDefault)
{
    const MarkingSetups setups;
    for (const Mode mode : c_modes) {
        const bool isMode2 = mode == MarkingSetups::MarkingMode2;
        const float primary = isMode2 ? 4.0f : 3.0f;
        const float secondary = isMode2 ? 3.0f : 1.0f;
        // Rows 7 and 8 are hidden and row 9 is never set.
        const Marking rows[] = {
            row(0xd9d9d9, isMode2 ? 0x141414 : 0x000000, isMode2 ? 1.5f : 1.0f, 0x000000, 5.0f, 0x000000, 0),
            row(0xf28c8c, 0xff0000, primary, 0xff0000, 7.0f, 0xff0000, 2),
            row(0x8c8cf2, 0x0000ff, primary, 0x0000ff, 7.0f, 0x0000ff, 1),
            row(0x8cf28c, 0x009900, primary, 0x009900, 7.0f, 0x009900, 3),
            row(0xf28c8c, 0xff0000, secondary, 0xff0000, 5.0f, 0xff0000, 2),
            row(0x8c8cf2, 0x0000ff, secondary, 0x0000ff, 5.0f, 0x0000ff, 1),
            row(0x8cf28c, 0x009900, secondary, 0x009900, 5.0f, 0x009900, 3),
            hiddenRow(),
            hiddenRow(),
            Marking(),
        };
        for (int number = 0; number < 10; ++number) {
            EXPECT_EQ(setups.getMarking(mode, rowOf(number)), rows[number]) << "mode " << mode << " row " << number;
        }
    }
}

TEST(MarkingSetups, setMarkingSetupStoresEachValueAndShowsAHiddenRow)
{
    MarkingSetups setups;
    setups.setMarkingSetupHidden(MarkingSetups::MarkingMode1, RowPrimary);
    EXPECT_EQ(setups.getMarking(MarkingSetups::MarkingMode1, RowPrimary), hiddenRow());
    setups.setMarkingSetup(MarkingSetups::MarkingMode1, RowPrimary, {1, 2, 3, 4}, {5, 6, 7, 8}, 9.5f, {10, 11, 12, 13},
                           14.5f, {15, 16, 17, 18}, -19);
    const Marking& marking = setups.getMarking(MarkingSetups::MarkingMode1, RowPrimary);
    EXPECT_TRUE(marking.isVisible());
    EXPECT_EQ(marking.getSheetColor(), (Color{1, 2, 3, 4}));
    EXPECT_EQ(marking.getLineColor(), (Color{5, 6, 7, 8}));
    EXPECT_EQ(marking.getLineWidth(), 9.5f);
    EXPECT_EQ(marking.getPointColor(), (Color{10, 11, 12, 13}));
    EXPECT_EQ(marking.getPointSize(), 14.5f);
    EXPECT_EQ(marking.getLabelColor(), (Color{15, 16, 17, 18}));
    EXPECT_EQ(marking.getPolygonLayer(), -19);

    // No other row of any mode has changed.
    const MarkingSetups fresh;
    for (const Mode mode : c_modes) {
        for (int number = 0; number < 10; ++number) {
            if (mode != MarkingSetups::MarkingMode1 || number != RowPrimary) {
                EXPECT_EQ(setups.getMarking(mode, rowOf(number)), fresh.getMarking(mode, rowOf(number)));
            }
        }
    }
}

TEST(MarkingSetups, setMarkingSetupTakesTheColoursOfTheRowItself)
{
    MarkingSetups setups;
    setups.setMarkingSetup(MarkingSetups::MarkingMode1, RowPrimary, {1, 0, 0, 0}, {2, 0, 0, 0}, 1.0f, {3, 0, 0, 0},
                           1.0f, {4, 0, 0, 0}, 0);
    const Marking& row = setups.getMarking(MarkingSetups::MarkingMode1, RowPrimary);
    setups.setMarkingSetup(MarkingSetups::MarkingMode1, RowPrimary, row.getLabelColor(), row.getSheetColor(), 1.0f,
                           row.getLineColor(), 1.0f, row.getPointColor(), 0);
    EXPECT_EQ(row.getSheetColor().red, 4);
    EXPECT_EQ(row.getLineColor().red, 1);
    EXPECT_EQ(row.getPointColor().red, 2);
    EXPECT_EQ(row.getLabelColor().red, 3);
}

TEST(MarkingSetups, setMarkingModeSetupReplacesOneMode)
{
    MarkingSetups setups;
    setups.setMarkingModeSetup(MarkingSetups::MarkingMode0, MarkingModeSetup());
    setups.setMarkingModeSetup(MarkingSetups::MarkingMode2, setups.getMarkingModeSetup(MarkingSetups::MarkingMode2));
    const MarkingSetups fresh;
    for (int number = 0; number < 10; ++number) {
        EXPECT_EQ(setups.getMarking(MarkingSetups::MarkingMode0, rowOf(number)), Marking()) << number;
        for (const Mode mode : {MarkingSetups::MarkingMode1, MarkingSetups::MarkingMode2}) {
            EXPECT_EQ(setups.getMarking(mode, rowOf(number)), fresh.getMarking(mode, rowOf(number))) << number;
        }
    }
}

TEST(MarkingSetups, missingModesAndRowsAreRefused)
{
    MarkingSetups setups;
    for (const int number : {-1, 10, 1 << 30}) {
        EXPECT_THROW(setups.setMarkingSetupHidden(MarkingSetups::MarkingMode0, rowOf(number)), std::out_of_range);
        EXPECT_THROW(setups.getMarking(MarkingSetups::MarkingMode0, rowOf(number)), std::out_of_range);
    }
    for (const int number : {-1, 3}) {
        EXPECT_THROW(setups.setMarkingSetupHidden(static_cast<Mode>(number), RowNormal), std::out_of_range);
        EXPECT_THROW(setups.setMarkingModeSetup(static_cast<Mode>(number), MarkingModeSetup()), std::out_of_range);
    }
}
