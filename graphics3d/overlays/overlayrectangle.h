#pragma once

#include "graphics3d/overlays/overlaytwopointsobject.h"

namespace vxgraphics3d {

/// A rectangle with its two points at opposite corners.
class VX_API OverlayRectangle : public OverlayTwoPointsObject {
public:
    OverlayRectangle() : OverlayTwoPointsObject(TypeRectangle) {}
    ~OverlayRectangle() override;
};

} // namespace vxgraphics3d
