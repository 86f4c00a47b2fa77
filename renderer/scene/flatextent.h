#pragma once

#include "graphics3d/foundation/boundingbox.h"

namespace vxgraphics3d {
class Camera2d;
}

namespace vxrenderer {

struct FrameLayout;

/// What a flat view draws, as a box in x and y: that of the scene, with the arrows, tubes, ribbons and discs that reach
/// beyond the boxes of their plots.
/// @param camera with an area of any size; only the ratio of its units counts, since radii are in their mean
vxgraphics3d::BoundingBox flatExtent(const FrameLayout& layout, const vxgraphics3d::Camera2d& camera);

} // namespace vxrenderer
