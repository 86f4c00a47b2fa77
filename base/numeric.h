#pragma once

#include <cmath>
#include <limits>

namespace vxbase {

/// Positive infinity.
constexpr double vxGetInf()
{
    return std::numeric_limits<double>::infinity();
}

/// Whether a value is not finite: not a number, or infinite with either sign.
inline bool vxIsNaNorInf(double value)
{
    return !std::isfinite(value);
}

} // namespace vxbase
