#include "renderer/plots/isopainter.h"

#include "base/ustring.h"
#include "graphics3d/plots/scalar/scenegraphplotiso.h"
#include "renderer/plots/plotlook.h"
#include "renderer/upload/uploadcache.h"

#include <algorithm>
#include <array>
#include <cstddef>

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

bool hasLines(const SceneGraphPlotIso::IsoData& level)
{
    return level.m_shown && level.m_lines.getNumElements(0) > 0 && level.m_vertices.getNumberOfVertices() > 0;
}

} // namespace

void visitLabels(const SceneGraphPlotIso& plot, const TakeLabel& take)
{
    const auto count = std::min(static_cast<std::size_t>(plot.getNumberOfLevels()), plot.getLabels().size());
    const std::array<float, 2> shown = shownTextureRange(plot);
    for (std::size_t i = 0; i < count && plot.isShowLabels(); ++i) {
        const SceneGraphPlotIso::IsoData& level = *plot.getSurface(static_cast<int>(i));
        if (!hasLines(level) || plot.getLabels()[i].empty()) {
            continue;
        }
        const float u = level.m_vertices.vertices()[0].u;
        if (plot.hasColorData() || !(u < shown[0] || u > shown[1])) {
            Vector3f point = level.m_labelPosition;
            point.z = point.z * plot.getHeightScale() + plot.getPlotPlaneOffset();
            take({.point = point, .text = vxbase::UString(plot.getLabels()[i]), .color = plot.getLabelColor()});
        }
    }
}

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
        if (hasLines(level)) {
            context.drawLines(context.uploads.lines(item.plot, i, changeId, level.m_vertices, level.m_lines), *look,
                              c_lineWidth);
        }
    }
    visitLabels(plot, [&context](const SceneLabel& label) { context.drawLabel(label); });
}

} // namespace vxrenderer
