#pragma once

#include "renderer/paint/scenelabel.h"

namespace vxgraphics3d {
class MarkingModeSetup;
class SceneGraphObject;
} // namespace vxgraphics3d

namespace vxrenderer {

/// Passes on the labels that an active object is drawn with where labels are shown.
void visitObjectLabels(const vxgraphics3d::SceneGraphObject& object, const vxgraphics3d::MarkingModeSetup& markings,
                       const TakeLabel& take);

} // namespace vxrenderer
