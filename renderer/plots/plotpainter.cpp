#include "renderer/plots/plotpainter.h"

#include "renderer/plots/surfacepainter.h"

namespace vxrenderer {

PlotPainters makePlotPainters()
{
    PlotPainters painters;
    painters.push_back(std::make_unique<SurfacePainter>());
    return painters;
}

} // namespace vxrenderer
