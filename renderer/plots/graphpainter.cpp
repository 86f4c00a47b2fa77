#include "renderer/plots/graphpainter.h"

#include "graphics3d/plots/graph/graphline.h"
#include "graphics3d/plots/graph/scenegraphplotgraph.h"
#include "renderer/paint/linedashes.h"
#include "renderer/paint/linepainter.h"
#include "renderer/paint/paintcontext.h"
#include "renderer/plots/graphmarkers.h"
#include "renderer/plots/graphsymbol.h"
#include "renderer/upload/uploadcache.h"

#include <cmath>
#include <numbers>

namespace vxrenderer {
namespace {

using vxgraphics3d::Color;
using vxgraphics3d::GraphLine;
using vxgraphics3d::Matrixf;
using vxgraphics3d::SceneGraphPlotGraph;
using vxgraphics3d::Vector3f;

constexpr Color c_circleColor = {128, 128, 128, 255};
constexpr int c_circleCorners = 360;
/// Lines from this width in pixels of the screen have round corners.
constexpr float c_roundWidth = 3.0f;

void drawUnitCircle(const PaintContext& context)
{
    std::vector<LineSegment> segments;
    Vector3f from(1.0f, 0.0f, 0.0f);
    for (int i = 1; i <= c_circleCorners; ++i) {
        const double angle = 2.0 * std::numbers::pi * (i % c_circleCorners) / c_circleCorners;
        const Vector3f to(std::cos(angle), std::sin(angle), 0.0);
        segments.push_back({from, to});
        from = to;
    }
    context.drawSegments(segments, context.view.projection * context.view.sceneToEye, c_circleColor, 1.0f);
}

void drawDashes(const GraphLine::Version& version, LineStyle style, float width, const Color& color,
                const PaintContext& context)
{
    const auto areaWidth = static_cast<float>(context.view.area.width);
    const auto areaHeight = static_cast<float>(context.view.area.height);
    const Matrixf toClip = context.view.projection * context.view.sceneToEye;
    LineDashes dashes(style, width * context.scale, areaWidth, areaHeight, context.scale);
    const std::vector<int>& starts = version.strips.getSegmentStarts();
    for (std::size_t strip = 0; strip + 1 < starts.size(); ++strip) {
        for (int i = 0; i < starts[strip + 1] - starts[strip]; ++i) {
            const Vector3f place = toClip * version.strips.getVertex(static_cast<int>(strip), i);
            const Vector3f pixel(0.5f * (1.0f + place.x) * areaWidth, 0.5f * (1.0f - place.y) * areaHeight, place.z);
            i == 0 ? dashes.moveTo(pixel) : dashes.lineTo(pixel);
        }
    }
    context.drawSegments(dashes.getDashes(), pixelsToClip(context.view.area.width, context.view.area.height), color,
                         width);
}

void drawLine(const SceneGraphPlotGraph& graph, const boost::shared_ptr<GraphLine>& line, const PaintContext& context)
{
    const GraphLine::Version version = line->getVersion(context.logAxes);
    const float width = graph.getLineWidth();
    const Color& color = graph.getColorOf(*line);
    Look look = {context.view.sceneToEye, Material::of(color)};
    look.toEye.translate(0.0f, 0.0f, graph.getPlotPlaneOffset());
    // A line keeps its buffers for life, so that nothing tells them to be looked at again.
    const LineStyle style = width > 0.0f ? line->m_lineStyle : LineStyle::none;
    if (style == LineStyle::solid || (style != LineStyle::none && !context.view.isFlat)) {
        context.drawLines(context.uploads.lines(line, context.logAxes, 1, version.vertices, version.strips), look,
                          width, width >= c_roundWidth ? LineForm::round : LineForm::plain);
    } else if (style != LineStyle::none) {
        drawDashes(version, style, width, color, context);
    }
    if (line->m_marker != RenderSymbol::none) {
        const auto positions = [&] {
            std::vector<Instance> instances;
            for (const Vector3f& position : markersOf(version, graph.getBoundingBoxLog(context.logAxes),
                                                      graph.isMarkersInterpolation(), line->m_numMarkers)) {
                instances.push_back({position, Vector3f(0.0f, 0.0f, 1.0f), 0.0f});
            }
            return instances;
        };
        context.drawSymbols(context.uploads.instances(line, context.logAxes, graph.getMarkerChangeId(), positions),
                            look, line->m_marker, symbolSize(width));
    }
}

} // namespace

bool GraphPainter::draws(vxgraphics3d::SceneGraphPlot::PlotType type) const
{
    return type == vxgraphics3d::PlotType::graph;
}

void GraphPainter::draw(const PlotItem& item, const PaintContext& context) const
{
    const auto& graph = static_cast<const SceneGraphPlotGraph&>(*item.plot);
    if (graph.isShowUnitCircle() && context.logAxes == 0) {
        drawUnitCircle(context);
    }
    for (const auto& line : graph.getLines()) {
        drawLine(graph, line, context);
    }
}

} // namespace vxrenderer
