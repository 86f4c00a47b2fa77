#pragma once

#include "datacarrier/geometry1d.h"
#include "datacarrier/geometry2d.h"
#include "datacarrier/geometry3d.h"
#include "graphics3d/foundation/boundingbox.h"

#include <vector>

namespace vxgraphics3d {

class LineCollection;
class PointCollection;
class SheetCollection;
class SubdomainCollection;

// Boxes of records; missing axes are 0.

BoundingBox boxOf(const vxdatacarrier::BoundingBox1D& box);
BoundingBox boxOf(const vxdatacarrier::BoundingBox2D& box);
BoundingBox boxOf(const vxdatacarrier::BoundingBox3D& box);

// Replaces the parts of a collection by those of a record that has been checked. Parts without geometry keep their
// indices.

void fillPoints(PointCollection& points, const vxdatacarrier::Geometry1D& record);
void fillPoints(PointCollection& points, const vxdatacarrier::Geometry2D& record);
void fillPoints(PointCollection& points, const vxdatacarrier::Geometry3D& record);
void fillLines(LineCollection& lines, const vxdatacarrier::Curve1D* curves, int count);
void fillLines(LineCollection& lines, const vxdatacarrier::Curve2D* curves, int count);
void fillLines(LineCollection& lines, const vxdatacarrier::Curve3D* curves, int count);
/// Adds a single line.
/// @param polyline for the vertices; its memory is used again
void addLine(LineCollection& lines, const vxdatacarrier::Curve2D& curve, std::vector<Vector3f>& polyline);
/// Vertices in the plane get the normal (0, 0, 1).
void fillSheets(SheetCollection& sheets, const vxdatacarrier::Geometry2D& record);
void fillSheets(SheetCollection& sheets, const vxdatacarrier::Geometry3D& record);
void fillSubdomains(SubdomainCollection& subdomains, const vxdatacarrier::Geometry3D& record);

} // namespace vxgraphics3d
