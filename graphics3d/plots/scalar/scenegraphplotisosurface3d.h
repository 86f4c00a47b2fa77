#pragma once

#include "graphics3d/plots/scalar/scenegraphplotiso.h"

namespace vxgraphics3d {

/// Surfaces of equal value in space, with the normals of the record: triangles for each group that has some. Groups
/// without triangles keep empty buffers.
class VX_API SceneGraphPlotIsoSurface3d : public SceneGraphPlotIso {
public:
    explicit SceneGraphPlotIsoSurface3d(int id);
    ~SceneGraphPlotIsoSurface3d() override;

protected:
    Fill prepareFill(const vxdatacarrier::PostDataView& record) override;

private:
    struct Input;
    void fillPlotImpl(const Input& input);
};

} // namespace vxgraphics3d
