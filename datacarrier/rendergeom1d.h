#pragma once

#include "datacarrier/geometry1d.h"

namespace vxdatacarrier {

/// The geometry of a physics object on an axis. Its id, name and snap coordinates are not read.
class VX_API RenderGeom1D : public Geometry1D {
public:
    std::string getTypeName() const override { return "RenderGeom1D"; }
};

} // namespace vxdatacarrier
