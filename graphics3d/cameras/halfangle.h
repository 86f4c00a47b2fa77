#pragma once

#include <cmath>

namespace vxgraphics3d {

/// Half an angle of view in radians, with its tangent in double precision: every step of a drag uses the tangent, which
/// changes only with the angle.
class HalfAngle {
public:
    HalfAngle() = default;
    explicit HalfAngle(float radians) : m_radians(radians), m_tangent(std::tan(static_cast<double>(radians))) {}

    float radians() const { return m_radians; }
    double tangent() const { return m_tangent; }

private:
    float m_radians = 0.0f;
    double m_tangent = 0.0;
};

} // namespace vxgraphics3d
