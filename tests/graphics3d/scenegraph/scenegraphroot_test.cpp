#include "graphics3d/scenegraph/scenegraphroot.h"

#include "base/ustring.h"
#include "graphics3d/scenegraph/ilegendsource.h"
#include "graphics3d/scenegraph/scenegraphgroup.h"
#include "tests/support/handedthrough.h"
#include "tests/support/testleaf.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <typeinfo>

namespace vxgraphics3d {
namespace {

/// Replaces the node that holds plots.
class Plots : public SceneGraphNode, public ILegendSource {
public:
    static boost::shared_ptr<Plots> create() { return own(new Plots); }

    void getSelection(const SelectionFrustrum&, const CanvasPickSettings&, PickedObjectCollection&, bool) const override
    {}
    void getMarkedBoundingBox(BoundingBox&, int, int) const override {}

    int getNumberOfColorLegends() const override { return 3; }
    void getLineLegend(std::vector<LineLegend>& result) const override { lineLegends = &result; }
    void getTotalTitle(vxbase::UString& result) const override { result = "title"; }
    int getTitleChangeId() const override { return changes; }

    int changes = 1;
    mutable const std::vector<LineLegend>* lineLegends = nullptr;

private:
    Plots() : SceneGraphNode(NodePlotGroup) {}
};

TEST(SceneGraphRoot, withoutPlotsTitleAndLegendsAreEmpty)
{
    const auto root = SceneGraphRoot::create();
    const auto group = SceneGraphGroup::create();
    const auto plots = Plots::create();
    group->addChild(plots);
    for (int i = 0; i < 2; ++i) {
        vxbase::UString title("before");
        LastChangeId last;
        root->getLineLegend(handedThrough<std::vector<LineLegend>>());
        root->getTitle(title);
        root->resetTitleChanged(last);
        EXPECT_EQ(root->getNumberOfColorLegends(), 0);
        EXPECT_EQ(plots->lineLegends, nullptr);
        EXPECT_EQ(title, vxbase::UString("before"));
        EXPECT_FALSE(root->isTitleChanged(last));
        EXPECT_EQ(last.changeId, 0);
        // Plots below a group do not belong to the root.
        root->setChild(group);
    }
}

TEST(SceneGraphRoot, titleAndLegendsAreThoseOfThePlotsBelowIt)
{
    const auto root = SceneGraphRoot::create();
    const auto plots = Plots::create();
    root->setChild(plots);
    EXPECT_EQ(root->getNumberOfColorLegends(), 3);
    auto& lines = handedThrough<std::vector<LineLegend>>();
    root->getLineLegend(lines);
    EXPECT_EQ(plots->lineLegends, &lines);
    vxbase::UString title;
    root->getTitle(title);
    EXPECT_EQ(title, vxbase::UString("title"));
    LastChangeId last;
    EXPECT_TRUE(root->isTitleChanged(last));
    root->resetTitleChanged(last);
    EXPECT_FALSE(root->isTitleChanged(last));
    plots->changes = -4;
    EXPECT_TRUE(root->isTitleChanged(last));
}

TEST(SceneGraphRoot, hasOneChildUnderTheIdZero)
{
    const auto root = SceneGraphRoot::create();
    EXPECT_EQ(root->getNoOfChildren(), 0);
    EXPECT_FALSE(root->doesChildExist(0));
    EXPECT_THROW(root->getChild(0), std::out_of_range);
    EXPECT_THROW(root->childPtr(0), std::out_of_range);
    EXPECT_THROW(root->getChildType(0), std::out_of_range);
    EXPECT_THROW(root->getChildObjectType(0), std::out_of_range);
    const auto first = TestLeaf::create({}, SceneGraphObject::ObjectCurve);
    const auto second = SceneGraphGroup::create();
    root->setChild(first);
    EXPECT_EQ(first->getChildId(), 0);
    EXPECT_EQ(root->childPtr(55), first);
    EXPECT_EQ(root->getChildType(55), SceneGraphNode::NodeObject);
    EXPECT_EQ(root->getChildObjectType(55), SceneGraphObject::ObjectCurve);
    EXPECT_TRUE(root->doesChildExist(55));
    root->setChild(second);
    EXPECT_EQ(first->getParent(), nullptr);
    EXPECT_EQ(root->getNoOfChildren(), 1);
    EXPECT_EQ(root->child(0), second.get());
    EXPECT_THROW(root->getChildObjectType(0), std::bad_cast);
}

TEST(SceneGraphRoot, everyCallThatMayChangeTheChildCountsAsAChangeOfStructure)
{
    const auto root = SceneGraphRoot::create();
    const BoundingBox box(0.0f, 1.0f, 0.0f, 1.0f, 0.0f, 1.0f);
    const auto leaf = TestLeaf::create(box);
    EXPECT_EQ(root->getTreeStructureChangeId(), 1);
    EXPECT_EQ(root->getChildrenChangeId(), 1);
    root->setChild(leaf);
    EXPECT_EQ(root->getTreeStructureChangeId(), 2);
    EXPECT_EQ(root->getChildrenChangeId(), 3);
    EXPECT_EQ(root->getBoundingBox(), box);
    // The same child again: it is removed and added.
    root->setChild(leaf);
    EXPECT_EQ(leaf->getParent(), root);
    EXPECT_EQ(root->getTreeStructureChangeId(), 3);
    root->removeChild(99);
    EXPECT_EQ(root->getTreeStructureChangeId(), 4);
    EXPECT_FALSE(root->getBoundingBox().isValid());
    root->removeChild(0);
    EXPECT_EQ(root->getTreeStructureChangeId(), 5);
    EXPECT_TRUE(root->isTreeStructureChanged(4));
    EXPECT_FALSE(root->isTreeStructureChanged(5));
}

/// A root with a group below it, and its snap vertices.
class SnappingTree : public testing::Test {
protected:
    SnappingTree() { root->setChild(group); }

