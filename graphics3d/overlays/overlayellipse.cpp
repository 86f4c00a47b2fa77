#include "graphics3d/overlays/overlayellipse.h"

#include <cmath>

namespace vxgraphics3d {

OverlayEllipse::~OverlayEllipse() = default;

const float* OverlayEllipse::getVertices(int& count) const
{
    constexpr float c_fullTurn = 6.2831855f;
    const auto centerX = static_cast<float>(getStartX());
    const auto centerY = static_cast<float>(getStartY());
    const float radiusX = std::abs(centerX - static_cast<float>(getEndX()));
    const float radiusY = std::abs(centerY - static_cast<float>(getEndY()));
    float* vertex = m_vertices.data();
    for (count = 0; count < c_numVertices; ++count) {
        // The last vertex has the full angle, so the polyline is closed.
        const float angle = static_cast<float>(count) * c_fullTurn / static_cast<float>(c_numVertices - 1);
        *vertex++ = std::sin(angle) * radiusX + centerX;
        *vertex++ = std::cos(angle) * radiusY + centerY;
        *vertex++ = 0.0f;
    }
    return m_vertices.data();
}

} // namespace vxgraphics3d
