#pragma once

#include "graphics3d/scenegraph/scenegraphparent.h"

#include <utility>
#include <vector>

namespace vxgraphics3d {

/// A node with any number of children, which are ordered by their ids.
///
/// Ids count from 1 in the order of addition and are never reused. When a group is destroyed, its children are
/// released, not detached: their references to the parent simply expire.
///
///     const auto group = SceneGraphGroup::create();
///     group->addChild(child);                       // under id 1; the box of the group now covers the child
///     group->removeChild(child->getChildId());
class VX_API SceneGraphGroup final : public SceneGraphParent {
public:
    /// Children with their ids, in ascending order. A new child has the highest id, so it always comes at the end.
    using ChildTable = std::vector<std::pair<int, boost::shared_ptr<SceneGraphNode>>>;

    static boost::shared_ptr<SceneGraphGroup> create();
    ~SceneGraphGroup() override;

    /// Adds a node under the next id, at a cost that does not depend on the number of children. A node that is already
    /// in another parent remains there too, but from now on reports to this group.
    /// @return true
    /// @throws std::invalid_argument for null, this group itself, or a parent that contains this group
    bool addChild(boost::shared_ptr<SceneGraphNode> node);
    /// Removes all children, in id order. A group without children only writes its log line.
    void removeAllChildren();

    /// Begin and end of the children, in ascending order of their ids. Valid until a child is added or removed.
    std::pair<ChildTable::const_iterator, ChildTable::const_iterator> children() { return getChildren(); }
    std::pair<ChildTable::const_iterator, ChildTable::const_iterator> getChildren() const
    {
        return {m_children.begin(), m_children.end()};
    }

    /// Registers the snap vertices of the direct children.
    void updateNodeSnapVertices() override;
    /// Withdraws the snap vertices of the direct children.
    void removeNodeSnapVertices() override;

    int getNoOfChildren() const override { return static_cast<int>(m_children.size()); }
    bool doesChildExist(int childId) const override { return findEntry(childId) != m_children.end(); }
    const SceneGraphNode* getChild(int childId) const override { return find(childId).get(); }
    SceneGraphNode* child(int childId) override { return find(childId).get(); }
    boost::shared_ptr<SceneGraphNode> childPtr(int childId) override { return find(childId); }
    /// Removes a child. An unknown id is ignored.
    void removeChild(int childId) override;
    NodeType getChildType(int childId) const override { return find(childId)->getType(); }

protected:
    const BoundingBox& mergeChildBoxes() override;
    void loseChild() override { m_hearsAllChildren = false; }
    bool admitsPick(const SelectionFrustrum& frustum, bool& inside) const override;
    void pushChildren(std::vector<OpenNode>& open, bool inside) const override;

private:
    SceneGraphGroup();

    /// The position of the child, or the end of the table.
    ChildTable::const_iterator findEntry(int childId) const;
    const boost::shared_ptr<SceneGraphNode>& find(int childId) const;
    bool doAllChildrenAnswer() const;

    int m_lastChildId = 0;
    ChildTable m_children;
    /// The boxes of all children, merged in id order after the last change of any of them.
    BoundingBox m_childBox;
    /// Whether every child reports to this group, so that `m_childBox` includes every change of a child's box.
    bool m_hearsAllChildren = true;
};

} // namespace vxgraphics3d
