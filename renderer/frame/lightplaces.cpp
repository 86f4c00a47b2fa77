#include "renderer/frame/lightplaces.h"

#include "graphics3d/foundation/matrixf.h"
#include "graphics3d/lights/directionlightsource.h"
#include "graphics3d/lights/spotlightsource.h"
#include "graphics3d/viewing/icameratransforms.h"

namespace vxrenderer {

using vxgraphics3d::Vector3f;

Vector3f LightPlaces::toEye(const Vector3f& world) const
{
    return m_camera.getViewTransform() * (m_camera.getAxisViewScaleTransform() * world);
}

Vector3f LightPlaces::place(const vxgraphics3d::LightSource& light, const Vector3f& position) const
{
    return light.isLockedToCamera() ? toEye(m_camera.getRotationPoint()) + position : toEye(position);
}

Vector3f LightPlaces::direction(const vxgraphics3d::DirectionLightSource& light) const
{
    const Vector3f& direction = light.getFromDirection();
    return (light.isLockedToCamera() ? direction : m_camera.getRotationTransform() * direction).normalized();
}

Vector3f LightPlaces::aim(const vxgraphics3d::SpotLightSource& light) const
{
    const Vector3f& direction = light.getAtDirection();
    return (light.isLockedToCamera()
                ? direction
                : m_camera.getRotationTransform() * (m_camera.getAxisViewScaleTransform() * direction))
        .normalized();
}

} // namespace vxrenderer
