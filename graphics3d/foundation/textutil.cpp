#include "graphics3d/foundation/textutil.h"

#include <algorithm>
#include <cstddef>
#include <utility>

namespace vxgraphics3d {

using vxbase::UString;

namespace {

constexpr bool needsBackslash(unsigned long character)
{
    return character == '\\' || character == '{' || character == '}';
}

} // namespace

void TextUtil::prepareTitle(const UString& in, UString& out, TextFormat format)
{
    UString box(format == TextFormat::plain ? " \\mbox{\\unicode{" : " \\mbox{");
    box.append(in);
    box.append(format == TextFormat::plain ? "}}" : "}");
    out.append(box);
}

void TextUtil::escapeBracesAndBackslash(const UString& in, UString& out)
{
    const auto escapes = std::count_if(in.data(), in.data() + in.size(), needsBackslash);
    UString escaped;
    escaped.reserve(in.size() + static_cast<std::size_t>(escapes));
    UString::const_iterator characters(in);
    for (unsigned long character = characters.next(); character != 0; character = characters.next()) {
        if (needsBackslash(character)) {
            escaped.append('\\');
        }
        if (character == 9) {
            character = '}';
        } else if (character == 12) {
            character = '{';
        }
        escaped.append(character);
    }
    out = std::move(escaped);
}

} // namespace vxgraphics3d
