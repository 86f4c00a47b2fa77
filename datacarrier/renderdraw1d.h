#pragma once

#include "datacarrier/geometry1d.h"

namespace vxdatacarrier {

/// The geometry of a draw object: a point or curve on an axis.
class VX_API RenderDraw1D : public Geometry1D {
public:
    std::string getTypeName() const override { return "RenderDraw1D"; }
};

} // namespace vxdatacarrier
