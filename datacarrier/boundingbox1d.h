#pragma once

namespace vxdatacarrier {

/// The limits of geometry in one dimension.
struct BoundingBox1D {
    float m_xMin = 0.0f;
    float m_xMax = 0.0f;
};

} // namespace vxdatacarrier
