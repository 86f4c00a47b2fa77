#pragma once

#include "base/export.h"

#include <vector>

namespace vxbase {
class UString;
}

namespace vxgraphics3d {

struct LineLegend;

/// What the root requires of the node that holds a scene's plots: its title and its legends.
///
/// The root reaches it through a child of type `NodePlotGroup` and knows nothing else of plots.
class VX_API ILegendSource {
public:
    /// Number of colour table legends.
    virtual int getNumberOfColorLegends() const = 0;
    /// Appends the legend entries of the graphs.
    virtual void getLineLegend(std::vector<LineLegend>& result) const = 0;
    /// Replaces `result` by the title of all plots, which is empty if none has one.
    virtual void getTotalTitle(vxbase::UString& result) const = 0;
    /// The change number of everything visible in title or legends.
    virtual int getTitleChangeId() const = 0;

protected:
    ~ILegendSource() = default;
};

} // namespace vxgraphics3d
