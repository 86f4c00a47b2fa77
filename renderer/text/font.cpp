#include "renderer/text/font.h"

#include <ft2build.h>
#include FT_FREETYPE_H

#include <algorithm>
#include <utility>

namespace vxrenderer {
namespace {

constexpr int c_smallestAtlas = 256;

float fromFixed(FT_Pos value)
{
    return static_cast<float>(value) / 64.0f;
}

} // namespace

Font::Font(FontLibrary::Face face, int pixelSize)
    : m_face(std::move(face)), m_pixelSize(pixelSize), m_atlas(std::max(c_smallestAtlas, 8 * pixelSize))
{
    useSize();
    m_ascent = fromFixed(m_face->size->metrics.ascender);
    m_descent = -fromFixed(m_face->size->metrics.descender);
}

void Font::useSize()
{
    FT_Set_Pixel_Sizes(m_face.get(), 0, static_cast<FT_UInt>(m_pixelSize));
}

const Font::Glyph* Font::glyph(char32_t character)
{
    const auto known = m_glyphs.find(character);
    if (known != m_glyphs.end()) {
        return &known->second;
    }
    const FT_UInt index = FT_Get_Char_Index(m_face.get(), character);
    return index == 0 ? nullptr : &m_glyphs.emplace(character, draw(index)).first->second;
}

Font::Glyph Font::draw(unsigned glyphIndex)
{
    Glyph glyph;
    useSize();
    // Light hinting fits stems to whole rows and leaves the widths alone: crisp text without uneven gaps.
    if (FT_Load_Glyph(m_face.get(), glyphIndex, FT_LOAD_TARGET_LIGHT | FT_LOAD_RENDER) != 0) {
        return glyph;
    }
    const FT_GlyphSlot slot = m_face->glyph;
    glyph.advance = fromFixed(slot->advance.x);
    const FT_Bitmap& bitmap = slot->bitmap;
    if (bitmap.width == 0 || bitmap.rows == 0 || bitmap.pixel_mode != FT_PIXEL_MODE_GRAY) {
        return glyph;
    }
    const int width = static_cast<int>(bitmap.width);
    const int height = static_cast<int>(bitmap.rows);
    if (const auto place = m_atlas.add(bitmap.buffer, width, height, bitmap.pitch)) {
        glyph.width = width;
        glyph.height = height;
        glyph.atlasX = place->x;
        glyph.atlasY = place->y;
        glyph.left = slot->bitmap_left;
        glyph.top = slot->bitmap_top;
    }
    return glyph;
}

float Font::kerning(char32_t left, char32_t right)
{
    if (!FT_HAS_KERNING(m_face.get())) {
        return 0.0f;
    }
    useSize();
    FT_Vector kerning = {0, 0};
    FT_Get_Kerning(m_face.get(), FT_Get_Char_Index(m_face.get(), left), FT_Get_Char_Index(m_face.get(), right),
                   FT_KERNING_DEFAULT, &kerning);
    return fromFixed(kerning.x);
}

} // namespace vxrenderer
