#pragma once

#include "base/export.h"
#include "datacarrier/renderdrawproj2d.h"

#include <string>
#include <vector>

namespace vxproducer {

/// What a record of projected geometry is made of.
struct ProjectionParts {
    using DoubleArrays = std::vector<std::vector<double>>;

    int id = 0;
    std::string name = {};
    /// x and y of all points: two arrays, or none.
    DoubleArrays points = {};
    /// One per point: `RenderDrawProj2D::c_primary` for the first class, any other number for the second.
    std::vector<int> pointKinds = {};
    /// x and y of the vertices of each polyline. A curve without arrays has no geometry and only keeps its index.
    std::vector<DoubleArrays> curves = {};
    /// One per curve, as those of the points.
    std::vector<int> curveKinds = {};
};

/// Makes a record of projected geometry, with boxes and snap coordinates.
/// @throws std::invalid_argument if arrays do not fit together; the message names the array
VX_API vxdatacarrier::RenderDrawProj2D buildProjection(const ProjectionParts& parts);

} // namespace vxproducer
