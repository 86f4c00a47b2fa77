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
#include <map>
#include <vector>

namespace vxrenderer {

/// A rectangle of the picture in pixels, counted from its top left corner.
struct PixelRect {
    float left;
    float top;
    float right;
    float bottom;
};

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
    /// A text with its top left corner at a position; characters are placed on whole pixels.
    /// @param depth from -1, at the eye, to 1: what it is compared with where a depth test is on
    void drawText(const TextLayout& text, FontSet& fonts, float left, float top, const vxgraphics3d::Color& color,
                  float depth = 0.0f);
    /// A text that runs from bottom to top; the corner is where its first line begins.
    void drawTextUpwards(const TextLayout& text, FontSet& fonts, float left, float bottom,
                         const vxgraphics3d::Color& color);

    /// Frees the pictures of all glyphs: the fonts they belong to are gone.
    void forgetFonts() { m_atlases.clear(); }

private:
    struct OverlayBlock;

    struct Vertex {
        float x;
        float y;
        float s;
        float t;
    };

    struct Atlas {
        GlTexture texture;
        vxgraphics3d::LastChangeId lastChangeId;
    };

    void addQuad(const PixelRect& rect, const PixelRect& texture);
    /// Corners in a circle, the first one at the top left of its texture.
    void addQuad(const std::array<Vertex, 4>& corners);
    template <class AddGlyph>
    void drawGlyphs(const TextLayout& text, FontSet& fonts, const vxgraphics3d::Color& color, float depth,
                    AddGlyph&& addGlyph);
    void drawQuads(int mode, const vxgraphics3d::Color& color, float depth = 0.0f);
    void bindAtlas(const GlyphAtlas& atlas);

    UploadCounts& m_counts;
    GlProgram m_program;
    UniformBlock<OverlayBlock> m_block;
    float m_width = 1.0f;
    float m_height = 1.0f;
    GlVertexArray m_array;
    GlBuffer m_buffer;
    std::vector<Vertex> m_quads;
    std::map<const GlyphAtlas*, Atlas> m_atlases;
};

} // namespace vxrenderer
