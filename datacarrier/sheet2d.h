#pragma once

#include "datacarrier/boundingbox2d.h"
#include "datacarrier/geometryvalues.h"

#include <memory>

namespace vxdatacarrier {

/// A triangulated area of the plane.
struct Sheet2D {
    /// Whether the sheet has geometry. One without keeps its index, so that relations need no change.
    bool m_isValid = false;
    BoundingBox2D m_box;
    std::unique_ptr<Coords2D[]> m_vertices;
    int m_numVertices = 0;
    /// Corners are indices of `m_vertices`.
    std::unique_ptr<Triangle[]> m_triangles;
    int m_numTriangles = 0;
};

} // namespace vxdatacarrier
