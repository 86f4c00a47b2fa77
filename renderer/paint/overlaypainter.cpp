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
    vec4 color;
    vec2 pictureSize;
    int mode;
    float depth;
    // Normals and distances of the sides of a polygon, positive within it.
    vec4 sides[6];
    int numSides;
};
)";

constexpr const char* c_vertexMain = R"(
layout(location = 0) in vec2 position;
layout(location = 1) in vec2 texturePlace;
out vec2 place;
out vec2 pixel;

void main()
{
    place = texturePlace;
    pixel = position;
    gl_Position = vec4(position.x / pictureSize.x * 2.0 - 1.0, 1.0 - position.y / pictureSize.y * 2.0, depth, 1.0);
}
)";

constexpr const char* c_fragmentMain = R"(
const int c_tableSize = 1024;

uniform sampler1D colorTable;
uniform sampler2D glyphs;
// With colours multiplied by alpha.
uniform sampler2D image;
in vec2 place;
in vec2 pixel;
out vec4 result;

// How much of the pixel lies within the polygon, if there is one.
float covered()
{
    float part = 1.0;
    for (int i = 0; i < numSides; ++i) {
        part = min(part, dot(sides[i].xy, pixel) + sides[i].z + 0.5);
    }
    return max(part, 0.0);
}

void main()
{
    if (mode == 0) {
        result = color;
    } else if (mode == 1) {
        int texel = clamp(int(place.y * float(c_tableSize)), 0, c_tableSize - 1);
        result = vec4(texelFetch(colorTable, texel, 0).rgb, 1.0);
    } else if (mode == 2) {
        result = vec4(color.rgb, color.a * texelFetch(glyphs, ivec2(place), 0).r);
    } else {
        vec4 texel = texture(image, place);
        result = vec4(texel.rgb / max(texel.a, 1.0 / 255.0), texel.a);
    }
    result.a *= covered();
}
)";

constexpr int c_plainMode = 0;
constexpr int c_colorTableMode = 1;
constexpr int c_glyphMode = 2;
constexpr int c_imageMode = 3;

/// The moves of a text that together draw a rim of a width around it.
std::vector<PixelPoint> haloOffsets(float width)
{
    std::vector<PixelPoint> offsets;
    for (float y = -width; y <= width; ++y) {
        for (float x = -width; x <= width; ++x) {
            const float distance = std::hypot(x, y);
            // The outer ring, with corners only where it is narrow, and one within a wide one.
            const bool isOuter = distance <= width + 0.5f && distance > width - 0.6f;
            const bool isInner = distance > 0.0f && std::abs(distance - 0.5f * width) < 0.5f;
            if (isOuter || (width > 2.0f && isInner)) {
                offsets.push_back({x, y});
            }
        }
    }
    return offsets;
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

    std::array<float, 4> color;
    std::array<float, 2> pictureSize;
    std::int32_t mode;
    float depth;
    std::array<std::array<float, 4>, c_mostCorners> sides{};
    std::int32_t numSides = 0;
    std::array<std::int32_t, 3> unused{};
};

OverlayPainter::OverlayPainter(UploadCounts& counts)
    : m_counts(counts),
      m_program("the overlay", (std::string(c_block) + c_vertexMain).c_str(),
                (std::string(c_block) + c_fragmentMain).c_str())
{
    m_block.attach(m_program);
    m_program.setSampler("glyphs", 1);
    m_program.setSampler("image", ImageTextures::c_unit);
    glBindVertexArray(m_array.name());
    glBindBuffer(GL_ARRAY_BUFFER, m_buffer.name());
    glEnableVertexAttribArray(0);
    glVertexAttribPointer(0, 2, GL_FLOAT, GL_FALSE, sizeof(Vertex), nullptr);
    glEnableVertexAttribArray(1);
    glVertexAttribPointer(1, 2, GL_FLOAT, GL_FALSE, sizeof(Vertex), offsetPointer(offsetof(Vertex, s)));
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

void OverlayPainter::addQuad(const PixelRect& rect, const PixelRect& texture)
{
    addQuad({{{rect.left, rect.top, texture.left, texture.top},
              {rect.right, rect.top, texture.right, texture.top},
              {rect.right, rect.bottom, texture.right, texture.bottom},
              {rect.left, rect.bottom, texture.left, texture.bottom}}});
}

void OverlayPainter::addQuad(const std::array<Vertex, 4>& corners)
{
    for (const std::size_t corner : {0u, 1u, 2u, 0u, 2u, 3u}) {
        m_quads.push_back(corners[corner]);
    }
}

void OverlayPainter::drawQuads(int mode, const Color& color, float depth)
{
    drawQuads({.color = channelsOf(color), .pictureSize = {m_width, m_height}, .mode = mode, .depth = depth});
}

void OverlayPainter::drawQuads(const OverlayBlock& block)
{
    m_program.use();
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
    addQuad(rect, {});
    drawQuads(c_plainMode, color, depth);
}

void OverlayPainter::drawImage(const PixelRect& rect, float depth)
{
    addQuad(rect, {0.0f, 0.0f, 1.0f, 1.0f});
    drawQuads(c_imageMode, {}, depth);
}

void OverlayPainter::strokeRect(const PixelRect& rect, float width, const Color& color)
{
    addQuad({rect.left, rect.top, rect.right, rect.top + width}, {});
    addQuad({rect.left, rect.bottom - width, rect.right, rect.bottom}, {});
    addQuad({rect.left, rect.top, rect.left + width, rect.bottom}, {});
    addQuad({rect.right - width, rect.top, rect.right, rect.bottom}, {});
    drawQuads(c_plainMode, color);
}

void OverlayPainter::fillWithColorTable(const PixelRect& rect, float bottomColor, float topColor)
{
    addQuad(rect, {0.0f, topColor, 0.0f, bottomColor});
    drawQuads(c_colorTableMode, {});
}

void OverlayPainter::fillWithColorTableAcross(const PixelRect& rect, float leftColor, float rightColor)
{
    addQuad({{{rect.left, rect.top, 0.0f, leftColor},
              {rect.right, rect.top, 0.0f, rightColor},
              {rect.right, rect.bottom, 0.0f, rightColor},
              {rect.left, rect.bottom, 0.0f, leftColor}}});
    drawQuads(c_colorTableMode, {});
}

void OverlayPainter::drawPolygon(std::span<const PixelPoint> corners, int mode, const Color& color, float tablePosition)
{
    OverlayBlock block = {.color = channelsOf(color), .pictureSize = {m_width, m_height}, .mode = mode, .depth = 0.0f};
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
            {0.0f, tablePosition, 0.0f, tablePosition});
    drawQuads(block);
}

