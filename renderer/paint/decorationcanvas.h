#pragma once

#include "graphics3d/foundation/color.h"
#include "graphics3d/foundation/matrixf.h"
#include "graphics3d/foundation/vector3f.h"
#include "renderer/frame/pixelarea.h"
#include "renderer/paint/linepainter.h"
#include "renderer/paint/overlaypainter.h"
#include "renderer/paint/solidpainter.h"
#include "renderer/paint/symbolpainter.h"

#include <boost/shared_ptr.hpp>

#include <span>

namespace vxgraphics3d {
class ColorTable;
class SceneGraphPlotGroup;
} // namespace vxgraphics3d

namespace vxrenderer {

/// What title, legends, axes, triad and overlays are drawn on: the picture itself, or a file of vectors. Coordinates
/// are pixels from the top left corner of the picture, whole ones are borders of pixels.
class DecorationCanvas {
public:
    virtual ~DecorationCanvas() = default;

    /// Limits what follows to an area, which is what the frames of lines and symbols refer to; otherwise they refer to
    /// the whole picture.
    virtual void enterArea(const PixelArea& area) = 0;
    virtual void leaveArea() = 0;

    virtual void fillRect(const PixelRect& rect, const vxgraphics3d::Color& color) = 0;
    /// A border along the inner side of a rectangle.
    virtual void strokeRect(const PixelRect& rect, float width, const vxgraphics3d::Color& color) = 0;
    /// A convex polygon.
    virtual void fillPolygon(std::span<const PixelPoint> corners, const vxgraphics3d::Color& color) = 0;

    /// Selects the colours for the following functions, until a text is drawn.
    /// @param group,handle under which the table is kept on the graphics hardware
    virtual void useColorTable(const boost::shared_ptr<const vxgraphics3d::SceneGraphPlotGroup>& group, int handle,
                               const boost::shared_ptr<const vxgraphics3d::ColorTable>& table) = 0;
    /// The colours between two positions of the table, from the bottom of the rectangle to its top.
    virtual void fillWithColorTable(const PixelRect& rect, float bottomColor, float topColor) = 0;
    /// The same from the left side of the rectangle to its right side.
    virtual void fillWithColorTableAcross(const PixelRect& rect, float leftColor, float rightColor) = 0;
    virtual void fillPolygonWithColorTable(std::span<const PixelPoint> corners, float position) = 0;

    /// A text with its top left corner at a position.
    virtual void drawText(const TextLayout& text, FontSet& fonts, float left, float top, const TextColors& colors) = 0;
    /// A text that runs from bottom to top; the corner is where its first line begins.
    virtual void drawTextUpwards(const TextLayout& text, FontSet& fonts, float left, float bottom,
                                 const TextColors& colors) = 0;

    virtual void drawLines(std::span<const LineSegment> lines, const LinePainter::Frame& frame,
                           const vxgraphics3d::Color& color) = 0;
    virtual void drawSymbols(std::span<const vxgraphics3d::Vector3f> positions, const SymbolPainter::Frame& frame) = 0;
    /// Fills what lines enclose, see `FillPainter::fill`.
    /// @param toClip from the points to the area that was entered, or else to the picture
    virtual void fillOutline(std::span<const vxgraphics3d::Vector3f> lines, const vxgraphics3d::Matrixf& toClip,
                             const vxgraphics3d::Color& color) = 0;
    /// Bodies in their order, with positions in pixels from an origin. Not within an area.
    virtual void drawSolids(std::span<const Solid> solids, PixelPoint origin) = 0;
};

} // namespace vxrenderer
