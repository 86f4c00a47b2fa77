#include "renderer/plots/edgepainter.h"

#include "graphics3d/plots/vector/scenegraphplotedge.h"
#include "renderer/plots/plotlook.h"
#include "renderer/upload/uploadcache.h"

#include <algorithm>

namespace vxrenderer {

using vxgraphics3d::SceneGraphPlotEdge;
using PlotType = vxgraphics3d::SceneGraphPlot::PlotType;

bool EdgePainter::draws(PlotType type) const
{
    return type == PlotType::edge2d || type == PlotType::edge3d;
}

void EdgePainter::draw(const PlotItem& item, const PaintContext& context) const
{
    if (const std::optional<Look> look = lookOf(item, context)) {
        const auto& plot = static_cast<const SceneGraphPlotEdge&>(*item.plot);
        context.drawLines(
            context.uploads.lines(item.plot, 0, plot.getGeometryChangeId(), plot.getVertices(), plot.getLines()), *look,
            std::max(plot.getLineWidth(), 1.0f), LineForm::straight);
    }
}

} // namespace vxrenderer
