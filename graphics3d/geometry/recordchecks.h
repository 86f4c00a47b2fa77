#pragma once

#include "graphics3d/geometry/objectparttype.h"

namespace vxdatacarrier {
class Geometry1D;
class Geometry2D;
class Geometry3D;
} // namespace vxdatacarrier

namespace vxgraphics3d {

// Checks what a fill relies on, for the levels that an object has: counts agree with their arrays, and all indices are
// in range. Throws std::invalid_argument or std::out_of_range with a text that names what is wrong.

void checkRecord(const vxdatacarrier::Geometry1D& record, ObjectPartType highest);
void checkRecord(const vxdatacarrier::Geometry2D& record, ObjectPartType highest);
void checkRecord(const vxdatacarrier::Geometry3D& record, ObjectPartType highest);

} // namespace vxgraphics3d
