#pragma once

#include "datacarrier/renderdraw3d.h"
#include "graphics3d/foundation/vector3f.h"

#include <string>

namespace vxgraphics3d {

/// Reads a solid file as simply as possible: one row at a time through `fgets`, each number through the C library.
/// Tests compare the real reader's results with these, and the benchmark its speed.
/// @param message receives what is to be logged about a fault, if anything is prescribed
bool readSolidPlainly(vxdatacarrier::RenderDraw3D& record, const std::string& path, const Vector3f& offset,
                      std::string& message);

/// Reads a solid file with both readers, and names the first difference in result, record and log.
/// @param numGood is increased if the file was accepted
std::string differenceFromPlainSolid(const std::string& path, int& numGood);

} // namespace vxgraphics3d
