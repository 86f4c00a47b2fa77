#include "renderer/plots/plotpainter.h"

#include "renderer/plots/isopainter.h"
#include "renderer/plots/meshplotpainter.h"
#include "renderer/plots/slicepainter.h"
#include "renderer/plots/surfacepainter.h"

namespace vxrenderer {

PlotPainters makePlotPainters()
{
    PlotPainters painters;
    painters.push_back(std::make_unique<SurfacePainter>());
    painters.push_back(std::make_unique<IsoPainter>());
    painters.push_back(std::make_unique<SlicePainter>());
    painters.push_back(std::make_unique<MeshPlotPainter>());
    return painters;
}

} // namespace vxrenderer
