#pragma once

#include "renderer/frame/pointrun.h"

namespace vxgraphics3d {
class MarkingModeSetup;
class SceneGraphObject;
} // namespace vxgraphics3d

namespace vxrenderer {

/// Passes on the points that an active object is drawn from. Parts whose row of the marking table is not visible are
/// left out, and so are sizes that are fixed in pixels, such as those of icons.
void visitObjectPoints(const vxgraphics3d::SceneGraphObject& object, const vxgraphics3d::MarkingModeSetup& markings,
                       const TakePoints& take);

} // namespace vxrenderer
