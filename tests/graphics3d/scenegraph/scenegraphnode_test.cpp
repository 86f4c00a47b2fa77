#include "graphics3d/scenegraph/scenegraphnode.h"

#include "graphics3d/scenegraph/scenegraphgroup.h"
#include "graphics3d/scenegraph/scenegraphroot.h"
#include "tests/support/capturedlog.h"
#include "tests/support/testleaf.h"

#include <gtest/gtest.h>

namespace vxgraphics3d {
namespace {

const BoundingBox c_unitBox(0.0f, 1.0f, 0.0f, 1.0f, 0.0f, 1.0f);
const BoundingBox c_farBox(5.0f, 6.0f, 0.0f, 1.0f, 0.0f, 1.0f);

/// A root, a group below it, and a leaf below the group.
class SmallTree : public testing::Test {
protected:
    SmallTree()
    {
        root->setChild(group);
        group->addChild(leaf);
    }

    boost::shared_ptr<SceneGraphRoot> root = SceneGraphRoot::create();
    boost::shared_ptr<SceneGraphGroup> group = SceneGraphGroup::create();
    boost::shared_ptr<TestLeaf> leaf = TestLeaf::create(c_unitBox);
};

TEST(SceneGraphNode, idsRiseByOneAndAreNeverReused)
{
    const int first = TestLeaf::create()->getNodeId();
    EXPECT_EQ(SceneGraphGroup::create()->getNodeId(), first + 1);
    EXPECT_EQ(SceneGraphRoot::create()->getNodeId(), first + 2);
}

TEST_F(SmallTree, childIdIsMinusOneBeforeAndZeroAfterTheParent)
{
    EXPECT_EQ(TestLeaf::create()->getChildId(), -1);
    EXPECT_EQ(leaf->getChildId(), 1);
    leaf->disconnectFromParent();
    EXPECT_EQ(leaf->getChildId(), 0);
    EXPECT_EQ(leaf->getParent(), nullptr);
    EXPECT_EQ(group->getNoOfChildren(), 0);
}

TEST_F(SmallTree, disconnectLogsOnlyWithAParent)
{
    CapturedLog log(ErrorLog::Level::info);
    const std::string groupId = std::to_string(group->getNodeId());
    leaf->disconnectFromParent();
    leaf->disconnectFromParent();
    EXPECT_EQ(log.messages(), (std::vector<std::string>{"Disconnecting child node 1 from parent (node " + groupId + ")",
                                                        "Removing child 1 from group (node " + groupId + ")."}));
}

TEST_F(SmallTree, aChangeOfALeafRaisesEveryCounterAboveOnce)
{
    const int leafChanges = leaf->getChangeId();
    const int groupChanges = group->getChangeId();
    const int belowGroup = group->getChildrenChangeId();
    const int belowRoot = root->getChildrenChangeId();
    const int structure = root->getTreeStructureChangeId();
    leaf->markChanged();
    EXPECT_EQ(leaf->getChangeId(), leafChanges + 1);
    EXPECT_EQ(group->getChangeId(), groupChanges);
    EXPECT_EQ(group->getChildrenChangeId(), belowGroup + 1);
    EXPECT_TRUE(group->areChildrenChanged(belowGroup));
    EXPECT_FALSE(group->areChildrenChanged(belowGroup + 1));
    EXPECT_EQ(root->getChildrenChangeId(), belowRoot + 1);
    EXPECT_EQ(root->getTreeStructureChangeId(), structure);
}

TEST_F(SmallTree, removeParentIsCountedByTheNodeOnly)
{
    const int leafChanges = leaf->getChangeId();
    const int belowGroup = group->getChildrenChangeId();
    leaf->removeParent();
    EXPECT_EQ(leaf->getChangeId(), leafChanges + 1);
    EXPECT_EQ(group->getChildrenChangeId(), belowGroup);
    EXPECT_EQ(leaf->getChildId(), 0);
}

TEST_F(SmallTree, hidingANodeShrinksTheBoxesAboveAndChangesNoNumber)
{
    const auto other = TestLeaf::create(c_farBox);
    group->addChild(other);
    const int changes[] = {other->getChangeId(), group->getChangeId(), group->getChildrenChangeId(),
                           root->getChildrenChangeId(), root->getTreeStructureChangeId()};
    other->setActive(false);
    EXPECT_EQ(root->getBoundingBox(), c_unitBox);
    EXPECT_FALSE(other->getBoundingBox().isValid());
    EXPECT_EQ(other->getStoredBoundingBox(), c_farBox);
    leaf->setActive(false);
    EXPECT_FALSE(root->getBoundingBox().isValid());
    EXPECT_EQ(&leaf->getBoundingBox(), &other->getBoundingBox());
    leaf->setActive(true);
    other->setActive(true);
    EXPECT_EQ(root->getBoundingBox(), BoundingBox(0.0f, 6.0f, 0.0f, 1.0f, 0.0f, 1.0f));
    const int after[] = {other->getChangeId(), group->getChangeId(), group->getChildrenChangeId(),
                         root->getChildrenChangeId(), root->getTreeStructureChangeId()};
    EXPECT_TRUE(std::equal(std::begin(changes), std::end(changes), std::begin(after)));
}

TEST_F(SmallTree, aNewBoxIsPropagatedAsFarAsItChangesSomething)
{
    leaf->setBoundingBox(c_farBox);
    EXPECT_EQ(group->getBoundingBox(), c_farBox);
    EXPECT_EQ(root->getBoundingBox(), c_farBox);
    // A box set by hand stays if nothing changes below it.
    root->setBoundingBox(c_unitBox);
    leaf->setBoundingBox(c_farBox);
    EXPECT_EQ(root->getBoundingBox(), c_unitBox);
    const auto within = TestLeaf::create(c_farBox);
    group->addChild(within);
    EXPECT_EQ(root->getBoundingBox(), c_unitBox);
    // Empty boxes are never equal, so an empty box is propagated all the way again.
    leaf->setBoundingBox(BoundingBox());
    within->setBoundingBox(BoundingBox());
    EXPECT_FALSE(root->getBoundingBox().isValid());
    root->setBoundingBox(c_unitBox);
    leaf->setBoundingBox(BoundingBox());
    EXPECT_FALSE(root->getBoundingBox().isValid());
}

TEST_F(SmallTree, anInactiveGroupHidesItsChildrensBoxesFromTheRoot)
{
    group->setActive(false);
    EXPECT_FALSE(root->getBoundingBox().isValid());
    leaf->setBoundingBox(c_farBox);
    EXPECT_FALSE(root->getBoundingBox().isValid());
    group->setActive(true);
    EXPECT_EQ(root->getBoundingBox(), c_farBox);
}

TEST_F(SmallTree, aDestroyedParentCountsAsNone)
{
    root->removeChild(0);
    group.reset();
    EXPECT_EQ(leaf->getParent(), nullptr);
    EXPECT_EQ(leaf->getChildId(), 1);
    leaf->setBoundingBox(c_farBox);
    leaf->markChanged();
    leaf->disconnectFromParent();
    EXPECT_EQ(leaf->getChildId(), 1);
    const auto next = SceneGraphGroup::create();
    next->addChild(leaf);
    EXPECT_EQ(next->getBoundingBox(), c_farBox);
}

TEST(SceneGraphObject, settersCountEvenWithoutAChangeAndShininessIsClamped)
{
    const auto object = TestLeaf::create();
    EXPECT_EQ(object->getShininess(), 64.0f);
    EXPECT_FALSE(object->isObjectColorUsed());
    EXPECT_EQ(object->getObjectColor(), (Color{255, 255, 255, 255}));
    int changes = object->getChangeId();
    const std::pair<float, float> cases[] = {{0.0f, 1.0f},     {1.0f, 1.0f},     {1.5f, 1.5f},
                                             {127.5f, 127.5f}, {500.0f, 128.0f}, {std::nanf(""), 1.0f}};
    for (const auto& [asked, taken] : cases) {
        object->setShininess(asked);
        EXPECT_EQ(object->getShininess(), taken) << asked;
        EXPECT_EQ(object->getChangeId(), ++changes) << asked;
    }
    object->setObjectColor(object->getObjectColor());
    object->setUseObjectColor(false);
    EXPECT_EQ(object->getChangeId(), changes + 2);
}

} // namespace
} // namespace vxgraphics3d
