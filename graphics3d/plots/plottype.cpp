#include "graphics3d/plots/plottype.h"

namespace vxgraphics3d {

const char* plotClassName(PlotType type)
{
    // Without a default, the compiler reports a type that has no name.
    switch (type) {
    case PlotType::arrow2d:
        return "SceneGraphPlotArrow2d";
    case PlotType::arrow3d:
        return "SceneGraphPlotArrow3d";
    case PlotType::contour:
        return "SceneGraphPlotContour";
    case PlotType::coordSys2d:
    case PlotType::coordSys3d:
    case PlotType::principal2d:
    case PlotType::principal3d:
        return "SceneGraphPlotPrincipal";
    case PlotType::edge2d:
        return "SceneGraphPlotEdge2d";
    case PlotType::edge3d:
        return "SceneGraphPlotEdge3d";
    case PlotType::graph:
        return "SceneGraphPlotGraph";
    case PlotType::interactive:
        return "SceneGraphPlotInteractive";
    case PlotType::isoSurface3d:
        return "SceneGraphPlotIsoSurface3d";
    case PlotType::mesh2d:
    case PlotType::mesh3d:
        return "SceneGraphPlotMesh3d";
    case PlotType::pointLabel2d:
    case PlotType::pointLabel3d:
        return "SceneGraphPlotPointLabel";
    case PlotType::ribbon3d:
        return "SceneGraphPlotRibbon3d";
    case PlotType::slice3d:
        return "SceneGraphPlotSlice3d";
    case PlotType::sphere2d:
        return "SceneGraphPlotSphere2d";
    case PlotType::sphere3d:
        return "SceneGraphPlotSphere3d";
    case PlotType::surface2d:
        return "SceneGraphPlotSurface2d";
    case PlotType::surface3d:
        return "SceneGraphPlotSurface3d";
    case PlotType::tube2d:
        return "SceneGraphPlotTube2d";
    case PlotType::tube3d:
        return "SceneGraphPlotTube3d";
    case PlotType::domain3d:
        return "SceneGraphPlotDomain3d";
    }
    return "SceneGraphPlot";
}

} // namespace vxgraphics3d
