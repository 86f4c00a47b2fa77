#include "renderer/decoration/linelegend.h"

#include "graphics3d/plots/graph/graphline.h"
#include "graphics3d/plots/graph/scenegraphplotgraph.h"
#include "renderer/paint/decorationcanvas.h"
#include "renderer/paint/linedashes.h"
#include "renderer/plots/graphsymbol.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

namespace vxrenderer {
namespace {

using vxgraphics3d::Color;
using vxgraphics3d::Vector3f;

constexpr int c_backgroundAlpha = 225;

// All in units of the font size.
constexpr float c_sampleLength = 3.2f;
constexpr float c_textGap = 0.5f;
constexpr float c_padding = 0.5f;
constexpr float c_rowHeight = 1.4f;
constexpr float c_columnGap = 1.2f;
constexpr float c_leastTextWidth = 2.0f;

/// A sample is drawn like its line, from whole pixel to whole pixel.
void drawSample(DecorationCanvas& canvas, const LineLegendEntry& entry, float left, float middle, float length,
                float scale)
{
    const float width = std::max(std::round(entry.lineWidth * scale), 1.0f);
    const float top = std::round(middle - 0.5f * width);
    const LineStyle style = entry.legend.line->m_lineStyle;
    const auto fill = [&](float from, float to) {
        canvas.fillRect({std::round(left + from), top, std::round(left + to), top + width}, entry.legend.color);
    };
    if (style == LineStyle::none || entry.lineWidth <= 0.0f) {
        return;
    }
    if (style == LineStyle::solid) {
        fill(0.0f, length);
        return;
    }
    LineDashes dashes(style, width, length, width, scale);
    dashes.moveTo(Vector3f(0.0f, 0.0f, 0.0f));
    dashes.lineTo(Vector3f(length, 0.0f, 0.0f));
    for (const LineSegment& dash : dashes.getDashes()) {
        fill(std::max(dash.from.x - 0.5f * width, 0.0f), std::min(dash.to.x + 0.5f * width, length));
    }
}

} // namespace

LineLegendPlacement::LineLegendPlacement(int position, int strategy)
    : isLeft(position == 2 || position == 3),
      isBottom(position == 1 || position == 2),
      isInside(strategy != 1 && strategy != 2),
      isRow(strategy == 2 || strategy == 3 || strategy == 5),
      hasFrame(strategy == 0 || strategy == 3)
{}

LineLegendBox::LineLegendBox(std::vector<LineLegendEntry> entries, const LineLegendPlacement& placement,
                             const LegendStyle& style, TextSpace room)
    : m_placement(placement)
{
    const float em = style.tickFonts.fontSize();
    const float padding = placement.isInside ? c_padding * em : 0.0f;
    const float sample = (c_sampleLength + c_textGap) * em;
    const TextSpace textRoom = {room.width - 2.0f * padding - sample, room.height - 2.0f * padding};
    if (textRoom.width < c_leastTextWidth * em) {
        return;
    }
    float x = padding;
    float y = padding;
    float rowHeight = 0.0f;
    float right = 0.0f;
    for (LineLegendEntry& entry : entries) {
        const vxbase::UString& markup =
            entry.legend.text.empty() ? entry.legend.line->m_legendDescription : entry.legend.text;
        TextLayout text = layoutTitle(parseTitle(markup), style.tickFonts, textRoom);
        const float width = sample + text.width;
        const float height = std::max(text.height, c_rowHeight * em);
        const bool isFirst = x == padding;
        if (!isFirst && (!placement.isRow || x + width > room.width - padding)) {
            x = padding;
            y += rowHeight;
            rowHeight = 0.0f;
        }
        if (y + height > room.height - padding || x + width > room.width - padding) {
            break;
        }
        rowHeight = std::max(rowHeight, height);
        right = std::max(right, x + width);
        m_rows.push_back({std::move(entry), std::move(text), x, y, height});
        x += width + c_columnGap * em;
    }
    if (!m_rows.empty()) {
        m_width = static_cast<int>(std::ceil(right + padding));
        m_height = static_cast<int>(std::ceil(m_rows.back().y + rowHeight + padding));
    }
}

void LineLegendBox::draw(DecorationCanvas& canvas, const LegendStyle& style, int left, int top, int pictureWidth,
                         int pictureHeight) const
{
    const float em = style.tickFonts.fontSize();
    const auto boxLeft = static_cast<float>(left);
    const auto boxTop = static_cast<float>(top);
    if (m_placement.hasFrame) {
        const PixelRect box = {boxLeft, boxTop, boxLeft + static_cast<float>(m_width),
                               boxTop + static_cast<float>(m_height)};
        Color background = style.background;
        background.alpha = c_backgroundAlpha;
        canvas.fillRect(box, background);
        canvas.strokeRect(box, style.lineWidth, style.frameColor);
    }
    for (const Row& row : m_rows) {
        const float x = boxLeft + row.x;
        const float middle = boxTop + row.y + 0.5f * row.height;
        drawSample(canvas, row.entry, x, middle, c_sampleLength * em, style.scale);
        const Color& color = row.entry.legend.color;
        canvas.drawSymbols(std::array{Vector3f(x + 0.5f * c_sampleLength * em, middle, 0.0f)},
                           {.toClip = pixelsToClip(pictureWidth, pictureHeight),
                            .width = pictureWidth,
                            .height = pictureHeight,
                            .symbol = row.entry.legend.line->m_marker,
                            .size = symbolSize(row.entry.lineWidth) * style.scale,
                            .color = channelsOf(color)});
        // Without a background, a rim keeps the text apart from the lines under it.
        TextColors colors = style.textColors();
        if (m_placement.isInside && !m_placement.hasFrame && !colors.halo) {
            colors.halo = style.background;
        }
        canvas.drawText(row.text, style.tickFonts, x + (c_sampleLength + c_textGap) * em,
                        middle - 0.5f * row.text.height, colors);
    }
}

std::vector<LineLegendEntry> lineLegendOf(const vxgraphics3d::SceneGraphPlot& plot)
{
    std::vector<LineLegendEntry> entries;
    if (plot.getType() == vxgraphics3d::PlotType::graph) {
        const auto& graph = static_cast<const vxgraphics3d::SceneGraphPlotGraph&>(plot);
        std::vector<vxgraphics3d::LineLegend> legends;
        graph.getLineLegendData(legends);
        for (vxgraphics3d::LineLegend& legend : legends) {
            entries.push_back({std::move(legend), graph.getLineWidth()});
        }
    }
    return entries;
}

} // namespace vxrenderer
