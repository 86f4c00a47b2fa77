#include "renderer/overlays/shapepainter.h"

#include "base/ustring.h"
#include "graphics3d/overlays/overlay.h"
#include "graphics3d/overlays/overlaycurve.h"
#include "graphics3d/overlays/overlayoutline.h"
#include "graphics3d/overlays/overlaypoint.h"
#include "graphics3d/overlays/overlaysymbol.h"
#include "graphics3d/overlays/overlaytransformation.h"
#include "renderer/frame/appearance.h"
#include "renderer/frame/view.h"
#include "renderer/overlays/curveshape.h"
#include "renderer/paint/decorationcanvas.h"
#include "renderer/paint/material.h"

#include <algorithm>
#include <initializer_list>
#include <span>
#include <string>

namespace vxrenderer {
namespace {

using namespace vxgraphics3d;

// In pixels of the screen.
constexpr float c_smallestDot = 5.0f;
constexpr float c_symbolSize = 13.0f;
/// Both sides of the border of a handle that is not marked.
constexpr float c_handleBorder = 4.0f;
/// Size of the points of a curve; marking adds to it.
constexpr float c_pointSize = 7.0f;
/// Nothing is drawn wider than this.
constexpr float c_widest = 1000.0f;
/// What the symbols of the painter for dots and squares leave of their size on each side.
constexpr float c_dotPart = 0.9f;
constexpr float c_squarePart = 0.8f;

/// Opacity of the fill of an object without colours of its own, and of the polygon of a curve.
constexpr int c_fillAlpha = 64;
constexpr int c_polygonAlpha = 128;

Color withAlpha(Color color, int alpha)
{
    color.alpha = alpha;
    return color;
}

/// Draws one object.
class ObjectDrawing {
public:
    ObjectDrawing(const OverlayObject& object, const ShapeContext& context)
        : m_object(object),
          m_context(context),
          m_toClip(context.view.projection * context.view.sceneToEye * object.getTransformation()),
          m_outlineColor(object.isColorUsed() ? object.getOutlineColor() : context.appearance.textColor()),
          m_fillColor(object.isColorUsed() ? object.getFillColor()
                                           : withAlpha(context.appearance.textColor(), c_fillAlpha))
    {
        const float size = object.getLineSize();
        m_lineSize = size > 0.0f ? std::min(size, c_widest) : 0.0f;
    }

    void draw()
    {
        switch (m_object.getType()) {
        case OverlayObject::TypePoint: {
            const auto& point = as<OverlayPoint>();
            drawSymbol(RenderSymbol::circle, point.getX(), point.getY(),
                       std::max(m_lineSize, c_smallestDot) / c_dotPart, 1.0f);
            break;
        }
        case OverlayObject::TypeSymbol: {
            const auto& symbol = as<OverlaySymbol>();
            drawSymbol(symbol.getSymbol(), symbol.getX(), symbol.getY(), c_symbolSize, std::max(m_lineSize, 1.0f));
            break;
        }
        case OverlayObject::TypeLine:
        case OverlayObject::TypeRectangle:
        case OverlayObject::TypeEllipse:
            drawOutlined();
            break;
        case OverlayObject::TypeTransformation:
            drawFrame(as<OverlayTransformation>());
            break;
        case OverlayObject::TypeRenderEdit:
        case OverlayObject::TypeDrawCurve:
            drawCurve(as<OverlayCurve>());
            break;
        }
    }

private:
    template <class Object>
    const Object& as() const
    {
        return static_cast<const Object&>(m_object);
    }

    void drawLines(std::span<const Vector3f> ends, float width, const Color& color) const
    {
        static_assert(sizeof(LineSegment) == 2 * sizeof(Vector3f));
        if (width > 0.0f) {
            m_context.canvas.drawLines(std::span(reinterpret_cast<const LineSegment*>(ends.data()), ends.size() / 2),
                                       {m_toClip,
                                        m_context.view.area.width,
                                        m_context.view.area.height,
                                        width * m_context.appearance.scale,
                                        {},
                                        true,
                                        m_context.view.isFlat},
                                       color);
        }
    }

    void drawSymbols(std::span<const Vector3f> positions, RenderSymbol symbol, float size, const Color& color) const
    {
        m_context.canvas.drawSymbols(positions, {m_toClip, m_context.view.area.width, m_context.view.area.height,
                                                 symbol, size * m_context.appearance.scale, channelsOf(color)});
    }

