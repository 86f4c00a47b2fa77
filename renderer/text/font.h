#pragma once

#include "renderer/text/fontlibrary.h"
#include "renderer/text/glyphatlas.h"

#include <map>
#include <unordered_map>
#include <utility>

namespace vxrenderer {

/// One face at one size: the glyphs that were asked for, drawn once into an atlas of its own.
class Font {
public:
    /// Where a glyph is in the atlas and how it is placed at the pen, in pixels.
    struct Glyph {
        /// Empty for a blank.
        int width = 0;
        int height = 0;
        int atlasX = 0;
        int atlasY = 0;
        /// From the pen to the left edge, and from the baseline up to the top edge.
        int left = 0;
        int top = 0;
        float advance = 0.0f;
    };

    /// @param pixelSize height of the em square, at least 1
    Font(FontLibrary::Face face, int pixelSize);

    /// The glyph of a character, or null if the face does not have it. It lives as long as the font.
    const Glyph* glyph(char32_t character);
    /// The rim around a character that the face has: what the strokes of the glyph cover when they are moved by a
    /// distance to all sides. It is placed as the glyph is.
    /// @param width the distance, in whole pixels
    const Glyph& rim(char32_t character, int width);
    /// What the face stores for this pair.
    float kerning(char32_t left, char32_t right);

    int getPixelSize() const { return m_pixelSize; }
    float getAscent() const { return m_ascent; }
    float getDescent() const { return m_descent; }
    const GlyphAtlas& getAtlas() const { return m_atlas; }

private:
    /// The size is a property of the shared face: it is set before every use.
    void useSize();
    Glyph draw(unsigned glyphIndex);
    Glyph drawRim(const Glyph& glyph, int width);

    FontLibrary::Face m_face;
    int m_pixelSize;
    float m_ascent = 0.0f;
    float m_descent = 0.0f;
    GlyphAtlas m_atlas;
    std::unordered_map<char32_t, Glyph> m_glyphs;
    /// By character and width.
    std::map<std::pair<char32_t, int>, Glyph> m_rims;
};

} // namespace vxrenderer
