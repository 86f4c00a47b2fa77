#pragma once

#include "renderer/paint/paintcontext.h"
#include "renderer/plots/plotpainter.h"

#include <array>
#include <optional>

namespace vxrenderer {

/// How the data of a plot look: where they are drawn, and the few numbers in addition to its buffers that turn the
/// texture coordinate of the vertices into a colour, so that new legend limits or restrictions need no new buffers.
/// Binds the colour table for what is drawn next.
/// @return nothing if the plot's restriction hides all of it
std::optional<Look> lookOf(const PlotItem& item, const PaintContext& context);

/// The texture coordinates that the restriction of a plot does not hide, the first above the second if it hides all;
/// the limits of floats where there is none.
std::array<float, 2> shownTextureRange(const vxgraphics3d::SceneGraphPlot& plot);

} // namespace vxrenderer
