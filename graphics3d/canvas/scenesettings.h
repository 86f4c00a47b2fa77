#pragma once

#include "base/export.h"
#include "graphics3d/settings/fontsetting.h"

#include <boost/shared_ptr.hpp>

#include <array>
#include <atomic>

namespace vxgraphics3d {

class IRendererSetup;
class SceneSettingsLight;

/// How one view shows one scene: which decorations are on, the opacity, two fonts, and which of the scene's lights it
/// uses.
///
/// A scene creates one for each view that shows it and stores it by its id; the renderer and Java peers share it.
/// Changes are reported by bits, which the renderer clears once it has handled them.
class VX_API SceneSettings {
public:
    /// The kinds of text that belong to a scene, and their indices in its table of fonts.
    enum TextItem : int { TextLabel = 0, TextTitle = 1 };
    static constexpr int c_numTextItems = 2;

    /// Bits that report what has changed.
    enum ChangedFlag : unsigned {
        ChangedLegends = 0x08, ///< legends, or their smallest and largest values
        ChangedTitle = 0x10,
        ChangedLabels = 0x20,
        ChangedPhysicsMarkers = 0x40,
        ChangedLineDirections = 0x80,
    };

    /// Settings with the current default fonts of the global settings.
    /// @param setup what the renderer stores for the scene; only the reference is kept
    explicit SceneSettings(IRendererSetup& setup);
    /// Settings for another view, copied from existing ones: with an id of their own, no changes reported, and
    /// independent light switches.
    SceneSettings(IRendererSetup& setup, const SceneSettings& other);
    SceneSettings(const SceneSettings&) = delete;
    SceneSettings& operator=(const SceneSettings&) = delete;
    ~SceneSettings();

    /// Unique in the process, from 1.
    int getId() const { return m_id; }
    IRendererSetup& getSetup() const { return m_setup; }
    /// A set of `ChangedFlag`.
    unsigned getChangedFlags() const { return m_changedFlags; }
    void resetChangedFlags() { m_changedFlags = 0; }
    const boost::shared_ptr<SceneSettingsLight>& getLight() const { return m_light; }

    // Setting a different value sets the bit for its kind.

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

    /// From 0, invisible, to 1, opaque; other values are stored as they are.
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
