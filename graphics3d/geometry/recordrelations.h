#pragma once

#include "datacarrier/adjacencyrecord.h"
#include "datacarrier/geometry1d.h"
#include "datacarrier/geometry2d.h"
#include "datacarrier/geometry3d.h"

namespace vxgraphics3d {

// The relation between two levels of parts in a record of geometry, or null if records of that dimension have none.

const vxdatacarrier::AdjacencyRecord* relationOf(const vxdatacarrier::Geometry1D& record, int level, int adjacentLevel);
const vxdatacarrier::AdjacencyRecord* relationOf(const vxdatacarrier::Geometry2D& record, int level, int adjacentLevel);
const vxdatacarrier::AdjacencyRecord* relationOf(const vxdatacarrier::Geometry3D& record, int level, int adjacentLevel);

// The number of parts of a level in a record.

int numPartsOf(const vxdatacarrier::Geometry1D& record, int level);
int numPartsOf(const vxdatacarrier::Geometry2D& record, int level);
int numPartsOf(const vxdatacarrier::Geometry3D& record, int level);

} // namespace vxgraphics3d
