#pragma once

#include "base/export.h"
#include "datacarrier/adjacencyrecord.h"
#include "datacarrier/boundingbox2d.h"
#include "datacarrier/curve2d.h"
#include "datacarrier/geometryrecord.h"
#include "datacarrier/sheet2d.h"

#include <memory>
#include <vector>

namespace vxdatacarrier {

/// Geometry in the plane: areas, curves and points, and which touch which.
class VX_API Geometry2D : public GeometryRecord {
public:
    BoundingBox2D m_box;
    std::unique_ptr<Sheet2D[]> m_sheets;
    int m_numSheets = 0;
    std::unique_ptr<Curve2D[]> m_curves;
    int m_numCurves = 0;
    std::unique_ptr<Coords2D[]> m_points;
    int m_numPoints = 0;
    AdjacencyRecord m_sheetToLine;
    AdjacencyRecord m_lineToPoint;
    AdjacencyRecord m_sheetToPoint;
    AdjacencyRecord m_pointToLine;
    AdjacencyRecord m_pointToSheet;
    AdjacencyRecord m_lineToSheet;
    /// The exact coordinates of the points, of equal number.
    std::vector<double> m_snapX;
    std::vector<double> m_snapY;
};

} // namespace vxdatacarrier
