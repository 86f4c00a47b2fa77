#pragma once

#include "base/export.h"
#include "graphics3d/scenegraph/scenegraphobject.h"

namespace vxgraphics3d {
class PickedObjectCollection;
class Scene;
} // namespace vxgraphics3d

namespace vxinteraction {

/// Marks or unmarks the parts and objects that a pick found, each as if its object were called with it. Objects are
/// looked up by their ids among the active ones; entries without object or part are ignored.
/// @return the number of entries that were found
VX_API int markPicked(const vxgraphics3d::Scene& scene, const vxgraphics3d::PickedObjectCollection& picked,
                      vxgraphics3d::SceneGraphObject::MarkingType action, bool on);

} // namespace vxinteraction
