#include "renderer/decoration/stripedlegend.h"

#include "base/ustring.h"
#include "graphics3d/plots/colour/colortable.h"
#include "graphics3d/plots/scalar/scenegraphplotiso.h"
#include "renderer/axes/ticks.h"
#include "renderer/decoration/legendscale.h"
#include "renderer/paint/overlaypainter.h"
#include "renderer/upload/colortextures.h"

#include <algorithm>
#include <cmath>

namespace vxrenderer {
namespace {

using vxgraphics3d::Color;
using vxgraphics3d::SceneGraphPlot;
using vxgraphics3d::SceneGraphPlotIso;

constexpr Color c_frame = {70, 70, 70, 255};

// All in units of the font size.
constexpr float c_stripeWidth = 1.8f;
constexpr float c_highestStripe = 2.2f;
constexpr float c_labelGap = 0.5f;
/// Distance of the middles of two labels.
constexpr float c_labelDistance = 1.3f;

/// Where shaders find the colour of a value. Levels may be coloured by their positions among the legend levels.
float colorOf(const SceneGraphPlot& plot, double value)
{
    const LegendScale scale = legendScaleOf(plot);
    const auto* iso = dynamic_cast<const SceneGraphPlotIso*>(&plot);
    const float onLegend = iso != nullptr
                               ? std::lerp(plot.getDataTexMin(), plot.getDataTexMax(), iso->getTextureOf(value))
                               : static_cast<float>(scale.heightOf(value));
    return std::lerp(scale.lowerColor, scale.upperColor, std::clamp(onLegend, 0.0f, 1.0f));
}

} // namespace

StripedLegend::StripedLegend(const PlotItem& item, const LegendStyle& style, float maxWidth, float height)
    : m_item(item), m_texts(*item.plot, style, maxWidth, height)
{
    const float em = style.tickFonts.fontSize();
    std::vector<double> values;
    dynamic_cast<const vxgraphics3d::IStripedLegendPlot&>(*item.plot).getLegendStripeValues(values);
    m_headHeight = m_texts.headHeight(style, 0.0f);
    const float space = std::max(height - m_headHeight - m_texts.footHeight(style), 0.0f);
    m_stripeHeight = std::min(space / static_cast<float>(values.size()), c_highestStripe * em);
    const float stripesPerLabel = std::ceil(c_labelDistance * em / std::max(m_stripeHeight, 1e-3f));
    float labelWidth = 0.0f;
    for (const double value : values) {
        m_stripes.push_back({{}, colorOf(*item.plot, value)});
        if (std::fmod(static_cast<float>(m_stripes.size() - 1), stripesPerLabel) == 0.0f) {
            TextLayout& label = m_stripes.back().label;
            label = layoutTitle(parseTitle(vxbase::UString(numberText(value, style.tickDigits))), style.tickFonts,
                                {maxWidth, height});
            labelWidth = std::max(labelWidth, label.width);
        }
    }
    m_width = std::max((c_stripeWidth + c_labelGap) * em + labelWidth, m_texts.width());
}

void StripedLegend::draw(OverlayPainter& painter, ColorTextures& textures, const LegendStyle& style, float left,
                         float top, float headHeight) const
{
    const float em = style.tickFonts.fontSize();
    left = std::round(left);
    const float right = std::round(left + c_stripeWidth * em);
    const float stripesTop = std::round(top + headHeight);
    const float bottom = stripesTop + m_stripeHeight * static_cast<float>(m_stripes.size());
    m_texts.draw(painter, style, left, stripesTop - m_headHeight, std::round(bottom + m_texts.footHeight(style)), {});
    const boost::shared_ptr<vxgraphics3d::ColorTable> table = m_item.plot->getColorTable();
    if (!table) {
        return;
    }
    float lower = std::round(bottom);
    for (std::size_t i = 0; i < m_stripes.size(); ++i) {
        const float upper = std::round(bottom - m_stripeHeight * static_cast<float>(i + 1));
        // Drawing a text binds other textures.
        textures.bind(m_item.group, m_item.plot->getColorTableTextureHandle(0), *table);
        painter.fillWithColorTable({left, upper, right, lower}, m_stripes[i].color, m_stripes[i].color);
        const TextLayout& label = m_stripes[i].label;
        painter.drawText(label, style.tickFonts, right + c_labelGap * em, 0.5f * (upper + lower - label.height),
                         style.color);
        lower = upper;
    }
    painter.strokeRect({left, stripesTop, right, std::round(bottom)}, style.lineWidth, c_frame);
}

} // namespace vxrenderer
