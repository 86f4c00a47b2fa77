#pragma once

#include "datacarrier/geometry2d.h"

namespace vxdatacarrier {

/// The geometry of a physics object in the plane. Its id, name and snap coordinates are not read.
class VX_API RenderGeom2D : public Geometry2D {
public:
    std::string getTypeName() const override { return "RenderGeom2D"; }
};

} // namespace vxdatacarrier
