#include "renderer/paint/overlaypainter.h"

#include "renderer/paint/material.h"
#include "renderer/upload/imagetextures.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <string>

namespace vxrenderer {
namespace {

using vxgraphics3d::Color;

constexpr const char* c_block = R"(
layout(std140) uniform Overlay {
    vec2 pictureSize;
    float depth;
    int numSides;
    // Normals and distances of the sides of a polygon, positive within it.
    vec4 sides[6];
};
)";

constexpr const char* c_vertexMain = R"(
layout(location = 0) in vec2 position;
layout(location = 1) in vec2 texturePlace;
layout(location = 2) in vec4 color;
out vec2 place;
out vec2 pixel;
flat out vec4 ownColor;

void main()
{
    place = texturePlace;
    pixel = position;
    ownColor = color;
    gl_Position = vec4(position.x / pictureSize.x * 2.0 - 1.0, 1.0 - position.y / pictureSize.y * 2.0, depth, 1.0);
}
)";

// Each kind of picture has a shader of its own: one for all would read all textures in each pixel.
constexpr const char* c_inputs = R"(
in vec2 place;
in vec2 pixel;
flat in vec4 ownColor;
out vec4 result;
)";

constexpr const char* c_covered = R"(
// How much of the pixel lies within the polygon, if there is one.
float covered()
{
    float part = 1.0;
    for (int i = 0; i < numSides; ++i) {
        part = min(part, dot(sides[i].xy, pixel) + sides[i].z + 0.5);
    }
    return max(part, 0.0);
}
)";

constexpr const char* c_plainMain = R"(
void main()
{
    result = vec4(ownColor.rgb, ownColor.a * covered());
}
)";

constexpr const char* c_colorTableMain = R"(
const int c_tableSize = 1024;

uniform sampler1D colorTable;

void main()
{
    int texel = clamp(int(place.y * float(c_tableSize)), 0, c_tableSize - 1);
    result = vec4(texelFetch(colorTable, texel, 0).rgb, covered());
}
)";

constexpr const char* c_glyphsMain = R"(
uniform sampler2D glyphs;

void main()
{
    result = vec4(ownColor.rgb, ownColor.a * texelFetch(glyphs, ivec2(place), 0).r);
}
)";

constexpr const char* c_imageMain = R"(
// With colours multiplied by alpha.
uniform sampler2D image;

void main()
{
    vec4 texel = texture(image, place);
    result = vec4(texel.rgb / max(texel.a, 1.0 / 255.0), texel.a);
}
)";

std::string vertexSource()
{
    return std::string(c_block) + c_vertexMain;
}

std::string fragmentSource(const char* main, bool isPolygon)
{
    return std::string(c_block) + c_inputs + (isPolygon ? c_covered : "") + main;
}

} // namespace

PixelRect inkOf(const TextLayout& text, FontSet& fonts)
{
    PixelRect ink = {};
    bool isEmpty = true;
    for (const PlacedCharacter& placed : text.characters) {
        const Font::Glyph& glyph = *fonts.find(placed.character, placed.style).glyph;
        if (glyph.width == 0) {
            continue;
        }
        const float left = std::round(placed.x) + static_cast<float>(glyph.left);
        const float top = std::round(placed.y) - static_cast<float>(glyph.top);
        const PixelRect rect = {left, top, left + static_cast<float>(glyph.width),
                                top + static_cast<float>(glyph.height)};
        ink = isEmpty ? rect
                      : PixelRect{std::min(ink.left, rect.left), std::min(ink.top, rect.top),
                                  std::max(ink.right, rect.right), std::max(ink.bottom, rect.bottom)};
        isEmpty = false;
    }
    return ink;
}

float haloWidth(float fontSize)
{
    constexpr float c_partOfFontSize = 0.1f;
    return std::max(1.0f, std::round(c_partOfFontSize * fontSize));
}

struct OverlayPainter::OverlayBlock {
    static constexpr const char* c_block = "Overlay";
    static constexpr GLuint c_binding = 5;

    std::array<float, 2> pictureSize;
    float depth = 0.0f;
    std::int32_t numSides = 0;
    std::array<std::array<float, 4>, c_mostCorners> sides{};
};

