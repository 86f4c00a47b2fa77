#include "renderer/canvas/sceneview.h"

#include "graphics3d/canvas/scenesettings.h"
#include "graphics3d/scene/scene.h"

namespace vxrenderer {

using vxgraphics3d::Scene;
using vxgraphics3d::SceneSettings;

boost::shared_ptr<SceneView> SceneView::connect(const boost::shared_ptr<Scene>& scene)
{
    boost::shared_ptr<SceneView> view(new SceneView());
    view->m_settings = scene->createSceneSettings(*view);
    view->m_scene = scene;
    return view;
}

void SceneView::disconnect()
{
    if (m_scene) {
        m_scene->disconnect(m_settings);
        m_scene.reset();
    }
}

boost::shared_ptr<SceneSettings> SceneView::shareSettings(const boost::shared_ptr<SceneView>& view)
{
    return view ? boost::shared_ptr<SceneSettings>(view, view->m_settings.get()) : nullptr;
}

} // namespace vxrenderer
