#pragma once

#include "base/export.h"
#include "datacarrier/adjacencyrecord.h"
#include "datacarrier/boundingbox1d.h"
#include "datacarrier/curve1d.h"
#include "datacarrier/geometryrecord.h"

#include <memory>
#include <vector>

namespace vxdatacarrier {

/// Geometry in one dimension: intervals and points, and which touch which.
class VX_API Geometry1D : public GeometryRecord {
public:
    BoundingBox1D m_box;
    std::unique_ptr<Curve1D[]> m_curves;
    int m_numCurves = 0;
    std::unique_ptr<float[]> m_points;
    int m_numPoints = 0;
    AdjacencyRecord m_lineToPoint;
    AdjacencyRecord m_pointToLine;
    /// The exact coordinates of the points.
    std::vector<double> m_snapX;
};

} // namespace vxdatacarrier
