#pragma once

#include <cstddef>
#include <functional>

namespace vxrenderer {

/// Points that something is drawn from, as they are stored: three floats each, at equal distances.
struct PointRun {
    const float* first = nullptr;
    /// From one point to the next, in floats.
    std::size_t stride = 3;
    std::size_t count = 0;
    /// What z is multiplied by and then moved by, as those of a plot.
    float heightScale = 1.0f;
    float planeOffset = 0.0f;
    /// Radii of spheres about the points, at the same distances; null for bare points.
    const float* radius = nullptr;
    float radiusScale = 1.0f;
};

/// Receives points, which exist only during the call.
using TakePoints = std::function<void(const PointRun&)>;

} // namespace vxrenderer
