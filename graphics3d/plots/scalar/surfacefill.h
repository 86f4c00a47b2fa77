#pragma once

#include "datacarrier/postdataobject.h"
#include "graphics3d/plots/valuescale.h"

#include <vector>

namespace vxgraphics3d {

class IndexBufferTriangles;
class VertexBufferNormalTex;

// Points and triangles of one group of a record, straight into the buffers. The arrays are those that PostDataView
// hands out; `values` holds one value per point, or is null for vertices without texture coordinate (0).

/// Appends every point with its normal to a buffer that has room for them.
void appendPoints(VertexBufferNormalTex& vertices, const vxdatacarrier::PostDataObject::DoubleArrays& coordinates,
                  const vxdatacarrier::PostDataObject::FloatArrays& normals, const std::vector<double>* values,
                  const ValueScale& scale);

/// Appends every point in the plane to a buffer that has room for them: z is 0, whatever else the coordinates hold, and
/// the normal (0, 0, 1).
void appendFlatPoints(VertexBufferNormalTex& vertices, const vxdatacarrier::PostDataObject::DoubleArrays& coordinates,
                      const std::vector<double>* values, const ValueScale& scale);

/// Allocates one segment for all elements and appends them as they stand. The vertex buffer must have been allocated.
void fillTriangles(IndexBufferTriangles& triangles, const vxdatacarrier::PostDataObject::IntArrays& elements);

} // namespace vxgraphics3d
