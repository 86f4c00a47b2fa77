#pragma once

#include "graphics3d/plots/scenegraphtextureplot.h"

namespace vxgraphics3d {

/// A plot with one colour table. It takes two texture handles from its group, so that a renderer can keep the table in
/// two forms.
class VX_API SceneGraphSingleTexturePlot : public SceneGraphTexturePlot {
public:
    ~SceneGraphSingleTexturePlot() override;

protected:
    SceneGraphSingleTexturePlot(PlotType type, int id);
};

} // namespace vxgraphics3d
