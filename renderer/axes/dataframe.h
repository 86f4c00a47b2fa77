#pragma once

#include "renderer/frame/pixelarea.h"

namespace vxgraphics3d {
class BoundingBox;
class Camera2d;
} // namespace vxgraphics3d

namespace vxrenderer {

/// What the axes of a 2D view enclose whose units are equally long in both directions.
///
/// A view that is fitted to its scene is filled in one direction alone. In the other one the frame follows the scene,
/// with the same margin, so that axes do not run on where there is nothing. In any other view the frame is the area.
/// @param area what the camera draws to, not empty
/// @param box of all that is drawn of the scene, in the units of the view
/// @param margin that a fit leaves on each side, as a part of the area
PixelArea frameOfData(const vxgraphics3d::Camera2d& camera, const PixelArea& area, const vxgraphics3d::BoundingBox& box,
                      double margin);

} // namespace vxrenderer
