#pragma once

#include "graphics3d/foundation/vector3f.h"
#include "renderer/text/textmetrics.h"

#include <limits>
#include <string>

namespace vxrenderer {

/// A straight line of a grid, an axis or a tick.
///
/// In pixels from the top left corner of the picture, with z = 0; lines of a grid box that belong to the scene are in
/// world coordinates instead, and the layout says which ones these are.
struct AxisLine {
    vxgraphics3d::Vector3f from;
    vxgraphics3d::Vector3f to;
    /// Lies between labelled values; drawn fainter.
    bool isMinor = false;
    /// A piece of a circle.
    bool isArc = false;
};

/// A text next to an axis: the number at a tick, or a title.
struct AxisLabel {
    static constexpr float c_noLimit = std::numeric_limits<float>::max();

    /// In title markup, as UTF-8.
    std::string markup;
    /// In pixels from the top left corner of the picture.
    float x = 0.0f;
    float y = 0.0f;
    /// Which point of the text's rectangle lies at the position: 0 its left or top side, 0.5 its middle, 1 its right or
    /// bottom side. For a vertical text this is the rectangle as it appears in the picture, after turning.
    float alignX = 0.5f;
    float alignY = 0.5f;
    bool isTitle = false;
    /// Turned by 90 degrees, so that it reads from the bottom to the top.
    bool isVertical = false;
    /// Space for a line, along the text, before it is broken.
    float room = c_noLimit;
};

/// The fonts of axes, as far as their layout has to know them.
struct AxisMetrics {
    TextMetrics& ticks;
    TextMetrics& titles;

    /// One font for both. Implicit, for callers that know no other.
    AxisMetrics(TextMetrics& both) : ticks(both), titles(both) {}
    AxisMetrics(TextMetrics& ofTicks, TextMetrics& ofTitles) : ticks(ofTicks), titles(ofTitles) {}

    TextMetrics& of(const AxisLabel& label) const { return label.isTitle ? titles : ticks; }
};

/// Space for labels around the area that a view is drawn in, in pixels.
struct AxisMargins {
    float left = 0.0f;
    float bottom = 0.0f;
    float right = 0.0f;
    float top = 0.0f;
};

} // namespace vxrenderer
