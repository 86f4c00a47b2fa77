#pragma once

#include "graphics3d/overlays/overlaytwopointsobject.h"

#include <array>

namespace vxgraphics3d {

/// An ellipse with axes in x and y. The start point is its centre; the end point is a corner of the rectangle around
/// it, so its distances from the centre in x and y are the radii.
class VX_API OverlayEllipse : public OverlayTwoPointsObject {
public:
    OverlayEllipse() : OverlayTwoPointsObject(TypeEllipse) {}
    ~OverlayEllipse() override;

    /// A closed polyline of `count` points of three floats, from the top of the ellipse to the right and around to the
    /// top again. The array belongs to the object, and each call writes it again.
    const float* getVertices(int& count) const;

private:
    static constexpr int c_numVertices = 180;

    mutable std::array<float, 3 * c_numVertices> m_vertices{};
};

} // namespace vxgraphics3d
