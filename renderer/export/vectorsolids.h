#pragma once

#include "renderer/paint/overlaypainter.h"
#include "renderer/paint/solidpainter.h"

struct _cairo;

namespace vxrenderer {

/// Draws a body as filled shapes whose gradients have the shading of `SolidPainter`.
/// @param origin the pixel from which its positions are counted; these are pixels too, with y upwards
void drawSolidAsVectors(_cairo& context, const Solid& solid, PixelPoint origin);

} // namespace vxrenderer
