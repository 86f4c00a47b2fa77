#pragma once

#include "graphics3d/plots/plotinput.h"

#include <cstddef>
#include <limits>
#include <optional>

namespace vxgraphics3d {

/// What the fill of one line of a graph reads. The pointers lead into the record.
struct GraphPoints {
    GraphPoints(const vxdatacarrier::PostDataView& record, int group);

    /// Whether both coordinates of a point are in the range of float. NaN and infinities are not.
    bool isInRange(std::size_t point) const { return isInRange(x[point]) && isInRange(y[point]); }

    int count;
    const double* x;
    const double* y;
    std::optional<LineEnds> edges; ///< without edges the points form the line in their order

private:
    static bool isInRange(double value)
    {
        constexpr auto largest = static_cast<double>(std::numeric_limits<float>::max());
        return value >= -largest && value <= largest;
    }
};

} // namespace vxgraphics3d
