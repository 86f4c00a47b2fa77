#pragma once

#include "graphics3d/foundation/boundingbox.h"
#include "graphics3d/scenegraph/scenegraphobject.h"

namespace vxrenderer {

/// The box of what an active object shows: that of its node, which for a ball, a box or a probe is empty, so that it
/// is found from what it consists of.
vxgraphics3d::BoundingBox boxOf(const vxgraphics3d::SceneGraphObject& object);

} // namespace vxrenderer
