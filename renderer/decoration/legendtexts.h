#pragma once

#include "renderer/text/textlayout.h"

namespace vxgraphics3d {
class SceneGraphPlot;
}

namespace vxrenderer {

class OverlayPainter;
struct LegendStyle;

/// The texts above and below the colours of any legend: the title of its plot, and the largest and the smallest value
/// of the data. Those that are not shown are empty.
struct LegendTexts {
    /// @param maxWidth what title lines may take before they are broken
    LegendTexts(const vxgraphics3d::SceneGraphPlot& plot, const LegendStyle& style, float maxWidth, float height);

    float width() const;
    /// Space for the lines above the colours, with a further line of the given height.
    float headHeight(const LegendStyle& style, float lineHeight) const;
    /// Space below the colours.
    float footHeight(const LegendStyle& style) const;

    /// Draws them from the top of the head and the top of the foot.
    /// @param line a further line, between the title and the largest value
    void draw(OverlayPainter& painter, const LegendStyle& style, float left, float headTop, float footBottom,
              const TextLayout& line) const;

    TextLayout title;
    TextLayout largest;
    TextLayout smallest;
};

} // namespace vxrenderer
