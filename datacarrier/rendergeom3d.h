#pragma once

#include "datacarrier/geometry3d.h"

namespace vxdatacarrier {

/// The geometry of a physics object in space. Its id, name and snap coordinates are not read.
class VX_API RenderGeom3D : public Geometry3D {
public:
    std::string getTypeName() const override { return "RenderGeom3D"; }
};

} // namespace vxdatacarrier
