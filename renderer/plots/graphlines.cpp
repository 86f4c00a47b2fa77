#include "renderer/plots/graphlines.h"

#include "graphics3d/plots/graph/scenegraphplotgraph.h"
#include "renderer/paint/decorationcanvas.h"
#include "renderer/paint/linedashes.h"
#include "renderer/plots/graphmarkers.h"
#include "renderer/plots/graphsymbol.h"

#include <cmath>
#include <numbers>

namespace vxrenderer {
namespace {

using vxgraphics3d::Color;
using vxgraphics3d::GraphLine;
using vxgraphics3d::Matrixf;
using vxgraphics3d::SceneGraphPlotGraph;
using vxgraphics3d::Vector3f;

constexpr int c_circleCorners = 360;

/// Calls a function with the number of a point in its strip and the point, strip by strip.
template <class Visit>
void forEachPoint(const GraphLine::Version& version, Visit visit)
{
    const std::vector<int>& starts = version.strips.getSegmentStarts();
    for (std::size_t strip = 0; strip + 1 < starts.size(); ++strip) {
        for (int i = 0; i < starts[strip + 1] - starts[strip]; ++i) {
            visit(i, version.strips.getVertex(static_cast<int>(strip), i));
        }
    }
}

std::vector<LineSegment> piecesOf(const GraphLine::Version& version)
{
    std::vector<LineSegment> pieces;
    Vector3f last;
    forEachPoint(version, [&](int i, const Vector3f& point) {
        if (i > 0) {
            pieces.push_back({last, point});
        }
        last = point;
    });
    return pieces;
}

Color faded(Color color, float opacity)
{
    color.alpha = static_cast<int>(std::lround(static_cast<float>(color.alpha) * opacity));
    return color;
}

} // namespace

std::vector<LineSegment> unitCircle()
{
    std::vector<LineSegment> segments;
    Vector3f from(1.0f, 0.0f, 0.0f);
    for (int i = 1; i <= c_circleCorners; ++i) {
        const double angle = 2.0 * std::numbers::pi * (i % c_circleCorners) / c_circleCorners;
        const Vector3f to(std::cos(angle), std::sin(angle), 0.0);
        segments.push_back({from, to});
        from = to;
    }
    return segments;
}

std::vector<LineSegment> dashesOf(const GraphLine::Version& version, LineStyle style, float width, float scale,
                                  const View& view)
{
    const auto areaWidth = static_cast<float>(view.area.width);
    const auto areaHeight = static_cast<float>(view.area.height);
    const Matrixf toClip = view.projection * view.sceneToEye;
    LineDashes dashes(style, width * scale, areaWidth, areaHeight, scale);
    forEachPoint(version, [&](int i, const Vector3f& point) {
        const Vector3f place = toClip * point;
        const Vector3f pixel(0.5f * (1.0f + place.x) * areaWidth, 0.5f * (1.0f - place.y) * areaHeight, place.z);
        i == 0 ? dashes.moveTo(pixel) : dashes.lineTo(pixel);
    });
    return dashes.getDashes();
}

void drawGraph(const SceneGraphPlotGraph& graph, const View& view, float opacity, float scale, int logAxes,
               DecorationCanvas& canvas)
{
    const Matrixf toClip = view.projection * view.sceneToEye;
    const int width = view.area.width;
    const int height = view.area.height;
    if (graph.isShowUnitCircle() && logAxes == 0) {
        canvas.drawLines(unitCircle(), {toClip, width, height, scale}, faded(c_unitCircleColor, opacity));
    }
    const float lineWidth = graph.getLineWidth() * scale;
    for (const auto& line : graph.getLines()) {
        const GraphLine::Version version = line->getVersion(logAxes);
        const Color color = faded(graph.getColorOf(*line), opacity);
        const LineStyle style = lineWidth > 0.0f ? line->m_lineStyle : LineStyle::none;
        if (style == LineStyle::solid) {
            canvas.drawLines(piecesOf(version),
                             {toClip, width, height, lineWidth, {}, graph.getLineWidth() >= c_roundWidth}, color);
        } else if (style != LineStyle::none) {
            canvas.drawLines(dashesOf(version, style, graph.getLineWidth(), scale, view),
                             {pixelsToClip(width, height), width, height, lineWidth}, color);
        }
        if (line->m_marker != RenderSymbol::none) {
            canvas.drawSymbols(markersOf(version, graph.getBoundingBoxLog(logAxes), graph.isMarkersInterpolation(),
                                         line->m_numMarkers),
                               {.toClip = toClip,
                                .width = width,
                                .height = height,
                                .symbol = line->m_marker,
                                .size = symbolSize(graph.getLineWidth()) * scale,
                                .color = channelsOf(color)});
        }
    }
}

} // namespace vxrenderer
