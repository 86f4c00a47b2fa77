#pragma once

#include "graphics3d/plots/scenegraphplot.h"

#include <boost/shared_ptr.hpp>

#include <memory>
#include <vector>

namespace vxgraphics3d {
class SceneGraphPlotGroup;
}

namespace vxrenderer {

class ColorTextures;
class MeshCache;
struct Lighting;
struct View;

/// A plot as it stands in the scene.
struct PlotItem {
    boost::shared_ptr<const vxgraphics3d::SceneGraphPlotGroup> group;
    boost::shared_ptr<const vxgraphics3d::SceneGraphPlot> plot;
};

/// What all painters of a frame share.
struct PaintContext {
    const View& view;
    const Lighting& lighting;
    /// From 0 to 1; below 1, what lies behind shines through.
    float opacity;
    MeshCache& meshes;
    ColorTextures& colorTextures;
};

/// Draws one family of plots. A new family is a class of its own and a line in `makePlotPainters`.
class PlotPainter {
public:
    virtual ~PlotPainter() = default;

    virtual bool draws(vxgraphics3d::SceneGraphPlot::PlotType type) const = 0;
    /// Draws a plot of such a type, which is active and valid.
    virtual void draw(const PlotItem& item, const PaintContext& context) = 0;
};

/// The painters of all families that are drawn; plots of other types are left out.
std::vector<std::unique_ptr<PlotPainter>> makePlotPainters();

} // namespace vxrenderer
