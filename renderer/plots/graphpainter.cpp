#include "renderer/plots/graphpainter.h"

#include "graphics3d/plots/graph/graphline.h"
#include "graphics3d/plots/graph/scenegraphplotgraph.h"
#include "renderer/paint/linepainter.h"
#include "renderer/paint/paintcontext.h"
#include "renderer/plots/graphlines.h"
#include "renderer/plots/graphmarkers.h"
#include "renderer/plots/graphsymbol.h"
#include "renderer/upload/uploadcache.h"

namespace vxrenderer {
namespace {

using vxgraphics3d::Color;
using vxgraphics3d::GraphLine;
using vxgraphics3d::SceneGraphPlotGraph;
using vxgraphics3d::Vector3f;

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
        context.drawSegments(dashesOf(version, style, width, context.scale, context.view),
                             pixelsToClip(context.view.area.width, context.view.area.height), color, width);
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
        context.drawSegments(unitCircle(), context.view.projection * context.view.sceneToEye, c_unitCircleColor, 1.0f);
    }
    for (const auto& line : graph.getLines()) {
        drawLine(graph, line, context);
    }
}

} // namespace vxrenderer
