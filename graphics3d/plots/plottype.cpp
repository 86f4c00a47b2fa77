#include "graphics3d/plots/plottype.h"

#include <cstddef>
#include <iterator>

namespace vxgraphics3d {

namespace {

/// Indexed by the number of the type; no class has the number 5.
constexpr const char* c_classNames[] = {
    "SceneGraphPlotArrow2d",     "SceneGraphPlotArrow3d",      "SceneGraphPlotContour",
    "SceneGraphPlotPrincipal",   "SceneGraphPlotPrincipal",    "SceneGraphPlot",
    "SceneGraphPlotEdge2d",      "SceneGraphPlotEdge3d",       "SceneGraphPlotGraph",
    "SceneGraphPlotInteractive", "SceneGraphPlotIsoSurface3d", "SceneGraphPlotMesh3d",
    "SceneGraphPlotMesh3d",      "SceneGraphPlotPointLabel",   "SceneGraphPlotPointLabel",
    "SceneGraphPlotPrincipal",   "SceneGraphPlotPrincipal",    "SceneGraphPlotRibbon3d",
    "SceneGraphPlotSlice3d",     "SceneGraphPlotSphere2d",     "SceneGraphPlotSphere3d",
    "SceneGraphPlotSurface2d",   "SceneGraphPlotSurface3d",    "SceneGraphPlotTube2d",
    "SceneGraphPlotTube3d",      "SceneGraphPlotDomain3d"};
static_assert(std::size(c_classNames) == static_cast<std::size_t>(PlotType::domain3d) + 1);

} // namespace

const char* plotClassName(PlotType type)
{
    return c_classNames[static_cast<std::size_t>(type)];
}

} // namespace vxgraphics3d
