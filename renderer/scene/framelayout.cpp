#include "renderer/scene/framelayout.h"

#include "graphics3d/canvas/axissetup.h"
#include "graphics3d/settings/canvas3dglobalsettings.h"
#include "renderer/decoration/legendscale.h"
#include "renderer/frame/contrast.h"
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
/// In a picture that is this much wider than it is high, legends of colours lie below the scene: beside it their bars
/// would be short.
constexpr float c_wideAspect = 2.2f;
/// The widest horizontal legend, in the same units.
constexpr float c_widestBar = 60.0f;
constexpr vxgraphics3d::Color c_frameColor = {70, 70, 70, 255};
/// Part of the picture that the legend of lines may take beside, above or below the axes.
constexpr float c_lineLegendPart = 0.35f;

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

/// The rim of texts beside the plot, where the background alone does not let them be read.
std::optional<vxgraphics3d::Color> haloOnBackground(const Appearance& appearance)
{
    return appearance.isBackdropUneven() ? std::optional(contrastingWith(appearance.textColor())) : std::nullopt;
}

LegendStyle legendStyleOf(const Frame& frame, FontSet& titles, FontSet& ticks)
{
    const vxgraphics3d::Canvas3dGlobalSettings& settings = *vxgraphics3d::Canvas3dGlobalSettings::getInstance();
    return {.titleFonts = titles,
            .tickFonts = ticks,
            .color = frame.appearance.textColor(),
            .frameColor = frame.appearance.readable(c_frameColor),
            .background = frame.appearance.backdrop.top,
            .halo = haloOnBackground(frame.appearance),
            .scale = frame.appearance.scale,
            .lineWidth = std::max(1.0f, std::round(frame.appearance.scale)),
            .showMinMax = frame.appearance.showMinMax,
            .tickDigits = settings.getLegendTickPrecision(),
            .minMaxDigits = settings.getLegendMinMaxPrecision()};
}

/// Lays out legends side by side in a part of the picture, as many as fit, and makes its size that of all of them.
void layOutLegends(FrameLayout& layout, float em, TextSpace& part)
{
    const std::vector<PlotItem> plots = withLegends(layout.items);
    LegendStyle& style = layout.legendStyle;
    style.showTitle = plots.size() > 1 || layout.title.numLines == 0;
    const auto count = static_cast<float>(std::max<std::size_t>(plots.size(), 1));
    const float most = style.isHorizontal
                           ? std::min(c_widestBar * em, (part.width - (count - 1.0f) * layout.legendGap) / count)
                           : std::min(c_legendTitleWidth * em, part.width);
    TextSpace taken = {0.0f, 0.0f};
    for (const PlotItem& plot : plots) {
        std::unique_ptr<Legend> legend = makeLegend(plot, style, most, part.height);
        const float wider = taken.width + legend->getWidth() + (layout.legends.empty() ? 0.0f : layout.legendGap);
        if (wider > part.width + 1.0f || legend->getHeight() > part.height) {
            break;
        }
        taken = {wider, std::max(taken.height, legend->getHeight())};
        layout.legends.push_back(std::move(legend));
    }
    part = taken;
}

std::vector<LineLegendEntry> lineLegendsOf(const std::vector<SceneItem>& items)
{
    std::vector<LineLegendEntry> entries;
    for (const SceneItem& item : items) {
        if (const auto* plot = std::get_if<PlotItem>(&item)) {
            std::ranges::move(lineLegendOf(*plot->plot), std::back_inserter(entries));
        }
    }
    return entries;
}

LineLegendPlacement lineLegendPlacementOf(const Frame& frame)
{
    const vxgraphics3d::AxisSetup& axes = *frame.canvas.getAxisSetupPtr();
    return {axes.getLegendPosition(), axes.getLegendLayoutStrategy()};
}

