#pragma once

#include "datacarrier/boundingbox2d.h"
#include "datacarrier/geometryvalues.h"

#include <memory>

namespace vxdatacarrier {

/// A polyline in the plane, by its vertices in their order.
struct Curve2D {
    /// Whether the curve has geometry. One without keeps its index, so that relations need no change.
    bool m_isValid = false;
    BoundingBox2D m_box;
    std::unique_ptr<Coords2D[]> m_vertices;
    int m_numVertices = 0;
};

} // namespace vxdatacarrier
