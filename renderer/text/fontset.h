#pragma once

#include "renderer/text/font.h"
#include "renderer/text/textmetrics.h"

#include <map>
#include <memory>
#include <string>
#include <utility>

namespace vxrenderer {

/// The fonts of one text setting: a face at one size, with its bold, italic and smaller variants. In a bold or italic
/// face all text is so.
///
/// A character that the family lacks is taken from the sans face, then from the mathematics face; one that all of them
/// lack is shown as the replacement character.
class FontSet : public TextMetrics {
public:
    /// Sizes outside these limits, in pixels, are moved to the nearest one.
    static constexpr int c_smallestSize = 4;
    static constexpr int c_largestSize = 200;

    /// A glyph and the font whose atlas holds it; both live as long as the set.
    struct Found {
        Font* font;
        const Font::Glyph* glyph;
        /// The face of the font, and the character that is shown.
        FontFace face;
        char32_t character;
    };

    /// @param name see `FontLibrary::choose`
    FontSet(FontLibrary& library, const std::string& name, int pixelSize);

    /// The glyph of a character in a style.
    Found find(char32_t character, const TextStyle& style);

    float fontSize() const override;
    float advance(char32_t character, const TextStyle& style) override;
    float kerning(char32_t left, char32_t right, const TextStyle& style) override;
    float ascent(const TextStyle& style) override;
    float descent(const TextStyle& style) override;

private:
    Font& font(const FontFace& face, int scriptLevel);
    Font& fontOf(const TextStyle& style);
    /// The face of a style, in a family.
    FontFace faceOf(FontFace::Family family, const TextStyle& style) const;

    FontLibrary& m_library;
    FontFace m_face;
    int m_pixelSize;
    std::map<std::pair<FontFace, int>, std::unique_ptr<Font>> m_fonts;
};

} // namespace vxrenderer
