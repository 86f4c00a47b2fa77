#pragma once

#include "base/export.h"
#include "graphics3d/foundation/boundingbox.h"
#include "graphics3d/foundation/lastchangeid.h"

#include <boost/shared_ptr.hpp>

#include <atomic>
#include <map>

namespace vxbase {
class UString;
}

namespace vxgraphics3d {

class IRendererSetup;
class PickedObjectCollection;
class SceneGraphRoot;
class SceneLight;
class SceneSettings;
class SelectionFrustrum;
struct CanvasPickSettings;

/// What one or several views show: one tree, one set of lights, and settings for each view that shows it.
///
/// A scene answers for its tree as one object and draws nothing. It lives while its Java peer or a renderer holds it.
/// Tree, lights and settings may outlive it, each as long as a peer or a renderer holds that.
class VX_API Scene {
public:
    Scene();
    Scene(const Scene&) = delete;
    Scene& operator=(const Scene&) = delete;
    virtual ~Scene();

    /// The id of the scene, unique over the process, from 1.
    int getSceneId() const { return m_sceneId; }

    /// Tells renderers to drop their shares. Nothing else happens: the scene stays usable.
    void dispose() { m_disposed = true; }
    bool isDisposed() const { return m_disposed; }

    /// The root of the tree, the same one always.
    const boost::shared_ptr<SceneGraphRoot>& getRoot() const { return m_root; }
    /// The lights, the same object always.
    const boost::shared_ptr<SceneLight>& getSceneLight() const { return m_sceneLight; }

    /// Makes settings for one more view, which the scene keeps until the view disconnects.
    /// @param setup what the renderer keeps for the scene in that view; must live as long as anyone asks the settings
    /// for it
    boost::shared_ptr<SceneSettings> createSceneSettings(IRendererSetup& setup);
    /// Forgets the settings of a view; nothing happens if they are not of this scene. The caller's share stays good.
    /// @throws std::invalid_argument if there are no settings
    void disconnect(boost::shared_ptr<SceneSettings> settings);
    /// The settings of all views, by their ids.
    const std::map<int, boost::shared_ptr<SceneSettings>>& getSceneSettingsMap() const { return m_sceneSettings; }

    /// Appends to `result` what of the scene lies in the frustum and is asked for.
    void getSelection(const SelectionFrustrum& frustum, const CanvasPickSettings& settings,
                      PickedObjectCollection& result) const;
    /// The box of the tree.
    const BoundingBox& getBoundingBox() const;
    /// The box of what is marked in the tree; empty if nothing is.
    BoundingBox calculateMarkedBoundingBox(int include, int exclude) const;

    // Title and legends of the plots, as the root tells them.

    int getNumberOfColorLegends() const;
    void getTitle(vxbase::UString& result) const;
    bool isTitleChanged(const LastChangeId& last) const;
    void resetTitleChanged(LastChangeId& last) const;

private:
    static std::atomic<int> m_lastSceneId; // scenes may be made on any thread

    int m_sceneId;
    bool m_disposed = false;
    boost::shared_ptr<SceneLight> m_sceneLight;
    std::map<int, boost::shared_ptr<SceneSettings>> m_sceneSettings;
    boost::shared_ptr<SceneGraphRoot> m_root;
};

} // namespace vxgraphics3d
