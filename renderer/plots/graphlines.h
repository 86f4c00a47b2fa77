#pragma once

#include "graphics3d/foundation/color.h"
#include "graphics3d/plots/graph/graphline.h"
#include "renderer/paint/linepainter.h"

#include <vector>

namespace vxgraphics3d {
class SceneGraphPlotGraph;
}

namespace vxrenderer {

class DecorationCanvas;
struct View;

/// Lines from this width in pixels of the screen have round corners.
inline constexpr float c_roundWidth = 3.0f;

inline constexpr vxgraphics3d::Color c_unitCircleColor{128, 128, 128, 255};
/// The unit circle of a graph, in its coordinates.
std::vector<LineSegment> unitCircle();

/// The dashes of a line in a flat view, in pixels of its area.
/// @param width in pixels of the screen
/// @param scale pixels of the picture for one of them
std::vector<LineSegment> dashesOf(const vxgraphics3d::GraphLine::Version& version, LineStyle style, float width,
                                  float scale, const View& view);

/// Draws a graph of a flat view with its symbols, as `GraphPainter` does.
/// @param opacity of the scene
/// @param scale pixels of the picture for a pixel of the screen
/// @param logAxes which axes are logarithmic: bit 0 for x, bit 1 for y
void drawGraph(const vxgraphics3d::SceneGraphPlotGraph& graph, const View& view, float opacity, float scale,
               int logAxes, DecorationCanvas& canvas);

} // namespace vxrenderer
