#include "renderer/decoration/colorbar.h"

#include "graphics3d/plots/colour/colortable.h"
#include "graphics3d/plots/scenegraphplot.h"
#include "renderer/decoration/legendmarks.h"
#include "renderer/decoration/legendscale.h"

#include <array>
#include <cmath>

namespace vxrenderer {
namespace {

// All in units of the font size.
constexpr float c_thickness = 1.3f;
constexpr float c_triangle = 1.0f;
constexpr float c_pointer = 0.6f;

/// Of a logarithmic bar.
constexpr int c_pieces = 64;

} // namespace

float ColorBar::triangleSize(const LegendStyle& style)
{
    return std::round(c_triangle * style.tickFonts.fontSize());
}

float ColorBar::pointerSize(const LegendStyle& style)
{
    return std::round(c_pointer * style.tickFonts.fontSize());
}

float ColorBar::thickness(const LegendStyle& style)
{
    return std::round(c_thickness * style.tickFonts.fontSize());
}

ColorBar::ColorBar(DecorationCanvas& canvas, const PlotItem& item, const LegendStyle& style, const PixelRect& rect)
    : m_canvas(canvas), m_style(style), m_rect(rect)
{
    if (const boost::shared_ptr<vxgraphics3d::ColorTable> table = item.plot->getColorTable()) {
        canvas.useColorTable(item.group, item.plot->getColorTableTextureHandle(0), table);
        m_hasTable = true;
    }
}

float ColorBar::lineAt(double position) const
{
    // The ends of the bar are the middles of the lines of its frame.
    const bool isAcross = m_style.isHorizontal;
    const double low =
        isAcross ? static_cast<double>(m_rect.left) : static_cast<double>(m_rect.bottom - m_style.lineWidth);
    const double high =
        isAcross ? static_cast<double>(m_rect.right - m_style.lineWidth) : static_cast<double>(m_rect.top);
    return static_cast<float>(std::round(low + position * (high - low)));
}

float ColorBar::pixelOf(double position) const
{
    return lineAt(position) + 0.5f * m_style.lineWidth;
}

void ColorBar::drawScale(const LegendScale& scale, const LegendMarks& marks) const
{
    const float line = m_style.lineWidth;
    if (m_hasTable && marks.shownFrom < marks.shownTo) {
        PixelRect rect = m_rect;
        const auto from = static_cast<float>(marks.shownFrom);
        const auto to = static_cast<float>(marks.shownTo);
        if (m_style.isHorizontal) {
            rect.left = from > 0.0f ? lineAt(marks.shownFrom) : rect.left;
            rect.right = to < 1.0f ? lineAt(marks.shownTo) + line : rect.right;
        } else {
            rect.bottom = from > 0.0f ? lineAt(marks.shownFrom) + line : rect.bottom;
            rect.top = to < 1.0f ? lineAt(marks.shownTo) : rect.top;
        }
        fillScale(rect, scale, marks.shownFrom, marks.shownTo);
        m_canvas.strokeRect(rect, line, m_style.frameColor);
    }
    m_canvas.strokeRect(m_rect, line, m_style.frameColor);
    const auto drawEnd = [&](bool isHigh, LegendMarks::Beyond beyond, float color) {
        if (m_hasTable && beyond != LegendMarks::Beyond::nothing) {
            drawTriangle(isHigh, beyond == LegendMarks::Beyond::shown ? std::optional(color) : std::nullopt);
        }
    };
    drawEnd(false, marks.below, scale.lowerColor);
    drawEnd(true, marks.above, scale.upperColor);
}

void ColorBar::fillScale(const PixelRect& rect, const LegendScale& scale, double from, double to) const
{
    const auto fill = [&](const PixelRect& part, double low, double high) {
        if (m_style.isHorizontal) {
            m_canvas.fillWithColorTableAcross(part, scale.colorAt(low), scale.colorAt(high));
        } else {
            m_canvas.fillWithColorTable(part, scale.colorAt(low), scale.colorAt(high));
        }
    };
    if (!scale.isLogarithmic()) {
        fill(rect, from, to);
        return;
    }
    // Colours are linear in the values and so bend along the bar: pieces in which they hardly do, in whole pixels.
    const float begin = m_style.isHorizontal ? rect.left : rect.bottom;
    const float end = m_style.isHorizontal ? rect.right : rect.top;
    float last = begin;
    double lastHeight = from;
    for (int i = 1; i <= c_pieces; ++i) {
        const float next = std::round(std::lerp(begin, end, static_cast<float>(i) / c_pieces));
        if (next == last) {
            continue;
        }
        const double height = std::lerp(from, to, static_cast<double>((next - begin) / (end - begin)));
        fill(m_style.isHorizontal ? PixelRect{last, rect.top, next, rect.bottom}
                                  : PixelRect{rect.left, next, rect.right, last},
             lastHeight, height);
        last = next;
        lastHeight = height;
    }
}

void ColorBar::drawTriangle(bool isAtHighEnd, const std::optional<float>& color) const
{
    const float line = m_style.lineWidth;
    const float size = triangleSize(m_style);
    // With its frame, which it shares with the bar, and within that frame. Aside is across the bar.
    const auto corners = [&](float inset) {
        const float slope = 0.5f * thickness(m_style) / size;
        const float asideInset = inset * (std::sqrt(1.0f + slope * slope) + slope);
        const float reach = size - inset * std::sqrt(1.0f + 1.0f / (slope * slope));
        const auto at = [&](float along, float aside) {
            if (m_style.isHorizontal) {
                const float x = isAtHighEnd ? m_rect.right - line + along : m_rect.left + line - along;
                return PixelPoint{x, m_rect.top + aside};
            }
            const float y = isAtHighEnd ? m_rect.top + line - along : m_rect.bottom - line + along;
            return PixelPoint{m_rect.left + aside, y};
        };
        const float thick = thickness(m_style);
        return std::array{at(inset, asideInset), at(reach + line, 0.5f * thick), at(inset, thick - asideInset)};
    };
    const std::array<PixelPoint, 3> outer = corners(0.0f);
    const std::array<PixelPoint, 3> inner = corners(line);
    if (color) {
        m_canvas.fillPolygon(outer, m_style.frameColor);
        m_canvas.fillPolygonWithColorTable(inner, *color);
        return;
    }
    for (const std::size_t side : {0U, 1U}) {
        m_canvas.fillPolygon(std::array{outer[side], outer[side + 1], inner[side + 1], inner[side]},
                             m_style.frameColor);
    }
}

void ColorBar::drawStripes(const std::vector<std::optional<float>>& colors) const
{
    const auto count = static_cast<float>(colors.size());
    for (std::size_t i = 0; m_hasTable && i < colors.size(); ++i) {
        if (!colors[i]) {
            continue;
        }
        const float from = static_cast<float>(i) / count;
        const float to = static_cast<float>(i + 1) / count;
        PixelRect rect = m_rect;
        if (m_style.isHorizontal) {
            rect.left = std::round(std::lerp(m_rect.left, m_rect.right, from));
            rect.right = std::round(std::lerp(m_rect.left, m_rect.right, to));
        } else {
            rect.bottom = std::round(std::lerp(m_rect.bottom, m_rect.top, from));
            rect.top = std::round(std::lerp(m_rect.bottom, m_rect.top, to));
        }
        m_canvas.fillWithColorTable(rect, *colors[i], *colors[i]);
    }
    m_canvas.strokeRect(m_rect, m_style.lineWidth, m_style.frameColor);
}

void ColorBar::drawTick(double position, float length) const
{
    const float at = lineAt(position);
    if (m_style.isHorizontal) {
        m_canvas.fillRect({at, m_rect.bottom, at + m_style.lineWidth, m_rect.bottom + length}, m_style.frameColor);
    } else {
        m_canvas.fillRect({m_rect.right, at, m_rect.right + length, at + m_style.lineWidth}, m_style.frameColor);
    }
}

void ColorBar::drawPointer(double position) const
{
    const float at = pixelOf(position);
    const float size = pointerSize(m_style);
    const float half = 0.5f * size;
    if (m_style.isHorizontal) {
        m_canvas.fillPolygon(
            std::array<PixelPoint, 3>{
                {{at, m_rect.top}, {at - half, m_rect.top - size}, {at + half, m_rect.top - size}}},
            m_style.color);
    } else {
        m_canvas.fillPolygon(
            std::array<PixelPoint, 3>{
                {{m_rect.left, at}, {m_rect.left - size, at - half}, {m_rect.left - size, at + half}}},
            m_style.color);
    }
}

} // namespace vxrenderer
