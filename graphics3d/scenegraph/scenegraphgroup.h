#pragma once

#include "graphics3d/scenegraph/scenegraphparent.h"

#include <utility>
#include <vector>

namespace vxgraphics3d {

/// A node with any number of children, which are ordered by their ids.
///
/// Ids count from 1 in the order of arrival and are never used again. When a group dies its children are released, not
/// detached: their references to the parent simply expire.
///
///     const auto group = SceneGraphGroup::create();
///     group->addChild(child);                       // under id 1; the box of the group now covers the child
///     group->removeChild(child->getChildId());
class VX_API SceneGraphGroup final : public SceneGraphParent {
public:
    /// Children with their ids, by rising id. A new child has the highest id, so it always comes at the end.
    using ChildTable = std::vector<std::pair<int, boost::shared_ptr<SceneGraphNode>>>;

    static boost::shared_ptr<SceneGraphGroup> create();
    ~SceneGraphGroup() override;

    /// Takes a node in under the next id, at a cost that does not depend on the number of children. A node that another
    /// parent holds stays there as well, but answers to this group from now on.
    /// @return true
    /// @throws std::invalid_argument for no node, this group itself or one that this group stands below
    bool addChild(boost::shared_ptr<SceneGraphNode> node);
    /// Lets all children go, in id order. A group without children only writes its log line.
    void removeAllChildren();

    /// Begin and end of the children, by rising id. Good until a child comes or goes.
    std::pair<ChildTable::iterator, ChildTable::iterator> children() { return {m_children.begin(), m_children.end()}; }
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
    /// Lets a child go. An id that is not there is ignored.
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
    /// The boxes of all children, merged in id order when one of them changed last.
    BoundingBox m_childBox;
    /// Whether every child answers to this group, so that no change of a child's box has escaped `m_childBox`.
    bool m_hearsAllChildren = true;
};

} // namespace vxgraphics3d
