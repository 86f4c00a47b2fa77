#pragma once

#include "graphics3d/foundation/vector3f.h"

namespace vxgraphics3d {
class DirectionLightSource;
class ICameraTransforms;
class LightSource;
class SpotLightSource;
} // namespace vxgraphics3d

namespace vxrenderer {

/// Positions and directions of lights for the eye of a camera, used for shading and for drawing their markers.
///
/// A light in the world stays next to the things of the scene, also where the axes are stretched, and a spotlight goes
/// on shining at them. A direction light comes from one side of the picture for any scale of the axes: it has no
/// position.
class LightPlaces {
public:
    /// @param camera outlives this
    explicit LightPlaces(const vxgraphics3d::ICameraTransforms& camera) : m_camera(camera) {}

    /// A point of the world.
    vxgraphics3d::Vector3f toEye(const vxgraphics3d::Vector3f& world) const;
    /// Where a light with this position is. The position of a light locked to the camera is relative to the point that
    /// the camera turns about.
    vxgraphics3d::Vector3f place(const vxgraphics3d::LightSource& light, const vxgraphics3d::Vector3f& position) const;
    /// The unit vector to a direction light; of length 0 for one without a direction.
    vxgraphics3d::Vector3f direction(const vxgraphics3d::DirectionLightSource& light) const;
    /// The unit vector that a spotlight shines to; of length 0 for one without a direction.
    vxgraphics3d::Vector3f aim(const vxgraphics3d::SpotLightSource& light) const;

private:
    const vxgraphics3d::ICameraTransforms& m_camera;
};

} // namespace vxrenderer
