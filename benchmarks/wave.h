#pragma once

#include <cmath>
#include <cstddef>
#include <vector>

namespace vxgraphics3d {

/// Data for a benchmark: a sine by index.
inline std::vector<double> wave(std::size_t count, double frequency, double mean = 0.0)
{
    std::vector<double> values(count);
    for (std::size_t i = 0; i < count; ++i) {
        values[i] = mean + std::sin(frequency * static_cast<double>(i + 1));
    }
    return values;
}

} // namespace vxgraphics3d
