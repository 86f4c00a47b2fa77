#pragma once

#include "renderer/text/textlayout.h"

#include <string>

namespace vxgraphics3d {
class SceneGraphPlot;
}

namespace vxrenderer {

class DecorationCanvas;
struct LegendStyle;

/// The title of a plot for its legend. Where the picture shows the title as well, it is the unit alone, if the title
/// ends with one.
/// @param maxWidth what lines may take before they are broken
TextLayout layOutLegendTitle(const vxgraphics3d::SceneGraphPlot& plot, const LegendStyle& style, float maxWidth,
                             float height);

/// The texts above and below the colours of an upright legend: the title of its plot, and the largest and the smallest
/// value of the data. Those that are not shown are empty.
struct LegendTexts {
    /// @param maxWidth what title lines may take before they are broken
    LegendTexts(const vxgraphics3d::SceneGraphPlot& plot, const LegendStyle& style, float maxWidth, float height);

    /// Lays out the extremes, in title markup, if they are to be shown.
    void setExtremes(const std::string& smallestText, const std::string& largestText, const LegendStyle& style);

    float width() const;
    /// Space for the lines above the colours, with a further line of the given height.
    float headHeight(const LegendStyle& style, float lineHeight) const;
    /// Space below the colours.
    float footHeight(const LegendStyle& style) const;

    /// Draws them from the top of the head and the top of the foot.
    /// @param line a further line, between the title and the largest value
    void draw(DecorationCanvas& canvas, const LegendStyle& style, float left, float headTop, float footBottom,
              const TextLayout& line) const;

    TextLayout title;
    TextLayout largest;
    TextLayout smallest;
};

} // namespace vxrenderer
