#include "renderer/scene/framelayout.h"

#include "graphics3d/canvas/axissetup.h"
#include "graphics3d/settings/canvas3dglobalsettings.h"
#include "renderer/decoration/legendscale.h"
#include "renderer/frame/frame.h"
#include "renderer/text/fontsets.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <utility>

namespace vxrenderer {
namespace {

using vxgraphics3d::TextItem;

/// Space around title, legends and scene, in units of the size of the legend's numbers.
constexpr float c_margin = 0.8f;
/// Gap between two legends, and the widest title of a legend, in the same units.
constexpr float c_legendGap = 1.6f;
constexpr float c_legendTitleWidth = 13.0f;
/// Parts of the picture that title and legends may take.
constexpr float c_titlePart = 0.3f;
constexpr float c_legendPart = 0.45f;
/// Legends that would be lower than this, in units of the size of their numbers, are left out.
constexpr float c_lowestLegend = 4.0f;
/// Parts of the picture that the legend of lines may take in width, and in height outside of the axes.
constexpr float c_lineLegendWidth = 0.4f;
constexpr float c_lineLegendHeight = 0.3f;

/// The plots of a picture that show their colours.
std::vector<PlotItem> withLegends(const std::vector<SceneItem>& items)
{
    std::vector<PlotItem> plots;
    for (const SceneItem& item : items) {
        const auto* plot = std::get_if<PlotItem>(&item);
        if (plot != nullptr && hasColorLegend(*plot->plot)) {
            plots.push_back(*plot);
        }
    }
    return plots;
}

LegendStyle legendStyleOf(const Frame& frame, FontSet& titles, FontSet& ticks)
{
    const vxgraphics3d::Canvas3dGlobalSettings& settings = *vxgraphics3d::Canvas3dGlobalSettings::getInstance();
    return {.titleFonts = titles,
            .tickFonts = ticks,
            .color = frame.appearance.textColor(),
            .background = frame.appearance.backdrop.top,
            .scale = frame.appearance.scale,
            .lineWidth = std::max(1.0f, std::round(frame.appearance.scale)),
            .showMinMax = frame.appearance.showMinMax,
            .tickDigits = settings.getLegendTickPrecision(),
            .minMaxDigits = settings.getLegendMinMaxPrecision()};
}

/// @return the width that the legends take together
float layOutLegends(FrameLayout& layout, float em, float maxWidth, float height)
{
    const std::vector<PlotItem> plots = withLegends(layout.items);
    // The title of a plot is part of the title of the picture. With a single legend that is enough.
    layout.legendStyle.showTitle = plots.size() > 1 || layout.title.numLines == 0;
    float width = 0.0f;
    for (const PlotItem& plot : plots) {
        std::unique_ptr<Legend> legend =
            makeLegend(plot, layout.legendStyle, std::min(c_legendTitleWidth * em, maxWidth), height);
        const float wider = width + legend->getWidth() + (layout.legends.empty() ? 0.0f : layout.legendGap);
        if (wider > maxWidth) {
            break;
        }
        width = wider;
        layout.legends.push_back(std::move(legend));
    }
    return width;
}

/// Lays out the legend of lines; outside of the axes it takes its part of the space.
void layOutLineLegend(const Frame& frame, FrameLayout& layout, float em)
{
    std::vector<LineLegendEntry> entries;
    for (const SceneItem& item : layout.items) {
        if (const auto* plot = std::get_if<PlotItem>(&item)) {
            std::ranges::move(lineLegendOf(*plot->plot), std::back_inserter(entries));
        }
    }
    PixelArea& space = layout.space;
    if (entries.empty() || space.isEmpty()) {
        return;
    }
    const vxgraphics3d::AxisSetup& axes = *frame.canvas.getAxisSetupPtr();
    const LineLegendPlacement placement(axes.getLegendPosition(), axes.getLegendLayoutStrategy());
    const bool isBeside = !placement.isInside && !placement.isRow;
    const bool isAbove = !placement.isInside && placement.isRow;
    const auto width = static_cast<float>(space.width);
    const auto height = static_cast<float>(space.height);
    layout.lineLegend.emplace(std::move(entries), placement, layout.legendStyle,
                              TextRoom{isAbove || placement.isRow ? width : c_lineLegendWidth * width,
                                       isBeside || placement.isInside ? height : c_lineLegendHeight * height});
    layout.lineLegendLeft = placement.isLeft ? space.x : space.x + space.width - layout.lineLegend->getWidth();
    layout.lineLegendTop = placement.isBottom ? space.y + space.height - layout.lineLegend->getHeight() : space.y;
    const int gap = layout.lineLegend->getWidth() > 0 ? static_cast<int>(std::round(em)) : 0;
    if (isBeside) {
        space.width -= layout.lineLegend->getWidth() + gap;
        space.x += placement.isLeft ? layout.lineLegend->getWidth() + gap : 0;
    } else if (isAbove) {
        space.height -= layout.lineLegend->getHeight() + gap;
        space.y += placement.isBottom ? 0 : layout.lineLegend->getHeight() + gap;
    }
}

} // namespace

void placeLineLegend(FrameLayout& layout)
{
    if (!layout.lineLegend) {
        return;
    }
    const LineLegendBox& legend = *layout.lineLegend;
    const LineLegendPlacement& placement = legend.getPlacement();
    const PixelArea& area = layout.area.whole;
    const int margin =
        placement.isInside ? static_cast<int>(std::round(c_margin * layout.legendStyle.tickFonts.fontSize())) : 0;
    // Outside of the axes the legend has its place on one axis, and is aligned with the area on the other.
    if (placement.isInside || placement.isRow) {
        layout.lineLegendLeft = placement.isLeft ? area.x + margin : area.x + area.width - legend.getWidth() - margin;
    }
    if (placement.isInside || !placement.isRow) {
        layout.lineLegendTop =
            placement.isBottom ? area.y + area.height - legend.getHeight() - margin : area.y + margin;
    }
}

FrameLayout layOutDecoration(const Frame& frame, std::vector<SceneItem> items, const std::vector<TitleItem>& title,
                             FontSets& fonts, int width, int height)
{
    const auto fontsOf = [&](TextItem item) -> FontSet& {
        const Appearance::Font& font = frame.appearance.font(item);
        return fonts.get(font.name, font.size);
    };
    FrameLayout layout = {
        .width = width,
        .height = height,
        .items = std::move(items),
        .titleFonts = fontsOf(TextItem::TextTitle),
        .labelFonts = fontsOf(TextItem::TextLabel),
        .orientationFonts = fontsOf(TextItem::TextAxisOrientation),
        .axisFonts = {fontsOf(TextItem::TextAxisTitle), fontsOf(TextItem::TextAxisTick)},
        .legendStyle = legendStyleOf(frame, fontsOf(TextItem::TextLegendTitle), fontsOf(TextItem::TextLegendTick))};
    const float em = layout.legendStyle.tickFonts.fontSize();
    const auto fullWidth = static_cast<float>(width);
    const auto fullHeight = static_cast<float>(height);
    const float margin = std::round(c_margin * em);
    layout.titleTop = margin;
    layout.legendGap = c_legendGap * em;

    float top = margin;
    if (frame.appearance.showTitle && !title.empty()) {
        layout.title = layoutTitle(title, layout.titleFonts,
                                   {std::max(fullWidth - 2.0f * margin, 1.0f), c_titlePart * fullHeight});
        if (layout.title.height <= c_titlePart * fullHeight) {
            top += std::ceil(layout.title.height) + margin;
        } else {
            layout.title = TextLayout();
        }
    }

    const float legendHeight = fullHeight - top - margin;
    float legendWidth = 0.0f;
    if (frame.appearance.showLegends && legendHeight >= c_lowestLegend * em) {
        legendWidth = layOutLegends(layout, em, c_legendPart * fullWidth, legendHeight);
    }
    layout.legendTop = top;
    layout.legendLeft = fullWidth - margin - std::ceil(legendWidth);
    const float right = layout.legends.empty() ? fullWidth - margin : layout.legendLeft - margin;
    layout.titleLeft = 0.5f * (fullWidth - layout.title.width);
    layout.space = {static_cast<int>(margin), static_cast<int>(top), static_cast<int>(right - margin),
                    static_cast<int>(fullHeight - top - margin)};
    if (frame.appearance.showLegends) {
        layOutLineLegend(frame, layout, em);
    }
    return layout;
}

} // namespace vxrenderer
