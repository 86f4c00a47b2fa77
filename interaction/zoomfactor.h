#pragma once

#include <cmath>

namespace vxinteraction {

/// The scale factor of a zoom: 2 for every step of `speed` pixels, below 1 for pixels below 0.
/// @return 0, infinity or NaN if there is no such zoom
inline float zoomFactor(float pixels, float speed)
{
    return static_cast<float>(std::exp2(static_cast<double>(pixels) / static_cast<double>(speed)));
}

/// Whether a camera can be scaled by a factor.
inline bool isZoomFactor(float factor)
{
    return std::isnormal(factor) && std::isnormal(1.0f / factor);
}

} // namespace vxinteraction
