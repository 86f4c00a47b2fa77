#pragma once

#include "base/export.h"
#include "graphics3d/foundation/vector3f.h"

#include <limits>

namespace vxgraphics3d {

/// The exact limits of the vertices of a part, by which a pick decides early. Unlike the part's box, which comes from
/// its record, they can be relied on.
class VX_API VertexExtent {
public:
    void include(const Vector3f& p)
    {
        m_min = {lower(p.x, m_min.x), lower(p.y, m_min.y), lower(p.z, m_min.z)};
        m_max = {lower(-p.x, m_max.x), lower(-p.y, m_max.y), lower(-p.z, m_max.z)};
        // Not a number as soon as one coordinate is not finite.
        m_check += (p.x - p.x) + (p.y - p.y) + (p.z - p.z);
    }

    /// Whether there are vertices and all are finite; otherwise there are no limits.
    bool isKnown() const { return m_check == 0.0f && m_min.x <= -m_max.x; }
    Vector3f getMin() const { return m_min; }
    Vector3f getMax() const { return -m_max; }

private:
    static constexpr float c_infinity = std::numeric_limits<float>::infinity();
    static float lower(float a, float b) { return a < b ? a : b; }

    Vector3f m_min{c_infinity, c_infinity, c_infinity};
    /// The negative limits.
    Vector3f m_max{c_infinity, c_infinity, c_infinity};
    float m_check = 0.0f;
};

} // namespace vxgraphics3d
