#pragma once

#include "graphics3d/foundation/boundingbox.h"
#include "graphics3d/foundation/vector3f.h"
#include "renderer/axes/gridbox.h"
#include "renderer/frame/frame.h"
#include "renderer/frame/pointrun.h"
#include "renderer/objects/objectpainter.h"
#include "renderer/paint/scenelabel.h"
#include "renderer/plots/plotpainter.h"

#include <variant>
#include <vector>

namespace vxgraphics3d {
class SceneGraphRoot;
}

namespace vxrenderer {

/// What is drawn by itself.
using SceneItem = std::variant<PlotItem, ObjectItem>;

/// What is to be drawn of a scene, in the order of the tree: plots that are active and have something to show, and
/// objects that are active, under nodes that are all active.
std::vector<SceneItem> collectItems(const vxgraphics3d::SceneGraphRoot& root);

/// The box of all items in a flat view, with unit circles.
/// @param logAxes which axes are logarithmic: bit 0 for x, bit 1 for y. Graphs have boxes of their own for these; what
///                else is shown holds logarithms.
vxgraphics3d::BoundingBox boxOf(const std::vector<SceneItem>& items, int logAxes);

/// The box of a scene in space: that of its tree, and of the items that have none of their own.
vxgraphics3d::BoundingBox boxInSpace(const vxgraphics3d::SceneGraphRoot& root, const std::vector<SceneItem>& items);

/// Passes on the points of all items that a frame draws.
void visitPoints(const std::vector<SceneItem>& items, const Frame& frame, const TakePoints& take);

/// The labels that a frame draws with its items: those of points, contours and parts.
std::vector<SceneLabel> labelsOf(const std::vector<SceneItem>& items, const Frame& frame);

/// How z coordinates in space become values of the data: where all plots are raised by the same factor and height
/// scale, the axis has the heights. The factor is known of a plot whose values are its heights, and of others that have
/// the same heights at the same points. Plots in one plane do not count. In other scenes the coordinates themselves are
/// the values.
AxisUnits heightUnitsOf(const std::vector<SceneItem>& items);

/// Whether there is a plot that is not a graph, and may cover the grid.
bool hasPlotsBesidesGraphs(const std::vector<SceneItem>& items);

/// The middle of the box of an item.
vxgraphics3d::Vector3f centerOf(const SceneItem& item);

} // namespace vxrenderer
