#pragma once

#include "base/export.h"
#include "datacarrier/postdataobject.h"

namespace vxproducer {

/// The outline of triangles, as a record takes it: two arrays with the ends of the edges that exactly one triangle
/// uses, each from its lower to its higher point, in ascending order.
/// @param triangles three arrays of equal length, with indices of points, which are not checked
VX_API vxdatacarrier::PostDataObject::IntArrays outlineOf(const vxdatacarrier::PostDataObject::IntArrays& triangles);

} // namespace vxproducer
