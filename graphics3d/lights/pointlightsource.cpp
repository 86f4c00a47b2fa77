#include "graphics3d/lights/pointlightsource.h"

#include <utility>

namespace vxgraphics3d {

PointLightSource::PointLightSource(int id, boost::weak_ptr<ILightSourceParent> parent)
    : LightSource(LightPoint, id, std::move(parent))
{}

void PointLightSource::setPosition(bool world, const Vector3f& position)
{
    m_position = position;
    markPlaced(!world);
}

void PointLightSource::setPosition(bool world, float r, float theta, float phi)
{
    setPosition(world, fromSpherical(theta, phi) * r);
}

void PointLightSource::lockToCamera(const ICameraTransforms& camera)
{
    m_position = pointToCamera(camera, m_position);
    markPlaced(true);
}

void PointLightSource::releaseFromCamera(const ICameraTransforms& camera)
{
    m_position = pointToWorld(camera, m_position);
    markPlaced(false);
}

} // namespace vxgraphics3d
