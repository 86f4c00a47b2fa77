#include "renderer/plots/plotpainter.h"

#include "renderer/plots/arrowpainter.h"
#include "renderer/plots/surfacepainter.h"
#include "renderer/plots/tubepainter.h"

namespace vxrenderer {

PlotPainters makePlotPainters()
{
    PlotPainters painters;
    painters.push_back(std::make_unique<SurfacePainter>());
    painters.push_back(std::make_unique<ArrowPainter>());
    painters.push_back(std::make_unique<TubePainter>());
    return painters;
}

} // namespace vxrenderer
