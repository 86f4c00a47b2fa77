#pragma once

#include "graphics3d/foundation/changenumber.h"
#include "graphics3d/scenegraph/scenegraphnode.h"

#include <boost/shared_ptr.hpp>

#include <vector>

namespace vxgraphics3d {

/// A node that holds other nodes, and owns them.
///
/// No parent may come to be below itself, on any path: addChild() and setChild() refuse that before anything changes.
/// All paths up and down the tree are loops, in destruction too, so that no depth of a tree exhausts the stack.
class VX_API SceneGraphParent : public SceneGraphNode {
public:
    ~SceneGraphParent() override;

    /// The number of changes anywhere below this node, from 1.
    int getChildrenChangeId() const { return m_childrenChangeId.get(); }
    /// Whether the number differs from the one given.
    bool areChildrenChanged(int id) const { return m_childrenChangeId.isChanged({id}); }
    /// Counts a change below this node, here and on every node above.
    void markChildChanged();

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
    /// Lets the root know that nodes have come or gone.
    virtual void treeStructureChanged();
    /// Calculates the box from those of the children, and brings the boxes above up to date.
    virtual void calculateBoundingBox();
    /// Ends at the root, which does nothing.
    virtual void changeVertexState(int nodeId, int index, int state);
    /// Registers snap vertices at the root.
    virtual void addSnapVertices(int nodeId, const std::vector<SnapVertex>& vertices);
    /// Withdraws a node's snap vertices from the root.
    virtual void removeSnapVertices(int nodeId);

protected:
    /// A node that a walk through the tree has yet to visit.
    struct OpenNode {
        const SceneGraphNode* node;
        bool inside;
    };

    explicit SceneGraphParent(NodeType type);

    /// Refuses what may not become a child: null, this node itself, or one that this node is below. For a leaf the cost
    /// does not depend on the tree.
    /// @throws std::invalid_argument
    void requireNewChild(const SceneGraphNode* node) const;
    /// Makes a node that this parent holds answer to it, under an id: the one way in. Box and structure are up to the
    /// caller.
    void attach(SceneGraphNode& node, int childId);
    static const BoundingBox& emptyBox() { return c_emptyBox; }
    /// Gives a child up when this parent dies. Parents that die with it are taken apart in a loop.
    static void release(boost::shared_ptr<SceneGraphNode> child) noexcept;

    /// The box over all children, inactive ones left out, merged in id order.
    virtual const BoundingBox& mergeChildBoxes() = 0;
    /// A node stops answering to this parent, though it may still be held; its box may change unnoticed from now on.
    virtual void loseChild() {}
    /// Whether a pick goes on to the children.
    /// @param inside in: whether a group above lies wholly in the frustum; out: whether this node does
    virtual bool admitsPick(const SelectionFrustrum& frustum, bool& inside) const = 0;
    /// Puts the children on a stack, the first one on top.
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
