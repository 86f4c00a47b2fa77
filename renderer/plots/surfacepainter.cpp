#include "renderer/plots/surfacepainter.h"

#include "graphics3d/plots/scalar/scenegraphplotdomain3d.h"
#include "graphics3d/plots/scalar/scenegraphplotsurface.h"
#include "renderer/plots/plotlook.h"
#include "renderer/upload/uploadcache.h"

namespace vxrenderer {

using vxgraphics3d::SceneGraphPlot;
using vxgraphics3d::SceneGraphPlotDomain3d;
using vxgraphics3d::SceneGraphPlotSurface;
using PlotType = SceneGraphPlot::PlotType;

bool SurfacePainter::draws(PlotType type) const
{
    return type == PlotType::surface2d || type == PlotType::surface3d || type == PlotType::domain3d;
}

void SurfacePainter::draw(const PlotItem& item, const PaintContext& context) const
{
    const std::optional<Look> look = lookOf(item, context);
    if (!look) {
        return;
    }
    const auto drawBody = [&](const auto& plot) {
        context.drawBody(
            context.uploads.body(item.plot, 0, plot.getGeometryChangeId(), plot.getVertices(), plot.getTriangles()),
            *look);
    };
    if (item.plot->getType() == PlotType::domain3d) {
        drawBody(static_cast<const SceneGraphPlotDomain3d&>(*item.plot));
    } else if (item.plot->getType() == PlotType::surface3d) {
        drawBody(static_cast<const SceneGraphPlotSurface&>(*item.plot));
    } else {
        // The steepest slope of a map is no crease.
        const auto& plot = static_cast<const SceneGraphPlotSurface&>(*item.plot);
        context.drawBody(
            context.uploads.mesh(item.plot, 0, plot.getGeometryChangeId(), plot.getVertices(), plot.getTriangles()),
            *look);
    }
}

} // namespace vxrenderer
