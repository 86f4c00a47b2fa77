#include "graphics3d/plots/vector/scenegraphplottube3d.h"

namespace vxgraphics3d {

SceneGraphPlotTube3d::SceneGraphPlotTube3d(int id) : SceneGraphPlotTube(PlotType::tube3d, id) {}

SceneGraphPlotTube3d::~SceneGraphPlotTube3d() = default;

} // namespace vxgraphics3d
