#pragma once

#include <cmath>

/// Small sums that the cameras need in more than one place. Angles are half angles of view in radians, taken through
/// double precision.
namespace vxgraphics3d::view {

inline double tangent(float angle)
{
    return std::tan(static_cast<double>(angle));
}

/// The half angle under which an extent is seen from a distance.
inline float halfAngle(float extent, float distance)
{
    return static_cast<float>(std::atan(0.5 * static_cast<double>(extent) / static_cast<double>(distance)));
}

/// Height over width.
inline float aspect(int height, int width)
{
    return static_cast<float>(height) / static_cast<float>(width);
}

/// How far one pixel position is from another. Both come from outside, so their difference need not fit an int.
inline float pixelDistance(int from, int to)
{
    return static_cast<float>(static_cast<long long>(to) - from);
}

} // namespace vxgraphics3d::view
