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

/// What one or several views show: a tree, lights, and settings for each view.
///
/// A scene represents its tree as one object and draws nothing. It lives while its Java peer or a renderer holds it.
/// Tree, lights and settings may outlive it, each as long as a peer or a renderer holds it.
class VX_API Scene {
public:
    Scene();
    Scene(const Scene&) = delete;
    Scene& operator=(const Scene&) = delete;
    virtual ~Scene();

    /// The id of the scene, unique in the process, from 1.
    int getSceneId() const { return m_sceneId; }

    /// Asks renderers to release their references. Nothing else happens: the scene stays usable.
    void dispose() { m_disposed = true; }
    bool isDisposed() const { return m_disposed; }

    /// The root of the tree, always the same object.
    const boost::shared_ptr<SceneGraphRoot>& getRoot() const { return m_root; }
    /// The lights, always the same object.
    const boost::shared_ptr<SceneLight>& getSceneLight() const { return m_sceneLight; }

    /// Creates settings for another view, which the scene keeps until the view disconnects.
    /// @param setup what the renderer stores for the scene in that view; must live as long as it is read from the
    /// settings
    boost::shared_ptr<SceneSettings> createSceneSettings(IRendererSetup& setup);
    /// Removes the settings of a view; does nothing if they belong to another scene. The caller's reference stays
    /// valid.
    /// @throws std::invalid_argument if the settings are null
    void disconnect(boost::shared_ptr<SceneSettings> settings);
    /// The settings of all views, by their ids.
    const std::map<int, boost::shared_ptr<SceneSettings>>& getSceneSettingsMap() const { return m_sceneSettings; }

    /// Appends to `result` the parts of the scene in the frustum that the settings ask for.
    void getSelection(const SelectionFrustrum& frustum, const CanvasPickSettings& settings,
                      PickedObjectCollection& result) const;
    /// The box of the tree.
    const BoundingBox& getBoundingBox() const;
    /// The box of all marked parts of the tree; empty if nothing is marked.
    BoundingBox calculateMarkedBoundingBox(int include, int exclude) const;

    // Title and legends of the plots, from the root.

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
