#include "graphics3d/geometry/frustrumtest.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

namespace vxgraphics3d {
namespace {

// For each vertex p, FrustrumPlane::isInside evaluates s = nx (px - qx) + ny (py - qy) + nz (pz - qz) in float, with
// the normal n and the point q of the plane. Each of the three terms is rounded at most four times: by its subtraction,
// its product and up to two sums. So the float result differs from s by less than 4.001 / 2^24 of
//     m = |nx (px - qx)| + |ny (py - qy)| + |nz (pz - qz)|,
// plus at most 3 / 2^149 if products are too small for normal floats. The limits of the vertices give bounds of s and m
// over all of them, which are computed in double with an error below 2^-49 m. So the sign of the float result is
// certain for every vertex if the bound of s is further from 0 than the margin below, which is twice what is needed.
constexpr double c_relativeMargin = 0x1p-21;
constexpr double c_absoluteMargin = 0x1p-140;

// The above holds as long as no float operation overflows: no coordinate is larger than this, so no difference is
// larger than 2^126, and m is not larger than 2^126 either.
constexpr double c_largest = 0x1p125;

bool isBounded(const Vector3f& v)
{
    const float largest = std::max({std::fabs(v.x), std::fabs(v.y), std::fabs(v.z)});
    return static_cast<double>(largest) <= c_largest;
}

std::array<double, 3> toDouble(const Vector3f& v)
{
    return {static_cast<double>(v.x), static_cast<double>(v.y), static_cast<double>(v.z)};
}

} // namespace

FrustrumTest::FrustrumTest(const SelectionFrustrum& frustrum) : m_frustrum(frustrum)
{
    for (std::size_t i = 0; i < m_planes.size(); ++i) {
        const SelectionFrustrum::FrustrumPlane& plane = frustrum.getPlanes()[i];
        m_planes[i] = {toDouble(plane.point), toDouble(plane.normal)};
        m_isBounded = m_isBounded && isBounded(plane.point);
    }
}

FrustrumTest::Location FrustrumTest::locate(const VertexExtent& extent) const
{
    if (!m_isBounded || !extent.isKnown() || !isBounded(extent.getMin()) || !isBounded(extent.getMax())) {
        return Undecided;
    }
    const std::array<double, 3> min = toDouble(extent.getMin());
    const std::array<double, 3> max = toDouble(extent.getMax());
    bool areAllInside = true;
    for (std::size_t i = 0; i < m_planes.size(); ++i) {
        const Plane& plane = m_planes[(m_firstPlane + i) % m_planes.size()];
        double lowest = 0.0;
        double highest = 0.0;
        double magnitude = 0.0;
        for (std::size_t axis = 0; axis < 3; ++axis) {
            const double atMin = plane.normal[axis] * (min[axis] - plane.point[axis]);
            const double atMax = plane.normal[axis] * (max[axis] - plane.point[axis]);
            lowest += std::min(atMin, atMax);
            highest += std::max(atMin, atMax);
            magnitude += std::max(std::abs(atMin), std::abs(atMax));
        }
        const double margin = c_relativeMargin * magnitude + c_absoluteMargin;
        if (!(magnitude <= 2.0 * c_largest)) {
            return Undecided;
        }
        if (highest < -margin) {
            m_firstPlane = (m_firstPlane + i) % m_planes.size();
            return AllOutside;
        }
        areAllInside = areAllInside && lowest > margin;
    }
    return areAllInside ? AllInside : Undecided;
}

} // namespace vxgraphics3d
