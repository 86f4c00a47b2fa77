#pragma once

#include "renderer/export/translucentpicture.h"
#include "renderer/export/vectorfonts.h"
#include "renderer/paint/decorationcanvas.h"

#include <boost/shared_ptr.hpp>

#include <cstdint>
#include <string>
#include <vector>

struct _cairo;
struct _cairo_surface;

namespace vxrenderer {

enum class VectorFormat { pdf, svg };

/// A page of a PDF or SVG file, on which decorations are drawn as vectors and texts. The same calls give the same
/// bytes.
///
/// Only one exists at a time in the process; another thread that makes one waits.
class VectorCanvas final : public DecorationCanvas {
public:
    /// @param width,height in pixels, of which an inch has `pixelsPerInch`
    /// @param title,creator UTF-8; empty ones are left out
    /// @throws std::runtime_error if the page cannot be made
    VectorCanvas(VectorFormat format, int width, int height, float pixelsPerInch, const std::string& title,
                 const std::string& creator);

    /// Fills the page, shaded from top to bottom.
    void fillBackdrop(const vxgraphics3d::Color& top, const vxgraphics3d::Color& bottom);
    void drawPicture(const TranslucentPicture& picture);
    /// Ends the page. Nothing may be drawn afterwards.
    /// @return the bytes of the file
    /// @throws std::runtime_error if something could not be written
    std::vector<std::uint8_t> finish();

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
    void setColor(const vxgraphics3d::Color& color);
    void addRect(const PixelRect& rect);
    /// Fills from one point of a rectangle to another.
    void fillWithGradient(const PixelRect& rect, PixelPoint from, PixelPoint to, float fromColor, float toColor);
    /// Draws a text from the origin.
    void drawGlyphs(const TextLayout& text, FontSet& fonts, const TextColors& colors);
    void addSymbol(RenderSymbol symbol, double radius);

    VectorFonts::Access m_fonts;
    VectorFormat m_format;
    PixelArea m_page;
    /// What the frames of lines and symbols refer to.
    PixelArea m_area;
    std::string m_title;
    std::string m_creator;
    std::vector<std::uint8_t> m_bytes;
    boost::shared_ptr<_cairo_surface> m_surface;
    boost::shared_ptr<_cairo> m_context;
    boost::shared_ptr<const vxgraphics3d::ColorTable> m_table;
};

} // namespace vxrenderer
