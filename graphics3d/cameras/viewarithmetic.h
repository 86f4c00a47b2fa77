#pragma once

#include <cmath>

/// Small calculations that the cameras share. Angles are half angles of view in radians, computed in double precision.
namespace vxgraphics3d::view {

inline double tangent(float angle)
{
    return std::tan(static_cast<double>(angle));
}

/// The half angle that an extent covers at a distance.
inline float halfAngle(float extent, float distance)
{
    return static_cast<float>(std::atan(0.5 * static_cast<double>(extent) / static_cast<double>(distance)));
}

/// Height over width.
inline float aspect(int height, int width)
{
    return static_cast<float>(height) / static_cast<float>(width);
}

/// The distance from one pixel position to another. Both are external input, so their difference need not fit an int.
inline float pixelDistance(int from, int to)
{
    return static_cast<float>(static_cast<long long>(to) - from);
}

} // namespace vxgraphics3d::view
