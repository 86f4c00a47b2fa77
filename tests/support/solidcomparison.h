#pragma once

#include "datacarrier/renderdraw3d.h"

#include <string>

namespace vxgraphics3d {

/// Names the first field in which two records differ, comparing numbers bitwise; empty if they are equal. Id, name and
/// validity are not compared.
std::string differenceOf(const vxdatacarrier::RenderDraw3D& a, const vxdatacarrier::RenderDraw3D& b);

} // namespace vxgraphics3d
