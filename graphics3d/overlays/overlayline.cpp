#include "graphics3d/overlays/overlayline.h"

namespace vxgraphics3d {

OverlayLine::~OverlayLine() = default;

} // namespace vxgraphics3d
