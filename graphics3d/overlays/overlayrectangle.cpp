#include "graphics3d/overlays/overlayrectangle.h"

namespace vxgraphics3d {

OverlayRectangle::~OverlayRectangle() = default;

} // namespace vxgraphics3d
