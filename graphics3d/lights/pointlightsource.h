#pragma once

#include "graphics3d/lights/lightsource.h"

namespace vxgraphics3d {

/// Light that radiates from one point in all directions, as from a lamp.
class VX_API PointLightSource : public LightSource {
public:
    PointLightSource(int id, boost::weak_ptr<ILightSourceParent> parent);

    const Vector3f& getPosition() const { return m_position; }
    /// @param world whether the position is in world coordinates; otherwise the light is locked to the camera
    void setPosition(bool world, const Vector3f& position);
    /// The same by distance from the origin and two angles in radians, `theta` around the z axis and `phi` down from z.
    void setPosition(bool world, float r, float theta, float phi);

    void lockToCamera(const ICameraTransforms& camera) override;
    void releaseFromCamera(const ICameraTransforms& camera) override;

private:
    Vector3f m_position;
};

} // namespace vxgraphics3d
