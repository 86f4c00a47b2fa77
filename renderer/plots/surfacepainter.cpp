#include "renderer/plots/surfacepainter.h"

#include "graphics3d/plots/scalar/scenegraphplotdomain3d.h"
#include "graphics3d/plots/scalar/scenegraphplotsurface.h"
#include "renderer/upload/meshcache.h"

namespace vxrenderer {

using vxgraphics3d::SceneGraphPlot;
using vxgraphics3d::SceneGraphPlotDomain3d;
using vxgraphics3d::SceneGraphPlotSurface;
using PlotType = SceneGraphPlot::PlotType;

bool SurfacePainter::draws(PlotType type) const
{
    return type == PlotType::surface2d || type == PlotType::surface3d || type == PlotType::domain3d;
}

void SurfacePainter::draw(const PlotItem& item, const PaintContext& context)
{
    const auto draw = [&](const auto& plot) {
        const Mesh* mesh =
            context.meshes.mesh(item.plot, 0, {plot.getVertices(), plot.getTriangles(), plot.getGeometryChangeId()});
        if (mesh != nullptr && m_program.use(item, context)) {
            mesh->draw();
        }
    };
    if (item.plot->getType() == PlotType::domain3d) {
        draw(static_cast<const SceneGraphPlotDomain3d&>(*item.plot));
    } else {
        draw(static_cast<const SceneGraphPlotSurface&>(*item.plot));
    }
}

} // namespace vxrenderer
