#include "renderer/axes/degreeaxis.h"

#include "renderer/text/titlemarkup.h"

#include <algorithm>
#include <array>
#include <string>
#include <string_view>

namespace vxrenderer {
namespace {

constexpr char32_t c_degree = U'\u00B0';
/// The command for a small circle, which is often raised as the sign of degrees.
constexpr char32_t c_circle = U'\u2218';

constexpr std::array<std::u32string_view, 3> c_degrees = {U"deg", U"degree", U"degrees"};
constexpr std::array<std::u32string_view, 8> c_directions = {U"n",     U"e",    U"s",     U"w",
                                                             U"north", U"east", U"south", U"west"};

/// What a title shows, in small letters.
std::u32string shownText(const vxbase::UString& title)
{
    std::u32string text;
    for (const TitleItem& item : parseTitle(title)) {
        if (item.kind == TitleItem::Kind::character) {
            const char32_t c = item.character;
            text += c >= U'A' && c <= U'Z' ? c - U'A' + U'a' : c;
        } else if (item.kind == TitleItem::Kind::space || item.kind == TitleItem::Kind::newLine) {
            text += U' ';
        } else if (item.kind == TitleItem::Kind::openScripts) {
            // In a plain "degrees_north" this is no index.
            text += U'_';
        }
    }
    return text;
}

void dropLast(std::u32string_view& text, std::u32string_view characters)
{
    const std::size_t last = text.find_last_not_of(characters);
    text = text.substr(0, last == std::u32string_view::npos ? 0 : last + 1);
}

/// The letters at the end of a text.
std::u32string_view lastWord(std::u32string_view text)
{
    const auto isLetter = [](char32_t c) { return c >= U'a' && c <= U'z'; };
    const auto start = std::find_if_not(text.rbegin(), text.rend(), isLetter);
    return text.substr(static_cast<std::size_t>(text.rend() - start));
}

/// Drops the last word of a text if it is one of some.
template <std::size_t count>
bool dropWord(std::u32string_view& text, const std::array<std::u32string_view, count>& words)
{
    const std::u32string_view word = lastWord(text);
    if (std::ranges::find(words, word) == words.end()) {
        return false;
    }
    text.remove_suffix(word.size());
    return true;
}

bool isInDegrees(std::u32string_view text)
{
    dropLast(text, U" )]");
    if (dropWord(text, c_directions)) {
        dropLast(text, U" _");
    }
    if (!text.empty() && (text.back() == c_degree || text.back() == c_circle)) {
        text.remove_suffix(1);
    } else if (!dropWord(text, c_degrees)) {
        return false;
    }
    dropLast(text, U" _");
    return text.empty() || text.back() < U'0' || text.back() > U'9';
}

} // namespace

TickSteps stepsOf(const vxbase::UString& title)
{
    return isInDegrees(shownText(title)) ? TickSteps::degrees : TickSteps::decimal;
}

} // namespace vxrenderer
