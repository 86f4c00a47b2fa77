#pragma once

#include "graphics3d/geometry/objectparttype.h"

namespace vxdatacarrier {
class Geometry1D;
class Geometry2D;
class Geometry3D;
class RenderMeshCollection;
} // namespace vxdatacarrier

namespace vxgraphics3d {

// Checks what a fill relies on, for the levels that an object has: counts agree with their arrays, and all indices are
// in range. Throws std::invalid_argument or std::out_of_range with a text that names what is wrong.

void checkRecord(const vxdatacarrier::Geometry1D& record, ObjectPartType highest);
void checkRecord(const vxdatacarrier::Geometry2D& record, ObjectPartType highest);
void checkRecord(const vxdatacarrier::Geometry3D& record, ObjectPartType highest);

// The snap coordinates of a record, which only draw objects read.

inline void checkSnapCoordinates(const vxdatacarrier::Geometry1D&) {}
void checkSnapCoordinates(const vxdatacarrier::Geometry2D& record);
inline void checkSnapCoordinates(const vxdatacarrier::Geometry3D&) {}

// The same for the meshes of an object with the given numbers of parts. Throws std::bad_cast if a mesh is not of the
// class that its type requires.

void checkMeshes(const vxdatacarrier::RenderMeshCollection& meshes, int numLines, int numSheets);

} // namespace vxgraphics3d
