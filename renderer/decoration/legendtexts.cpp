#include "renderer/decoration/legendtexts.h"

#include "base/ustring.h"
#include "graphics3d/foundation/textutil.h"
#include "graphics3d/plots/scenegraphplot.h"
#include "renderer/axes/ticks.h"
#include "renderer/decoration/legend.h"
#include "renderer/paint/overlaypainter.h"

#include <algorithm>

namespace vxrenderer {
namespace {

using vxbase::UString;

/// Below the head, which keeps clear of a label at the top of the colours; in units of the font size.
constexpr float c_headGap = 0.9f;
/// Below colours without a text after them, in the same units.
constexpr float c_footGap = 0.5f;
/// Part of the height that the title may take.
constexpr float c_titlePart = 0.25f;

/// Marks of the largest and of the smallest value.
constexpr const char* c_upwards = "\xE2\x96\xB2 ";
constexpr const char* c_downwards = "\xE2\x96\xBC ";

} // namespace

LegendTexts::LegendTexts(const vxgraphics3d::SceneGraphPlot& plot, const LegendStyle& style, float maxWidth,
                         float height)
{
    if (style.showTitle && !plot.getTitle().empty()) {
        UString markup;
        vxgraphics3d::TextUtil::prepareTitle(plot.getTitle(), markup, plot.getTitleFormat());
        title = layoutTitle(parseTitle(markup), style.titleFonts, {maxWidth, c_titlePart * height});
    }
    if (style.showMinMax) {
        const auto layOut = [&](const char* mark, double value) {
            return layoutTitle(parseTitle(UString(mark + numberText(value, style.minMaxDigits))), style.tickFonts,
                               {maxWidth, height});
        };
        largest = layOut(c_upwards, plot.getValueMax());
        smallest = layOut(c_downwards, plot.getValueMin());
    }
}

float LegendTexts::width() const
{
    return std::max({title.width, largest.width, smallest.width});
}

float LegendTexts::headHeight(const LegendStyle& style, float lineHeight) const
{
    return title.height + lineHeight + largest.height + c_headGap * style.tickFonts.fontSize();
}

float LegendTexts::footHeight(const LegendStyle& style) const
{
    const float em = style.tickFonts.fontSize();
    return smallest.height > 0.0f ? smallest.height + c_headGap * em : c_footGap * em;
}

void LegendTexts::draw(OverlayPainter& painter, const LegendStyle& style, float left, float headTop, float footBottom,
                       const TextLayout& line) const
{
    painter.drawText(title, style.titleFonts, left, headTop, style.color);
    painter.drawText(line, style.tickFonts, left, headTop + title.height, style.color);
    painter.drawText(largest, style.tickFonts, left, headTop + title.height + line.height, style.color);
    painter.drawText(smallest, style.tickFonts, left, footBottom - smallest.height, style.color);
}

} // namespace vxrenderer
