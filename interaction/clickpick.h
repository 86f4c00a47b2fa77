#pragma once

#include "graphics3d/picking/pickedobject.h"
#include "graphics3d/picking/selectionfrustrum.h"
#include "interaction/clickview.h"

#include <vector>

namespace vxgraphics3d {
class Scene;
struct CanvasPickSettings;
} // namespace vxgraphics3d

namespace vxinteraction {

/// What a click on a scene touches, as pick settings ask for, the nearest first: sheets that the pixel under the
/// pointer shows before everything that is only near to it, and then by the distance along the view (`Touch`). Depth
/// buffers play no role: parts behind others are found too. Parts that are hidden or unpickable and inactive nodes are
/// not. Nodes other than draw objects and physics objects are tested against the frustum, and come last.
/// @param frustum of the area of the view, by which groups and parts are left out
std::vector<vxgraphics3d::PickedObject> pickTouched(const vxgraphics3d::Scene& scene, const ClickView& view,
                                                    const vxgraphics3d::SelectionFrustrum& frustum,
                                                    const vxgraphics3d::CanvasPickSettings& settings);

} // namespace vxinteraction
