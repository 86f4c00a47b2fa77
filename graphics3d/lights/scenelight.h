#pragma once

#include "base/export.h"
#include "graphics3d/foundation/changenumber.h"
#include "graphics3d/foundation/color.h"
#include "graphics3d/lights/ilightsourceparent.h"
#include "graphics3d/lights/lightsource.h"

#include <boost/enable_shared_from_this.hpp>
#include <boost/shared_ptr.hpp>

#include <map>

namespace vxgraphics3d {

/// The lights of a scene, and the ambient light and intensity that apply to all of them.
///
/// A scene owns one. It creates and owns the light sources; at most `c_maxActiveLights` of them may be on at one time.
/// All changes of its own values and of its sources' raise one change number. A source that a Java peer keeps longer
/// stays usable, but no longer has a scene light.
class VX_API SceneLight : public ILightSourceParent, public boost::enable_shared_from_this<SceneLight> {
public:
    static constexpr int c_maxActiveLights = 8;

    static boost::shared_ptr<SceneLight> create();
    SceneLight(const SceneLight&) = delete;
    SceneLight& operator=(const SceneLight&) = delete;
    ~SceneLight() override;

    int getChangeId() const { return m_changeId.get(); }
    bool isChanged(const LastChangeId& last) const { return m_changeId.isChanged(last); }
    void resetChanged(LastChangeId& last) const { m_changeId.resetChanged(last); }

    /// Each creates a light that is switched off.
    /// @return its id; ids start at 1, rise by one and are never reused
    int createDirectionLight();
    int createPointLight();
    int createSpotLight();

    /// @return false if there is no such light
    bool removeLightSource(int id);
    void removeAllLightSources();
    bool lightSourceExists(int id) const { return m_lightSources.count(id) != 0; }

    /// The light with an id.
    /// @throws std::out_of_range if there is none
    const LightSource* getLightSource(int id) const;
    LightSource* lightSource(int id);
    boost::shared_ptr<LightSource> getLightSourcePtr(int id);
    /// All lights by id.
    const std::map<int, boost::shared_ptr<LightSource>>& getLightSources() const { return m_lightSources; }

    /// Factor for the intensity of every source.
    float getTotalLightSourceIntensity() const override { return m_totalLightSourceIntensity; }
    void setTotalLightSourceIntensity(float intensity) { set(m_totalLightSourceIntensity, intensity); }
    /// Intensity of all ambient light together.
    float getAmbientIntensity() const { return m_ambientIntensity; }
    void setAmbientIntensity(float intensity) { set(m_ambientIntensity, intensity); }
    const Color& getGlobalAmbientColor() const { return m_globalAmbientColor; }
    void setGlobalAmbientColor(const Color& color) { set(m_globalAmbientColor, color); }

    /// The factor that scales the sum of all ambient light to the ambient intensity: the global ambient light counts 1,
    /// and each active source except spotlights its ambient intensity times its intensity.
    /// @param globalAmbient whether the global ambient light is on
    /// @param lightAmbient whether the ambient light of the sources is on
    /// @return 0 if there is no ambient light
    float calculateAmbientScale(bool globalAmbient, bool lightAmbient) const;

    void markChanged() override;
    /// Refuses to switch a light on while `c_maxActiveLights` others are on.
    bool mayChangeLightSourceActiveState(int id, bool active) override;

private:
    SceneLight();

    template <class Source>
    int create();

    template <class T>
    void set(T& member, const T& value)
    {
        if (!(member == value)) {
            member = value;
            markChanged();
        }
    }

    int m_lastLightId = 0;
    ChangeNumber m_changeId;
    Color m_globalAmbientColor{255, 255, 255, 255};
    float m_ambientIntensity = 1.0f;
    float m_totalLightSourceIntensity = 1.0f;
    std::map<int, boost::shared_ptr<LightSource>> m_lightSources;
};

} // namespace vxgraphics3d
