#pragma once

#include "graphics3d/plots/scenegraphplot.h"

#include <boost/shared_ptr.hpp>

#include <memory>
#include <vector>

namespace vxgraphics3d {
class SceneGraphPlotGroup;
}

namespace vxrenderer {

struct PaintContext;

/// A plot as it appears in the scene.
struct PlotItem {
    boost::shared_ptr<const vxgraphics3d::SceneGraphPlotGroup> group;
    boost::shared_ptr<const vxgraphics3d::SceneGraphPlot> plot;
};

/// Draws one family of plots. A new family is a class of its own and a line in `makePlotPainters`.
class PlotPainter {
public:
    virtual ~PlotPainter() = default;

    virtual bool draws(vxgraphics3d::SceneGraphPlot::PlotType type) const = 0;
    /// Draws a plot of such a type, which is active and valid.
    virtual void draw(const PlotItem& item, const PaintContext& context) const = 0;
};

using PlotPainters = std::vector<std::unique_ptr<PlotPainter>>;

/// The painters of all families that are drawn; plots of other types are left out.
PlotPainters makePlotPainters();

} // namespace vxrenderer
