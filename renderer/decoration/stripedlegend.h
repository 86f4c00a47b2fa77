#pragma once

#include "renderer/decoration/legend.h"
#include "renderer/decoration/legendtexts.h"
#include "renderer/text/textlayout.h"

#include <optional>
#include <vector>

namespace vxrenderer {

/// The legend of single levels: a stripe in the colour of each, from the bottom upwards, with its value next to it.
/// Where stripes are lower than their values, only some of these are shown.
class StripedLegend : public Legend {
public:
    /// @param item a plot with a striped legend that has stripes
    StripedLegend(const PlotItem& item, const LegendStyle& style, float maxWidth, float height);

    float getWidth() const override { return m_width; }
    float getHeight() const override { return m_height; }
    float getHeadHeight() const override { return m_headHeight; }
    void draw(DecorationCanvas& canvas, const LegendStyle& style, float left, float top,
              float headHeight) const override;

private:
    PlotItem m_item;
    LegendTexts m_texts;
    // From the bottom upwards: positions in the colour table, and the labels, empty where they are left out.
    std::vector<std::optional<float>> m_colors;
    std::vector<TextLayout> m_labels;
    float m_height;
    float m_stripeHeight;
    float m_width = 0.0f;
    float m_headHeight = 0.0f;
};

/// The positions in the colour table of the levels of a plot with a striped legend; nothing for levels that a
/// restriction hides.
std::vector<std::optional<float>> stripeColors(const vxgraphics3d::SceneGraphPlot& plot,
                                               const std::vector<double>& levels);

} // namespace vxrenderer