/// Lays out a legend of lines that is outside of the axes, and takes its part of the space.
void layOutLineLegend(const Frame& frame, FrameLayout& layout)
{
    const LineLegendPlacement placement = lineLegendPlacementOf(frame);
    std::vector<LineLegendEntry> entries = lineLegendsOf(layout.items);
    PixelArea& space = layout.space;
    if (placement.isInside || entries.empty() || space.isEmpty()) {
        return;
    }
    const auto width = static_cast<float>(space.width);
    const auto height = static_cast<float>(space.height);
    const LineLegendBox& legend = layout.lineLegend.emplace(
        std::move(entries), placement, layout.legendStyle,
        placement.isRow ? TextSpace{width, c_lineLegendPart * height} : TextSpace{c_lineLegendPart * width, height});
    if (legend.getWidth() == 0) {
        return;
    }
    layout.lineLegendLeft = placement.isLeft ? space.x : space.x + space.width - legend.getWidth();
    layout.lineLegendTop = placement.isBottom ? space.y + space.height - legend.getHeight() : space.y;
    const int gap = static_cast<int>(std::round(c_margin * layout.legendStyle.tickFonts.fontSize()));
    if (placement.isRow) {
        space.height -= legend.getHeight() + gap;
        space.y += placement.isBottom ? 0 : legend.getHeight() + gap;
    } else {
        space.width -= legend.getWidth() + gap;
        space.x += placement.isLeft ? legend.getWidth() + gap : 0;
    }
}

/// A part of a picture, extended to its borders where only a margin is between them.
PixelArea extendedToBorders(const PixelArea& space, int margin, int width, int height)
{
    const int left = space.x <= margin ? 0 : space.x;
    const int top = space.y <= margin ? 0 : space.y;
    const int right = space.x + space.width >= width - margin ? width : space.x + space.width;
    const int bottom = space.y + space.height >= height - margin ? height : space.y + space.height;
    return {left, top, right - left, bottom - top};
}

} // namespace

void placeLineLegend(const Frame& frame, FrameLayout& layout)
{
    const LineLegendPlacement placement = lineLegendPlacementOf(frame);
    const PixelArea& area = layout.area.frame;
    const int margin =
        placement.isInside ? static_cast<int>(std::round(c_margin * layout.legendStyle.tickFonts.fontSize())) : 0;
    if (placement.isInside && frame.appearance.showLegends) {
        const TextSpace room = {static_cast<float>(area.width - 2 * margin),
                                static_cast<float>(area.height - 2 * margin)};
        layout.lineLegend.emplace(lineLegendsOf(layout.items), placement, layout.legendStyle, room);
    }
    if (!layout.lineLegend) {
        return;
    }
    // Outside of the axes the legend has its position along one axis, and is aligned with the area along the other.
    if (placement.isInside || placement.isRow) {
        layout.lineLegendLeft =
            placement.isLeft ? area.x + margin : area.x + area.width - layout.lineLegend->getWidth() - margin;
    }
    // One that is wider than the axes stays in the picture.
    if (placement.isRow && !placement.isInside) {
        const int rightmost = layout.space.x + layout.space.width - layout.lineLegend->getWidth();
        layout.lineLegendLeft = std::max(std::min(layout.lineLegendLeft, rightmost), layout.space.x);
    }
    if (placement.isInside || !placement.isRow) {
        layout.lineLegendTop =
            placement.isBottom ? area.y + area.height - layout.lineLegend->getHeight() - margin : area.y + margin;
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
    layout.legendTop = top;
    float right = fullWidth - margin;
    float bottom = fullHeight - margin;
    layout.legendStyle.isHorizontal = fullWidth >= c_wideAspect * fullHeight;
    if (frame.appearance.showLegends && legendHeight >= c_lowestLegend * em) {
        const bool isHorizontal = layout.legendStyle.isHorizontal;
        TextSpace part = isHorizontal ? TextSpace{right - margin, c_legendPart * fullHeight}
                                      : TextSpace{c_legendPart * fullWidth, legendHeight};
        layOutLegends(layout, em, part);
        if (isHorizontal && !layout.legends.empty()) {
            layout.legendTop = bottom - std::ceil(part.height);
            layout.legendLeft = std::round(0.5f * (fullWidth - part.width));
            bottom = layout.legendTop - margin;
        } else if (!layout.legends.empty()) {
            layout.legendLeft = right - std::ceil(part.width);
            right = layout.legendLeft - margin;
        }
    }
    layout.titleLeft = 0.5f * (fullWidth - layout.title.width);
    layout.space = {static_cast<int>(margin), static_cast<int>(top), static_cast<int>(right - margin),
                    static_cast<int>(bottom - top)};
    if (frame.appearance.showLegends) {
        layOutLineLegend(frame, layout);
    }
    layout.wideSpace = extendedToBorders(layout.space, static_cast<int>(std::ceil(margin)), width, height);
    return layout;
}

} // namespace vxrenderer
