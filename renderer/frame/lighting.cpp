#include "renderer/frame/lighting.h"

#include "graphics3d/lights/directionlightsource.h"
#include "graphics3d/lights/pointlightsource.h"
#include "graphics3d/lights/scenelight.h"
#include "graphics3d/lights/scenesettingslight.h"
#include "graphics3d/lights/spotlightsource.h"
#include "renderer/frame/lightplaces.h"

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

Lighting::Vec4 vec4(const Vector3f& vector, float w)
{
    return {vector.x, vector.y, vector.z, w};
}

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
    const LightPlaces eye(camera);
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
            result.places[i] = vec4(eye.direction(static_cast<const DirectionLightSource&>(*source)), 0.0f);
            break;
        case LightSource::LightPoint:
            result.places[i] =
                vec4(eye.place(*source, static_cast<const PointLightSource&>(*source).getPosition()), 1.0f);
            break;
        case LightSource::LightSpot: {
            const auto& spot = static_cast<const SpotLightSource&>(*source);
            result.places[i] = vec4(eye.place(spot, spot.getPosition()), 1.0f);
            result.cones[i] = vec4(eye.aim(spot), std::cos(0.5f * spot.getSpreadAngle()));
            break;
        }
        }
    }
    return result;
}

} // namespace vxrenderer
