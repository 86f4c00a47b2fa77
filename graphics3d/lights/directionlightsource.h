#pragma once

#include "graphics3d/lights/lightsource.h"

namespace vxgraphics3d {

/// Light that comes from one direction everywhere, as from the sun.
class VX_API DirectionLightSource : public LightSource {
public:
    DirectionLightSource(int id, boost::weak_ptr<ILightSourceParent> parent);

    /// The direction that the light comes from; not normalised.
    const Vector3f& getFromDirection() const { return m_fromDirection; }
    /// @param world whether the direction is in world coordinates; otherwise the light is locked to the camera
    void setFromDirection(bool world, const Vector3f& direction);
    /// The same by two angles in radians: `theta` around the z axis from x, `phi` down from z.
    void setFromDirection(bool world, float theta, float phi);

    void lockToCamera(const ICameraTransforms& camera) override;
    void releaseFromCamera(const ICameraTransforms& camera) override;

private:
    Vector3f m_fromDirection{0.0f, 0.0f, 1.0f};
};

} // namespace vxgraphics3d
