#pragma once

#include "base/export.h"
#include "datacarrier/boundingbox2d.h"
#include "datacarrier/curve2d.h"
#include "datacarrier/geometryrecord.h"
#include "datacarrier/geometryvalues.h"

#include <memory>
#include <vector>

namespace vxdatacarrier {

/// Geometry projected to a plane: curves and points of two classes.
class VX_API RenderDrawProj2D : public GeometryRecord {
public:
    /// The kind of the first class; any other kind is of the second.
    static constexpr int c_primary = 1;

    std::string getTypeName() const override { return "RenderDrawProj2D"; }

    BoundingBox2D m_box;
    std::unique_ptr<Curve2D[]> m_curves;
    int m_numCurves = 0;
    /// One kind for each curve.
    std::unique_ptr<int[]> m_curveKinds;
    std::unique_ptr<Coords2D[]> m_points;
    int m_numPoints = 0;
    /// One kind for each point.
    std::unique_ptr<int[]> m_pointKinds;
    /// The exact coordinates of the points, of equal number.
    std::vector<double> m_snapX;
    std::vector<double> m_snapY;
};

} // namespace vxdatacarrier
