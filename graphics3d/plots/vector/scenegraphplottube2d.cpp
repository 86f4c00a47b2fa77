#include "graphics3d/plots/vector/scenegraphplottube2d.h"

namespace vxgraphics3d {

SceneGraphPlotTube2d::SceneGraphPlotTube2d(int id) : SceneGraphPlotTube(PlotType::tube2d, id) {}

SceneGraphPlotTube2d::~SceneGraphPlotTube2d() = default;

} // namespace vxgraphics3d
