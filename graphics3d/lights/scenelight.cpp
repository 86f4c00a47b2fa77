#include "graphics3d/lights/scenelight.h"

#include "graphics3d/lights/directionlightsource.h"
#include "graphics3d/lights/pointlightsource.h"
#include "graphics3d/lights/spotlightsource.h"

#include <boost/make_shared.hpp>

#include <algorithm>
#include <stdexcept>
#include <string>

namespace vxgraphics3d {

SceneLight::SceneLight() = default;

SceneLight::~SceneLight() = default;

boost::shared_ptr<SceneLight> SceneLight::create()
{
    return boost::shared_ptr<SceneLight>(new SceneLight);
}

void SceneLight::markChanged()
{
    m_changeId.raise();
}

template <class Source>
int SceneLight::create()
{
    const int id = ++m_lastLightId;
    m_lightSources.emplace(id, boost::make_shared<Source>(id, weak_from_this()));
    markChanged();
    return id;
}

int SceneLight::createDirectionLight()
{
    return create<DirectionLightSource>();
}

int SceneLight::createPointLight()
{
    return create<PointLightSource>();
}

int SceneLight::createSpotLight()
{
    return create<SpotLightSource>();
}

bool SceneLight::removeLightSource(int id)
{
    const auto found = m_lightSources.find(id);
    if (found == m_lightSources.end()) {
        return false;
    }
    found->second->setActiveFlag(false);
    m_lightSources.erase(found);
    markChanged();
    return true;
}

void SceneLight::removeAllLightSources()
{
    if (m_lightSources.empty()) {
        return;
    }
    while (!m_lightSources.empty()) {
        m_lightSources.begin()->second->setActiveFlag(false);
        m_lightSources.erase(m_lightSources.begin());
    }
    markChanged();
}

const LightSource* SceneLight::getLightSource(int id) const
{
    const auto found = m_lightSources.find(id);
    if (found == m_lightSources.end()) {
        throw std::out_of_range("There is no light source " + std::to_string(id) + ".");
    }
    return found->second.get();
}

LightSource* SceneLight::lightSource(int id)
{
    return getLightSourcePtr(id).get();
}

boost::shared_ptr<LightSource> SceneLight::getLightSourcePtr(int id)
{
    getLightSource(id);
    return m_lightSources.find(id)->second;
}

bool SceneLight::mayChangeLightSourceActiveState(int id, bool active)
{
    const auto found = m_lightSources.find(id);
    if (!active || (found != m_lightSources.end() && found->second->isActive())) {
        return true;
    }
    return std::count_if(m_lightSources.begin(), m_lightSources.end(),
                         [](const auto& entry) { return entry.second->isActive(); }) < c_maxActiveLights;
}

float SceneLight::calculateAmbientScale(bool globalAmbient, bool lightAmbient) const
{
    float sum = globalAmbient ? 1.0f : 0.0f;
    if (lightAmbient) {
        for (const auto& [id, light] : m_lightSources) {
            if (light->isActive() && light->getType() != LightSource::LightSpot) {
                sum += light->getAmbientIntensity() * light->getIntensity();
            }
        }
    }
    return sum > 0.0f ? m_ambientIntensity / sum : 0.0f;
}

} // namespace vxgraphics3d
