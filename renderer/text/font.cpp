#include "renderer/text/font.h"

#include <ft2build.h>
#include FT_FREETYPE_H

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <utility>
#include <vector>

namespace vxrenderer {
namespace {

constexpr int c_smallestAtlas = 256;

float fromFixed(FT_Pos value)
{
    return static_cast<float>(value) / 64.0f;
}

/// A move of a glyph, in pixels.
struct RimStep {
    int x;
    int y;
};

/// The moves of a glyph that together draw a rim of a width around it.
std::vector<RimStep> rimSteps(int width)
{
    const auto reach = static_cast<float>(width);
    std::vector<RimStep> steps;
    for (int y = -width; y <= width; ++y) {
        for (int x = -width; x <= width; ++x) {
            const float distance = std::hypot(static_cast<float>(x), static_cast<float>(y));
            // The outer ring, with corners only where it is narrow, and one within a wide one.
            const bool isOuter = distance <= reach + 0.5f && distance > reach - 0.6f;
            const bool isInner = distance > 0.0f && std::abs(distance - 0.5f * reach) < 0.5f;
            if (isOuter || (width > 2 && isInner)) {
                steps.push_back({x, y});
            }
        }
    }
    return steps;
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

const Font::Glyph& Font::rim(char32_t character, int width)
{
    const auto known = m_rims.find({character, width});
    if (known != m_rims.end()) {
        return known->second;
    }
    const Glyph* const own = glyph(character);
    return m_rims.emplace(std::pair{character, width}, own != nullptr ? drawRim(*own, width) : Glyph()).first->second;
}

Font::Glyph Font::drawRim(const Glyph& glyph, int width)
{
    if (glyph.width == 0) {
        return glyph;
    }
    const std::vector<RimStep> steps = rimSteps(width);
    const int columns = glyph.width + 2 * width;
    const int rows = glyph.height + 2 * width;
    const auto strokeAt = [&](int x, int y) {
        const bool isInside = x >= 0 && x < glyph.width && y >= 0 && y < glyph.height;
        return isInside ? m_atlas.pixelAt(glyph.atlasX + x, glyph.atlasY + y) : std::uint8_t(0);
    };
    std::vector<std::uint8_t> pixels;
    pixels.reserve(static_cast<std::size_t>(columns) * static_cast<std::size_t>(rows));
    for (int y = 0; y < rows; ++y) {
        for (int x = 0; x < columns; ++x) {
            // Strokes that each cover a part of the pixel leave the product of what each of them leaves.
            float left = 1.0f;
            for (const RimStep& step : steps) {
                left *= 1.0f - static_cast<float>(strokeAt(x - width - step.x, y - width - step.y)) / 255.0f;
            }
            pixels.push_back(static_cast<std::uint8_t>(std::lround(255.0f * (1.0f - left))));
        }
    }
    Glyph rim;
    if (const auto place = m_atlas.add(pixels.data(), columns, rows, columns)) {
        rim = {columns, rows, place->x, place->y, glyph.left - width, glyph.top + width, glyph.advance};
    }
    return rim;
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
