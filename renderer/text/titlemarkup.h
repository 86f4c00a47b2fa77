#pragma once

#include "renderer/text/textstyle.h"

#include <string>
#include <string_view>
#include <vector>

namespace vxbase {
class UString;
}

namespace vxrenderer {

/// One step of a parsed title: a character, or a mark between characters.
struct TitleItem {
    enum class Kind {
        /// Draw `character`.
        character,
        /// Blank space as wide as `character`, where a line may end; `breaks` says how readily.
        space,
        /// A new line starts.
        newLine,
        /// Indices and exponents of the character before begin; they all start at this position.
        openScripts,
        /// Back to the position of `openScripts`, for an exponent over an index.
        nextScript,
        /// Go on after the widest script since `openScripts`.
        closeScripts,
        /// The lines from here on are centred.
        beginCenter,
        /// The lines from here on start at the left again.
        endCenter
    };
    /// Where a line that is too long is broken first.
    enum class Breaks { betweenBoxes, withinBox };

    Kind kind = Kind::character;
    char32_t character = 0;
    TextStyle style;
    Breaks breaks = Breaks::betweenBoxes;

    bool operator==(const TitleItem&) const = default;
};

/// Reads the markup of titles and legends.
///
/// - `\begin{center}` and `\end{center}` centre the lines between them.
/// - `\mbox{...}` is kept on one line as far as it fits; blanks between boxes are wide, and where lines are broken.
/// - `\unicode{...}` holds plain text: only `\\`, `\{` and `\}` mean something, and blanks and line ends stay.
/// - `^` and `_` raise and lower what follows, one character or a group in braces.
/// - `\textbf{...}`, `\textit{...}`, `\mathrm{...}` change the face; `\alpha`, `\times` and the like are characters.
/// - `\` before a character that is not a letter gives that character.
///
/// Every text gives a result: an unknown command and a closing brace without an opening one are shown as they are,
/// and open groups end with the text.
std::vector<TitleItem> parseTitle(const vxbase::UString& markup);

/// The markup that shows a plain text, given as UTF-8, as it is. It is empty for an empty text.
std::string plainText(std::string_view text);

} // namespace vxrenderer
