#include "renderer/plots/isopainter.h"

#include "base/ustring.h"
#include "graphics3d/plots/scalar/scenegraphplotiso.h"
#include "renderer/plots/plotlook.h"
#include "renderer/upload/uploadcache.h"

#include <cstddef>
#include <utility>

namespace vxrenderer {
namespace {

using vxgraphics3d::SceneGraphPlotIso;
using vxgraphics3d::Vector3f;
using PlotType = vxgraphics3d::SceneGraphPlot::PlotType;

/// Of contour lines, in pixels of the screen.
constexpr float c_lineWidth = 2.0f;

/// Rises with every change of the vertices; neither number goes back.
int vertexChangeIdOf(const SceneGraphPlotIso& plot)
{
    return static_cast<int>(static_cast<unsigned>(plot.getGeometryChangeId()) +
                            static_cast<unsigned>(plot.getLevelChangeId()));
}

void drawLabel(const SceneGraphPlotIso& plot, int level, const Material& material, const PaintContext& context)
{
    const auto at = static_cast<std::size_t>(level);
    const SceneGraphPlotIso::IsoData& data = *plot.getSurface(level);
    if (!plot.isShowLabels() || at >= plot.getLabels().size() || plot.getLabels()[at].empty() ||
        (!plot.hasColorData() && material.hides(data.m_vertices.vertices()[0].u))) {
        return;
    }
    Vector3f point = data.m_labelPosition;
    point.z = point.z * plot.getHeightScale() + plot.getPlotPlaneOffset();
    context.drawLabel({.point = point, .text = vxbase::UString(plot.getLabels()[at]), .color = plot.getLabelColor()});
}

} // namespace

bool IsoPainter::draws(PlotType type) const
{
    return type == PlotType::isoSurface3d || type == PlotType::contour;
}

void IsoPainter::draw(const PlotItem& item, const PaintContext& context) const
{
    const std::optional<Look> look = lookOf(item, context);
    if (!look) {
        return;
    }
    const auto& plot = static_cast<const SceneGraphPlotIso&>(*item.plot);
    const int changeId = vertexChangeIdOf(plot);
    for (int i = 0; i < plot.getNumberOfLevels(); ++i) {
        const SceneGraphPlotIso::IsoData& level = *plot.getSurface(i);
        if (!level.m_shown) {
            continue;
        }
        if (level.m_triangles.getNumElements(0) > 0) {
            context.drawBody(context.uploads.mesh(item.plot, i, changeId, level.m_vertices, level.m_triangles), *look);
        }
        if (level.m_lines.getNumElements(0) > 0 && level.m_vertices.getNumberOfVertices() > 0) {
            context.drawLines(context.uploads.lines(item.plot, i, changeId, level.m_vertices, level.m_lines), *look,
                              c_lineWidth);
            drawLabel(plot, i, look->material, context);
        }
    }
}

} // namespace vxrenderer
