#pragma once

#include "renderer/decoration/legendscale.h"
#include "renderer/paint/overlaypainter.h"
#include "renderer/plots/plotpainter.h"
#include "renderer/text/fontset.h"
#include "renderer/text/textlayout.h"

#include <vector>

namespace vxrenderer {

/// Fonts, colour and details that all legends of a picture share.
struct LegendStyle {
    FontSet& titleFonts;
    FontSet& tickFonts;
    vxgraphics3d::Color color;
    /// Whether the smallest and the largest value of the data stand below and above the bar.
    bool showMinMax = false;
    bool showTitle = true;
    /// Significant digits of numbers beside the bar, and of the smallest and the largest value.
    int tickDigits = 5;
    int minMaxDigits = 5;
};

/// The colour legend of one plot: a bar with the part of the colour table that is in use, round values beside it, and
/// above it the title of the plot and the power of ten that the values have to be multiplied by.
///
/// It is laid out first, which tells how much room it takes, and drawn afterwards.
class Legend {
public:
    /// @param maxWidth what title lines may take before they are broken
    /// @param height room from the top of the title to the bottom of the bar
    Legend(const PlotItem& item, const LegendStyle& style, float maxWidth, float height);

    float getWidth() const { return m_width; }
    /// Room for the lines above the bar. Legends that stand side by side take the largest of them, so that their bars
    /// begin at one height.
    float getHeadHeight() const { return m_headHeight; }

    void draw(OverlayPainter& painter, ColorTextures& textures, const LegendStyle& style, float left, float top,
              float headHeight) const;

private:
    struct Label {
        TextLayout text;
        /// 0 at the lower end of the bar, 1 at its upper end.
        double height;
    };

    PlotItem m_item;
    LegendScale m_scale;
    float m_height;
    float m_width = 0.0f;
    float m_headHeight = 0.0f;
    TextLayout m_title;
    TextLayout m_power;
    TextLayout m_largest;
    TextLayout m_smallest;
    std::vector<Label> m_labels;
};

} // namespace vxrenderer
