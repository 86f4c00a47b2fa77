#include "renderer/paint/picturecanvas.h"

#include "renderer/paint/fillpainter.h"
#include "renderer/upload/colortextures.h"

namespace vxrenderer {

using vxgraphics3d::Color;

void PictureCanvas::enterArea(const PixelArea& area)
{
    const int bottom = m_height - area.y - area.height;
    glViewport(area.x, bottom, area.width, area.height);
    glScissor(area.x, bottom, area.width, area.height);
    glEnable(GL_SCISSOR_TEST);
}

void PictureCanvas::leaveArea()
{
    glDisable(GL_SCISSOR_TEST);
    glViewport(0, 0, m_width, m_height);
}

void PictureCanvas::fillRect(const PixelRect& rect, const Color& color)
{
    m_painters.overlay.fillRect(rect, color);
}

void PictureCanvas::strokeRect(const PixelRect& rect, float width, const Color& color)
{
    m_painters.overlay.strokeRect(rect, width, color);
}

void PictureCanvas::fillPolygon(std::span<const PixelPoint> corners, const Color& color)
{
    m_painters.overlay.fillPolygon(corners, color);
}

void PictureCanvas::useColorTable(const boost::shared_ptr<const vxgraphics3d::SceneGraphPlotGroup>& group, int handle,
                                  const boost::shared_ptr<const vxgraphics3d::ColorTable>& table)
{
    m_painters.textures.bind(group, handle, *table);
}

void PictureCanvas::fillWithColorTable(const PixelRect& rect, float bottomColor, float topColor)
{
    m_painters.overlay.fillWithColorTable(rect, bottomColor, topColor);
}

void PictureCanvas::fillWithColorTableAcross(const PixelRect& rect, float leftColor, float rightColor)
{
    m_painters.overlay.fillWithColorTableAcross(rect, leftColor, rightColor);
}

void PictureCanvas::fillPolygonWithColorTable(std::span<const PixelPoint> corners, float position)
{
    m_painters.overlay.fillPolygonWithColorTable(corners, position);
}

void PictureCanvas::drawText(const TextLayout& text, FontSet& fonts, float left, float top, const TextColors& colors)
{
    m_painters.overlay.drawText(text, fonts, left, top, colors);
}

void PictureCanvas::drawTextUpwards(const TextLayout& text, FontSet& fonts, float left, float bottom,
                                    const TextColors& colors)
{
    m_painters.overlay.drawTextUpwards(text, fonts, left, bottom, colors);
}

void PictureCanvas::drawLines(std::span<const LineSegment> lines, const LinePainter::Frame& frame, const Color& color)
{
    m_painters.lines.draw(lines, frame, color);
}

void PictureCanvas::drawSymbols(std::span<const vxgraphics3d::Vector3f> positions, const SymbolPainter::Frame& frame)
{
    m_painters.symbols.draw(positions, frame);
}

void PictureCanvas::fillOutline(std::span<const vxgraphics3d::Vector3f> lines, const vxgraphics3d::Matrixf& toClip,
                                const Color& color)
{
    m_painters.fills.fill(lines, toClip, color);
}

void PictureCanvas::drawSolids(std::span<const Solid> solids, PixelPoint origin)
{
    vxgraphics3d::Matrixf toClip = pixelsToClip(m_width, m_height);
    toClip.translate(origin.x, origin.y, 0.0f).scale(1.0f, -1.0f, 0.0f);
    m_painters.solids.draw(solids, toClip);
}

} // namespace vxrenderer