    /// A symbol, with a border around it if it is both outlined and filled.
    void drawSymbol(RenderSymbol symbol, double x, double y, float size, float border) const
    {
        const Vector3f position[] = {{x, y, 0.0}};
        if (m_object.isOutlined()) {
            drawSymbols(position, symbol, size, m_outlineColor);
        }
        const float inner = m_object.isOutlined() ? size - 2.0f * border : size;
        if (m_object.isFilled() && inner > 0.0f) {
            drawSymbols(position, symbol, inner, m_fillColor);
        }
    }

    void drawOutlined() const
    {
        const std::vector<Vector3f> outline = outlineOf(m_object);
        if (m_object.isFilled()) {
            m_context.canvas.fillOutline(outline, m_toClip, m_fillColor);
        }
        if (m_object.isOutlined()) {
            drawLines(outline, m_lineSize, m_outlineColor);
        }
    }

    void drawFrame(const OverlayTransformation& frame) const
    {
        int count = 0;
        const float* vertices = frame.getVertices(m_context.framedBox, count);
        if (count == 0) {
            return;
        }
        if (m_context.view.isFlat) {
            drawOutlined();
        } else {
            drawBox(frame, vertices, count);
        }
        if (!frame.isOutlined()) {
            return;
        }
        std::vector<Vector3f> handles;
        std::vector<Vector3f> plainHandles;
        for (int handle = 0; handle < frame.getNumHandles(); ++handle) {
            handles.push_back(frame.getHandlePos(handle));
            if (!frame.isHandleMarked(handle)) {
                plainHandles.push_back(handles.back());
            }
        }
        const float side = 2.0f * static_cast<float>(frame.getHandleSize()) * frame.getHandleScale();
        drawSymbols(handles, RenderSymbol::square, side / c_squarePart, withAlpha(m_outlineColor, 255));
        drawSymbols(plainHandles, RenderSymbol::square, (side - c_handleBorder) / c_squarePart,
                    contrastTo(m_outlineColor));
    }

    void drawBox(const OverlayTransformation& frame, const float* vertices, int count) const
    {
        if (frame.isFilled()) {
            m_context.canvas.fillOutline(outlineOf(frame), m_toClip, m_fillColor);
        }
        if (frame.isOutlined()) {
            std::vector<Vector3f> edges;
            for (int i = 0; i < count; ++i) {
                edges.emplace_back(vertices[3 * i], vertices[3 * i + 1], vertices[3 * i + 2]);
            }
            drawLines(edges, m_lineSize, m_outlineColor);
        }
    }

    void drawCurve(const OverlayCurve& curve) const
    {
        const CurveShape shape(curve);
        if (curve.isFilled()) {
            m_context.canvas.fillOutline(outlineOf(curve), m_toClip, m_fillColor);
        }
        if (curve.isOutlined()) {
            const Color markingColor =
                curve.isColorUsed() ? curve.getMarkingColor() : m_context.appearance.readable(curve.getMarkingColor());
            drawLines(shape.polygons, 1.0f, withAlpha(m_outlineColor, c_polygonAlpha));
            drawLines(shape.lines, m_lineSize, m_outlineColor);
            drawLines(shape.markedLines, m_lineSize + static_cast<float>(curve.getMarkedLineSize()), markingColor);
            const float markedSize = c_pointSize + static_cast<float>(curve.getMarkedPointSize());
            drawSymbols(shape.controlPoints, RenderSymbol::circle, c_pointSize / c_dotPart, m_outlineColor);
            drawSymbols(shape.markedControlPoints, RenderSymbol::circle, markedSize / c_dotPart, markingColor);
            drawSymbols(shape.vertices, RenderSymbol::square, c_pointSize / c_squarePart, m_outlineColor);
            drawSymbols(shape.markedVertices, RenderSymbol::square, markedSize / c_squarePart, markingColor);
        }
        for (const CurveShape::Number& number : shape.numbers) {
            SceneLabel label;
            label.point = curve.getTransformation() * number.position;
            label.text = vxbase::UString(number.text);
            label.color = m_outlineColor;
            label.isHideable = false;
            label.isBeside = true;
            m_context.labels.push_back(std::move(label));
        }
    }

    /// Black on light colours, white on dark ones.
    static Color contrastTo(const Color& color)
    {
        const int luminance = 3 * color.red + 6 * color.green + color.blue;
        return Color::fromRgb(luminance < 1275 ? 0xffffff : 0x000000);
    }

    const OverlayObject& m_object;
    const ShapeContext& m_context;
    Matrixf m_toClip;
    Color m_outlineColor;
    Color m_fillColor;
    float m_lineSize;
};

} // namespace

void drawShapes(const Overlay& overlay, const ShapeContext& context)
{
    for (const auto& object : overlay.getOverlayObjects()) {
        ObjectDrawing(*object, context).draw();
    }
}

} // namespace vxrenderer
