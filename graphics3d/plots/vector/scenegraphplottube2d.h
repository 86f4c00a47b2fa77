#pragma once

#include "graphics3d/plots/vector/scenegraphplottube.h"

namespace vxgraphics3d {

/// Lines in the plane as flat bands, or, raised by height data, as tubes in space.
class VX_API SceneGraphPlotTube2d : public SceneGraphPlotTube {
public:
    explicit SceneGraphPlotTube2d(int id);
    ~SceneGraphPlotTube2d() override;
};

} // namespace vxgraphics3d
