#include "interaction/overlayinteraction.h"

#include "graphics3d/overlays/overlayobject.h"

#include <utility>

namespace vxinteraction {

using vxgraphics3d::Matrixf;
using vxgraphics3d::OverlayObject;
using vxgraphics3d::Vector3f;

OverlayInteraction::OverlayInteraction(OverlayView view) : m_view(std::move(view)) {}

OverlayInteraction::~OverlayInteraction() = default;

std::optional<PlanePoint> OverlayInteraction::toObject(const OverlayObject& object, const PlanePoint& picture) const
{
    const auto point = plane().toPlane(picture);
    const Matrixf& transformation = object.getTransformation();
    if (transformation == Matrixf(Matrixf::MatrixIdentity)) {
        return point; // in full precision
    }
    Matrixf inverse(Matrixf::MatrixUninitialized);
    if (!point || !Matrixf::invertMatrixf(transformation.data(), inverse.data())) {
        return std::nullopt;
    }
    const Vector3f local = inverse * Vector3f(point->x, point->y, 0.0);
    return PlanePoint{static_cast<double>(local.x), static_cast<double>(local.y)};
}

} // namespace vxinteraction
