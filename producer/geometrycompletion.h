#pragma once

#include "base/export.h"
#include "datacarrier/geometry1d.h"
#include "datacarrier/geometry2d.h"
#include "datacarrier/geometry3d.h"

namespace vxproducer {

/// Fills in what a record lacks and its other fields determine, and declares it valid:
///
/// - the boxes of sheets, curves and subdomains and that of the record, where they are still 0
/// - line to point: the points at which a curve starts and ends, compared in single precision
/// - sheet to point: the points of the sheet's curves
/// - sheet to subdomain: the domains on the two sides of the sheet, and as many subdomains as there are domains
/// - subdomain to line and to point: the curves and points of the subdomain's sheets
/// - a relation whose inverse is given or derived
/// - the snap coordinates: those of the points
///
/// What is there stays as it is; a relation whose rows are all empty counts as absent. A relation stays absent if there
/// is nothing that it follows from.
/// @throws std::invalid_argument or std::out_of_range if the indices in relations, or the domains of sheets, are out of
///         range. The record is then only partly complete.
VX_API void complete(vxdatacarrier::Geometry1D& record);
VX_API void complete(vxdatacarrier::Geometry2D& record);
VX_API void complete(vxdatacarrier::Geometry3D& record);

} // namespace vxproducer
