#include "graphics3d/scenegraph/scenegraphgroup.h"

#include "graphics3d/picking/canvaspicksettings.h"
#include "graphics3d/picking/pickedobjectcollection.h"
#include "graphics3d/picking/selectionfrustrum.h"
#include "graphics3d/scenegraph/scenegraphroot.h"
#include "tests/support/capturedlog.h"
#include "tests/support/testleaf.h"

#include <gtest/gtest.h>

#include <cstring>
#include <functional>
#include <new>
#include <random>
#include <stdexcept>

namespace vxgraphics3d {
namespace {

using Messages = std::vector<std::string>;
using Picks = std::vector<std::pair<int, bool>>;

const BoundingBox c_unitBox(0.0f, 1.0f, 0.0f, 1.0f, 0.0f, 1.0f);

std::string idOf(const SceneGraphNode& node)
{
    return std::to_string(node.getNodeId());
}

BoundingBox boxAt(float x)
{
    return {x, x + 1.0f, 0.0f, 1.0f, 0.0f, 1.0f};
}

/// The box of the children as documented: all of them merged in the order of their ids.
BoundingBox mergedOneByOne(const SceneGraphGroup& group)
{
    BoundingBox box;
    const auto [begin, end] = group.getChildren();
    for (auto place = begin; place != end; ++place) {
        box.merge(place->second->getBoundingBox());
    }
    return box;
}

bool sameBits(const BoundingBox& a, const BoundingBox& b)
{
    const float left[] = {a.getCenter().x,  a.getCenter().y,  a.getCenter().z,
                          a.getHalfSizeX(), a.getHalfSizeY(), a.getHalfSizeZ()};
    const float right[] = {b.getCenter().x,  b.getCenter().y,  b.getCenter().z,
                           b.getHalfSizeX(), b.getHalfSizeY(), b.getHalfSizeZ()};
    return a.isValid() == b.isValid() && std::memcmp(left, right, sizeof left) == 0;
}

TEST(SceneGraphGroup, aNewGroupIsEmpty)
{
    const auto group = SceneGraphGroup::create();
    EXPECT_EQ(group->getType(), SceneGraphNode::NodeGroup);
    EXPECT_EQ(group->getNoOfChildren(), 0);
    EXPECT_FALSE(group->doesChildExist(1));
    group->calculateBoundingBox();
    EXPECT_FALSE(group->getBoundingBox().isValid());
}

TEST(SceneGraphGroup, idsOfChildrenCountFromOneAndAreNeverReused)
{
    const auto group = SceneGraphGroup::create();
    const auto first = TestLeaf::create();
    const auto second = TestLeaf::create();
    const auto third = SceneGraphGroup::create();
    EXPECT_TRUE(group->addChild(first));
    group->addChild(second);
    group->removeChild(1);
    group->addChild(third);
    EXPECT_EQ(second->getChildId(), 2);
    EXPECT_EQ(third->getChildId(), 3);
    EXPECT_EQ(group->getNoOfChildren(), 2);
    EXPECT_FALSE(group->doesChildExist(1));
    EXPECT_EQ(group->getChild(2), second.get());
    EXPECT_EQ(group->child(3), third.get());
    EXPECT_EQ(group->childPtr(3), third);
    EXPECT_EQ(group->getChildType(2), SceneGraphNode::NodeObject);
    EXPECT_EQ(group->getChildType(3), SceneGraphNode::NodeGroup);
    EXPECT_EQ(third->getParent(), group);
}

TEST(SceneGraphGroup, missingIdsAreRefusedExceptForRemoval)
{
    const auto group = SceneGraphGroup::create();
    const auto root = SceneGraphRoot::create();
    root->setChild(group);
    const int structure = root->getTreeStructureChangeId();
    EXPECT_THROW(group->getChild(1), std::out_of_range);
    EXPECT_THROW(group->child(0), std::out_of_range);
    EXPECT_THROW(group->childPtr(-1), std::out_of_range);
    EXPECT_THROW(group->getChildType(7), std::out_of_range);
    CapturedLog log(ErrorLog::Level::debug);
    group->removeChild(1);
    EXPECT_EQ(log.messages(), Messages());
    EXPECT_EQ(root->getTreeStructureChangeId(), structure);
}

TEST(SceneGraphGroup, logsItsLifeCycleAndItsChildrenInOrder)
{
    CapturedLog log(ErrorLog::Level::info);
    const auto leaf = TestLeaf::create();
    const auto other = TestLeaf::create();
    auto group = SceneGraphGroup::create();
    const std::string id = idOf(*group);
    group->addChild(leaf);
    group->removeChild(1);
    group->addChild(leaf);
    group->addChild(other);
    group->removeAllChildren();
    group->removeAllChildren();
    group.reset();
    EXPECT_EQ(
        log.messages(),
        (Messages{
            "Creating SceneGraphGroup (node " + id + ")", "Adding child 1 to group (node " + id + ").",
            "Connecting node as child 1 to parent (node " + id + ")", "Removing child 1 from group (node " + id + ").",
            "Adding child 2 to group (node " + id + ").", "Connecting node as child 2 to parent (node " + id + ")",
            "Adding child 3 to group (node " + id + ").", "Connecting node as child 3 to parent (node " + id + ")",
            "Removing all children from group (node " + id + ").",
            "Removing all children from group (node " + id + ").", "Destroying SceneGraphGroup (node " + id + ")"}));
}

TEST(SceneGraphGroup, additionsAndRemovalsAreCountedAtTheRoot)
{
    const auto root = SceneGraphRoot::create();
    const auto group = SceneGraphGroup::create();
    root->setChild(group);
    struct Case {
        const char* what;
        std::function<void()> act;
        int structure;
        int belowRoot;
        int belowGroup;
    };
    const auto leaf = TestLeaf::create(c_unitBox);
    const auto other = TestLeaf::create(c_unitBox);
    const Case cases[] = {
        {"a child comes: its own change, then the structure", [&] { group->addChild(leaf); }, 1, 2, 1},
        {"a second one", [&] { group->addChild(other); }, 1, 2, 1},
        {"a child goes: only the structure", [&] { group->removeChild(1); }, 1, 1, 0},
        {"all go", [&] { group->removeAllChildren(); }, 1, 1, 0},
        {"all go from an empty group", [&] { group->removeAllChildren(); }, 0, 0, 0},
    };
    for (const Case& c : cases) {
        const int structure = root->getTreeStructureChangeId();
        const int belowRoot = root->getChildrenChangeId();
        const int belowGroup = group->getChildrenChangeId();
        c.act();
        EXPECT_EQ(root->getTreeStructureChangeId() - structure, c.structure) << c.what;
        EXPECT_EQ(root->getChildrenChangeId() - belowRoot, c.belowRoot) << c.what;
        EXPECT_EQ(group->getChildrenChangeId() - belowGroup, c.belowGroup) << c.what;
    }
    EXPECT_EQ(leaf->getChildId(), 0);
    EXPECT_FALSE(root->getBoundingBox().isValid());
}

TEST(SceneGraphGroup, refusesCyclesBeforeAnythingChanges)
{
    const auto top = SceneGraphGroup::create();
    const auto middle = SceneGraphGroup::create();
    const auto bottom = SceneGraphGroup::create();
    const auto root = SceneGraphRoot::create();
    top->addChild(middle);
    middle->addChild(bottom);
    root->setChild(top);
    const int structure = root->getTreeStructureChangeId();
    CapturedLog log(ErrorLog::Level::debug);
    EXPECT_THROW(bottom->addChild(nullptr), std::invalid_argument);
    EXPECT_THROW(bottom->addChild(bottom), std::invalid_argument);
    EXPECT_THROW(bottom->addChild(middle), std::invalid_argument);
    EXPECT_THROW(bottom->addChild(top), std::invalid_argument);
    EXPECT_THROW(bottom->addChild(root), std::invalid_argument);
    EXPECT_THROW(root->setChild(root), std::invalid_argument);
    EXPECT_THROW(root->setChild(nullptr), std::invalid_argument);
    EXPECT_EQ(log.messages(), Messages());
    EXPECT_EQ(root->getTreeStructureChangeId(), structure);
    EXPECT_EQ(bottom->getNoOfChildren(), 0);
    EXPECT_EQ(root->getChild(0), top.get());
    // The first id is still free, and a node from elsewhere in the tree is accepted.
    top->addChild(bottom);
    const auto leaf = TestLeaf::create();
    bottom->addChild(leaf);
    EXPECT_EQ(leaf->getChildId(), 1);
}

TEST(SceneGraphGroup, refusesACycleThroughAParentThatTheNodeDoesNotReportTo)
{
    const auto first = SceneGraphGroup::create();
    const auto second = SceneGraphGroup::create();
    const auto shared = SceneGraphGroup::create();
    first->addChild(shared);
    second->addChild(shared);
    EXPECT_EQ(shared->getParent(), second);
    EXPECT_THROW(shared->addChild(first), std::invalid_argument);
    // Removal from the second parent leaves the node without a parent to report to, though the first still holds it.
    second->removeChild(1);
    EXPECT_EQ(shared->getParent(), nullptr);
    EXPECT_THROW(shared->addChild(first), std::invalid_argument);
    first->removeChild(1);
    EXPECT_TRUE(shared->addChild(first));
}

TEST(SceneGraphGroup, aNodeMayHaveTwoParentsAndReportsToTheLaterOne)
{
    const auto first = SceneGraphGroup::create();
    const auto second = SceneGraphGroup::create();
    const auto leaf = TestLeaf::create(boxAt(0.0f));
    first->addChild(leaf);
    second->addChild(leaf);
    leaf->setBoundingBox(boxAt(4.0f));
    EXPECT_EQ(second->getBoundingBox(), boxAt(4.0f));
    EXPECT_EQ(first->getBoundingBox(), boxAt(0.0f));
    // The next child makes the first parent check all its children again.
    first->addChild(TestLeaf::create(boxAt(5.0f)));
    EXPECT_EQ(first->getBoundingBox(), BoundingBox(4.0f, 6.0f, 0.0f, 1.0f, 0.0f, 1.0f));
}

TEST(SceneGraphGroup, itsBoxIsAlwaysTheMergeOfAllChildrenToTheLastBit)
{
    std::mt19937 random(7);
    std::uniform_real_distribution<float> place(-10.0f, 10.0f);
    std::uniform_int_distribution<int> action(0, 9);
    const auto randomBox = [&] {
        const float x = place(random);
        const float y = place(random);
        const float z = place(random);
        return random() % 5 == 0 ? BoundingBox() : BoundingBox(x, x + 0.3f, y, y + 0.7f, z, z + 0.1f);
    };
    const auto group = SceneGraphGroup::create();
    const auto rival = SceneGraphGroup::create();
    std::vector<boost::shared_ptr<TestLeaf>> leaves;
    // A change of a leaf that reports to the rival is not seen until the group checks its children again.
    bool isCurrent = true;
    for (int round = 0; round < 3000; ++round) {
        const auto some = [&] { return leaves[random() % leaves.size()]; };
        const int what = leaves.empty() ? 0 : action(random);
        if (what < 3) {
            leaves.push_back(TestLeaf::create(randomBox()));
            group->addChild(leaves.back());
            isCurrent = true;
        } else if (what < 6) {
            const auto leaf = some();
            if (what == 3) {
                leaf->setBoundingBox(randomBox());
            } else {
                leaf->setActive(!leaf->isActive());
            }
            isCurrent = leaf->getParent() == group;
        } else if (what == 6) {
            const int count = group->getNoOfChildren();
            group->removeChild(static_cast<int>(random() % static_cast<unsigned>(round + 1)));
            isCurrent = isCurrent || group->getNoOfChildren() != count;
        } else if (what == 7) {
            rival->addChild(some());
        } else if (what == 8) {
            group->addChild(some());
            isCurrent = true;
        } else if (random() % 20 == 0) {
            group->removeAllChildren();
            leaves.clear();
            isCurrent = true;
        } else {
            group->setBoundingBox(boxAt(100.0f));
            isCurrent = false;
        }
        if (isCurrent) {
            ASSERT_TRUE(sameBits(group->getBoundingBox(), mergedOneByOne(*group))) << "round " << round;
        }
    }
}

/// A leaf that runs out of memory for its snap vertices.
class LeafWithoutMemory final : public TestLeaf {
public:
    static boost::shared_ptr<LeafWithoutMemory> create() { return own(new LeafWithoutMemory); }
    void updateNodeSnapVertices() override { throw std::bad_alloc(); }
};

TEST(SceneGraphGroup, aHalfAddedChildCountsWithTheNextOne)
{
    const auto root = SceneGraphRoot::create();
    const auto group = SceneGraphGroup::create();
    root->setChild(group);
    group->addChild(TestLeaf::create(boxAt(0.0f)));
    const auto leaf = LeafWithoutMemory::create();
    leaf->setBoundingBox(boxAt(4.0f));
    EXPECT_THROW(group->addChild(leaf), std::bad_alloc);
    EXPECT_EQ(group->getBoundingBox(), boxAt(0.0f));
    group->addChild(TestLeaf::create(boxAt(0.0f)));
    EXPECT_EQ(root->getBoundingBox(), BoundingBox(0.0f, 5.0f, 0.0f, 1.0f, 0.0f, 1.0f));
}

TEST(SceneGraphGroup, markedBoxesComeFromAllLeavesActiveOrNot)
{
    const auto root = SceneGraphRoot::create();
    const auto top = SceneGraphGroup::create();
    const auto inner = SceneGraphGroup::create();
    const auto hidden = TestLeaf::create(boxAt(3.0f));
    BoundingBox box;
    root->getMarkedBoundingBox(box, 1, 2);
    EXPECT_FALSE(box.isValid());
    root->setChild(top);
    top->addChild(inner);
    inner->addChild(hidden);
    top->addChild(TestLeaf::create(boxAt(0.0f)));
    hidden->setActive(false);
    root->getMarkedBoundingBox(box, 1, 2);
    EXPECT_EQ(box, BoundingBox(0.0f, 4.0f, 0.0f, 1.0f, 0.0f, 1.0f));
}

/// A frustum along z over x and y from 0 to 10.
SelectionFrustrum frustumOverTen()
{
    return {{0.0f, 10.0f, 9.0f},  {0.0f, 0.0f, 9.0f},  {10.0f, 0.0f, 9.0f},  {10.0f, 10.0f, 9.0f},
            {0.0f, 10.0f, -9.0f}, {0.0f, 0.0f, -9.0f}, {10.0f, 0.0f, -9.0f}, {10.0f, 10.0f, -9.0f}};
}

class PickedTree : public testing::Test {
protected:
    boost::shared_ptr<TestLeaf> add(SceneGraphGroup& group, float x)
    {
        const auto leaf = TestLeaf::create({x, x + 1.0f, 1.0f, 2.0f, 0.0f, 1.0f});
        leaf->recordPicksIn(picks);
        group.addChild(leaf);
        return leaf;
    }

