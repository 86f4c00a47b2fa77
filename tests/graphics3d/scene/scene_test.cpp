#include "graphics3d/scene/scene.h"

#include "base/ustring.h"
#include "graphics3d/picking/canvaspicksettings.h"
#include "graphics3d/picking/pickedobjectcollection.h"
#include "graphics3d/picking/selectionfrustrum.h"
#include "graphics3d/scenegraph/scenegraphroot.h"
#include "tests/support/testleaf.h"

#include <gtest/gtest.h>

namespace vxgraphics3d {
namespace {

const BoundingBox c_box(0.0f, 1.0f, 0.0f, 1.0f, 0.0f, 1.0f);

TEST(Scene, idsRiseByOneAndAreNeverUsedAgain)
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
}

TEST(Scene, answersForItsTree)
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
