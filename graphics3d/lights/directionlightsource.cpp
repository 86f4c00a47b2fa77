#include "graphics3d/lights/directionlightsource.h"

#include <utility>

namespace vxgraphics3d {

DirectionLightSource::DirectionLightSource(int id, boost::weak_ptr<ILightSourceParent> parent)
    : LightSource(LightDirection, id, std::move(parent))
{}

void DirectionLightSource::setFromDirection(bool world, const Vector3f& direction)
{
    m_fromDirection = direction;
    markPlaced(!world);
}

void DirectionLightSource::setFromDirection(bool world, float theta, float phi)
{
    setFromDirection(world, fromSpherical(theta, phi));
}

void DirectionLightSource::lockToCamera(const ICameraTransforms& camera)
{
    m_fromDirection = directionToCamera(camera, m_fromDirection);
    markPlaced(true);
}

void DirectionLightSource::releaseFromCamera(const ICameraTransforms& camera)
{
    m_fromDirection = directionToWorld(camera, m_fromDirection);
    markPlaced(false);
}

} // namespace vxgraphics3d
