#pragma once

#include "base/export.h"
#include "graphics3d/settings/fontsetting.h"

#include <boost/shared_ptr.hpp>

#include <array>
#include <atomic>

namespace vxgraphics3d {

class IRendererSetup;
class SceneSettingsLight;

/// How one view shows one scene: which decorations are on, the opacity, two fonts, and which of the scene's light it
/// uses.
///
/// A scene makes one for each view that shows it and keeps it by its id; the renderer and Java peers share it. What has
/// changed is told by bits, which the renderer clears when it has looked.
class VX_API SceneSettings {
public:
    /// The kinds of text that belong to a scene, and their places in its table of fonts.
    enum TextItem : int { TextLabel = 0, TextTitle = 1 };
    static constexpr int c_numTextItems = 2;

    /// Bits of what has changed.
    enum ChangedFlag : unsigned {
        ChangedLegends = 0x08, ///< legends, or their smallest and largest values
        ChangedTitle = 0x10,
        ChangedLabels = 0x20,
        ChangedPhysicsMarkers = 0x40,
        ChangedLineDirections = 0x80,
    };

    /// Settings with the fonts that the settings of the process have now.
    /// @param setup what the renderer keeps for the scene; only remembered
    explicit SceneSettings(IRendererSetup& setup);
    /// Settings of another view that start like those: an id of their own, nothing changed, light switches that change
    /// by themselves.
    SceneSettings(IRendererSetup& setup, const SceneSettings& other);
    SceneSettings(const SceneSettings&) = delete;
    SceneSettings& operator=(const SceneSettings&) = delete;
    ~SceneSettings();

    /// Unique over the process, from 1.
    int getId() const { return m_id; }
    IRendererSetup& getSetup() const { return m_setup; }
    /// A set of `ChangedFlag`.
    unsigned getChangedFlags() const { return m_changedFlags; }
    void resetChangedFlags() { m_changedFlags = 0; }
    const boost::shared_ptr<SceneSettingsLight>& getLight() const { return m_light; }

    // A value that differs from the present one sets the bit of its kind.

    bool isLegendsShown() const { return m_showLegends; }
    void setShowLegends(bool show) { set(m_showLegends, show, ChangedLegends); }
    /// Whether legends show the smallest and the largest value.
    bool isMinMaxShown() const { return m_showMinMax; }
    void setShowMinMax(bool show) { set(m_showMinMax, show, ChangedLegends); }
    bool isTitleShown() const { return m_showTitle; }
    void setShowTitle(bool show) { set(m_showTitle, show, ChangedTitle); }
    bool isLabelsShown() const { return m_showLabels; }
    void setShowLabels(bool show) { set(m_showLabels, show, ChangedLabels); }
    bool isPhysicsMarkersShown() const { return m_showPhysicsMarkers; }
    void setShowPhysicsMarkers(bool show) { set(m_showPhysicsMarkers, show, ChangedPhysicsMarkers); }
    bool isLineDirectionsShown() const { return m_showLineDirections; }
    void setShowLineDirections(bool show) { set(m_showLineDirections, show, ChangedLineDirections); }

    /// From 0, invisible, to 1, opaque; values beyond are kept as they are.
    float getGlobalOpacity() const { return m_globalOpacity; }
    /// Sets no bit.
    void setGlobalOpacity(float opacity) { m_globalOpacity = opacity; }
    bool isGlobalOpaque() const { return m_globalOpacity >= 1.0f; }

    /// @throws std::out_of_range if a scene has no such kind of text
    FontSetting& font(TextItem item);
    const FontSetting& getFont(TextItem item) const;

private:
    void set(bool& member, bool value, ChangedFlag flag)
    {
        if (member != value) {
            member = value;
            m_changedFlags |= flag;
        }
    }

    static std::atomic<int> m_lastId; // settings may be made on any thread

    int m_id;
    IRendererSetup& m_setup;
    unsigned m_changedFlags = 0;
    boost::shared_ptr<SceneSettingsLight> m_light;
    bool m_showLegends = true;
    bool m_showMinMax = true;
    bool m_showTitle = true;
    bool m_showLabels = false;
    bool m_showPhysicsMarkers = false;
    bool m_showLineDirections = false;
    float m_globalOpacity = 1.0f;
    std::array<FontSetting, c_numTextItems> m_fonts;
};

} // namespace vxgraphics3d
