#pragma once

#include "datacarrier/geometry2d.h"

namespace vxdatacarrier {

/// The geometry of a draw object: a point, curve or face in the plane.
class VX_API RenderDraw2D : public Geometry2D {
public:
    std::string getTypeName() const override { return "RenderDraw2D"; }
};

} // namespace vxdatacarrier
