#pragma once

#include <boost/shared_ptr.hpp>

namespace vxgraphics3d {
class Scene;
class SceneSettings;
} // namespace vxgraphics3d

namespace vxrenderer {

/// What a canvas keeps for the scene that it shows: a reference to it, and the settings that the scene made for this
/// view.
///
/// Its destructor does not change the scene, since a lost canvas may be destroyed on any thread: the settings then stay
/// with the scene. Call `disconnect` to remove them.
class SceneView {
public:
    /// Connects to a scene.
    explicit SceneView(const boost::shared_ptr<vxgraphics3d::Scene>& scene);

    /// Takes the settings out of the scene; they remain with those who still hold them.
    void disconnect();

    const boost::shared_ptr<vxgraphics3d::Scene>& getScene() const { return m_scene; }
    vxgraphics3d::SceneSettings& getSettings() const { return *m_settings; }
    const boost::shared_ptr<vxgraphics3d::SceneSettings>& shareSettings() const { return m_settings; }

private:
    boost::shared_ptr<vxgraphics3d::Scene> m_scene;
    boost::shared_ptr<vxgraphics3d::SceneSettings> m_settings;
};

} // namespace vxrenderer
