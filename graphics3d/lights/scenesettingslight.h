#pragma once

#include "base/export.h"
#include "graphics3d/foundation/changeablesetting.h"

namespace vxgraphics3d {

/// Which of a scene's lights a view uses. Setters that change something raise the change number.
class VX_API SceneSettingsLight : public ChangeableSetting {
public:
    bool isLightUsed() const { return m_useLight; }
    bool isGlobalAmbientLight() const { return m_globalAmbientLight; }
    bool isAmbientLight() const { return m_ambientLight; }
    bool isDiffuseLight() const { return m_diffuseLight; }
    bool isSpecularLight() const { return m_specularLight; }
    bool isRenderLightMarkers() const { return m_renderLightMarkers; }

    void setUseLight(bool on) { set(m_useLight, on); }
    void setGlobalAmbientLight(bool on) { set(m_globalAmbientLight, on); }
    void setAmbientLight(bool on) { set(m_ambientLight, on); }
    void setDiffuseLight(bool on) { set(m_diffuseLight, on); }
    void setSpecularLight(bool on) { set(m_specularLight, on); }
    /// Whether markers are drawn at the positions of the lights. Raises no change number.
    void setRenderLightMarkers(bool on) { m_renderLightMarkers = on; }

private:
    void set(bool& member, bool value)
    {
        if (member != value) {
            countChange();
            member = value;
        }
    }

    bool m_useLight = true;
    bool m_globalAmbientLight = true;
    bool m_ambientLight = true;
    bool m_diffuseLight = true;
    bool m_specularLight = true;
    bool m_renderLightMarkers = false;
};

} // namespace vxgraphics3d