OverlayPainter::OverlayPainter(UploadCounts& counts)
    : m_counts(counts),
      m_plain("plain shapes", vertexSource().c_str(), fragmentSource(c_plainMain, true).c_str()),
      m_colorTable("the colors of a table", vertexSource().c_str(), fragmentSource(c_colorTableMain, true).c_str()),
      m_glyphs("text", vertexSource().c_str(), fragmentSource(c_glyphsMain, false).c_str()),
      m_image("an image", vertexSource().c_str(), fragmentSource(c_imageMain, false).c_str())
{
    for (const GlProgram* program : {&m_plain, &m_colorTable, &m_glyphs, &m_image}) {
        m_block.attach(*program);
    }
    m_glyphs.setSampler("glyphs", c_glyphUnit);
    m_image.setSampler("image", ImageTextures::c_unit);
    glBindVertexArray(m_array.name());
    glBindBuffer(GL_ARRAY_BUFFER, m_buffer.name());
    glEnableVertexAttribArray(0);
    glVertexAttribPointer(0, 2, GL_FLOAT, GL_FALSE, sizeof(Vertex), nullptr);
    glEnableVertexAttribArray(1);
    glVertexAttribPointer(1, 2, GL_FLOAT, GL_FALSE, sizeof(Vertex), offsetPointer(offsetof(Corner, s)));
    glEnableVertexAttribArray(2);
    glVertexAttribPointer(2, 4, GL_FLOAT, GL_FALSE, sizeof(Vertex), offsetPointer(offsetof(Vertex, color)));
    glBindVertexArray(0);
}

void OverlayPainter::begin(int width, int height)
{
    glDisable(GL_DEPTH_TEST);
    glEnable(GL_BLEND);
    glBlendFuncSeparate(GL_SRC_ALPHA, GL_ONE_MINUS_SRC_ALPHA, GL_ONE, GL_ONE_MINUS_SRC_ALPHA);
    m_width = static_cast<float>(width);
    m_height = static_cast<float>(height);
}

void OverlayPainter::addQuad(const PixelRect& rect, const PixelRect& texture, const Color& color)
{
    addQuad({{{rect.left, rect.top, texture.left, texture.top},
              {rect.right, rect.top, texture.right, texture.top},
              {rect.right, rect.bottom, texture.right, texture.bottom},
              {rect.left, rect.bottom, texture.left, texture.bottom}}},
            color);
}

void OverlayPainter::addQuad(const std::array<Corner, 4>& corners, const Color& color)
{
    const std::array<float, 4> channels = channelsOf(color);
    for (const std::size_t i : {0u, 1u, 2u, 0u, 2u, 3u}) {
        m_quads.push_back({corners[i], channels});
    }
}

void OverlayPainter::drawQuads(const GlProgram& program, float depth)
{
    drawQuads(program, {.pictureSize = {m_width, m_height}, .depth = depth});
}

void OverlayPainter::drawQuads(const GlProgram& program, const OverlayBlock& block)
{
    program.use();
    m_block.set(block);
    glBindVertexArray(m_array.name());
    glBindBuffer(GL_ARRAY_BUFFER, m_buffer.name());
    glBufferData(GL_ARRAY_BUFFER, static_cast<GLsizeiptr>(m_quads.size() * sizeof(Vertex)), m_quads.data(),
                 GL_STREAM_DRAW);
    glDrawArrays(GL_TRIANGLES, 0, static_cast<GLsizei>(m_quads.size()));
    m_quads.clear();
}

void OverlayPainter::fillRect(const PixelRect& rect, const Color& color, float depth)
{
    addQuad(rect, {}, color);
    drawQuads(m_plain, depth);
}

void OverlayPainter::drawImage(const PixelRect& rect, float depth)
{
    addQuad(rect, {0.0f, 0.0f, 1.0f, 1.0f}, {});
    drawQuads(m_image, depth);
}

void OverlayPainter::strokeRect(const PixelRect& rect, float width, const Color& color)
{
    addQuad({rect.left, rect.top, rect.right, rect.top + width}, {}, color);
    addQuad({rect.left, rect.bottom - width, rect.right, rect.bottom}, {}, color);
    addQuad({rect.left, rect.top, rect.left + width, rect.bottom}, {}, color);
    addQuad({rect.right - width, rect.top, rect.right, rect.bottom}, {}, color);
    drawQuads(m_plain);
}

void OverlayPainter::fillWithColorTable(const PixelRect& rect, float bottomColor, float topColor)
{
    addQuad(rect, {0.0f, topColor, 0.0f, bottomColor}, {});
    drawQuads(m_colorTable);
}

void OverlayPainter::fillWithColorTableAcross(const PixelRect& rect, float leftColor, float rightColor)
{
    addQuad({{{rect.left, rect.top, 0.0f, leftColor},
              {rect.right, rect.top, 0.0f, rightColor},
              {rect.right, rect.bottom, 0.0f, rightColor},
              {rect.left, rect.bottom, 0.0f, leftColor}}},
            {});
    drawQuads(m_colorTable);
}

