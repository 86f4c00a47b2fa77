#pragma once

#include "base/export.h"
#include "datacarrier/geometry1d.h"
#include "datacarrier/geometry2d.h"
#include "datacarrier/geometry3d.h"
#include "datacarrier/rendergeom3d.h"
#include "producer/geometryparts.h"

#include <vector>

namespace vxproducer {

// Make records of geometry. What does not fit together is refused with std::invalid_argument or, for indices,
// std::out_of_range; the message names the part, the array and the row.

/// Fills a new record. One that was refused may be partly filled.
VX_API void fillGeometry(vxdatacarrier::Geometry1D& record, const GeometryParts& parts);
VX_API void fillGeometry(vxdatacarrier::Geometry2D& record, const GeometryParts& parts);
VX_API void fillGeometry(vxdatacarrier::Geometry3D& record, const GeometryParts& parts);

/// Makes a record of a `RenderDraw` or `RenderGeom` class, complete with boxes, normals, relations and snap
/// coordinates:
///
///     const auto square = vxproducer::buildGeometry<RenderDraw2D>(
///         {.id = 1, .name = "Square", .points = {{0, 1, 1, 0}, {0, 0, 1, 1}},
///          .curves = {{{0, 1}, {0, 0}}, {{1, 1}, {0, 1}}, {{1, 0}, {1, 1}}, {{0, 0}, {1, 0}}},
///          .sheets = {{.coordinates = {{0, 1, 1, 0}, {0, 0, 1, 1}}, .triangles = {{0, 0}, {1, 2}, {2, 3}}}},
///          .sheetToLine = {{{0, 1, 2, 3}}}});
///     face->fillData(square);
template <class Record>
Record buildGeometry(const GeometryParts& parts)
{
    Record record;
    fillGeometry(record, parts);
    return record;
}

/// Makes the record of a physics object from that of a solid, such as one read from a file: a copy of its parts, with
/// a domain on each side of its sheets, complete with boxes and relations.
/// @param upDomains,downDomains one domain for each sheet, -1 for none
VX_API vxdatacarrier::RenderGeom3D buildModel(const vxdatacarrier::Geometry3D& solid, const std::vector<int>& upDomains,
                                              const std::vector<int>& downDomains);

} // namespace vxproducer
