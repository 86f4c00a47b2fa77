#pragma once

#include "graphics3d/plots/scalar/scenegraphplotiso.h"

namespace vxgraphics3d {

/// Contours in the plane or, if the record is of the kind for space, in three dimensions. A group whose elements have
/// three corners is a filled band between two levels; any other is a set of contour lines, which gets a label.
///
/// Bands in space take the normals of the record; all other vertices have the normal (0, 0, 1).
class VX_API SceneGraphPlotContour : public SceneGraphPlotIso {
public:
    explicit SceneGraphPlotContour(int id);
    ~SceneGraphPlotContour() override;

protected:
    Fill prepareFill(const vxdatacarrier::PostDataView& record) override;

private:
    struct Input;
    void fillPlotImpl(const Input& input);
};

} // namespace vxgraphics3d
