#pragma once

#include "base/export.h"

#include <vector>

namespace vxgraphics3d {

/// A plot whose legend shows discrete levels instead of a continuous scale. Used by the renderer.
class VX_API IStripedLegendPlot {
public:
    /// Number of levels in the legend.
    virtual int getNumberOfLegendStripes() const = 0;
    /// Replaces the content of `values` by the data values of the levels.
    virtual void getLegendStripeValues(std::vector<double>& values) const = 0;
    virtual ~IStripedLegendPlot() = default;
};

} // namespace vxgraphics3d
