#include "graphics3d/plots/colour/colortablehandler.h"
#include "tests/support/capturedlog.h"

#include <gtest/gtest.h>

#include <limits>
#include <stdexcept>
#include <string>
#include <vector>

namespace vxgraphics3d {
namespace {

using Colors = ColorTable::Colors;

constexpr Color c_red{255, 0, 0};
constexpr Color c_green{0, 255, 0};
constexpr Color c_blue{0, 0, 255};
constexpr Color c_black{0, 0, 0};
constexpr Color c_white{255, 255, 255};

/// The texels as runs of one colour: length and colour.
std::vector<std::pair<int, unsigned>> runs(const ColorTable& table)
{
    std::vector<std::pair<int, unsigned>> result;
    for (const unsigned texel : table.getRgba()) {
        if (result.empty() || result.back().second != texel) {
            result.emplace_back(0, texel);
        }
        ++result.back().first;
    }
    return result;
}

TEST(ColorTable, discreteBandsHaveTheGivenWidths)
{
    struct Case {
        Colors colors;
        std::vector<std::pair<int, unsigned>> runs;
    };
    const Case cases[] = {
        {{{c_red, 1}, {c_green, 1}}, {{512, 0xFF0000FF}, {512, 0x00FF00FF}}},
        {{{c_red, 1}, {c_green, 3}}, {{256, 0xFF0000FF}, {768, 0x00FF00FF}}},
        // 1024 / 3 = 341.33 and 682.67 round to 341 and 683.
        {{{c_red, 1}, {c_green, 1}, {c_blue, 1}}, {{341, 0xFF0000FF}, {342, 0x00FF00FF}, {341, 0x0000FFFF}}},
        {{{c_red, 1}, {c_green, 0}, {c_blue, 1}}, {{512, 0xFF0000FF}, {512, 0x0000FFFF}}},
        // The first 0.4 of a texel vanishes, and half a texel becomes a whole one.
        {{{c_red, 0.4}, {c_green, 1023.6}}, {{1024, 0x00FF00FF}}},
        {{{c_red, 0.5}, {c_green, 1023.5}}, {{1, 0xFF0000FF}, {1023, 0x00FF00FF}}},
        {{{c_blue, 1e-300}}, {{1024, 0x0000FFFF}}},
        {{{Color{256, 257, 511}, 1}}, {{1024, 0x0001FFFF}}},
    };
    for (const Case& each : cases) {
        EXPECT_EQ(runs(ColorTable("t", ColorTable::Discrete, each.colors)), each.runs);
    }
}

TEST(ColorTable, continuousGradientsTruncateAndStopShortOfTheLastColor)
{
    const ColorTable gray("t", ColorTable::Continuous, {{c_black, 1}, {c_white, -5}});
    EXPECT_EQ(gray.getRgba()[0], 0x000000FFu);
    EXPECT_EQ(gray.getRgba()[4], 0x000000FFu) << "255 * 4 / 1024 is below 1";
    EXPECT_EQ(gray.getRgba()[5], 0x010101FFu);
    EXPECT_EQ(gray.getRgba()[512], 0x7F7F7FFFu);
    EXPECT_EQ(gray.getRgba()[1023], 0xFEFEFEFFu);

    const ColorTable three("t", ColorTable::Continuous, {{c_red, 1}, {c_green, 3}, {c_blue, 77}});
    EXPECT_EQ(three.getRgba()[0], 0xFF0000FFu);
    EXPECT_EQ(three.getRgba()[128], 0x7F7F00FFu);
    EXPECT_EQ(three.getRgba()[255], 0x00FE00FFu) << "255 / 256 and 255 * 255 / 256";
    EXPECT_EQ(three.getRgba()[256], 0x00FF00FFu);
    // 383 of the 768 steps from green are left: 255 * 383 / 768 = 127.2, 255 * 385 / 768 = 127.8.
    EXPECT_EQ(three.getRgba()[641], 0x007F7FFFu);
}

TEST(ColorTable, bothByteOrdersHoldTheSameOpaqueTexels)
{
    const ColorTable table("t", ColorTable::Continuous, {{{1, 2, 3, 0}, 1}, {{201, 102, 53, 0}, 1}});
    for (std::size_t e = 0; e < ColorTable::c_numTexels; ++e) {
        EXPECT_EQ(table.getArgb()[e], table.getRgba()[e] >> 8 | 0xFF000000u);
        EXPECT_EQ(table.getRgba()[e] & 0xFF, 0xFFu);
    }
    EXPECT_EQ(table.getArgb()[0], 0xFF010203u);
}

TEST(ColorTable, logsItsCalculations)
{
    CapturedLog log(ErrorLog::Level::info);
    const ColorTable discrete("t", ColorTable::Discrete, {{c_red, 1}});
    const ColorTable continuous("t", ColorTable::Continuous, {{c_red, 1}, {c_blue, 1}});
    const ColorTable single("t", ColorTable::Continuous, {{c_red, 1}});
    EXPECT_EQ(runs(single), runs(discrete));
    EXPECT_EQ(log.messages(),
              (std::vector<std::string>{"Creating discrete color table", "Creating continuous color table",
                                        "Creating discrete color table"}));
}

TEST(ColorTable, updateKeepsTheIdAndCounts)
{
    ColorTable table("t", ColorTable::Discrete, {{c_red, 1}});
    const int id = table.getId();
    EXPECT_EQ(table.getChangeId(), 1);
    table.update(ColorTable::Continuous, {{c_green, 1}, {c_blue, 1}});
    EXPECT_EQ(table.getChangeId(), 2);
    EXPECT_EQ(table.getType(), ColorTable::Continuous);
    EXPECT_EQ(table.getRgba()[0], 0x00FF00FFu);
    table.rename("u");
    EXPECT_EQ(table.getName(), "u");
    EXPECT_EQ(table.getChangeId(), 2);
    EXPECT_EQ(table.getId(), id);
    EXPECT_EQ(ColorTable("v", ColorTable::Discrete, {{c_red, 1}}).getId(), id + 1);
}

TEST(ColorTable, invalidColorsAreRefusedAndUseNoId)
{
    constexpr double infinity = std::numeric_limits<double>::infinity();
    constexpr double nan = std::numeric_limits<double>::quiet_NaN();
    constexpr double largest = std::numeric_limits<double>::max();
    const Colors bad[] = {{},
                          {{c_red, 0}, {c_blue, 0}},
                          {{c_red, 2}, {c_blue, -1}, {c_green, 1}},
                          {{c_red, nan}, {c_blue, 1}},
                          {{c_red, infinity}, {c_blue, 1}},
                          {{c_red, largest}, {c_blue, largest}}};
    ColorTable table("t", ColorTable::Discrete, {{c_red, 1}});
    for (const Colors& colors : bad) {
        for (const ColorTable::Type type : {ColorTable::Discrete, ColorTable::Continuous}) {
            EXPECT_THROW(ColorTable("u", type, colors), std::invalid_argument);
            EXPECT_THROW(table.update(type, colors), std::invalid_argument);
        }
    }
    EXPECT_EQ(table.getChangeId(), 1);
    EXPECT_EQ(table.getType(), ColorTable::Discrete);
    EXPECT_EQ(ColorTable("v", ColorTable::Discrete, {{c_red, 1}}).getId(), table.getId() + 1);
}

class ColorTableHandlerTest : public testing::Test {
protected:
    ~ColorTableHandlerTest() override
    {
        handler.setLastProtectedId(-1);
        for (const char* name : {"one", "two", "three"}) {
            handler.deleteColorTable(name);
        }
    }

