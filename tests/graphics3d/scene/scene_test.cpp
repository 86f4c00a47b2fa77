#include "graphics3d/scene/scene.h"

#include "base/ustring.h"
#include "graphics3d/canvas/irenderersetup.h"
#include "graphics3d/canvas/scenesettings.h"
#include "graphics3d/lights/scenelight.h"
#include "graphics3d/picking/canvaspicksettings.h"
#include "graphics3d/picking/pickedobjectcollection.h"
#include "graphics3d/picking/selectionfrustrum.h"
#include "graphics3d/scenegraph/scenegraphroot.h"
#include "tests/support/testleaf.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace vxgraphics3d {
namespace {

class TestSetup : public IRendererSetup {};

const BoundingBox c_box(0.0f, 1.0f, 0.0f, 1.0f, 0.0f, 1.0f);

TEST(Scene, idsRiseByOneAndAreNeverReused)
{
    int first = 0;
    {
        const Scene scene;
        first = scene.getSceneId();
    }
    EXPECT_EQ(Scene().getSceneId(), first + 1);
}

TEST(Scene, aNewSceneIsEmpty)
{
    const Scene scene;
    LastChangeId last;
    vxbase::UString title;
    scene.getTitle(title);
    scene.resetTitleChanged(last);
    EXPECT_FALSE(scene.getBoundingBox().isValid());
    EXPECT_FALSE(scene.calculateMarkedBoundingBox(1, 2).isValid());
    EXPECT_EQ(scene.getNumberOfColorLegends(), 0);
    EXPECT_FALSE(scene.isTitleChanged(last));
    EXPECT_TRUE(title.empty());
    EXPECT_EQ(last.changeId, 0);
    EXPECT_TRUE(scene.getSceneSettingsMap().empty());
    EXPECT_TRUE(scene.getSceneLight()->getLightSources().empty());
}

TEST(Scene, keepsSettingsOfEachViewUntilItDisconnects)
{
    Scene scene;
    Scene other;
    TestSetup setup;
    const auto first = scene.createSceneSettings(setup);
    const auto second = scene.createSceneSettings(setup);
    const auto foreign = other.createSceneSettings(setup);
    EXPECT_EQ(&first->getSetup(), &setup);
    EXPECT_EQ(second->getId(), first->getId() + 1);
    EXPECT_EQ(scene.getSceneSettingsMap().at(first->getId()), first);
    EXPECT_EQ(scene.getSceneSettingsMap().size(), 2u);
    scene.disconnect(foreign);
    EXPECT_EQ(scene.getSceneSettingsMap().size(), 2u);
    EXPECT_THROW(scene.disconnect(nullptr), std::invalid_argument);
    scene.disconnect(first);
    scene.disconnect(first);
    EXPECT_EQ(scene.getSceneSettingsMap().begin()->second, second);
    first->setShowLabels(true);
    scene.disconnect(second);
    EXPECT_TRUE(scene.getSceneSettingsMap().empty());
    EXPECT_EQ(scene.createSceneSettings(setup)->getId(), foreign->getId() + 1);
    scene.dispose();
    EXPECT_EQ(scene.getSceneSettingsMap().size(), 1u);
}

TEST(Scene, settingsAndLightsOutliveTheSceneWithTheirOwners)
{
    TestSetup setup;
    boost::shared_ptr<SceneSettings> settings;
    boost::shared_ptr<SceneLight> light;
    {
        Scene scene;
        settings = scene.createSceneSettings(setup);
        light = scene.getSceneLight();
    }
    EXPECT_EQ(settings.use_count(), 1);
    settings->setShowTitle(false);
    EXPECT_EQ(settings->getChangedFlags(), 0x10u);
    EXPECT_EQ(light->createPointLight(), 1);
}

TEST(Scene, forwardsQueriesToItsTree)
{
    const Scene scene;
    const auto leaf = TestLeaf::create(c_box);
    std::vector<std::pair<int, bool>> picks;
    leaf->recordPicksIn(picks);
    scene.getRoot()->setChild(leaf);
    EXPECT_EQ(scene.getBoundingBox(), c_box);
    EXPECT_EQ(scene.calculateMarkedBoundingBox(1, 2), c_box);
    EXPECT_FALSE(scene.calculateMarkedBoundingBox(2, 1).isValid());
    const Vector3f corner;
    PickedObjectCollection result;
    scene.getSelection({corner, corner, corner, corner, corner, corner, corner, corner}, {}, result);
    EXPECT_EQ(picks, (std::vector<std::pair<int, bool>>{{leaf->getNodeId(), false}}));
}

TEST(Scene, disposalLeavesTheSceneUsable)
{
    Scene scene;
    scene.getRoot()->setChild(TestLeaf::create(c_box));
    EXPECT_FALSE(scene.isDisposed());
    scene.dispose();
    scene.dispose();
    EXPECT_TRUE(scene.isDisposed());
    EXPECT_EQ(scene.getBoundingBox(), c_box);
}

TEST(Scene, theTreeOutlivesTheSceneWithItsOwner)
{
    boost::shared_ptr<SceneGraphRoot> root;
    const auto leaf = TestLeaf::create(c_box);
    {
        const Scene scene;
        root = scene.getRoot();
        root->setChild(leaf);
    }
    EXPECT_EQ(leaf->getParent(), root);
    EXPECT_EQ(root->getBoundingBox(), c_box);
}

} // namespace
} // namespace vxgraphics3d
