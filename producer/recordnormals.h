#pragma once

#include "base/export.h"
#include "datacarrier/postdataobject.h"

namespace vxproducer {

/// The normals at the points of triangles, as a record takes them: at each point the sum of the unit normals of its
/// triangles, each with equal weight, brought to unit length. The normal of a triangle points to the side from which
/// its corners run counter-clockwise.
///
/// The coordinates are narrowed to single precision first, in which plots draw them, so the result has the same bits as
/// the normals that a plot file with the same numbers gets. A triangle that has no normal there counts for nothing: one
/// without area, or with a corner that is not finite. A point without any other triangle gets (0, 0, 0).
/// @param coordinates three arrays of equal length
/// @param triangles three arrays of equal length, with indices of points, which are not checked
VX_API vxdatacarrier::PostDataObject::FloatArrays
normalsOf(const vxdatacarrier::PostDataObject::DoubleArrays& coordinates,
          const vxdatacarrier::PostDataObject::IntArrays& triangles);

} // namespace vxproducer
