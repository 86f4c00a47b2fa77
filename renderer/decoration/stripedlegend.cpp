#include "renderer/decoration/stripedlegend.h"

#include "base/ustring.h"
#include "graphics3d/plots/scalar/scenegraphplotiso.h"
#include "renderer/decoration/colorbar.h"
#include "renderer/decoration/legendmarks.h"
#include "renderer/decoration/legendscale.h"

#include <algorithm>
#include <cmath>

namespace vxrenderer {
namespace {

using vxgraphics3d::SceneGraphPlot;
using vxgraphics3d::SceneGraphPlotIso;

// All in units of the font size.
constexpr float c_highestStripe = 2.2f;
constexpr float c_labelGap = 0.5f;
/// Distance of the middles of two labels.
constexpr float c_labelDistance = 1.3f;

/// Where shaders find the colour of a level, which may be coloured by its position among the legend levels; nothing if
/// they hide it.
std::optional<float> colorOf(const SceneGraphPlot& plot, const LegendScale& scale, double level)
{
    const auto* iso = dynamic_cast<const SceneGraphPlotIso*>(&plot);
    if (iso == nullptr) {
        return scale.colorAt(std::clamp(scale.heightOf(level), 0.0, 1.0));
    }
    const float texture = iso->getTextureOf(level);
    const float low = plot.getRestrictionTexMin();
    const float high = plot.getRestrictionTexMax();
    // An end at an end of the data hides nothing, and a range without extent hides everything, as in `lookOf`.
    const bool isHidden = low >= high || (low > 0.0f && texture < low) || (high < 1.0f && texture > high);
    if (plot.hasValueRestrictions() && isHidden) {
        return std::nullopt;
    }
    const float onLegend = std::lerp(plot.getDataTexMin(), plot.getDataTexMax(), texture);
    return std::lerp(scale.lowerColor, scale.upperColor, std::clamp(onLegend, 0.0f, 1.0f));
}

} // namespace

std::vector<std::optional<float>> stripeColors(const SceneGraphPlot& plot, const std::vector<double>& levels)
{
    const LegendScale scale = legendScaleOf(plot);
    std::vector<std::optional<float>> colors;
    for (const double level : levels) {
        colors.push_back(colorOf(plot, scale, level));
    }
    return colors;
}

StripedLegend::StripedLegend(const PlotItem& item, const LegendStyle& style, float maxWidth, float height)
    : m_item(item), m_texts(*item.plot, style, maxWidth, height), m_height(height)
{
    const float em = style.tickFonts.fontSize();
    std::vector<double> levels;
    dynamic_cast<const vxgraphics3d::IStripedLegendPlot&>(*item.plot).getLegendStripeValues(levels);
    const double smallest = item.plot->getValueMin();
    const double largest = item.plot->getValueMax();
    const NumberFormat format = NumberFormat().widened({smallest, largest}, style.minMaxDigits);
    m_texts.setExtremes(format.textOf(smallest, style.minMaxDigits), format.textOf(largest, style.minMaxDigits), style);
    m_headHeight = m_texts.headHeight(style, 0.0f);
    const float space = std::max(height - m_headHeight - m_texts.footHeight(style), 0.0f);
    m_stripeHeight = std::min(space / static_cast<float>(levels.size()), c_highestStripe * em);
    m_colors = stripeColors(*item.plot, levels);
    m_labels.resize(levels.size());
    const auto stripesPerLabel = static_cast<std::size_t>(
        std::clamp(std::ceil(c_labelDistance * em / std::max(m_stripeHeight, 1e-3f)), 1.0f, 1e6f));
    const std::vector<std::string> labels = levelLabels(levels, style.tickDigits);
    float labelWidth = 0.0f;
    for (std::size_t i = 0; i < levels.size(); i += stripesPerLabel) {
        m_labels[i] = layoutTitle(parseTitle(vxbase::UString(labels[i])), style.tickFonts, {maxWidth, height});
        labelWidth = std::max(labelWidth, m_labels[i].width);
    }
    m_width = std::max(ColorBar::thickness(style) + c_labelGap * em + labelWidth, m_texts.width());
}

void StripedLegend::draw(DecorationCanvas& canvas, const LegendStyle& style, float left, float top,
                         float headHeight) const
{
    const float em = style.tickFonts.fontSize();
    left = std::round(left);
    const float right = left + ColorBar::thickness(style);
    const float stripesTop = std::round(top + headHeight);
    const float bottom = std::round(stripesTop + m_stripeHeight * static_cast<float>(m_colors.size()));
    m_texts.draw(canvas, style, left, stripesTop - m_headHeight, bottom + m_texts.footHeight(style), {});
    ColorBar(canvas, m_item, style, {left, stripesTop, right, bottom}).drawStripes(m_colors);
    for (std::size_t i = 0; i < m_labels.size(); ++i) {
        const float middle = bottom - m_stripeHeight * (static_cast<float>(i) + 0.5f);
        canvas.drawText(m_labels[i], style.tickFonts, right + c_labelGap * em, middle - 0.5f * m_labels[i].height,
                        style.textColors());
    }
}

} // namespace vxrenderer
