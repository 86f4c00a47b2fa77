#include "renderer/text/fontset.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace vxrenderer {
namespace {

constexpr char32_t c_replacement = 0xFFFD;
constexpr Font::Glyph c_nothing = {};

} // namespace

FontSet::FontSet(FontLibrary& library, const std::string& name, int pixelSize)
    : m_library(library),
      m_face(library.choose(name)),
      m_pixelSize(std::clamp(pixelSize, c_smallestSize, c_largestSize))
{}

Font& FontSet::font(const FontFace& face, int scriptLevel)
{
    std::unique_ptr<Font>& font = m_fonts[{face, scriptLevel}];
    if (!font) {
        const float size = static_cast<float>(m_pixelSize) * c_scriptSizes[scriptLevel];
        font = std::make_unique<Font>(m_library.face(face), static_cast<int>(std::lround(size)));
    }
    return *font;
}

Font& FontSet::fontOf(const TextStyle& style)
{
    return font(faceOf(m_face.family, style), style.scriptLevel);
}

FontFace FontSet::faceOf(FontFace::Family family, const TextStyle& style) const
{
    return {family, m_face.bold || style.bold, m_face.italic || style.italic};
}

FontSet::Found FontSet::find(char32_t character, const TextStyle& style)
{
    const std::array faces = {faceOf(m_face.family, style), faceOf(FontFace::Family::sans, style),
                              FontFace{FontFace::Family::mathematics, false, false}};
    for (const char32_t wanted : {character, c_replacement}) {
        for (const FontFace& face : faces) {
            Font& font = this->font(face, style.scriptLevel);
            if (const Font::Glyph* glyph = font.glyph(wanted)) {
                return {&font, glyph, face, wanted};
            }
        }
    }
    return {&fontOf(style), &c_nothing, faces.front(), character};
}

float FontSet::fontSize() const
{
    return static_cast<float>(m_pixelSize);
}

float FontSet::advance(char32_t character, const TextStyle& style)
{
    return find(character, style).glyph->advance;
}

float FontSet::kerning(char32_t left, char32_t right, const TextStyle& style)
{
    Font* const leftFont = find(left, style).font;
    return leftFont == find(right, style).font ? leftFont->kerning(left, right) : 0.0f;
}

float FontSet::ascent(const TextStyle& style)
{
    return fontOf(style).getAscent();
}

float FontSet::descent(const TextStyle& style)
{
    return fontOf(style).getDescent();
}

} // namespace vxrenderer
