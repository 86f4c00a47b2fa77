#include "base/ustring.h"

#include <gtest/gtest.h>

#include <vector>

namespace vxbase {
namespace {

std::u16string units(const UString& text)
{
    return {text.data(), text.size()};
}

TEST(UString, defaultAndNullAreEmpty)
{
    EXPECT_EQ(units(UString()), u"");
    EXPECT_EQ(units(UString(static_cast<const char*>(nullptr))), u"");
    EXPECT_TRUE(UString("").empty());
}

TEST(UString, utf8SurvivesARoundTrip)
{
    struct Case {
        std::string utf8;
        std::u16string utf16;
    };
    const Case cases[] = {{"plain", u"plain"},
                          {"\xC2\x80\xDF\xBF", u"\u0080\u07FF"},
                          {"\xE0\xA0\x80\xED\x9F\xBF\xEE\x80\x80\xEF\xBF\xBF", u"\u0800\uD7FF\uE000\uFFFF"},
                          {"\xF0\x90\x80\x80\xF4\x8F\xBF\xBF", u"\U00010000\U0010FFFF"},
                          {std::string("a\0b", 3), std::u16string(u"a\0b", 3)}};
    for (const Case& c : cases) {
        EXPECT_EQ(units(UString(c.utf8)), c.utf16);
        EXPECT_EQ(UString(c.utf16.data(), c.utf16.size()).toUtf8(), c.utf8);
    }
}

TEST(UString, eachIllFormedPartBecomesOneReplacementCharacter)
{
    struct Case {
        const char* utf8;
        std::u16string utf16;
    };
    const Case cases[] = {
        {"a\x80z", u"a\uFFFDz"},                           // a continuation without a lead
        {"\xC0\xAF", u"\uFFFD\uFFFD"},                     // overlong, two bytes
        {"\xE0\x9F\xBF", u"\uFFFD\uFFFD\uFFFD"},           // overlong, three bytes
        {"\xF0\x8F\xBF\xBF", u"\uFFFD\uFFFD\uFFFD\uFFFD"}, // overlong, four bytes
        {"\xED\xA0\x80", u"\uFFFD\uFFFD\uFFFD"},           // a surrogate
        {"\xF4\x90\x80\x80", u"\uFFFD\uFFFD\uFFFD\uFFFD"}, // above the last character
        {"\xF5\xFF", u"\uFFFD\uFFFD"},                     // never a lead
        {"\xE2\x82", u"\uFFFD"},                           // cut off at the end
        {"\xF0\x9F\x98z", u"\uFFFDz"},                     // cut off by another character
        {"\xE2\x82\xC3\xA4", u"\uFFFD\u00E4"},             // cut off by another lead
    };
    for (const Case& c : cases) {
        EXPECT_EQ(units(UString(c.utf8)), c.utf16) << c.utf8;
    }
}

TEST(UString, unpairedSurrogatesAreKeptAndBecomeReplacementsInUtf8)
{
    const char16_t lone[] = {0xD83D, u'a', 0xDE00, 0xDC00, 0xD800, 0xD83D};
    UString text(lone, 6);
    EXPECT_EQ(text.toUtf8(), "\xEF\xBF\xBD"
                             "a\xEF\xBF\xBD\xEF\xBF\xBD\xEF\xBF\xBD\xEF\xBF\xBD");
    UString copy;
    UString::const_iterator it(text);
    while (it.hasNext()) {
        copy.append(it.next());
    }
    EXPECT_EQ(copy, text);
}

TEST(UString, appendWritesOneOrTwoUnits)
{
    UString text("x");
    text.append(0x7Bul).append(0xFFFFul).append(0x10000ul).append(0x1F600ul).append(0x10FFFFul).append(0x110000ul);
    const char16_t expected[] = {u'x', u'{', 0xFFFF, 0xD800, 0xDC00, 0xD83D, 0xDE00, 0xDBFF, 0xDFFF, 0xFFFD};
    EXPECT_EQ(units(text), std::u16string(expected, 10));
}

TEST(UString, nextReturnsWholeCharactersAndZeroAtTheEnd)
{
    const UString text("a\xF0\x9F\x98\x80z");
    UString::const_iterator it(text);
    std::vector<unsigned long> characters;
    while (it.hasNext()) {
        characters.push_back(it.next());
    }
    EXPECT_EQ(characters, (std::vector<unsigned long>{'a', 0x1F600, 'z'}));
    EXPECT_EQ(it.next(), 0u);
    EXPECT_FALSE(it.hasNext());
}

TEST(UString, assignAppendAndClearKeepTheirArgument)
{
    UString text("one");
    const UString two("two");
    text.append(two).append(text);
    EXPECT_EQ(text, UString("onetwoonetwo"));
    text.assign(two);
    EXPECT_EQ(text, two);
    text.clear();
    EXPECT_NE(text, two);
    EXPECT_EQ(two.toUtf8(), "two");
}

} // namespace
} // namespace vxbase
