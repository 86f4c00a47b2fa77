#pragma once

#include "graphics3d/overlays/overlaytwopointsobject.h"

namespace vxgraphics3d {

/// A straight line between its two points.
class VX_API OverlayLine : public OverlayTwoPointsObject {
public:
    OverlayLine() : OverlayTwoPointsObject(TypeLine) {}
    ~OverlayLine() override;
};

} // namespace vxgraphics3d
