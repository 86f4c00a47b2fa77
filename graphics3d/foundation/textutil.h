#pragma once

#include "base/export.h"
#include "base/ustring.h"
#include "graphics3d/foundation/textformat.h"

namespace vxgraphics3d {

/// Prepares texts for the renderer's text formatter.
class VX_API TextUtil {
public:
    TextUtil() = delete;

    /// Appends a title to `out` as one box of the markup, after a blank. The text is not escaped here.
    static void prepareTitle(const vxbase::UString& in, vxbase::UString& out, TextFormat format);

    /// Replaces `out` by `in` with a backslash before each backslash and brace. The characters 9 and 12 stand for a
    /// closing and an opening brace that the formatter interprets, and are not escaped. A null character ends the text.
    static void escapeBracesAndBackslash(const vxbase::UString& in, vxbase::UString& out);
};

} // namespace vxgraphics3d
