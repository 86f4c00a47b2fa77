#pragma once

#include "renderer/paint/decorationcanvas.h"

namespace vxrenderer {

class ColorTextures;
class FillPainter;

/// Draws decorations into the current target. Lines, symbols, outlines and bodies may be drawn at any time, the rest
/// after `OverlayPainter::begin`.
class PictureCanvas final : public DecorationCanvas {
public:
    /// The painters of a picture.
    struct Painters {
        OverlayPainter& overlay;
        const LinePainter& lines;
        const SymbolPainter& symbols;
        const FillPainter& fills;
        const SolidPainter& solids;
        ColorTextures& textures;
    };

    /// @param width,height of the picture
    PictureCanvas(const Painters& painters, int width, int height)
        : m_painters(painters), m_width(width), m_height(height)
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
    void fillOutline(std::span<const vxgraphics3d::Vector3f> lines, const vxgraphics3d::Matrixf& toClip,
                     const vxgraphics3d::Color& color) override;
    void drawSolids(std::span<const Solid> solids, PixelPoint origin) override;

private:
    Painters m_painters;
    int m_width;
    int m_height;
};

} // namespace vxrenderer