    Picks pick(const SceneGraphNode& node, bool inside = false)
    {
        picks.clear();
        node.getSelection(frustumOverTen(), CanvasPickSettings(), result, inside);
        return picks;
    }

    Picks picks;
    PickedObjectCollection result;
    boost::shared_ptr<SceneGraphRoot> root = SceneGraphRoot::create();
    boost::shared_ptr<SceneGraphGroup> top = SceneGraphGroup::create();
};

TEST_F(PickedTree, groupsAreVisitedInIdOrderAndCutOffByTheirBoxes)
{
    EXPECT_EQ(pick(*root), Picks());
    root->setChild(top);
    const auto within = SceneGraphGroup::create();
    const auto outside = SceneGraphGroup::create();
    const auto across = SceneGraphGroup::create();
    top->addChild(SceneGraphGroup::create());
    top->addChild(within);
    const auto before = add(*top, 5.0f);
    top->addChild(outside);
    top->addChild(across);
    const auto a = add(*within, 2.0f);
    const auto b = add(*within, 3.0f);
    add(*outside, 30.0f);
    const auto c = add(*across, 9.5f);
    const auto far = add(*top, 40.0f);
    // Leaves are not tested here, not even the one outside; only groups are.
    EXPECT_EQ(pick(*root), (Picks{{a->getNodeId(), true},
                                  {b->getNodeId(), true},
                                  {before->getNodeId(), false},
                                  {c->getNodeId(), false},
                                  {far->getNodeId(), false}}));
    EXPECT_EQ(pick(*root, true).size(), 6u);
    within->setActive(false);
    EXPECT_EQ(pick(*root).size(), 3u);
}

TEST_F(PickedTree, aLeafDirectlyBelowTheRootIsNotTested)
{
    const auto group = SceneGraphGroup::create();
    const auto leaf = add(*group, 50.0f);
    leaf->setActive(false);
    root->setChild(leaf);
    EXPECT_EQ(pick(*root), (Picks{{leaf->getNodeId(), false}}));
    // The group still holds the leaf, but its own box is empty.
    EXPECT_EQ(pick(*group), Picks());
}

TEST(SceneGraphGroup, treesDeeperThanTheStackWorkAndAreDestroyed)
{
    constexpr int depth = 200000;
    const auto leaf = TestLeaf::create(c_unitBox);
    boost::shared_ptr<SceneGraphGroup> below = SceneGraphGroup::create();
    below->addChild(leaf);
    for (int i = 1; i < depth; ++i) {
        const auto above = SceneGraphGroup::create();
        above->addChild(below);
        below = above;
    }
    const auto root = SceneGraphRoot::create();
    root->setChild(below);
    const int structure = root->getTreeStructureChangeId();
    leaf->setBoundingBox(boxAt(2.0f));
    EXPECT_EQ(root->getBoundingBox(), boxAt(2.0f));
    leaf->snapTo({{1.0f, 2.0f, 3.0f}});
    double snapped[3] = {};
    EXPECT_EQ(root->getClosestSnapCoordinate({1.0f, 2.0f, 3.0f}, snapped, 1.0, {}), 0.0);
    leaf->disconnectFromParent();
    EXPECT_EQ(root->getTreeStructureChangeId(), structure + 1);
    BoundingBox box;
    root->getMarkedBoundingBox(box, 1, 2);
    EXPECT_FALSE(box.isValid());
    const boost::weak_ptr<SceneGraphNode> last = below;
    below.reset();
    root->removeChild(0);
    EXPECT_TRUE(last.expired());
}

/// A leaf that leaves its parent in its destructor, as an object that cleans up after itself might.
class LeavingLeaf final : public TestLeaf {
public:
    static boost::shared_ptr<LeavingLeaf> create() { return own(new LeavingLeaf); }
    ~LeavingLeaf() override
    {
        EXPECT_EQ(getParent(), nullptr);
        disconnectFromParent();
        markChanged();
    }
};

TEST(SceneGraphGroup, aChildDestroyedWithItsGroupHasNoParent)
{
    CapturedLog log(ErrorLog::Level::info);
    auto group = SceneGraphGroup::create();
    for (int i = 0; i < 3; ++i) {
        group->addChild(LeavingLeaf::create());
    }
    const std::string id = idOf(*group);
    group.reset();
    EXPECT_EQ(log.messages().back(), "Destroying SceneGraphGroup (node " + id + ")");
}

TEST(SceneGraphGroup, childrenOutliveTheirGroupOnlyWithAnotherOwner)
{
    auto group = SceneGraphGroup::create();
    const auto inner = SceneGraphGroup::create();
    boost::weak_ptr<SceneGraphNode> lost;
    {
        const auto leaf = TestLeaf::create();
        lost = leaf;
        group->addChild(leaf);
    }
    group->addChild(inner);
    const auto kept = TestLeaf::create();
    inner->addChild(kept);
    group.reset();
    EXPECT_TRUE(lost.expired());
    EXPECT_EQ(inner->getChild(1), kept.get());
    EXPECT_EQ(inner->getParent(), nullptr);
}

} // namespace
} // namespace vxgraphics3d
