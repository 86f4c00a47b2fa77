#pragma once

#include "graphics3d/plots/vector/scenegraphplotedge.h"

namespace vxgraphics3d {

/// The edges of the elements of group 0, with as many axes as the record has and its colour data if present.
class VX_API SceneGraphPlotEdge3d : public SceneGraphPlotEdge {
public:
    explicit SceneGraphPlotEdge3d(int id);
    ~SceneGraphPlotEdge3d() override;

protected:
    Fill prepareFill(const vxdatacarrier::PostDataView& record) override;

private:
    struct Input;
};

} // namespace vxgraphics3d
