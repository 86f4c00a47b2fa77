#pragma once

#include "renderer/paint/decorationcanvas.h"

namespace vxrenderer {

class ColorTextures;

/// Draws decorations into the current target. Lines and symbols may be drawn at any time, the rest after
/// `OverlayPainter::begin`.
class PictureCanvas final : public DecorationCanvas {
public:
    /// @param width,height of the picture
    PictureCanvas(OverlayPainter& overlay, const LinePainter& lines, const SymbolPainter& symbols,
                  ColorTextures& textures, int width, int height)
        : m_overlay(overlay), m_lines(lines), m_symbols(symbols), m_textures(textures), m_width(width), m_height(height)
    {}

    void enterArea(const PixelArea& area) override;
    void leaveArea() override;

    void fillRect(const PixelRect& rect, const vxgraphics3d::Color& color) override;
    void strokeRect(const PixelRect& rect, float width, const vxgraphics3d::Color& color) override;
    void fillPolygon(std::span<const PixelPoint> corners, const vxgraphics3d::Color& color) override;
    void useColorTable(const boost::shared_ptr<const vxgraphics3d::SceneGraphPlotGroup>& group, int handle,
                       const boost::shared_ptr<const vxgraphics3d::ColorTable>& table) override;
    void fillWithColorTable(const PixelRect& rect, float bottomColor, float topColor) override;
    void fillWithColorTableAcross(const PixelRect& rect, float leftColor, float rightColor) override;
    void fillPolygonWithColorTable(std::span<const PixelPoint> corners, float position) override;
    void drawText(const TextLayout& text, FontSet& fonts, float left, float top, const TextColors& colors) override;
    void drawTextUpwards(const TextLayout& text, FontSet& fonts, float left, float bottom,
                         const TextColors& colors) override;
    void drawLines(std::span<const LineSegment> lines, const LinePainter::Frame& frame,
                   const vxgraphics3d::Color& color) override;
    void drawSymbols(std::span<const vxgraphics3d::Vector3f> positions, const SymbolPainter::Frame& frame) override;

private:
    OverlayPainter& m_overlay;
    const LinePainter& m_lines;
    const SymbolPainter& m_symbols;
    ColorTextures& m_textures;
    int m_width;
    int m_height;
};

} // namespace vxrenderer
