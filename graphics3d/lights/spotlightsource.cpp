#include "graphics3d/lights/spotlightsource.h"

#include <utility>

namespace vxgraphics3d {

SpotLightSource::SpotLightSource(int id, boost::weak_ptr<ILightSourceParent> parent)
    : LightSource(LightSpot, id, std::move(parent))
{}

void SpotLightSource::place(bool world, const Vector3f& position, const Vector3f& atDirection)
{
    m_position = position;
    m_atDirection = atDirection;
    markPlaced(!world);
}

void SpotLightSource::setPosition(bool world, const Vector3f& position)
{
    place(world, position, Vector3f(0.0f, 0.0f, 1.0f));
}

void SpotLightSource::setPosition(bool world, float r, float theta, float phi)
{
    const Vector3f position = fromSpherical(theta, phi) * r;
    place(world, position, -position.normalized());
}

void SpotLightSource::lockToCamera(const ICameraTransforms& camera)
{
    place(false, pointToCamera(camera, m_position), directionToCamera(camera, m_atDirection));
}

void SpotLightSource::releaseFromCamera(const ICameraTransforms& camera)
{
    place(true, pointToWorld(camera, m_position), directionToWorld(camera, m_atDirection));
}

} // namespace vxgraphics3d
