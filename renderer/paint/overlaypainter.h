#pragma once

#include "graphics3d/foundation/color.h"
#include "graphics3d/foundation/lastchangeid.h"
#include "renderer/gl/globject.h"
#include "renderer/gl/glprogram.h"
#include "renderer/text/fontset.h"
#include "renderer/text/textlayout.h"
#include "renderer/upload/uniformblock.h"
#include "renderer/upload/uploadcounts.h"

#include <array>
#include <cstddef>
#include <map>
#include <optional>
#include <span>
#include <vector>

namespace vxrenderer {

/// A rectangle of the picture in pixels, counted from its top left corner.
struct PixelRect {
    float left;
    float top;
    float right;
    float bottom;
};

/// A point of the picture in pixels, counted from its top left corner.
struct PixelPoint {
    float x;
    float y;
};

/// Colours of a text and of the rim around it, which lets it be read on anything.
struct TextColors {
    vxgraphics3d::Color text;
    /// Without a value there is no rim.
    std::optional<vxgraphics3d::Color> halo;

    /// Implicit, for texts without a rim.
    TextColors(const vxgraphics3d::Color& ofText, std::optional<vxgraphics3d::Color> ofHalo = std::nullopt)
        : text(ofText), halo(ofHalo)
    {}
};

/// The rectangle that the strokes of a text cover, from its top left corner; empty for a blank text.
PixelRect inkOf(const TextLayout& text, FontSet& fonts);

/// How far the rim of a text reaches beyond its strokes, in whole pixels.
float haloWidth(float fontSize);

/// Draws rectangles, colour bars and text over the picture. Whole coordinates are borders of pixels.
class OverlayPainter {
public:
    explicit OverlayPainter(UploadCounts& counts);

    /// Prepares for drawing into a picture of this size.
    void begin(int width, int height);

    /// @param depth from -1, at the eye, to 1: what it is compared with where a depth test is on
    void fillRect(const PixelRect& rect, const vxgraphics3d::Color& color, float depth = 0.0f);
    /// The image that is bound for `ImageTextures::c_unit`.
    void drawImage(const PixelRect& rect, float depth);
    /// A border along the inner side of a rectangle.
    /// @param width of the border, in pixels
    void strokeRect(const PixelRect& rect, float width, const vxgraphics3d::Color& color);
    /// The colours of the one-dimensional texture bound to unit 0, from the bottom of the rectangle to its top.
    void fillWithColorTable(const PixelRect& rect, float bottomColor, float topColor);
    /// The same from the left side of the rectangle to its right side.
    void fillWithColorTableAcross(const PixelRect& rect, float leftColor, float rightColor);
    /// A text with its top left corner at a position; characters are placed on whole pixels.
    /// @param depth from -1, at the eye, to 1: what it is compared with where a depth test is on
    void drawText(const TextLayout& text, FontSet& fonts, float left, float top, const TextColors& colors,
                  float depth = 0.0f);
    /// A text that runs from bottom to top; the corner is where its first line begins.
    void drawTextUpwards(const TextLayout& text, FontSet& fonts, float left, float bottom, const TextColors& colors);

    /// A convex polygon of three to `c_mostCorners` corners, in either direction, with smooth borders.
    void fillPolygon(std::span<const PixelPoint> corners, const vxgraphics3d::Color& color);
    /// The same in the colour at a position, 0 to 1, of the one-dimensional texture bound to unit 0.
    void fillPolygonWithColorTable(std::span<const PixelPoint> corners, float position);
    static constexpr std::size_t c_mostCorners = 6;

    /// Frees the pictures of all glyphs: the fonts they belong to are gone.
    void forgetFonts() { m_atlases.clear(); }

private:
    static constexpr int c_glyphUnit = 1;

    struct OverlayBlock;

    /// A corner of a rectangle and its place in a texture.
    struct Corner {
        float x;
        float y;
        float s;
        float t;
    };

    struct Vertex {
        Corner corner;
        std::array<float, 4> color;
    };

    struct Atlas {
        GlTexture texture;
        vxgraphics3d::LastChangeId lastChangeId;
    };

    void addQuad(const PixelRect& rect, const PixelRect& texture, const vxgraphics3d::Color& color);
    /// Corners in a circle, the first one at the top left of its texture.
    void addQuad(const std::array<Corner, 4>& corners, const vxgraphics3d::Color& color);
    template <class AddGlyph>
    void drawGlyphs(const TextLayout& text, FontSet& fonts, const TextColors& colors, float depth, AddGlyph&& addGlyph);
    void drawQuads(const GlProgram& program, float depth = 0.0f);
    void drawQuads(const GlProgram& program, const OverlayBlock& block);
    void drawPolygon(std::span<const PixelPoint> corners, const GlProgram& program, const vxgraphics3d::Color& color,
                     float tablePosition);
    void bindAtlas(const GlyphAtlas& atlas);

    UploadCounts& m_counts;
    GlProgram m_plain;
    GlProgram m_colorTable;
    GlProgram m_glyphs;
    GlProgram m_image;
    UniformBlock<OverlayBlock> m_block;
    float m_width = 1.0f;
    float m_height = 1.0f;
    GlVertexArray m_array;
    GlBuffer m_buffer;
    std::vector<Vertex> m_quads;
    std::map<const GlyphAtlas*, Atlas> m_atlases;
};

} // namespace vxrenderer
