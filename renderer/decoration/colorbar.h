#pragma once

#include "renderer/decoration/legend.h"

#include <cstddef>
#include <optional>
#include <vector>

namespace vxrenderer {

struct LegendMarks;
struct LegendScale;

/// Draws the coloured part of a legend, upright or across, from positions along it: 0 at its lower or left end, 1 at
/// the other one. Its frame lies within the rectangle.
class ColorBar {
public:
    /// Binds the colour table of a plot that has one.
    /// @param rect in whole pixels, without triangles
    ColorBar(DecorationCanvas& canvas, const PlotItem& item, const LegendStyle& style, const PixelRect& rect);

    /// The colours of a scale, with triangles at ends beyond which there are values. The part that a restriction hides
    /// stays empty, as does a triangle beyond which it hides all.
    void drawScale(const LegendScale& scale, const LegendMarks& marks) const;
    /// Stripes of equal size, given by their positions in the colour table; those without one stay empty.
    void drawStripes(const std::vector<std::optional<float>>& colors) const;
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
    /// Fills the bar, or a part of it that is a rectangle, with the colours between two heights.
    void fillScale(const PixelRect& rect, const LegendScale& scale, double from, double to) const;
    /// @param color nothing for an empty one
    void drawTriangle(bool isAtHighEnd, const std::optional<float>& color) const;

    DecorationCanvas& m_canvas;
    const LegendStyle& m_style;
    PixelRect m_rect;
    bool m_hasTable = false;
};

} // namespace vxrenderer
