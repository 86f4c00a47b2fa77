#include "renderer/plots/plotlabels.h"

#include "graphics3d/plots/scalar/scenegraphplotiso.h"
#include "graphics3d/plots/vector/scenegraphplotpointlabel.h"
#include "renderer/plots/isopainter.h"
#include "renderer/plots/pointlabelpainter.h"

namespace vxrenderer {

using namespace vxgraphics3d;

void visitPlotLabels(const SceneGraphPlot& plot, const TakeLabel& take)
{
    switch (plot.getType()) {
    case PlotType::pointLabel2d:
    case PlotType::pointLabel3d:
        visitLabels(static_cast<const SceneGraphPlotPointLabel&>(plot), take);
        break;
    case PlotType::contour:
    case PlotType::isoSurface3d:
        visitLabels(static_cast<const SceneGraphPlotIso&>(plot), take);
        break;
    default:
        break;
    }
}

} // namespace vxrenderer
