#pragma once

#include "graphics3d/lights/lightsource.h"

namespace vxgraphics3d {

/// Light that radiates from one point within a cone, as from a spotlight.
class VX_API SpotLightSource : public LightSource {
public:
    SpotLightSource(int id, boost::weak_ptr<ILightSourceParent> parent);

    const Vector3f& getPosition() const { return m_position; }
    /// The direction in which the light shines.
    const Vector3f& getAtDirection() const { return m_atDirection; }
    /// Angle of the cone in radians.
    float getSpreadAngle() const { return m_spreadAngle; }

    /// Moves the light and points it in the direction (0, 0, 1).
    /// @param world whether the position is in world coordinates; otherwise the light is locked to the camera
    void setPosition(bool world, const Vector3f& position);
    /// Moves the light to a distance from the origin and two angles in radians, `theta` around the z axis and `phi`
    /// down from z, and aims it at the origin.
    void setPosition(bool world, float r, float theta, float phi);
    void setAtDirection(const Vector3f& direction) { store(m_atDirection, direction); }
    void setAtDirection(float theta, float phi) { setAtDirection(fromSpherical(theta, phi)); }
    void setSpreadAngle(float angle) { store(m_spreadAngle, angle); }

    void lockToCamera(const ICameraTransforms& camera) override;
    void releaseFromCamera(const ICameraTransforms& camera) override;

private:
    void place(bool world, const Vector3f& position, const Vector3f& atDirection);

    Vector3f m_position{0.0f, 0.0f, 1.0f};
    Vector3f m_atDirection{0.0f, 0.0f, -1.0f};
    float m_spreadAngle = 0.7853982f;
};

} // namespace vxgraphics3d
