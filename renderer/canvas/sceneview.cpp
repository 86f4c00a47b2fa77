#include "renderer/canvas/sceneview.h"

#include "graphics3d/canvas/irenderersetup.h"
#include "graphics3d/scene/scene.h"

namespace vxrenderer {

using vxgraphics3d::Scene;

namespace {

/// What settings refer to for as long as they live. Nothing is called on it.
class RendererSetup : public vxgraphics3d::IRendererSetup {
} rendererSetup;

} // namespace

SceneView::SceneView(const boost::shared_ptr<Scene>& scene)
    : m_scene(scene), m_settings(scene->createSceneSettings(rendererSetup))
{}

void SceneView::disconnect()
{
    m_scene->disconnect(m_settings);
}

} // namespace vxrenderer
