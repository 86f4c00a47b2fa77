#pragma once

#include "graphics3d/plots/plotinput.h"

namespace vxgraphics3d {

/// What a sphere plot reads: positions, and colours and radii if the record has them.
struct SphereInput {
    SphereInput(const vxdatacarrier::PostDataView& record, int numAxes);

    /// Calls `each(i, u, radius)` for the points from 0 to the last in a loop without branches for what is missing.
    template <class Each>
    void forEachPoint(Each each) const
    {
        const auto loop = [&](auto u, auto radius) {
            const auto count = static_cast<std::size_t>(positions.count);
            for (std::size_t i = 0; i < count; ++i) {
                each(i, u(i), radius(i));
            }
        };
        const auto withRadius = [&](auto u) {
            if (radii != nullptr) {
                loop(u,
                     [values = radii](std::size_t i) { return static_cast<float>(values[i] < 0.0 ? 0.0 : values[i]); });
            } else {
                loop(u, [](std::size_t) { return 1.0f; });
            }
        };
        if (colors.values != nullptr) {
            withRadius([values = colors.values, scale = colors.scale](std::size_t i) { return scale(values[i]); });
        } else {
            withRadius([constant = colors.constant](std::size_t) { return constant; });
        }
    }

    PointPositions positions;
    PointColors colors;
    const double* radii; ///< null for 1
};

} // namespace vxgraphics3d
