#include "graphics3d/overlays/overlaypoint.h"

namespace vxgraphics3d {

OverlayPoint::~OverlayPoint() = default;

} // namespace vxgraphics3d
