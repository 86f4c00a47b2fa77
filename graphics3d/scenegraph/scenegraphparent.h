#pragma once

#include "graphics3d/foundation/changecounter.h"
#include "graphics3d/scenegraph/scenegraphnode.h"

#include <boost/shared_ptr.hpp>
#include <boost/weak_ptr.hpp>

#include <utility>
#include <vector>

namespace vxgraphics3d {

/// A node that holds other nodes.
///
/// It owns its children. No parent may come to stand below itself, on whatever way: addChild() and setChild() refuse
/// that before anything changes. All ways up and down the tree are loops, so that no depth of a tree exhausts the
/// stack.
class VX_API SceneGraphParent : public SceneGraphNode {
public:
    /// The number of changes anywhere below this node, from 1.
    int getChildrenChangeId() const { return m_childrenChangeId; }
    /// Whether the number differs from the one given.
    bool areChildrenChanged(int id) const { return id != m_childrenChangeId; }
    /// Counts a change below this node, here and on every node above.
    void markChildChanged()
    {
        for (SceneGraphParent* parent = this; parent != nullptr; parent = parent->parentOrNull()) {
            raiseChange(parent->m_childrenChangeId);
        }
    }

    /// A group is passed by if it is empty or lies outside the frustum, and its subtree is not tested any more if it
    /// lies wholly inside; the children go in ascending order of their ids.
    void getSelection(const SelectionFrustrum& frustum, const CanvasPickSettings& settings,
                      PickedObjectCollection& result, bool inside) const override;
    void getMarkedBoundingBox(BoundingBox& box, int include, int exclude) const override;

    virtual int getNoOfChildren() const = 0;
    virtual bool doesChildExist(int childId) const = 0;
    /// @throws std::out_of_range if there is no such child; the same for child(), childPtr() and getChildType()
    virtual const SceneGraphNode* getChild(int childId) const = 0;
    virtual SceneGraphNode* child(int childId) = 0;
    virtual boost::shared_ptr<SceneGraphNode> childPtr(int childId) = 0;
    virtual void removeChild(int childId) = 0;
    virtual NodeType getChildType(int childId) const = 0;
    /// Tells the root that nodes have come or gone.
    virtual void treeStructureChanged()
    {
        if (SceneGraphParent* root = rootAbove()) {
            root->treeStructureChanged();
        }
    }
    /// Calculates the box from those of the children, and brings the boxes above up to date.
    virtual void calculateBoundingBox();
    /// Ends at the root, which does nothing.
    virtual void changeVertexState(int nodeId, int index, int state);
    /// Registers snap vertices at the root.
    virtual void addSnapVertices(int nodeId, const std::vector<SnapVertex>& vertices);
    /// Withdraws a node's snap vertices from the root.
    virtual void removeSnapVertices(int nodeId);

protected:
    static const BoundingBox& emptyBox() { return c_emptyBox; }

    /// A node that a walk through the tree has yet to visit.
    struct OpenNode {
        const SceneGraphNode* node;
        bool inside;
    };

    explicit SceneGraphParent(NodeType type) : SceneGraphNode(type) {}

    /// A weak reference on this node for its children.
    /// @throws boost::bad_weak_ptr if the node was not made by `create()`
    boost::weak_ptr<SceneGraphParent> weakSelf()
    {
        if (m_self.expired()) {
            throw boost::bad_weak_ptr();
        }
        return {m_self, this};
    }
    /// Refuses what may not become a child: nothing at all, this node itself, or one that this node stands below. Takes
    /// a time that does not depend on the number of children, and for a leaf or an empty parent not on the depth.
    /// @throws std::invalid_argument
    void requireNewChild(const boost::shared_ptr<SceneGraphNode>& node) const
    {
        if (!node || mayHold(*node)) {
            requireNewParent(node);
        }
    }
    /// Makes a node that has entered the table of children answer to this one, with setParent().
    void takeIn(SceneGraphNode& child, boost::weak_ptr<SceneGraphParent>&& weakThis, int childId)
    {
        ++child.m_numHolders;
        child.answerTo(this, std::move(weakThis), childId);
    }
    /// Makes a node that is to leave the table of children answer to nobody.
    static void letGo(SceneGraphNode& child);
    /// Gives a child up while this node dies, so that a deep tree is taken apart without deep recursion.
    static void bury(boost::shared_ptr<SceneGraphNode>& child) noexcept;

    /// Whether the boxes of all children of a table reach this node when they change: not so if one of them answers to
    /// another parent.
    bool hearsOf(int numChildren) const { return m_numAnswering == numChildren; }

    /// The box over all children, inactive ones left out, merged in id order.
    virtual const BoundingBox& mergeChildBoxes() = 0;
    /// Whether a pick goes on to the children.
    /// @param inside in: whether a group above lies wholly in the frustum; out: whether this node does
    virtual bool admitsPick(const SelectionFrustrum& frustum, bool& inside) const = 0;
    /// Puts the children on a stack, the first one on top.
    virtual void pushChildren(std::vector<OpenNode>& open, bool inside) const = 0;

    /// For mergeChildBoxes(): how many of the first children its last result covers; 0 when the box of one of them may
    /// have changed since.
    int m_numMerged = 0;

private:
    friend class SceneGraphNode;

    /// Whether the node can have nodes below it.
    static bool mayHold(const SceneGraphNode& node)
    {
        return node.getType() == NodeRoot || node.getType() == NodeGroup;
    }

    SceneGraphParent* rootAbove() const
    {
        SceneGraphParent* parent = parentOrNull();
        while (parent != nullptr && parent->getType() != NodeRoot) {
            parent = parent->parentOrNull();
        }
        return parent;
    }
    /// requireNewChild() for what is no leaf.
    void requireNewParent(const boost::shared_ptr<SceneGraphNode>& node) const;
    static const SceneGraphParent* asParent(const SceneGraphNode& node);
    bool standsBelow(const SceneGraphNode& node) const;
    void loseChild();
    static bool contains(const SceneGraphParent& top, const SceneGraphNode& wanted);
    template <class Enter, class Leaf>
    void walk(bool inside, Enter enter, Leaf leaf) const;

    int m_childrenChangeId = 1;
    int m_numAnswering = 0; ///< how many nodes answer to this one
};

} // namespace vxgraphics3d
