#include "renderer/decoration/legendtexts.h"

#include "base/ustring.h"
#include "graphics3d/foundation/textutil.h"
#include "graphics3d/plots/scenegraphplot.h"
#include "renderer/axes/axislayout.h"
#include "renderer/decoration/legend.h"
#include "renderer/decoration/legendmarks.h"
#include "renderer/paint/decorationcanvas.h"

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

TextLayout layOutLegendTitle(const vxgraphics3d::SceneGraphPlot& plot, const LegendStyle& style, float maxWidth,
                             float height)
{
    UString text = plot.getTitle();
    if (text.empty()) {
        return {};
    }
    if (!style.showTitle) {
        const std::string unit = unitOf(text.toUtf8());
        if (!unit.empty()) {
            text = UString(unit);
        }
    }
    UString markup;
    vxgraphics3d::TextUtil::prepareTitle(text, markup, plot.getTitleFormat());
    return layoutTitle(parseTitle(markup), style.titleFonts, {maxWidth, c_titlePart * height});
}

LegendTexts::LegendTexts(const vxgraphics3d::SceneGraphPlot& plot, const LegendStyle& style, float maxWidth,
                         float height)
    : title(layOutLegendTitle(plot, style, maxWidth, height))
{}

void LegendTexts::setExtremes(const std::string& smallestText, const std::string& largestText, const LegendStyle& style)
{
    if (style.showMinMax) {
        const auto layOut = [&](const char* mark, const std::string& text) {
            return layoutTitle(parseTitle(UString(mark + text)), style.tickFonts,
                               {AxisLabel::c_noLimit, AxisLabel::c_noLimit});
        };
        largest = layOut(c_upwards, largestText);
        smallest = layOut(c_downwards, smallestText);
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

void LegendTexts::draw(DecorationCanvas& canvas, const LegendStyle& style, float left, float headTop, float footBottom,
                       const TextLayout& line) const
{
    canvas.drawText(title, style.titleFonts, left, headTop, style.textColors());
    canvas.drawText(line, style.tickFonts, left, headTop + title.height, style.textColors());
    canvas.drawText(largest, style.tickFonts, left, headTop + title.height + line.height, style.textColors());
    canvas.drawText(smallest, style.tickFonts, left, footBottom - smallest.height, style.textColors());
}

} // namespace vxrenderer