void OverlayPainter::drawPolygon(std::span<const PixelPoint> corners, const GlProgram& program, const Color& color,
                                 float tablePosition)
{
    OverlayBlock block = {.pictureSize = {m_width, m_height}};
    PixelRect box = {corners[0].x, corners[0].y, corners[0].x, corners[0].y};
    float area = 0.0f;
    for (std::size_t i = 0; i < corners.size(); ++i) {
        const PixelPoint& from = corners[i];
        const PixelPoint& to = corners[(i + 1) % corners.size()];
        area += from.x * to.y - to.x * from.y;
        box = {std::min(box.left, from.x), std::min(box.top, from.y), std::max(box.right, from.x),
               std::max(box.bottom, from.y)};
    }
    for (std::size_t i = 0; i < corners.size() && i < c_mostCorners; ++i) {
        const PixelPoint& from = corners[i];
        const PixelPoint& to = corners[(i + 1) % corners.size()];
        const float length = std::hypot(to.x - from.x, to.y - from.y) * (area < 0.0f ? -1.0f : 1.0f);
        if (length != 0.0f) {
            const float x = (from.y - to.y) / length;
            const float y = (to.x - from.x) / length;
            block.sides[static_cast<std::size_t>(block.numSides)] = {x, y, -(x * from.x + y * from.y), 0.0f};
            ++block.numSides;
        }
    }
    addQuad({box.left - 1.0f, box.top - 1.0f, box.right + 1.0f, box.bottom + 1.0f},
            {0.0f, tablePosition, 0.0f, tablePosition}, color);
    drawQuads(program, block);
}

void OverlayPainter::fillPolygon(std::span<const PixelPoint> corners, const Color& color)
{
    drawPolygon(corners, m_plain, color, 0.0f);
}

void OverlayPainter::fillPolygonWithColorTable(std::span<const PixelPoint> corners, float position)
{
    drawPolygon(corners, m_colorTable, {}, position);
}

void OverlayPainter::bindAtlas(const GlyphAtlas& atlas)
{
    Atlas& copy = m_atlases[&atlas];
    glActiveTexture(GL_TEXTURE0 + c_glyphUnit);
    glBindTexture(GL_TEXTURE_2D, copy.texture.name());
    if (!copy.lastChangeId.take(atlas.getChangeId())) {
        return;
    }
    glPixelStorei(GL_UNPACK_ALIGNMENT, 1);
    glTexImage2D(GL_TEXTURE_2D, 0, GL_R8, atlas.getWidth(), atlas.getHeight(), 0, GL_RED, GL_UNSIGNED_BYTE,
                 atlas.getPixels().data());
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER, GL_NEAREST);
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MAG_FILTER, GL_NEAREST);
    ++m_counts.glyphPictures;
}

void OverlayPainter::drawText(const TextLayout& text, FontSet& fonts, float left, float top, const TextColors& colors,
                              float depth)
{
    const float x = std::round(left);
    const float y = std::round(top);
    drawGlyphs(text, fonts, colors, depth, [&](const PixelRect& rect, const PixelRect& texture, const Color& color) {
        addQuad({x + rect.left, y + rect.top, x + rect.right, y + rect.bottom}, texture, color);
    });
}

void OverlayPainter::drawTextUpwards(const TextLayout& text, FontSet& fonts, float left, float bottom,
                                     const TextColors& colors)
{
    const float firstX = std::round(left);
    const float firstY = std::round(bottom);
    drawGlyphs(text, fonts, colors, 0.0f, [&](const PixelRect& rect, const PixelRect& texture, const Color& color) {
        const float x = firstX + rect.top;
        const float y = firstY - rect.left;
        const float right = firstX + rect.bottom;
        const float upper = firstY - rect.right;
        addQuad({{{x, y, texture.left, texture.top},
                  {x, upper, texture.right, texture.top},
                  {right, upper, texture.right, texture.bottom},
                  {right, y, texture.left, texture.bottom}}},
                color);
    });
}

template <class AddGlyph>
void OverlayPainter::drawGlyphs(const TextLayout& text, FontSet& fonts, const TextColors& colors, float depth,
                                AddGlyph&& addGlyph)
{
    const GlyphAtlas* atlas = nullptr;
    const auto draw = [&] {
        if (atlas != nullptr) {
            bindAtlas(*atlas);
            drawQuads(m_glyphs, depth);
        }
    };
    const auto rimWidth = static_cast<int>(haloWidth(fonts.fontSize()));
    const auto add = [&](bool isRim, const Color& color) {
        for (const PlacedCharacter& placed : text.characters) {
            const FontSet::Found found = fonts.find(placed.character, placed.style);
            const Font::Glyph& glyph = isRim ? found.font->rim(found.character, rimWidth) : *found.glyph;
            if (glyph.width == 0) {
                continue;
            }
            if (atlas != &found.font->getAtlas()) {
                draw();
                atlas = &found.font->getAtlas();
            }
            const float x = std::round(placed.x) + static_cast<float>(glyph.left);
            const float y = std::round(placed.y) - static_cast<float>(glyph.top);
            const auto s = static_cast<float>(glyph.atlasX);
            const auto t = static_cast<float>(glyph.atlasY);
            const auto width = static_cast<float>(glyph.width);
            const auto height = static_cast<float>(glyph.height);
            addGlyph(PixelRect{x, y, x + width, y + height}, PixelRect{s, t, s + width, t + height}, color);
        }
    };
    // No rim covers strokes of a neighbour.
    if (colors.halo) {
        add(true, *colors.halo);
    }
    add(false, colors.text);
    draw();
}

} // namespace vxrenderer