    /// Whether the root snaps to a point.
    bool snaps(const Vector3f& point)
    {
        double coordinate[3] = {};
        return root->getClosestSnapCoordinate(point, coordinate, 0.25, {}) < 0.25;
    }

    boost::shared_ptr<SceneGraphRoot> root = SceneGraphRoot::create();
    boost::shared_ptr<SceneGraphGroup> group = SceneGraphGroup::create();
    const Vector3f here{1.0f, 2.0f, 3.0f};
    const Vector3f there{7.0f, 8.0f, 9.0f};
};

TEST_F(SnappingTree, snapVerticesAreAddedAndRemovedWithTheirNode)
{
    const auto leaf = TestLeaf::create();
    leaf->snapTo({here});
    EXPECT_FALSE(snaps(here));
    group->addChild(leaf);
    EXPECT_TRUE(snaps(here));
    leaf->snapTo({there});
    EXPECT_FALSE(snaps(here));
    EXPECT_TRUE(snaps(there));
    leaf->disconnectFromParent();
    EXPECT_FALSE(snaps(there));
}

TEST_F(SnappingTree, aGroupAddsAndRemovesItsDirectChildrenOnly)
{
    const auto outer = SceneGraphGroup::create();
    const auto inner = SceneGraphGroup::create();
    const auto direct = TestLeaf::create();
    const auto deep = TestLeaf::create();
    outer->addChild(direct);
    outer->addChild(inner);
    inner->addChild(deep);
    direct->snapTo({here});
    deep->snapTo({there});
    group->addChild(outer);
    EXPECT_TRUE(snaps(here));
    EXPECT_FALSE(snaps(there));
    inner->updateNodeSnapVertices();
    EXPECT_TRUE(snaps(there));
    outer->disconnectFromParent();
    EXPECT_FALSE(snaps(here));
    EXPECT_TRUE(snaps(there));
}

TEST_F(SnappingTree, anInnerRootKeepsTheVerticesBelowIt)
{
    const auto innerRoot = SceneGraphRoot::create();
    const auto leaf = TestLeaf::create();
    group->addChild(innerRoot);
    innerRoot->setChild(leaf);
    const int structure = root->getTreeStructureChangeId();
    leaf->snapTo({here});
    EXPECT_FALSE(snaps(here));
    innerRoot->removeChild(0);
    EXPECT_EQ(root->getTreeStructureChangeId(), structure);
}

} // namespace
} // namespace vxgraphics3d
