#pragma once

#include "renderer/decoration/legend.h"
#include "renderer/decoration/legendmarks.h"
#include "renderer/decoration/legendscale.h"
#include "renderer/decoration/legendtexts.h"
#include "renderer/text/textlayout.h"

#include <vector>

namespace vxrenderer {

/// The legend of a continuous scale: an upright bar with the part of the colour table that is in use, round values next
/// to it, and above it the title of the plot and the power of ten that the values have to be multiplied by. An end
/// beyond which there are values is a triangle. Where the extremes of the data are shown, marks point at them.
class BarLegend : public Legend {
public:
    BarLegend(const PlotItem& item, const LegendStyle& style, float maxWidth, float height);

    float getWidth() const override { return m_width; }
    float getHeight() const override { return m_height; }
    float getHeadHeight() const override { return m_headHeight; }
    void draw(DecorationCanvas& canvas, const LegendStyle& style, float left, float top,
              float headHeight) const override;

private:
    PlotItem m_item;
    LegendScale m_scale;
    float m_height;
    LegendTexts m_texts;
    LegendMarks m_marks;
    float m_width = 0.0f;
    float m_headHeight = 0.0f;
    TextLayout m_power;
    std::vector<TextLayout> m_labels; // of the ticks
};

} // namespace vxrenderer
