#pragma once

#include "graphics3d/plots/scalar/scenegraphplotsurface.h"

namespace vxgraphics3d {

/// A field on a surface in space, with the normals of the record. Reads colour data of group 0. A record of
/// two-dimensional surface data is drawn in the plane z = 0 and needs no normals.
class VX_API SceneGraphPlotSurface3d : public SceneGraphPlotSurface {
public:
    explicit SceneGraphPlotSurface3d(int id);
    ~SceneGraphPlotSurface3d() override;

protected:
    Fill prepareFill(const vxdatacarrier::PostDataView& record) override;

private:
    struct Input;
    void fillPlotImpl(const Input& input);
};

} // namespace vxgraphics3d
