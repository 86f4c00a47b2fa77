#pragma once

#include "graphics3d/foundation/boundingbox.h"

#include <algorithm>
#include <limits>

namespace vxgraphics3d {

/// The limits of the points of one version of a graph.
struct GraphLimits {
    static constexpr float c_largest = std::numeric_limits<float>::max();

    void cover(float x, float y)
    {
        minX = std::min(minX, x);
        maxX = std::max(maxX, x);
        minY = std::min(minY, y);
        maxY = std::max(maxY, y);
    }
    void merge(const GraphLimits& other)
    {
        minX = std::min(minX, other.minX);
        maxX = std::max(maxX, other.maxX);
        minY = std::min(minY, other.minY);
        maxY = std::max(maxY, other.maxY);
    }
    /// The box in the plane z = 0; without points the limits are 0.
    BoundingBox box() const
    {
        const bool hasX = minX != c_largest && maxX != -c_largest;
        const bool hasY = minY != c_largest && maxY != -c_largest;
        return {hasX ? minX : 0.0f, hasX ? maxX : 0.0f, hasY ? minY : 0.0f, hasY ? maxY : 0.0f, 0.0f, 0.0f};
    }

    float minX = c_largest;
    float maxX = -c_largest;
    float minY = c_largest;
    float maxY = -c_largest;
};

} // namespace vxgraphics3d
