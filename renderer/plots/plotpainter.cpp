#include "renderer/plots/plotpainter.h"

#include "renderer/plots/surfacepainter.h"

namespace vxrenderer {

std::vector<std::unique_ptr<PlotPainter>> makePlotPainters()
{
    std::vector<std::unique_ptr<PlotPainter>> painters;
    painters.push_back(std::make_unique<SurfacePainter>());
    return painters;
}

} // namespace vxrenderer
