#include "graphics3d/overlays/overlaysymbol.h"

namespace vxgraphics3d {

OverlaySymbol::~OverlaySymbol() = default;

} // namespace vxgraphics3d
