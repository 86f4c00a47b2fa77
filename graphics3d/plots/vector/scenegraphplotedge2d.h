#pragma once

#include "graphics3d/plots/vector/scenegraphplotedge.h"

namespace vxgraphics3d {

/// The edges of the elements of group 0, flat in the plane or raised by the record's height data. As with surfaces,
/// heights are scaled to the mean width of the plot by the fill.
class VX_API SceneGraphPlotEdge2d : public SceneGraphPlotEdge {
public:
    explicit SceneGraphPlotEdge2d(int id);
    ~SceneGraphPlotEdge2d() override;

protected:
    Fill prepareFill(const vxdatacarrier::PostDataView& record) override;

private:
    struct Input;
    void fillPlotImpl(const Input& input);
};

} // namespace vxgraphics3d
