#pragma once

#include "renderer/decoration/legend.h"
#include "renderer/decoration/legendmarks.h"
#include "renderer/decoration/legendscale.h"
#include "renderer/text/textlayout.h"

#include <optional>
#include <string>
#include <vector>

namespace vxrenderer {

/// A legend below the scene: a bar from left to right, or stripes side by side for a plot that has levels, with their
/// values below and the title above. The extremes of the data are to the left and to the right.
class AcrossLegend : public Legend {
public:
    /// @param width of the whole legend
    AcrossLegend(const PlotItem& item, const LegendStyle& style, float width, float height);

    float getWidth() const override { return m_width; }
    float getHeight() const override { return m_height; }
    float getHeadHeight() const override { return m_headHeight; }
    void draw(DecorationCanvas& canvas, const LegendStyle& style, float left, float top,
              float headHeight) const override;

private:
    struct Label {
        TextLayout text;
        double position; // along the bar
    };

    void layOutScale(const LegendStyle& style);
    void layOutStripes(const std::vector<double>& levels, const LegendStyle& style);
    void layOutExtremes(const std::string& smallest, const std::string& largest, const LegendStyle& style);

    PlotItem m_item;
    LegendScale m_scale;
    LegendMarks m_marks;
    std::vector<std::optional<float>> m_stripes; // empty for a continuous scale
    std::vector<Label> m_labels;
    TextLayout m_title;
    TextLayout m_power;
    TextLayout m_smallest;
    TextLayout m_largest;
    float m_width;
    float m_height = 0.0f;
    float m_headHeight = 0.0f;
    /// Of the bar, from the left side of the legend.
    float m_barLeft = 0.0f;
    float m_barRight = 0.0f;
};

} // namespace vxrenderer
