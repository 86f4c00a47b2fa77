#pragma once

#include "datacarrier/boundingbox1d.h"

#include <memory>

namespace vxdatacarrier {

/// A polyline on an axis, by the coordinates of its vertices in their order.
struct Curve1D {
    /// Whether the curve has geometry. One without keeps its index, so that relations need no change.
    bool m_isValid = false;
    BoundingBox1D m_box;
    std::unique_ptr<float[]> m_vertices;
    int m_numVertices = 0;
};

} // namespace vxdatacarrier
