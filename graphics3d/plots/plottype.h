#pragma once

namespace vxgraphics3d {

/// The kinds of plots. The numbers are fixed.
enum class PlotType : int {
    arrow2d = 0,
    arrow3d = 1,
    contour = 2,
    coordSys2d = 3,
    coordSys3d = 4,
    edge2d = 6,
    edge3d = 7,
    graph = 8,
    interactive = 9,
    isoSurface3d = 10,
    mesh2d = 11,
    mesh3d = 12,
    pointLabel2d = 13,
    pointLabel3d = 14,
    principal2d = 15,
    principal3d = 16,
    ribbon3d = 17,
    slice3d = 18,
    sphere2d = 19,
    sphere3d = 20,
    surface2d = 21,
    surface3d = 22,
    tube2d = 23,
    tube3d = 24,
    domain3d = 25
};

/// The name of the class of a kind of plots, for messages.
const char* plotClassName(PlotType type);

} // namespace vxgraphics3d
