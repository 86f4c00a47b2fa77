#pragma once

#include "graphics3d/foundation/color.h"
#include "renderer/paint/decorationcanvas.h"
#include "renderer/plots/plotpainter.h"

#include <memory>
#include <optional>

namespace vxrenderer {

/// Fonts, colour and details of all legends of a picture.
struct LegendStyle {
    FontSet& titleFonts;
    FontSet& tickFonts;
    vxgraphics3d::Color color;
    /// Of the frames of bars and of their ticks.
    vxgraphics3d::Color frameColor;
    /// Behind legends over the plot.
    vxgraphics3d::Color background;
    /// Around texts beside the plot, where the background alone would not do.
    std::optional<vxgraphics3d::Color> halo{};
    /// Pixels of the picture for a pixel of the screen.
    float scale = 1.0f;
    /// Of the frames of bars and of their ticks, in whole pixels.
    float lineWidth = 1.0f;
    /// Whether the smallest and the largest value of the data appear below and above the bar.
    bool showMinMax = false;
    /// Whether legends have the titles of their plots, because the picture does not show them; otherwise they have the
    /// units alone.
    bool showTitle = true;
    /// Whether the colours run from left to right, below the scene.
    bool isHorizontal = false;
    /// Significant digits of numbers next to the bar, and of the smallest and the largest value.
    int tickDigits = 5;
    int minMaxDigits = 5;

    TextColors textColors() const { return {color, halo}; }
};

/// The legend of one plot, next to the scene.
///
/// It is laid out first, which gives the space that it takes, and drawn afterwards.
class Legend {
public:
    virtual ~Legend() = default;

    virtual float getWidth() const = 0;
    /// The height that it needs: of an upright legend all that it was given.
    virtual float getHeight() const = 0;
    /// Space for what is above the colours. Legends side by side take the largest of them, so that their colours
    /// begin at the same height.
    virtual float getHeadHeight() const = 0;

    /// @param style the one that it was laid out with
    virtual void draw(DecorationCanvas& canvas, const LegendStyle& style, float left, float top,
                      float headHeight) const = 0;
};

/// Lays out the legend of a plot that shows its colours, see `hasColorLegend`. A new kind of legend is a class and a
/// line here.
/// @param maxWidth what title lines may take before they are broken; of a horizontal legend its width
/// @param height from the top of the title to the bottom of the colours; what a horizontal legend may take at most
std::unique_ptr<Legend> makeLegend(const PlotItem& item, const LegendStyle& style, float maxWidth, float height);

} // namespace vxrenderer
