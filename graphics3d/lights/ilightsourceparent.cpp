#include "graphics3d/lights/ilightsourceparent.h"

namespace vxgraphics3d {

ILightSourceParent::~ILightSourceParent() = default;

} // namespace vxgraphics3d
