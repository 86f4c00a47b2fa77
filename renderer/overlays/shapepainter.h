#pragma once

#include "graphics3d/foundation/boundingbox.h"
#include "graphics3d/foundation/color.h"
#include "renderer/paint/scenelabel.h"

#include <vector>

namespace vxgraphics3d {
class Overlay;
}

namespace vxrenderer {

class DecorationCanvas;
struct Appearance;
struct View;

/// What the shapes of an overlay are drawn with.
struct ShapeContext {
    /// From the coordinates of the overlay to the area that the canvas has entered.
    const View& view;
    /// What transformation frames enclose; empty for none.
    vxgraphics3d::BoundingBox framedBox;
    const Appearance& appearance;
    DecorationCanvas& canvas;
    /// Takes the numbers of vertices and edges.
    std::vector<SceneLabel>& labels;
};

/// Draws the shapes of an overlay: over each other in the order of the list, and over everything else.
///
/// A shape is filled first, then outlined. An object that does not use its own colours is drawn in black or white,
/// whichever contrasts with the background, and its fill lets a quarter of that through. Sizes are pixels of the
/// screen. In a picture blending must be on, and the depth test off.
void drawShapes(const vxgraphics3d::Overlay& overlay, const ShapeContext& context);

} // namespace vxrenderer
