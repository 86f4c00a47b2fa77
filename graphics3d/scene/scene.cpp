#include "graphics3d/scene/scene.h"

#include "graphics3d/canvas/scenesettings.h"
#include "graphics3d/lights/scenelight.h"
#include "graphics3d/scenegraph/scenegraphroot.h"

#include <boost/make_shared.hpp>

#include <stdexcept>

namespace vxgraphics3d {

std::atomic<int> Scene::m_lastSceneId = 0;

Scene::Scene() : m_sceneId(++m_lastSceneId), m_sceneLight(SceneLight::create()), m_root(SceneGraphRoot::create()) {}

// The members are destroyed in reverse order: the root first, then the settings, the lights last.
Scene::~Scene() = default;

boost::shared_ptr<SceneSettings> Scene::createSceneSettings(IRendererSetup& setup)
{
    auto settings = boost::make_shared<SceneSettings>(setup);
    m_sceneSettings.emplace(settings->getId(), settings);
    return settings;
}

void Scene::disconnect(boost::shared_ptr<SceneSettings> settings)
{
    if (!settings) {
        throw std::invalid_argument("There are no scene settings to disconnect.");
    }
    m_sceneSettings.erase(settings->getId());
}

void Scene::getSelection(const SelectionFrustrum& frustum, const CanvasPickSettings& settings,
                         PickedObjectCollection& result) const
{
    m_root->getSelection(frustum, settings, result, false);
}

const BoundingBox& Scene::getBoundingBox() const
{
    return m_root->getBoundingBox();
}

BoundingBox Scene::calculateMarkedBoundingBox(int include, int exclude) const
{
    BoundingBox box;
    m_root->getMarkedBoundingBox(box, include, exclude);
    return box;
}

int Scene::getNumberOfColorLegends() const
{
    return m_root->getNumberOfColorLegends();
}

void Scene::getTitle(vxbase::UString& result) const
{
    m_root->getTitle(result);
}

bool Scene::isTitleChanged(const LastChangeId& last) const
{
    return m_root->isTitleChanged(last);
}

void Scene::resetTitleChanged(LastChangeId& last) const
{
    m_root->resetTitleChanged(last);
}

} // namespace vxgraphics3d
