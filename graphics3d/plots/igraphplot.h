#pragma once

#include "base/export.h"

#include <vector>

namespace vxgraphics3d {

class BoundingBox;
struct LineLegend;

/// What a plot group requires of its graphs in addition to every plot's interface. Every plot of the type
/// SceneGraphPlot::PlotType::graph implements it.
class VX_API IGraphPlot {
public:
    /// The box for logarithmic axes: bit 0 of `axes` stands for x, bit 1 for y. Empty while the plot is inactive.
    virtual const BoundingBox& getBoundingBoxLog(int axes) const = 0;
    /// Appends one entry for each line in the legend, in order.
    virtual void getLineLegendData(std::vector<LineLegend>& result) const = 0;

protected:
    ~IGraphPlot() = default;
};

} // namespace vxgraphics3d
