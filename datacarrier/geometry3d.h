#pragma once

#include "base/export.h"
#include "datacarrier/adjacencyrecord.h"
#include "datacarrier/boundingbox3d.h"
#include "datacarrier/curve3d.h"
#include "datacarrier/geometryrecord.h"
#include "datacarrier/sheet3d.h"

#include <memory>

namespace vxdatacarrier {

/// Geometry in space: subdomains, sheets, curves and points, and which touch which.
class VX_API Geometry3D : public GeometryRecord {
public:
    BoundingBox3D m_box;
    /// Subdomains have no geometry of their own, only a box.
    std::unique_ptr<BoundingBox3D[]> m_subdomains;
    int m_numSubdomains = 0;
    std::unique_ptr<Sheet3D[]> m_sheets;
    int m_numSheets = 0;
    std::unique_ptr<Curve3D[]> m_curves;
    int m_numCurves = 0;
    std::unique_ptr<Coords3D[]> m_points;
    int m_numPoints = 0;
    AdjacencyRecord m_subdomainToSheet;
    AdjacencyRecord m_subdomainToLine;
    AdjacencyRecord m_subdomainToPoint;
    AdjacencyRecord m_sheetToLine;
    AdjacencyRecord m_sheetToPoint;
    AdjacencyRecord m_lineToPoint;
    AdjacencyRecord m_pointToLine;
    AdjacencyRecord m_pointToSheet;
    AdjacencyRecord m_pointToSubdomain;
    AdjacencyRecord m_lineToSheet;
    AdjacencyRecord m_lineToSubdomain;
    AdjacencyRecord m_sheetToSubdomain;
};

} // namespace vxdatacarrier
