#include "graphics3d/lights/lightsource.h"

#include "graphics3d/foundation/matrixf.h"
#include "graphics3d/viewing/icameratransforms.h"

#include <cmath>
#include <utility>

namespace vxgraphics3d {

LightSource::LightSource(Type type, int id, boost::weak_ptr<ILightSourceParent> parent)
    : m_type(type), m_id(id), m_parent(std::move(parent))
{}

LightSource::~LightSource() = default;

float LightSource::getEffectiveIntensity() const
{
    const auto parent = m_parent.lock();
    return parent ? m_intensity * parent->getTotalLightSourceIntensity() : m_intensity;
}

bool LightSource::setActive(bool active)
{
    if (active == m_active) {
        return active;
    }
    const auto parent = m_parent.lock();
    if (!parent || parent->mayChangeLightSourceActiveState(m_id, active)) {
        store(m_active, active);
    }
    return m_active;
}

void LightSource::setActiveFlag(bool active)
{
    if (active != m_active) {
        store(m_active, active);
    }
}

void LightSource::markChanged()
{
    if (const auto parent = m_parent.lock()) {
        parent->markChanged();
    }
}

void LightSource::markPlaced(bool lockedToCamera)
{
    store(m_lockedToCamera, lockedToCamera);
}

Vector3f LightSource::fromSpherical(float theta, float phi)
{
    const double t = static_cast<double>(theta);
    const double p = static_cast<double>(phi);
    return Vector3f(std::cos(t) * std::sin(p), std::sin(t) * std::sin(p), std::cos(p));
}

Vector3f LightSource::pointToCamera(const ICameraTransforms& camera, const Vector3f& point)
{
    return camera.getRotationTransform() * (point - camera.getRotationPoint());
}

Vector3f LightSource::pointToWorld(const ICameraTransforms& camera, const Vector3f& point)
{
    return camera.getRotationPoint() + camera.getInvRotationTransform() * point;
}

Vector3f LightSource::directionToCamera(const ICameraTransforms& camera, const Vector3f& direction)
{
    return camera.getRotationTransform() * direction;
}

Vector3f LightSource::directionToWorld(const ICameraTransforms& camera, const Vector3f& direction)
{
    return camera.getInvRotationTransform() * direction;
}

} // namespace vxgraphics3d
