#pragma once

#include "graphics3d/foundation/changenumber.h"
#include "graphics3d/scenegraph/scenegraphnode.h"

#include <boost/shared_ptr.hpp>

#include <vector>

namespace vxgraphics3d {

/// A node that holds other nodes, and owns them.
///
/// No parent may become its own descendant, on any path: addChild() and setChild() refuse that before anything changes.
/// All paths up and down the tree are loops, in destruction too, so that no depth of a tree exhausts the stack.
class VX_API SceneGraphParent : public SceneGraphNode {
public:
    ~SceneGraphParent() override;

    /// The number of changes anywhere below this node, from 1.
    int getChildrenChangeId() const { return m_childrenChangeId.get(); }
    /// Whether the number differs from the given one.
    bool areChildrenChanged(int id) const { return m_childrenChangeId.isChanged({id}); }
    /// Counts a change below this node, here and on every node above.
    void markChildChanged();

    /// A group is skipped if it is empty or outside the frustum, and its subtree is not tested further if it is wholly
    /// inside; the children are visited in ascending order of their ids.
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
    /// Reports to the root that nodes were added or removed.
    virtual void treeStructureChanged();
    /// Calculates the box from those of the children, and updates the boxes above.
    virtual void calculateBoundingBox();
    /// Forwarded to the root, which does nothing.
    virtual void changeVertexState(int nodeId, int index, int state);
    /// Registers snap vertices at the root.
    virtual void addSnapVertices(int nodeId, const std::vector<SnapVertex>& vertices);
    /// Withdraws a node's snap vertices from the root.
    virtual void removeSnapVertices(int nodeId);

protected:
    /// A node that a traversal of the tree has yet to visit.
    struct OpenNode {
        const SceneGraphNode* node;
        bool inside;
    };

    explicit SceneGraphParent(NodeType type);

    /// Refuses nodes that must not become a child: null, this node itself, or one that contains this node. For a leaf
    /// the cost does not depend on the tree.
    /// @throws std::invalid_argument
    void requireNewChild(const SceneGraphNode* node) const;
    /// Makes a node that this parent holds report to it, under an id: the only way to add a node. The caller updates
    /// box and structure.
    void attach(SceneGraphNode& node, int childId);
    static const BoundingBox& emptyBox() { return c_emptyBox; }
    /// Releases a child when this parent is destroyed. Parents that are destroyed with it are handled in a loop.
    static void release(boost::shared_ptr<SceneGraphNode> child) noexcept;

    /// The merged box of the active children, in id order.
    virtual const BoundingBox& mergeChildBoxes() = 0;
    /// A node stops reporting to this parent, which may still hold it; its box may change unnoticed from now on.
    virtual void loseChild() {}
    /// Whether a pick continues with the children.
    /// @param inside in: whether a group above is wholly inside the frustum; out: whether this node is
    virtual bool admitsPick(const SelectionFrustrum& frustum, bool& inside) const = 0;
    /// Pushes the children onto a stack, the first one on top.
    virtual void pushChildren(std::vector<OpenNode>& open, bool inside) const = 0;

private:
    friend class SceneGraphNode;

    /// The nearest root above, or null.
    boost::shared_ptr<SceneGraphParent> rootAbove() const;
    /// Whether a parent is this one or below it.
    bool contains(const SceneGraphParent& wanted) const;
    static const SceneGraphParent* asParent(const SceneGraphNode& node);
    template <class Enter, class Leaf>
    void walk(bool inside, Enter enter, Leaf leaf) const;

    ChangeNumber m_childrenChangeId;
};

} // namespace vxgraphics3d
