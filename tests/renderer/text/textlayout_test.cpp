#include "renderer/text/textlayout.h"

#include "base/ustring.h"
#include "tests/renderer/support/squaremetrics.h"

#include <gtest/gtest.h>

#include <string>

namespace vxrenderer {
namespace {

constexpr TextSpace c_wide = {1e6f, 1e6f};

TextLayout layoutOf(const std::string& markup, TextSpace room = c_wide)
{
    SquareMetrics metrics;
    return layoutTitle(parseTitle(vxbase::UString(markup)), metrics, room);
}

/// The characters of each line, lines separated by `/`.
std::string linesOf(const TextLayout& layout)
{
    std::string text;
    float baseline = layout.characters.empty() ? 0.0f : layout.characters.front().y;
    for (const PlacedCharacter& placed : layout.characters) {
        if (placed.y != baseline) {
            text += '/';
            baseline = placed.y;
        }
        text += static_cast<char>(placed.character);
    }
    return text;
}

std::vector<float> placesOf(const TextLayout& layout)
{
    std::vector<float> places;
    for (const PlacedCharacter& placed : layout.characters) {
        places.push_back(placed.x);
    }
    return places;
}

TEST(TextLayout, setsCharactersOneAfterAnotherOnTheBaseline)
{
    const TextLayout layout = layoutOf("ab c");
    EXPECT_EQ(placesOf(layout), (std::vector<float>{0.0f, 10.0f, 30.0f}));
    EXPECT_EQ(layout.characters[0].y, 8.0f);
    EXPECT_EQ(layout.width, 40.0f);
    EXPECT_EQ(layout.height, 10.0f);
    EXPECT_EQ(layout.numLines, 1);
}

TEST(TextLayout, kernsNeighboursOfOneStyleOnly)
{
    EXPECT_EQ(placesOf(layoutOf("AVA")), (std::vector<float>{0.0f, 8.0f, 18.0f}));
    EXPECT_EQ(placesOf(layoutOf("A V")), (std::vector<float>{0.0f, 20.0f}));
    EXPECT_EQ(placesOf(layoutOf("A\\textbf{V}")), (std::vector<float>{0.0f, 10.0f}));
    EXPECT_EQ(placesOf(layoutOf("x^{AV}")), (std::vector<float>{0.0f, 10.0f, 15.0f}));
}

TEST(TextLayout, setsIndexAndExponentOverEachOther)
{
    const TextLayout layout = layoutOf("a_1^{23}b");
    EXPECT_EQ(placesOf(layout), (std::vector<float>{0.0f, 10.0f, 10.0f, 17.0f, 24.0f}));
    EXPECT_GT(layout.characters[1].y, layout.characters[0].y);
    EXPECT_LT(layout.characters[2].y, layout.characters[0].y);
    EXPECT_EQ(layout.characters[4].y, layout.characters[0].y);
}

TEST(TextLayout, breaksBetweenBoxesBeforeWithinThem)
{
    EXPECT_EQ(linesOf(layoutOf("\\mbox{a b} \\mbox{c d}", {50.0f, 1e6f})), "ab/cd");
    EXPECT_EQ(linesOf(layoutOf("\\mbox{aa} \\mbox{b} \\mbox{c}", {40.0f, 1e6f})), "aab/c");
    EXPECT_EQ(linesOf(layoutOf("\\mbox{aa bb} c", {40.0f, 1e6f})), "aa/bbc");
    EXPECT_EQ(linesOf(layoutOf("abcdefg", {30.0f, 1e6f})), "abc/def/g");
    EXPECT_EQ(linesOf(layoutOf("abc", {1.0f, 1e6f})), "a/b/c");
}

TEST(TextLayout, linesNeverTakeMoreThanTheirSpaceUnlessOneCharacterDoes)
{
    const std::string text = "one \\mbox{two three} four^{five} \\mbox{\\unicode{six  seven}} eight";
    for (float room = 40.0f; room < 400.0f; room += 7.0f) {
        EXPECT_LE(layoutOf(text, {room, 1e6f}).width, room);
    }
}

TEST(TextLayout, centersLinesWithinTheWidest)
{
    const TextLayout layout = layoutOf("\\begin{center}\\unicode{abc\nd}\\end{center}");
    EXPECT_EQ(placesOf(layout), (std::vector<float>{0.0f, 10.0f, 20.0f, 10.0f}));
    EXPECT_EQ(placesOf(layoutOf("\\unicode{abc\nd}")), (std::vector<float>{0.0f, 10.0f, 20.0f, 0.0f}));
    EXPECT_EQ(layout.height, 20.0f);
}

TEST(TextLayout, leavesOutLinesBelowItsSpaceButNotTheFirst)
{
    EXPECT_EQ(layoutOf("\\unicode{a\nb\nc}", {100.0f, 25.0f}).numLines, 2);
    EXPECT_EQ(layoutOf("\\unicode{a\nb\nc}", {100.0f, 1.0f}).numLines, 1);
}

TEST(TextLayout, leavesSpaceForHighExponents)
{
    EXPECT_GT(layoutOf("x^{2^{3}}").height, layoutOf("x").height);
}

TEST(TextLayout, anEmptyTitleTakesNoSpace)
{
    const TextLayout layout = layoutOf("\\begin{center} \\end{center}");
    EXPECT_EQ(layout.width, 0.0f);
    EXPECT_EQ(layout.height, 0.0f);
    EXPECT_EQ(layout.numLines, 0);
}

} // namespace
} // namespace vxrenderer
