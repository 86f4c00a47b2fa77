#pragma once

#include "graphics3d/scenegraph/scenegraphparent.h"

#include <map>
#include <utility>

namespace vxgraphics3d {

/// A node with any number of children, which are ordered by their ids.
///
/// Ids count from 1 in the order of arrival and are never used again. When a group dies its children are released, not
/// detached: their references to the parent simply expire.
class VX_API SceneGraphGroup : public SceneGraphParent {
public:
    using ChildMap = std::map<int, boost::shared_ptr<SceneGraphNode>>;

    static boost::shared_ptr<SceneGraphGroup> create();
    ~SceneGraphGroup() override;

    /// Takes a node in under the next id. A node that stands under another parent stays there as well, but answers to
    /// this group from now on.
    /// @return true
    /// @throws std::invalid_argument for no node, this group itself or one that this group stands below
    bool addChild(boost::shared_ptr<SceneGraphNode> node);
    /// Lets all children go, in id order. A group without children only writes its log line.
    void removeAllChildren();

    /// Begin and end of the children, by rising id.
    std::pair<ChildMap::iterator, ChildMap::iterator> children() { return {m_children.begin(), m_children.end()}; }
    std::pair<ChildMap::const_iterator, ChildMap::const_iterator> getChildren() const
    {
        return {m_children.begin(), m_children.end()};
    }

    /// Registers the snap vertices of the direct children.
    void updateNodeSnapVertices() override;
    /// Withdraws the snap vertices of the direct children.
    void removeNodeSnapVertices() override;

    int getNoOfChildren() const override { return static_cast<int>(m_children.size()); }
    bool doesChildExist(int childId) const override { return m_children.count(childId) != 0; }
    const SceneGraphNode* getChild(int childId) const override { return find(childId).get(); }
    SceneGraphNode* child(int childId) override { return find(childId).get(); }
    boost::shared_ptr<SceneGraphNode> childPtr(int childId) override { return find(childId); }
    /// Lets a child go. An id that is not there is ignored.
    void removeChild(int childId) override;
    NodeType getChildType(int childId) const override { return find(childId)->getType(); }

protected:
    const BoundingBox& mergeChildBoxes() override;
    bool admitsPick(const SelectionFrustrum& frustum, bool& inside) const override;
    void pushChildren(std::vector<OpenNode>& open, bool inside) const override;

private:
    SceneGraphGroup();

    const boost::shared_ptr<SceneGraphNode>& find(int childId) const;
    /// Detaches the child and takes it from the table.
    /// @return the place behind it
    ChildMap::iterator take(ChildMap::iterator place);

    int m_lastChildId = 0;
    ChildMap m_children;
    /// The children of the table side by side, for the merging of their boxes. Built anew when it has another length.
    std::vector<const SceneGraphNode*> m_inOrder;
    BoundingBox m_mergedBox; ///< over the first m_numMerged children
};

} // namespace vxgraphics3d
