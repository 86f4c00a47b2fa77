#include "renderer/decoration/barlegend.h"

#include "base/ustring.h"
#include "graphics3d/plots/scenegraphplot.h"
#include "renderer/axes/ticks.h"
#include "renderer/decoration/colorbar.h"

#include <algorithm>
#include <cmath>

namespace vxrenderer {
namespace {

using vxbase::UString;

// All in units of the font size.
constexpr float c_tickLength = 0.35f;
constexpr float c_minorLength = 0.18f;
constexpr float c_labelGap = 0.3f;
/// Height of the bar for each tick.
constexpr float c_tickDistance = 2.6f;
constexpr int c_mostTicks = 12;

TextLayout layoutOf(const std::string& markup, FontSet& fonts, TextSpace room)
{
    return layoutTitle(parseTitle(UString(markup)), fonts, room);
}

} // namespace

BarLegend::BarLegend(const PlotItem& item, const LegendStyle& style, float maxWidth, float height)
    : m_item(item), m_scale(legendScaleOf(*item.plot)), m_height(height), m_texts(*item.plot, style, maxWidth, height)
{
    const float em = style.tickFonts.fontSize();
    const TextSpace line = {maxWidth, height};
    const float extremes = style.showMinMax ? 2.0f * style.tickFonts.fontSize() : 0.0f;
    const float barRoom = height - m_texts.headHeight(style, 0.0f) - extremes - 1.5f * em;
    const int count = std::clamp(static_cast<int>(barRoom / (c_tickDistance * em)), 1, c_mostTicks);
    m_marks = LegendMarks::of(*item.plot, m_scale, count, style.tickDigits, style.minMaxDigits);
    m_texts.setExtremes(m_marks.smallest, m_marks.largest, style);
    if (m_marks.format.exponent != 0) {
        m_power = layoutOf("\\times" + powerText(m_marks.format.exponent), style.tickFonts, line);
    }
    float labelWidth = 0.0f;
    for (const LegendMarks::Tick& tick : m_marks.ticks) {
        m_labels.push_back(layoutOf(tick.label, style.tickFonts, line));
        labelWidth = std::max(labelWidth, m_labels.back().width);
    }
    const float pointer = style.showMinMax ? ColorBar::pointerSize(style) : 0.0f;
    m_width = std::max({pointer + ColorBar::thickness(style) + (c_tickLength + c_labelGap) * em + labelWidth,
                        m_power.width, m_texts.width()});
    m_headHeight =
        m_texts.headHeight(style, m_power.height) + (m_marks.hasTriangleAbove() ? ColorBar::triangleSize(style) : 0.0f);
}

void BarLegend::draw(DecorationCanvas& canvas, const LegendStyle& style, float left, float top, float headHeight) const
{
    const float em = style.tickFonts.fontSize();
    left = std::round(left);
    const float barTop = std::round(top + headHeight);
    const float barBottom = std::round(top + m_height - m_texts.footHeight(style) -
                                       (m_marks.hasTriangleBelow() ? ColorBar::triangleSize(style) : 0.0f));
    m_texts.draw(canvas, style, left, barTop - m_headHeight, top + m_height, m_power);
    if (barBottom - barTop < 3.0f * style.lineWidth) {
        return;
    }
    const float barLeft = left + (style.showMinMax ? ColorBar::pointerSize(style) : 0.0f);
    const float right = barLeft + ColorBar::thickness(style);
    const ColorBar bar(canvas, m_item, style, {barLeft, barTop, right, barBottom});
    bar.drawScale(m_scale, m_marks);
    for (const double position : m_marks.minorTicks) {
        bar.drawTick(position, std::round(c_minorLength * em));
    }
    for (const auto& extreme : {m_marks.smallestAt, m_marks.largestAt}) {
        if (style.showMinMax && extreme) {
            bar.drawPointer(*extreme);
        }
    }
    for (std::size_t i = 0; i < m_labels.size(); ++i) {
        bar.drawTick(m_marks.ticks[i].position, std::round(c_tickLength * em));
        canvas.drawText(m_labels[i], style.tickFonts, right + (c_tickLength + c_labelGap) * em,
                        bar.pixelOf(m_marks.ticks[i].position) - 0.5f * m_labels[i].height, style.textColors());
    }
}

} // namespace vxrenderer
