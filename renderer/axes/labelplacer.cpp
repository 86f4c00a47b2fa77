#include "renderer/axes/labelplacer.h"

#include "base/ustring.h"
#include "renderer/text/textlayout.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace vxrenderer {
namespace {

/// Free space between two labels side by side, in units of the font size. Lines above each other may touch.
constexpr float c_labelGap = 0.3f;
/// In pixels: labels that are laid out at that distance may be a little closer.
constexpr float c_rounding = 0.01f;

} // namespace

LabelSize sizeOfMarkup(const std::string& markup, TextMetrics& metrics, float room)
{
    const TextLayout layout = layoutTitle(parseTitle(vxbase::UString(markup)), metrics, {room, AxisLabel::c_noLimit});
    return {layout.width, layout.height};
}

LabelRect rectOf(const AxisLabel& label, const AxisMetrics& metrics)
{
    LabelSize size = sizeOfMarkup(label.markup, metrics.of(label), label.room);
    if (label.isVertical) {
        std::swap(size.width, size.height);
    }
    const float left = label.x - label.alignX * size.width;
    const float top = label.y - label.alignY * size.height;
    return {left, top, left + size.width, top + size.height};
}

bool LabelPlacer::place(const AxisLabel& label)
{
    const LabelRect rect = rectOf(label, m_metrics);
    if (label.markup.empty() || !std::isfinite(rect.left) || !std::isfinite(rect.top)) {
        return false;
    }
    const float gap = c_labelGap * m_metrics.ticks.fontSize() - c_rounding;
    const bool isFree = std::none_of(m_rects.begin(), m_rects.end(), [&](const LabelRect& other) {
        return rect.left < other.right + gap && other.left < rect.right + gap && rect.top < other.bottom &&
               other.top < rect.bottom;
    });
    if (isFree) {
        m_labels.push_back(label);
        m_rects.push_back(rect);
    }
    return isFree;
}

} // namespace vxrenderer
