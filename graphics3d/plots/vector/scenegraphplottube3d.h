#pragma once

#include "graphics3d/plots/vector/scenegraphplottube.h"

namespace vxgraphics3d {

/// Lines in space as tubes.
class VX_API SceneGraphPlotTube3d : public SceneGraphPlotTube {
public:
    explicit SceneGraphPlotTube3d(int id);
    ~SceneGraphPlotTube3d() override;
};

} // namespace vxgraphics3d
