#include "graphics3d/foundation/textutil.h"

#include <gtest/gtest.h>

#include <string>

namespace vxgraphics3d {
namespace {

using vxbase::UString;

TEST(TextUtil, titlesAreAppendedAsBoxes)
{
    UString title("start");
    TextUtil::prepareTitle("a", title, TextFormat::plain);
    TextUtil::prepareTitle("\\alpha", title, TextFormat::markup);
    EXPECT_EQ(title.toUtf8(), "start \\mbox{\\unicode{a}} \\mbox{\\alpha}");
}

TEST(TextUtil, escapingProtectsBracesAndBackslashes)
{
    struct Case {
        std::string in;
        std::string out;
    };
    const Case cases[] = {{"", ""},
                          {"plain", "plain"},
                          {"a{b}\\c", "a\\{b\\}\\\\c"},
                          {"\fx\ty", "{x}y"},
                          {std::string("cut\0off", 7), "cut"},
                          {"\xF0\x9F\x98\x80{", "\xF0\x9F\x98\x80\\{"}};
    for (const Case& each : cases) {
        UString out("old");
        TextUtil::escapeBracesAndBackslash(each.in, out);
        EXPECT_EQ(out.toUtf8(), each.out);
    }
    UString same("{}");
    TextUtil::escapeBracesAndBackslash(same, same);
    EXPECT_EQ(same.toUtf8(), "\\{\\}");
}

} // namespace
} // namespace vxgraphics3d
