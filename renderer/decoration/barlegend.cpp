#include "renderer/decoration/barlegend.h"

#include "base/ustring.h"
#include "graphics3d/plots/colour/colortable.h"
#include "graphics3d/plots/scenegraphplot.h"
#include "renderer/axes/ticks.h"
#include "renderer/paint/overlaypainter.h"
#include "renderer/upload/colortextures.h"

#include <algorithm>
#include <cmath>

namespace vxrenderer {
namespace {

using vxbase::UString;
using vxgraphics3d::Color;

constexpr Color c_frame = {70, 70, 70, 255};

// All in units of the font size.
constexpr float c_barWidth = 1.3f;
constexpr float c_tickLength = 0.3f;
constexpr float c_labelGap = 0.3f;
/// Height of the bar for each tick.
constexpr float c_tickDistance = 2.6f;
constexpr int c_mostTicks = 12;

TextLayout layoutOf(const UString& markup, FontSet& fonts, TextSpace room)
{
    return layoutTitle(parseTitle(markup), fonts, room);
}

} // namespace

BarLegend::BarLegend(const PlotItem& item, const LegendStyle& style, float maxWidth, float height)
    : m_item(item), m_scale(legendScaleOf(*item.plot)), m_height(height), m_texts(*item.plot, style, maxWidth, height)
{
    const float em = style.tickFonts.fontSize();
    const TextSpace line = {maxWidth, height};
    const float barRoom = height - m_texts.headHeight(style, 0.0f) - m_texts.smallest.height - 1.5f * em;
    const int count = std::clamp(static_cast<int>(barRoom / (c_tickDistance * em)), 1, c_mostTicks);
    const Ticks ticks = makeTicks(m_scale.lowerValue, m_scale.upperValue, count, style.tickDigits);
    if (ticks.exponent != 0) {
        m_power = layoutOf(UString("\\times" + powerText(ticks.exponent)), style.tickFonts, line);
    }
    float labelWidth = 0.0f;
    for (const Ticks::Tick& tick : ticks.ticks) {
        m_labels.push_back({layoutOf(UString(tick.label), style.tickFonts, line), m_scale.heightOf(tick.value)});
        labelWidth = std::max(labelWidth, m_labels.back().text.width);
    }
    m_width = std::max({(c_barWidth + c_tickLength + c_labelGap) * em + labelWidth, m_power.width, m_texts.width()});
    m_headHeight = m_texts.headHeight(style, m_power.height);
}

void BarLegend::draw(OverlayPainter& painter, ColorTextures& textures, const LegendStyle& style, float left, float top,
                     float headHeight) const
{
    const float em = style.tickFonts.fontSize();
    const float right = std::round(left + c_barWidth * em);
    const float barTop = std::round(top + headHeight);
    const float barBottom = std::round(top + m_height - m_texts.footHeight(style));
    left = std::round(left);
    m_texts.draw(painter, style, left, barTop - m_headHeight, top + m_height, m_power);
    if (barBottom - barTop < 3.0f * style.lineWidth) {
        return;
    }
    const boost::shared_ptr<vxgraphics3d::ColorTable> table = m_item.plot->getColorTable();
    if (table) {
        textures.bind(m_item.group, m_item.plot->getColorTableTextureHandle(0), *table);
        painter.fillWithColorTable({left, barTop, right, barBottom}, m_scale.lowerColor, m_scale.upperColor);
    }
    painter.strokeRect({left, barTop, right, barBottom}, style.lineWidth, c_frame);

    for (const Label& label : m_labels) {
        // The ends of the bar are the middles of the lines of its frame.
        const double lowest = static_cast<double>(barBottom - style.lineWidth);
        const double highest = static_cast<double>(barTop);
        const auto y = static_cast<float>(std::round(lowest + label.height * (highest - lowest)));
        painter.fillRect({right, y, right + std::round(c_tickLength * em), y + style.lineWidth}, c_frame);
        painter.drawText(label.text, style.tickFonts, right + (c_tickLength + c_labelGap) * em,
                         y + 0.5f * style.lineWidth - 0.5f * label.text.height, style.color);
    }
}

} // namespace vxrenderer
