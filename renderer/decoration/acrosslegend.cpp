#include "renderer/decoration/acrosslegend.h"

#include "base/ustring.h"
#include "graphics3d/plots/istripedlegendplot.h"
#include "graphics3d/plots/scenegraphplot.h"
#include "renderer/axes/axislayout.h"
#include "renderer/axes/ticks.h"
#include "renderer/decoration/colorbar.h"
#include "renderer/decoration/legendtexts.h"
#include "renderer/decoration/stripedlegend.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

namespace vxrenderer {
namespace {

// All in units of the font size.
constexpr float c_tickLength = 0.35f;
constexpr float c_minorLength = 0.18f;
constexpr float c_labelGap = 0.5f;
/// Between a text and the bar next to it.
constexpr float c_textGap = 0.6f;
constexpr float c_widestStripe = 6.0f;
constexpr float c_leastBar = 4.0f;
constexpr float c_tickDistance = 4.0f;
constexpr int c_mostTicks = 12;

TextLayout layoutOf(const std::string& markup, FontSet& fonts)
{
    return layoutTitle(parseTitle(vxbase::UString(markup)), fonts, {AxisLabel::c_noLimit, AxisLabel::c_noLimit});
}

} // namespace

AcrossLegend::AcrossLegend(const PlotItem& item, const LegendStyle& style, float width, float height)
    : m_item(item),
      m_scale(legendScaleOf(*item.plot)),
      m_title(layOutLegendTitle(*item.plot, style, width, height)),
      m_width(width),
      m_barRight(width)
{
    std::vector<double> levels;
    if (const auto* striped = dynamic_cast<const vxgraphics3d::IStripedLegendPlot*>(item.plot.get())) {
        striped->getLegendStripeValues(levels);
    }
    if (levels.empty()) {
        layOutScale(style);
    } else {
        layOutStripes(levels, style);
    }
    const float em = style.tickFonts.fontSize();
    m_headHeight = std::ceil(std::max(m_title.height, m_power.height)) +
                   (style.showMinMax ? ColorBar::pointerSize(style) : 0.0f) + std::round(0.3f * em);
    float labelHeight = 0.0f;
    for (const Label& label : m_labels) {
        labelHeight = std::max(labelHeight, label.text.height);
    }
    m_height = m_headHeight + ColorBar::thickness(style) + std::round(c_tickLength * em) + std::ceil(labelHeight);
}

void AcrossLegend::layOutExtremes(const std::string& smallest, const std::string& largest, const LegendStyle& style)
{
    const float em = style.tickFonts.fontSize();
    float left = m_marks.hasTriangleBelow() ? ColorBar::triangleSize(style) : 0.0f;
    float right = m_marks.hasTriangleAbove() ? ColorBar::triangleSize(style) : 0.0f;
    if (style.showMinMax) {
        m_smallest = layoutOf("\xE2\x96\xBC " + smallest, style.tickFonts);
        m_largest = layoutOf("\xE2\x96\xB2 " + largest, style.tickFonts);
        left += m_smallest.width + c_textGap * em;
        right += m_largest.width + c_textGap * em;
    }
    m_barLeft = std::ceil(left);
    m_barRight = std::floor(std::max(m_width - right, m_barLeft + c_leastBar * em));
}

void AcrossLegend::layOutScale(const LegendStyle& style)
{
    const float em = style.tickFonts.fontSize();
    float needed = 0.0f;
    int count = std::clamp(static_cast<int>(m_width / (c_tickDistance * em)), 1, c_mostTicks);
    // Fewer ticks until their labels have space side by side.
    do {
        m_marks = LegendMarks::of(*m_item.plot, m_scale, count, style.tickDigits, style.minMaxDigits);
        layOutExtremes(m_marks.smallest, m_marks.largest, style);
        m_labels.clear();
        float widest = 0.0f;
        for (const LegendMarks::Tick& tick : m_marks.ticks) {
            m_labels.push_back({layoutOf(tick.label, style.tickFonts), tick.position});
            widest = std::max(widest, m_labels.back().text.width);
        }
        needed = (widest + c_labelGap * em) * static_cast<float>(m_labels.size());
        --count;
    } while (count > 0 && needed > m_barRight - m_barLeft);
    if (m_marks.format.exponent != 0) {
        m_power = layoutOf("\\times" + powerText(m_marks.format.exponent), style.tickFonts);
    }
}

void AcrossLegend::layOutStripes(const std::vector<double>& levels, const LegendStyle& style)
{
    const float em = style.tickFonts.fontSize();
    const double smallest = m_item.plot->getValueMin();
    const double largest = m_item.plot->getValueMax();
    const NumberFormat format = NumberFormat().widened({smallest, largest}, style.minMaxDigits);
    layOutExtremes(format.textOf(smallest, style.minMaxDigits), format.textOf(largest, style.minMaxDigits), style);
    const auto count = static_cast<float>(levels.size());
    m_barRight = std::min(m_barRight, std::round(m_barLeft + c_widestStripe * em * count));
    m_stripes = stripeColors(*m_item.plot, levels);
    const std::vector<std::string> labels = levelLabels(levels, style.tickDigits);
    float end = -AxisLabel::c_noLimit;
    for (std::size_t i = 0; i < labels.size(); ++i) {
        Label label = {layoutOf(labels[i], style.tickFonts),
                       (static_cast<double>(i) + 0.5) / static_cast<double>(levels.size())};
        const float middle = std::lerp(m_barLeft, m_barRight, static_cast<float>(label.position));
        if (middle - 0.5f * label.text.width >= end) {
            end = middle + 0.5f * label.text.width + c_labelGap * em;
            m_labels.push_back(std::move(label));
        }
    }
}

void AcrossLegend::draw(DecorationCanvas& canvas, const LegendStyle& style, float left, float top,
                        float headHeight) const
{
    const float em = style.tickFonts.fontSize();
    left = std::round(left);
    const float barTop = std::round(top + headHeight);
    const PixelRect rect = {left + m_barLeft, barTop, left + m_barRight, barTop + ColorBar::thickness(style)};
    const ColorBar bar(canvas, m_item, style, rect);
    if (m_stripes.empty()) {
        bar.drawScale(m_scale, m_marks);
        for (const double position : m_marks.minorTicks) {
            bar.drawTick(position, std::round(c_minorLength * em));
        }
        for (const auto& extreme : {m_marks.smallestAt, m_marks.largestAt}) {
            if (style.showMinMax && extreme) {
                bar.drawPointer(*extreme);
            }
        }
    } else {
        bar.drawStripes(m_stripes);
    }
    const auto drawText = [&](const TextLayout& text, FontSet& fonts, float textLeft, float textTop) {
        canvas.drawText(text, fonts, textLeft, textTop, style.textColors());
    };
    const float tick = std::round(c_tickLength * em);
    for (const Label& label : m_labels) {
        if (m_stripes.empty()) {
            bar.drawTick(label.position, tick);
        }
        drawText(label.text, style.tickFonts, bar.pixelOf(label.position) - 0.5f * label.text.width,
                 rect.bottom + tick);
    }
    const float headTop = barTop - m_headHeight;
    drawText(m_title, style.titleFonts, rect.left, headTop);
    drawText(m_power, style.tickFonts, rect.right - m_power.width, headTop);
    const float middle = 0.5f * (rect.top + rect.bottom);
    const float triangle = ColorBar::triangleSize(style);
    drawText(m_smallest, style.tickFonts,
             rect.left - m_smallest.width - c_textGap * em - (m_marks.hasTriangleBelow() ? triangle : 0.0f),
             middle - 0.5f * m_smallest.height);
    drawText(m_largest, style.tickFonts, rect.right + c_textGap * em + (m_marks.hasTriangleAbove() ? triangle : 0.0f),
             middle - 0.5f * m_largest.height);
}

} // namespace vxrenderer
