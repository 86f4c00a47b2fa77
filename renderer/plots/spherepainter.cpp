#include "renderer/plots/spherepainter.h"

#include "graphics3d/plots/vector/scenegraphplotsphere2d.h"
#include "graphics3d/plots/vector/scenegraphplotsphere3d.h"
#include "renderer/plots/plotlook.h"
#include "renderer/upload/uploadcache.h"

#include <span>

namespace vxrenderer {

using vxgraphics3d::SceneGraphPlotSphere;
using vxgraphics3d::SceneGraphPlotSphere2d;
using vxgraphics3d::SceneGraphPlotSphere3d;
using PlotType = vxgraphics3d::SceneGraphPlot::PlotType;

bool SpherePainter::draws(PlotType type) const
{
    return type == PlotType::sphere2d || type == PlotType::sphere3d;
}

void SpherePainter::draw(const PlotItem& item, const PaintContext& context) const
{
    const std::optional<Look> look = lookOf(item, context);
    if (!look) {
        return;
    }
    const auto& plot = static_cast<const SceneGraphPlotSphere&>(*item.plot);
    const auto drawSpheres = [&](const auto& spheres, bool areDiscs) {
        const std::span records(reinterpret_cast<const float*>(spheres.data()), spheres.size_bytes() / sizeof(float));
        context.drawSpheres(context.uploads.spheres(item.plot, 0, plot.getGeometryChangeId(), records, areDiscs),
                            plot.getRadiusScaleFactor(), *look);
    };
    if (plot.getType() == PlotType::sphere2d) {
        drawSpheres(static_cast<const SceneGraphPlotSphere2d&>(plot).getSpheres(), true);
    } else {
        drawSpheres(static_cast<const SceneGraphPlotSphere3d&>(plot).getSpheres(), false);
    }
}

} // namespace vxrenderer
