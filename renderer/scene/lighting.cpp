#include "renderer/scene/lighting.h"

#include "graphics3d/cameras/icameratransforms.h"
#include "graphics3d/lights/directionlightsource.h"
#include "graphics3d/lights/pointlightsource.h"
#include "graphics3d/lights/scenelight.h"
#include "graphics3d/lights/scenesettingslight.h"
#include "graphics3d/lights/spotlightsource.h"

#include <cmath>

namespace vxrenderer {
namespace {

using namespace vxgraphics3d;

/// A colour times a factor; added up in floats, so that nothing is cut off before the sum is complete.
Lighting::Vec4 scaled(const Color& color, float factor)
{
    const float step = factor / 255.0f;
    return {static_cast<float>(color.red) * step, static_cast<float>(color.green) * step,
            static_cast<float>(color.blue) * step, 0.0f};
}

void add(Lighting::Vec4& sum, const Lighting::Vec4& other)
{
    for (std::size_t i = 0; i < sum.size(); ++i) {
        sum[i] += other[i];
    }
}

/// Where lights stand for the eye of a camera.
class EyeSpace {
public:
    explicit EyeSpace(const ICameraTransforms& camera) : m_camera(camera) {}

    /// The unit vector of a direction.
    Lighting::Vec4 direction(const LightSource& light, const Vector3f& direction) const
    {
        Vector3f turned = light.isLockedToCamera() ? direction : m_camera.getRotationTransform() * direction;
        turned.normalize();
        return {turned.x, turned.y, turned.z, 0.0f};
    }
    /// A place: that of a light locked to the camera counts from the point which the camera turns about.
    Lighting::Vec4 place(const LightSource& light, const Vector3f& position) const
    {
        const Vector3f eye = light.isLockedToCamera() ? toEye(m_camera.getRotationPoint()) + position : toEye(position);
        return {eye.x, eye.y, eye.z, 1.0f};
    }

private:
    Vector3f toEye(const Vector3f& world) const
    {
        return m_camera.getViewTransform() * (m_camera.getAxisViewScaleTransform() * world);
    }

    const ICameraTransforms& m_camera;
};

} // namespace

Lighting Lighting::of(const SceneLight& light, const SceneSettingsLight& switches, const ICameraTransforms& camera)
{
    Lighting result;
    result.isUsed = switches.isLightUsed();
    if (!result.isUsed) {
        return result;
    }
    const float ambientScale = light.calculateAmbientScale(switches.isGlobalAmbientLight(), switches.isAmbientLight());
    if (switches.isGlobalAmbientLight()) {
        add(result.ambient, scaled(light.getGlobalAmbientColor(), ambientScale));
    }
    const EyeSpace eye(camera);
    for (const auto& [id, source] : light.getLightSources()) {
        if (!source->isActive() || result.numLights == c_maxLights) {
            continue;
        }
        const std::size_t i = result.numLights++;
        const float intensity = source->getEffectiveIntensity();
        if (switches.isAmbientLight() && source->getType() != LightSource::LightSpot) {
            const float ambient = source->getAmbientIntensity() * source->getIntensity();
            add(result.ambient, scaled(source->getColor(), ambientScale * ambient));
        }
        result.diffuse[i] = scaled(source->getColor(), switches.isDiffuseLight() ? intensity : 0.0f);
        result.specular[i] =
            scaled(source->getColor(), switches.isSpecularLight() ? intensity * source->getSpecularIntensity() : 0.0f);
        result.cones[i] = {0.0f, 0.0f, -1.0f, -2.0f};
        switch (source->getType()) {
        case LightSource::LightDirection:
            result.places[i] =
                eye.direction(*source, static_cast<const DirectionLightSource&>(*source).getFromDirection());
            break;
        case LightSource::LightPoint:
            result.places[i] = eye.place(*source, static_cast<const PointLightSource&>(*source).getPosition());
            break;
        case LightSource::LightSpot: {
            const auto& spot = static_cast<const SpotLightSource&>(*source);
            result.places[i] = eye.place(spot, spot.getPosition());
            result.cones[i] = eye.direction(spot, spot.getAtDirection());
            result.cones[i][3] = std::cos(0.5f * spot.getSpreadAngle());
            break;
        }
        }
    }
    return result;
}

} // namespace vxrenderer