void OverlayPainter::fillPolygon(std::span<const PixelPoint> corners, const Color& color)
{
    drawPolygon(corners, c_plainMode, color, 0.0f);
}

void OverlayPainter::fillPolygonWithColorTable(std::span<const PixelPoint> corners, float position)
{
    drawPolygon(corners, c_colorTableMode, {}, position);
}

void OverlayPainter::bindAtlas(const GlyphAtlas& atlas)
{
    Atlas& copy = m_atlases[&atlas];
    glActiveTexture(GL_TEXTURE1);
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
    drawGlyphs(text, fonts, colors, depth, [&](const PixelRect& rect, const PixelRect& texture, PixelPoint offset) {
        const float glyphLeft = x + rect.left + offset.x;
        const float glyphTop = y + rect.top + offset.y;
        addQuad({glyphLeft, glyphTop, glyphLeft + rect.right - rect.left, glyphTop + rect.bottom - rect.top}, texture);
    });
}

void OverlayPainter::drawTextUpwards(const TextLayout& text, FontSet& fonts, float left, float bottom,
                                     const TextColors& colors)
{
    const float firstX = std::round(left);
    const float firstY = std::round(bottom);
    drawGlyphs(text, fonts, colors, 0.0f, [&](const PixelRect& rect, const PixelRect& texture, PixelPoint offset) {
        const float x = firstX + rect.top + offset.x;
        const float y = firstY - rect.left + offset.y;
        const float right = x + rect.bottom - rect.top;
        const float upper = y - (rect.right - rect.left);
        addQuad({{{x, y, texture.left, texture.top},
                  {x, upper, texture.right, texture.top},
                  {right, upper, texture.right, texture.bottom},
                  {right, y, texture.left, texture.bottom}}});
    });
}

template <class AddGlyph>
void OverlayPainter::drawGlyphs(const TextLayout& text, FontSet& fonts, const TextColors& colors, float depth,
                                AddGlyph&& addGlyph)
{
    if (colors.halo) {
        drawGlyphs(text, fonts, *colors.halo, depth, haloOffsets(haloWidth(fonts.fontSize())), addGlyph);
    }
    drawGlyphs(text, fonts, colors.text, depth, std::array{PixelPoint{0.0f, 0.0f}}, addGlyph);
}

template <class AddGlyph>
void OverlayPainter::drawGlyphs(const TextLayout& text, FontSet& fonts, const Color& color, float depth,
                                std::span<const PixelPoint> offsets, AddGlyph&& addGlyph)
{
    std::map<const GlyphAtlas*, std::vector<Vertex>> byAtlas;
    for (const PlacedCharacter& placed : text.characters) {
        const FontSet::Found found = fonts.find(placed.character, placed.style);
        const Font::Glyph& glyph = *found.glyph;
        if (glyph.width == 0) {
            continue;
        }
        const float x = std::round(placed.x) + static_cast<float>(glyph.left);
        const float y = std::round(placed.y) - static_cast<float>(glyph.top);
        const auto s = static_cast<float>(glyph.atlasX);
        const auto t = static_cast<float>(glyph.atlasY);
        const auto width = static_cast<float>(glyph.width);
        const auto height = static_cast<float>(glyph.height);
        std::vector<Vertex>& quads = byAtlas[&found.font->getAtlas()];
        m_quads.swap(quads);
        for (const PixelPoint& offset : offsets) {
            addGlyph(PixelRect{x, y, x + width, y + height}, PixelRect{s, t, s + width, t + height}, offset);
        }
        m_quads.swap(quads);
    }
    for (auto& [atlas, quads] : byAtlas) {
        bindAtlas(*atlas);
        m_quads.swap(quads);
        drawQuads(c_glyphMode, color, depth);
    }
}

} // namespace vxrenderer
