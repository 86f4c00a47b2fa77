#pragma once

#include "renderer/paint/scenelabel.h"

namespace vxgraphics3d {
class SceneGraphPlot;
}

namespace vxrenderer {

/// Passes on the labels that an active and valid plot is drawn with.
void visitPlotLabels(const vxgraphics3d::SceneGraphPlot& plot, const TakeLabel& take);

} // namespace vxrenderer
