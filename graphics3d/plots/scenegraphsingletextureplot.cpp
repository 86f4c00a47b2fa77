#include "graphics3d/plots/scenegraphsingletextureplot.h"

namespace vxgraphics3d {

SceneGraphSingleTexturePlot::SceneGraphSingleTexturePlot(PlotType type, int id) : SceneGraphTexturePlot(type, id, 2) {}

SceneGraphSingleTexturePlot::~SceneGraphSingleTexturePlot() = default;

} // namespace vxgraphics3d
