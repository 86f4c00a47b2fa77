#include "renderer/plots/plotpainter.h"

#include "renderer/plots/graphpainter.h"
#include "renderer/plots/surfacepainter.h"

namespace vxrenderer {

PlotPainters makePlotPainters()
{
    PlotPainters painters;
    painters.push_back(std::make_unique<SurfacePainter>());
    painters.push_back(std::make_unique<GraphPainter>());
    return painters;
}

} // namespace vxrenderer