    ColorTableHandler& handler = *ColorTableHandler::getInstance();
    const Colors red{{c_red, 1}};
    const Colors blue{{c_blue, 1}};
};

TEST_F(ColorTableHandlerTest, addKeepsTheTableOfATakenName)
{
    EXPECT_FALSE(handler.isColorTable("one"));
    EXPECT_EQ(handler.getColorTable("one"), nullptr);
    EXPECT_TRUE(handler.addColorTable("one", ColorTable::Discrete, red));
    EXPECT_FALSE(handler.addColorTable("one", ColorTable::Continuous, blue));
    EXPECT_TRUE(handler.addColorTable("two", ColorTable::Discrete, blue));
    EXPECT_EQ(handler.getColorTable("one")->getRgba()[0], 0xFF0000FFu);
    EXPECT_EQ(handler.getColorTable("two")->getId(), handler.getColorTable("one")->getId() + 1);
    EXPECT_THROW(handler.addColorTable("three", ColorTable::Discrete, {}), std::invalid_argument);
    EXPECT_FALSE(handler.isColorTable("three"));
}

TEST_F(ColorTableHandlerTest, aDeletedTableIsKeptOnlyByItsHolders)
{
    handler.addColorTable("one", ColorTable::Discrete, red);
    const boost::shared_ptr<ColorTable> held = handler.getColorTable("one");
    EXPECT_TRUE(handler.deleteColorTable("one"));
    EXPECT_FALSE(handler.deleteColorTable("one"));
    EXPECT_FALSE(handler.isColorTable("one"));
    EXPECT_EQ(held.use_count(), 1);
}

TEST_F(ColorTableHandlerTest, renameMovesTheTableUnlessTheNameIsTaken)
{
    handler.addColorTable("one", ColorTable::Discrete, red);
    handler.addColorTable("two", ColorTable::Discrete, blue);
    const boost::shared_ptr<ColorTable> one = handler.getColorTable("one");
    const boost::shared_ptr<ColorTable> two = handler.getColorTable("two");
    EXPECT_TRUE(handler.renameColorTable("one", "three"));
    EXPECT_FALSE(handler.isColorTable("one"));
    EXPECT_EQ(handler.getColorTable("three"), one);
    EXPECT_EQ(one->getName(), "three");
    EXPECT_TRUE(handler.renameColorTable(one->getName(), one->getName()));
    EXPECT_EQ(handler.getColorTable("three"), one);
    EXPECT_TRUE(handler.renameColorTable(one->getName(), "one"));
    EXPECT_FALSE(handler.isColorTable("three"));
    EXPECT_EQ(handler.getColorTable("one"), one);
    EXPECT_EQ(one->getName(), "one");
    EXPECT_TRUE(handler.renameColorTable("one", "three"));
    EXPECT_TRUE(handler.renameColorTable("three", "two"));
    EXPECT_EQ(handler.getColorTable("two"), two);
    EXPECT_FALSE(handler.isColorTable("three"));
    EXPECT_EQ(one.use_count(), 1);
    EXPECT_THROW(handler.renameColorTable("three", "one"), std::out_of_range);
}

TEST_F(ColorTableHandlerTest, protectedTablesResistEveryChange)
{
    handler.addColorTable("one", ColorTable::Discrete, red);
    handler.addColorTable("two", ColorTable::Discrete, red);
    handler.setLastProtectedId(handler.getColorTable("one")->getId());
    EXPECT_FALSE(handler.updateColorTable("one", ColorTable::Discrete, blue));
    EXPECT_FALSE(handler.renameColorTable("one", "three"));
    EXPECT_FALSE(handler.deleteColorTable("one"));
    EXPECT_EQ(handler.getColorTable("one")->getRgba()[0], 0xFF0000FFu);
    EXPECT_TRUE(handler.updateColorTable("two", ColorTable::Discrete, blue));
    EXPECT_EQ(handler.getColorTable("two")->getRgba()[0], 0x0000FFFFu);
    EXPECT_TRUE(handler.renameColorTable("two", "three"));
    EXPECT_TRUE(handler.deleteColorTable("three"));
    EXPECT_THROW(handler.updateColorTable("three", ColorTable::Discrete, red), std::out_of_range);
}

} // namespace
} // namespace vxgraphics3d
