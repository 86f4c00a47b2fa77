#pragma once

#include "base/export.h"

#include <vector>

namespace vxbase {
class UString;
}

namespace vxgraphics3d {

struct LineLegend;

/// What the root asks of the node that holds a scene's plots: its title and its legends.
///
/// The root finds it behind a child of type `NodePlotGroup` and knows nothing else of plots.
class VX_API ILegendSource {
public:
    /// Number of legends for colour tables.
    virtual int getNumberOfColorLegends() const = 0;
    /// Appends the legend entries of the graphs.
    virtual void getLineLegend(std::vector<LineLegend>& result) const = 0;
    /// Replaces `result` by the title over all plots, which is empty if none has one.
    virtual void getTotalTitle(vxbase::UString& result) const = 0;
    /// The change number of whatever shows in title or legends.
    virtual int getTitleChangeId() const = 0;

protected:
    ~ILegendSource() = default;
};

} // namespace vxgraphics3d
