#include "renderer/text/titlemarkup.h"

#include "base/ustring.h"

#include <gtest/gtest.h>

#include <string>

namespace vxrenderer {
namespace {

using Kind = TitleItem::Kind;

/// Items as a text: characters as they are, marks as `<...>`, a blank within a box as `.`, others as ` `, a wide one as
/// three of them, and the style of a character after it where it is not the normal one.
std::string textOf(const std::string& markup)
{
    std::string text;
    for (const TitleItem& item : parseTitle(vxbase::UString(markup))) {
        switch (item.kind) {
        case Kind::character: {
            vxbase::UString character;
            character.append(static_cast<unsigned long>(item.character));
            text += character.toUtf8();
            text += item.style.bold ? "'b" : "";
            text += item.style.italic ? "'i" : "";
            break;
        }
        case Kind::space:
            text += item.breaks == TitleItem::Breaks::withinBox ? "." : item.character == U' ' ? " " : "   ";
            break;
        case Kind::newLine:
            text += "<line>";
            break;
        case Kind::openScripts:
            text += "<";
            break;
        case Kind::nextScript:
            text += "|";
            break;
        case Kind::closeScripts:
            text += ">";
            break;
        case Kind::beginCenter:
            text += "<center>";
            break;
        case Kind::endCenter:
            text += "<left>";
            break;
        }
    }
    return text;
}

TEST(TitleMarkup, readsTitlesAsPlotGroupsWriteThem)
{
    EXPECT_EQ(textOf("\\begin{center} \\mbox{\\unicode{Stress in  a bar}} \\mbox{T_{max}} \\end{center}"),
              "<center>Stress.in..a.bar   T<max> <left>");
}

TEST(TitleMarkup, readsEachConstruct)
{
    const struct {
        const char* markup;
        const char* expected;
    } cases[] = {
        {"", ""},
        {"plain", "plain"},
        {"  two   blanks ", "two blanks "},
        {"\\mbox{in  a box}", "in.a.box"},
        {"\\\\ \\{ \\} \\_ \\^", "\\ { } _ ^"},
        {"\\unicode{a_b^c \\{\\}\\\\ $x$}", "a_b^c.{}\\.$x$"},
        {"\\unicode{two\nlines}", "two<line>lines"},
        {"two\nlines", "two lines"},
        {"x^2", "x<2>"},
        {"x^{10}y", "x<10>y"},
        {"a_i^2", "a<i|2>"},
        {"a^2_i", "a<2|i>"},
        {"a^2^3", "a<2><3>"},
        {"a_1^2_3", "a<1|2><3>"},
        {"x^{a_b}_c", "x<a<b>|c>"},
        {"x^\\alpha y", "x<\xCE\xB1>y"},
        {"x^\\mbox{a b}c", "x<a.b>c"},
        {"\\alpha\\beta \\Omega", "\xCE\xB1\xCE\xB2\xCE\xA9"},
        {"20 \\circ C \\times \\pm \\infty", "20 \xE2\x88\x98"
                                             "C \xC3\x97\xC2\xB1\xE2\x88\x9E"},
        {"\\textbf{a\\textit{b}}c", "a'bb'b'ic"},
        {"\\textbf{a\\mathrm{b}}", "a'bb"},
        {"a~b\\,c", "a\xC2\xA0"
                    "b\xC2\xA0"
                    "c"},
        {"{a{b}}c", "abc"},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(textOf(c.markup), c.expected) << c.markup;
    }
}

TEST(TitleMarkup, showsWhatItDoesNotUnderstand)
{
    const struct {
        const char* markup;
        const char* expected;
    } cases[] = {
        {"a}b", "a}b"},
        {"\\frobnicate x", "\\frobnicate x"},
        {"\\frac{1}{2}", "\\frac{1}2"},
        {"\\begin{table}x\\end{table}", "\\begin{table}x\\end{table}"},
        {"\\mbox x", "\\mbox x"},
        {"end\\", "end\\"},
        {"x^", "x^"},
        {"x_^2", "x_<2>"},
        {"{x^}", "x^"},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(textOf(c.markup), c.expected) << c.markup;
    }
}

TEST(TitleMarkup, endsOpenGroupsWithTheText)
{
    EXPECT_EQ(textOf("\\mbox{\\unicode{x"), "x");
    EXPECT_EQ(textOf("a^{b_{c"), "a<b<c>>");
    EXPECT_EQ(textOf("\\foo{x"), "\\foo{x");
}

TEST(TitleMarkup, scriptsShrinkAndRiseByTheirDepth)
{
    const auto items = parseTitle(vxbase::UString("x^{2^{3^4}}_1"));
    const auto styleOf = [&](char32_t character) {
        for (const TitleItem& item : items) {
            if (item.kind == Kind::character && item.character == character) {
                return item.style;
            }
        }
        return TextStyle{-1};
    };
    EXPECT_EQ(styleOf(U'x'), TextStyle());
    EXPECT_EQ(styleOf(U'2').scriptLevel, 1);
    EXPECT_EQ(styleOf(U'3').scriptLevel, 2);
    EXPECT_EQ(styleOf(U'4').scriptLevel, 2);
    EXPECT_LT(styleOf(U'2').rise, styleOf(U'3').rise);
    EXPECT_LT(styleOf(U'1').rise, 0.0f);
}

TEST(TitleMarkup, aPlainTextIsShownAsItIs)
{
    for (const std::string text : {"x^2", "a_b {c} \\alpha", "}{\\", "\\unicode{x}"}) {
        std::string shown;
        for (const TitleItem& item : parseTitle(vxbase::UString(plainText(text)))) {
            EXPECT_EQ(item.style, TextStyle()) << text;
            shown += static_cast<char>(item.character);
        }
        EXPECT_EQ(shown, text);
    }
    EXPECT_EQ(plainText(""), "");
}

TEST(TitleMarkup, survivesAnyNestingAndAnyBytes)
{
    std::string deep;
    for (int i = 0; i < 100000; ++i) {
        deep += i % 3 == 0 ? "^{" : i % 3 == 1 ? "\\mbox{" : "_{\\x{";
    }
    int open = 0;
    for (const TitleItem& item : parseTitle(vxbase::UString(deep))) {
        open += item.kind == Kind::openScripts ? 1 : item.kind == Kind::closeScripts ? -1 : 0;
        ASSERT_LE(item.style.rise, 1.0f);
        ASSERT_GE(open, 0);
    }
    EXPECT_EQ(open, 0);

    // Every text of four of these characters has scripts that open and close in pairs.
    const std::string alphabet = "\\{}^_ ax";
    for (int number = 0; number < 8 * 8 * 8 * 8 * 8; ++number) {
        std::string text;
        for (int rest = number, i = 0; i < 5; ++i, rest /= 8) {
            text += alphabet[static_cast<std::size_t>(rest % 8)];
        }
        int depth = 0;
        for (const TitleItem& item : parseTitle(vxbase::UString(text))) {
            depth += item.kind == Kind::openScripts ? 1 : item.kind == Kind::closeScripts ? -1 : 0;
            ASSERT_GE(depth, item.kind == Kind::nextScript ? 1 : 0) << text;
        }
        ASSERT_EQ(depth, 0) << text;
    }
}

} // namespace
} // namespace vxrenderer
