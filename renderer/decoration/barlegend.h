#pragma once

#include "renderer/decoration/legend.h"
#include "renderer/decoration/legendscale.h"
#include "renderer/decoration/legendtexts.h"
#include "renderer/text/textlayout.h"

#include <vector>

namespace vxrenderer {

/// The legend of a continuous scale: a bar with the part of the colour table that is in use, round values next to it,
/// and above it the title of the plot and the power of ten that the values have to be multiplied by.
class BarLegend : public Legend {
public:
    BarLegend(const PlotItem& item, const LegendStyle& style, float maxWidth, float height);

    float getWidth() const override { return m_width; }
    float getHeadHeight() const override { return m_headHeight; }
    void draw(OverlayPainter& painter, ColorTextures& textures, const LegendStyle& style, float left, float top,
              float headHeight) const override;

private:
    struct Label {
        TextLayout text;
        /// 0 at the lower end of the bar, 1 at its upper end.
        double height;
    };

    PlotItem m_item;
    LegendScale m_scale;
    float m_height;
    LegendTexts m_texts;
    float m_width = 0.0f;
    float m_headHeight = 0.0f;
    TextLayout m_power;
    std::vector<Label> m_labels;
};

} // namespace vxrenderer
