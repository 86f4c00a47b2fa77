#pragma once

#include "graphics3d/canvas/irenderersetup.h"

#include <boost/shared_ptr.hpp>

namespace vxgraphics3d {
class Scene;
class SceneSettings;
} // namespace vxgraphics3d

namespace vxrenderer {

/// What a canvas keeps for the scene that it shows: a share of it, and the settings that the scene made for this view.
class SceneView : public vxgraphics3d::IRendererSetup {
public:
    /// Connects to a scene.
    static boost::shared_ptr<SceneView> connect(const boost::shared_ptr<vxgraphics3d::Scene>& scene);
    ~SceneView() override { disconnect(); }
    SceneView(const SceneView&) = delete;
    SceneView& operator=(const SceneView&) = delete;

    /// Lets the scene go; its settings remain with those who still hold them.
    void disconnect();

    /// Null after `disconnect`.
    const boost::shared_ptr<vxgraphics3d::Scene>& getScene() const { return m_scene; }
    vxgraphics3d::SceneSettings& getSettings() const { return *m_settings; }
    /// A share of the settings of a view that keeps the view as well: settings refer to it.
    static boost::shared_ptr<vxgraphics3d::SceneSettings> shareSettings(const boost::shared_ptr<SceneView>& view);

private:
    SceneView() = default;

    boost::shared_ptr<vxgraphics3d::Scene> m_scene;
    boost::shared_ptr<vxgraphics3d::SceneSettings> m_settings;
};

} // namespace vxrenderer
