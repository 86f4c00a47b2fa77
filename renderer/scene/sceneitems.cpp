#include "renderer/scene/sceneitems.h"

#include "graphics3d/parts/markingsetups.h"
#include "graphics3d/plots/graph/scenegraphplotgraph.h"
#include "graphics3d/plots/scenegraphplotgroup.h"
#include "graphics3d/scenegraph/scenegraphgroup.h"
#include "graphics3d/scenegraph/scenegraphroot.h"
#include "graphics3d/settings/canvas3dglobalsettings.h"
#include "renderer/frame/seenextent.h"
#include "renderer/objects/objectbox.h"
#include "renderer/objects/objectlabels.h"
#include "renderer/objects/objectpoints.h"
#include "renderer/plots/heightfactor.h"
#include "renderer/plots/plotlabels.h"
#include "renderer/plots/plotpoints.h"

#include <boost/pointer_cast.hpp>

#include <algorithm>
#include <cmath>
#include <optional>

namespace vxrenderer {
namespace {

using vxgraphics3d::BoundingBox;
using vxgraphics3d::SceneGraphGroup;
using vxgraphics3d::SceneGraphNode;
using vxgraphics3d::SceneGraphObject;
using vxgraphics3d::SceneGraphPlotGraph;
using vxgraphics3d::SceneGraphPlotGroup;
using vxgraphics3d::SceneGraphRoot;

/// The relative difference of factors that are the same except for rounding.
constexpr double c_sameScale = 1e-3;

void addPlots(const SceneGraphNode& node, std::vector<SceneItem>& items)
{
    const auto group = boost::dynamic_pointer_cast<const SceneGraphPlotGroup>(node.self());
    if (!group) {
        return;
    }
    for (auto [plot, end] = group->getPlots(); plot != end; ++plot) {
        if (plot->second->isActive() && plot->second->isValid()) {
            items.push_back(PlotItem{group, plot->second});
        }
    }
}

/// The box of an interactive plot, which has none of its own; empty for all others.
BoundingBox boxOfInteractive(const vxgraphics3d::SceneGraphPlot& plot)
{
    PointBox points;
    if (plot.getType() == vxgraphics3d::PlotType::interactive) {
        visitPlotPoints(plot, [&points](const PointRun& run) { points.add(run); });
    }
    return points.get();
}

const vxgraphics3d::MarkingModeSetup& markingsOf(const Frame& frame)
{
    return vxgraphics3d::Canvas3dGlobalSettings::getInstance()->getMarkingSetups().getMarkingModeSetup(
        frame.appearance.markingMode);
}

struct RaisedPlot {
    const vxgraphics3d::SceneGraphPlot& plot;
    /// As far as its own values say.
    std::optional<double> factor;
};

/// The factor of the heights of a plot: by its own values, or that of a plot with the same heights.
std::optional<double> factorOf(const RaisedPlot& plot, const std::vector<RaisedPlot>& all)
{
    const auto isTwin = [&](const RaisedPlot& other) { return other.factor && haveSameHeights(plot.plot, other.plot); };
    const auto twin = plot.factor ? all.end() : std::ranges::find_if(all, isTwin);
    return twin == all.end() ? plot.factor : twin->factor;
}

const SceneGraphPlotGraph* graphOf(const SceneItem& item)
{
    const auto* plot = std::get_if<PlotItem>(&item);
    const bool isGraph = plot != nullptr && plot->plot->getType() == vxgraphics3d::PlotType::graph;
    return isGraph ? static_cast<const SceneGraphPlotGraph*>(plot->plot.get()) : nullptr;
}

} // namespace

std::vector<SceneItem> collectItems(const SceneGraphRoot& root)
{
    std::vector<SceneItem> items;
    // A list of open nodes instead of calls: groups may be nested deeper than any stack.
    std::vector<const SceneGraphNode*> open;
    if (root.isActive() && root.doesChildExist(0)) {
        open.push_back(root.getChild(0));
    }
    while (!open.empty()) {
        const SceneGraphNode* node = open.back();
        open.pop_back();
        if (!node->isActive()) {
            continue;
        }
        if (node->getType() == SceneGraphNode::NodePlotGroup) {
            addPlots(*node, items);
        } else if (node->getType() == SceneGraphNode::NodeObject) {
            items.push_back(boost::static_pointer_cast<const SceneGraphObject>(node->self()));
        } else if (node->getType() == SceneGraphNode::NodeGroup) {
            // The last child first, so that the first one is taken up next.
            auto [first, child] = static_cast<const SceneGraphGroup*>(node)->getChildren();
            while (child != first) {
                --child;
                open.push_back(child->second.get());
            }
        }
    }
    return items;
}

BoundingBox boxOf(const std::vector<SceneItem>& items, int logAxes)
{
    BoundingBox box;
    for (const SceneItem& item : items) {
        if (const SceneGraphPlotGraph* graph = graphOf(item)) {
            box.merge(graph->getBoundingBoxLog(logAxes));
            if (graph->isShowUnitCircle() && logAxes == 0) {
                box.merge(BoundingBox(-1.0f, 1.0f, -1.0f, 1.0f, 0.0f, 0.0f));
            }
        } else if (const auto* plot = std::get_if<PlotItem>(&item)) {
            box.merge(plot->plot->getBoundingBox());
            box.merge(boxOfInteractive(*plot->plot));
        } else {
            box.merge(boxOf(*std::get<ObjectItem>(item)));
        }
    }
    return box;
}

BoundingBox boxInSpace(const SceneGraphRoot& root, const std::vector<SceneItem>& items)
{
    BoundingBox box = root.getBoundingBox();
    for (const SceneItem& item : items) {
        const auto* object = std::get_if<ObjectItem>(&item);
        if (object != nullptr && !(*object)->getBoundingBox().isValid()) {
            box.merge(boxOf(**object));
        }
        if (const auto* plot = std::get_if<PlotItem>(&item)) {
            box.merge(boxOfInteractive(*plot->plot));
        }
    }
    return box;
}

std::vector<SceneLabel> labelsOf(const std::vector<SceneItem>& items, const Frame& frame)
{
    const unsigned mask = frame.canvas.getRenderMask();
    std::vector<SceneLabel> labels;
    const TakeLabel take = [&labels](const SceneLabel& label) { labels.push_back(label); };
    for (const SceneItem& item : items) {
        if (const auto* plot = std::get_if<PlotItem>(&item)) {
            if ((mask & RenderPlots) != 0) {
                visitPlotLabels(*plot->plot, take);
            }
        } else if ((mask & RenderObjects) != 0 && frame.appearance.showLabels) {
            visitObjectLabels(*std::get<ObjectItem>(item), markingsOf(frame), take);
        }
    }
    return labels;
}

void visitPoints(const std::vector<SceneItem>& items, const Frame& frame, const TakePoints& take)
{
    const unsigned mask = frame.canvas.getRenderMask();
    for (const SceneItem& item : items) {
        if (const auto* plot = std::get_if<PlotItem>(&item)) {
            if ((mask & RenderPlots) != 0) {
                visitPlotPoints(*plot->plot, take);
            }
        } else if ((mask & RenderObjects) != 0) {
            visitObjectPoints(*std::get<ObjectItem>(item), markingsOf(frame), take);
        }
    }
}

AxisUnits heightUnitsOf(const std::vector<SceneItem>& items)
{
    std::vector<RaisedPlot> raised;
    for (const SceneItem& item : items) {
        const auto* shown = std::get_if<PlotItem>(&item);
        if (shown == nullptr) {
            return {};
        }
        if (shown->plot->getBoundingBox().getHalfSizeZ() > 0.0f) {
            raised.push_back({*shown->plot, heightFactorOf(*shown->plot)});
        }
    }
    std::optional<AxisUnits> shared;
    for (const RaisedPlot& plot : raised) {
        const std::optional<double> factor = factorOf(plot, raised);
        if (!factor) {
            return {};
        }
        const AxisUnits units = {static_cast<double>(plot.plot.getPlotPlaneOffset()),
                                 *factor * static_cast<double>(plot.plot.getHeightScale())};
        if (shared && std::abs(shared->scale - units.scale) > c_sameScale * units.scale) {
            return {};
        }
        const bool isSame = !shared || shared->offset == units.offset;
        shared = {isSame ? units.offset : 0.0, units.scale};
    }
    return shared.value_or(AxisUnits());
}

bool hasPlotsBesidesGraphs(const std::vector<SceneItem>& items)
{
    return std::ranges::any_of(items, [](const SceneItem& item) {
        return std::holds_alternative<PlotItem>(item) && graphOf(item) == nullptr;
    });
}

vxgraphics3d::Vector3f centerOf(const SceneItem& item)
{
    if (const auto* plot = std::get_if<PlotItem>(&item)) {
        return plot->plot->getBoundingBox().getCenter();
    }
    return boxOf(*std::get<ObjectItem>(item)).getCenter();
}

} // namespace vxrenderer
