#pragma once

#include "graphics3d/plots/scalar/scenegraphplotsurface.h"

namespace vxgraphics3d {

/// A field on a flat domain: flat in the plane, or raised by the record's height data into a height map.
///
/// Reads colour data and, if present, height data of group 0. Heights are scaled once, by the fill, to the mean width
/// of the plot; the renderer applies the plot's own height scale on top. Normals of a height map are computed here,
/// weighted by the areas of the triangles; a point without a triangle has the normal (0, 0, 0).
class VX_API SceneGraphPlotSurface2d : public SceneGraphPlotSurface {
public:
    explicit SceneGraphPlotSurface2d(int id);
    ~SceneGraphPlotSurface2d() override;

protected:
    Fill prepareFill(const vxdatacarrier::PostDataView& record) override;

private:
    struct Input;
    void fillPlotImpl(const Input& input);
};

} // namespace vxgraphics3d
