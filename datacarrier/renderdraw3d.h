#pragma once

#include "datacarrier/geometry3d.h"

namespace vxdatacarrier {

/// The geometry of a draw object: a point, curve, face or solid in space.
class VX_API RenderDraw3D : public Geometry3D {
public:
    std::string getTypeName() const override { return "RenderDraw3D"; }
};

} // namespace vxdatacarrier
