#pragma once

#include "graphics3d/foundation/color.h"
#include "renderer/frame/view.h"

namespace vxrenderer {

class LinePainter;

/// Draws the border of the area of a scene where the scene reaches beyond it, on sides that are not borders of the
/// picture. It compares depths, so it comes after everything that writes them; the viewport is the area.
/// @param width,height of the whole picture
/// @param lineWidth in pixels
void drawCutFrame(const View& view, int width, int height, float lineWidth, const vxgraphics3d::Color& color,
                  const LinePainter& painter);

} // namespace vxrenderer
