#pragma once

#include "renderer/decoration/legend.h"

#include <cstddef>
#include <vector>

namespace vxrenderer {

struct LegendMarks;
struct LegendScale;

/// Draws the coloured part of a legend, upright or across, from positions along it: 0 at its lower or left end, 1 at
/// the other one. Its frame lies within the rectangle.
class ColorBar {
public:
    /// Binds the colour table of a plot that has one.
    /// @param rect in whole pixels, without the triangles at clipped ends
    ColorBar(DecorationCanvas& canvas, const PlotItem& item, const LegendStyle& style, const PixelRect& rect);

    /// The colours of a scale, with triangles at clipped ends. The part that a restriction hides stays empty.
    void drawScale(const LegendScale& scale, const LegendMarks& marks) const;
    /// Stripes of equal size, given by their positions in the colour table.
    void drawStripes(const std::vector<float>& colors) const;
    /// A line away from the bar, to the right of or below a position.
    void drawTick(double position, float length) const;
    /// A mark on the other side that points at a position.
    void drawPointer(double position) const;

    /// The pixel of a position in the direction of the bar: the middle of a tick.
    float pixelOf(double position) const;

    /// What a triangle and a pointer need beside the bar.
    static float triangleSize(const LegendStyle& style);
    static float pointerSize(const LegendStyle& style);
    /// Width of an upright bar, height of one across.
    static float thickness(const LegendStyle& style);

private:
    /// The first pixel of a line that marks a position.
    float lineAt(double position) const;
    void drawTriangle(bool isAtHighEnd, float color) const;

    DecorationCanvas& m_canvas;
    const LegendStyle& m_style;
    PixelRect m_rect;
    bool m_hasTable = false;
};

} // namespace vxrenderer
