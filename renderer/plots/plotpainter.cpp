#include "renderer/plots/plotpainter.h"

#include "renderer/plots/arrowpainter.h"
#include "renderer/plots/edgepainter.h"
#include "renderer/plots/graphpainter.h"
#include "renderer/plots/interactivepainter.h"
#include "renderer/plots/isopainter.h"
#include "renderer/plots/meshplotpainter.h"
#include "renderer/plots/pointlabelpainter.h"
#include "renderer/plots/slicepainter.h"
#include "renderer/plots/spherepainter.h"
#include "renderer/plots/surfacepainter.h"
#include "renderer/plots/tubepainter.h"

namespace vxrenderer {

PlotPainters makePlotPainters()
{
    PlotPainters painters;
    painters.push_back(std::make_unique<SurfacePainter>());
    painters.push_back(std::make_unique<EdgePainter>());
    painters.push_back(std::make_unique<SpherePainter>());
    painters.push_back(std::make_unique<InteractivePainter>());
    painters.push_back(std::make_unique<GraphPainter>());
    painters.push_back(std::make_unique<PointLabelPainter>());
    painters.push_back(std::make_unique<ArrowPainter>());
    painters.push_back(std::make_unique<TubePainter>());
    painters.push_back(std::make_unique<IsoPainter>());
    painters.push_back(std::make_unique<SlicePainter>());
    painters.push_back(std::make_unique<MeshPlotPainter>());
    return painters;
}

} // namespace vxrenderer
