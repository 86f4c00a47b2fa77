#pragma once

#include "graphics3d/foundation/changenumber.h"
#include "graphics3d/scenegraph/scenegraphnode.h"

#include <boost/shared_ptr.hpp>

#include <vector>

namespace vxgraphics3d {

/// A node that holds other nodes.
///
/// It owns its children. No parent may come to stand below itself, on whatever way: addChild() and setChild() refuse
/// that before anything changes. All ways up and down the tree are loops, so that no depth of a tree exhausts the
/// stack.
class VX_API SceneGraphParent : public SceneGraphNode {
public:
    ~SceneGraphParent() override { orphanChildren(); }

    /// The number of changes anywhere below this node, from 1.
    int getChildrenChangeId() const { return m_childrenChangeId.get(); }
    /// Whether the number differs from the one given.
    bool areChildrenChanged(int id) const { return m_childrenChangeId.isChanged({id}); }
    /// Counts a change below this node, here and on every node above.
    void markChildChanged()
    {
        m_childrenChangeId.raise();
        if (m_parent) {
            markChildChangedAbove();
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
        if (SceneGraphParent* top = root()) {
            top->treeStructureChanged();
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

    explicit SceneGraphParent(NodeType type) : SceneGraphNode(type), m_reference(new ParentReference(this)) {}

    /// Refuses what may not become a child: nothing at all, this node itself, or one that this node stands below. Takes
    /// a time that does not depend on the number of children, and for a leaf or an empty parent not on the depth.
    /// @throws std::invalid_argument
    void requireNewChild(const SceneGraphNode* node) const
    {
        if (node == nullptr || mayHold(*node)) {
            requireNewParent(node);
        }
    }
    /// Makes a node that has entered the table of children answer to this one, then brings box and structure up to
    /// date.
    void takeIn(SceneGraphNode& child, int childId);
    /// takeIn() for a child that stands behind all others, after the log line. Takes a time that does not depend on
    /// their number.
    void takeInLast(SceneGraphNode& child, int childId)
    {
        ++child.m_numHolders;
        connect(child, childId);
        if (m_parent) {
            announceLast(child);
        } else {
            child.m_changeId.raise();
            m_childrenChangeId.raise();
            if (m_boxIsMerged) {
                mergeBox(child);
            } else {
                calculateBoundingBox();
            }
        }
    }
    /// Writes that a node is about to answer to this one.
    void logConnection(int childId) const;
    /// Takes note that the nodes that answered to this one have no parent any more. A class that releases children in
    /// its destructor calls this first, so that none of them turns to a parent that is half destroyed.
    void orphanChildren() noexcept { m_reference->parent = nullptr; }
    /// Makes a node that is to leave the table of children answer to nobody.
    static void letGo(SceneGraphNode& child);
    /// Gives a child up while this node dies, so that a deep tree is taken apart without deep recursion.
    static void bury(boost::shared_ptr<SceneGraphNode>& child) noexcept;

    /// The box over all children, inactive ones left out, merged in id order.
    virtual BoundingBox mergeChildBoxes() const = 0;
    /// Whether a pick goes on to the children.
    /// @param inside in: whether a group above lies wholly in the frustum; out: whether this node does
    virtual bool admitsPick(const SelectionFrustrum& frustum, bool& inside) const = 0;
    /// Puts the children on a stack, the first one on top.
    virtual void pushChildren(std::vector<OpenNode>& open, bool inside) const = 0;

private:
    friend class SceneGraphNode;

    /// Whether the node can have nodes below it.
    static bool mayHold(const SceneGraphNode& node)
    {
        return node.getType() == NodeRoot || node.getType() == NodeGroup;
    }

    /// The nearest root: this node or one above it; or null.
    SceneGraphParent* root();
    void markChildChangedAbove();
    /// How many nodes answer to this one.
    int getNumAnswering() const { return static_cast<int>(m_reference->use_count()) - 1; }
    /// Makes a node answer to this one: the first half of setParent(), after its log line.
    void connect(SceneGraphNode& node, int childId)
    {
        // In steps that need not ask whether the reference is null, as copying it would.
        ParentReference* const reference = m_reference.get();
        intrusive_ptr_add_ref(reference);
        boost::intrusive_ptr<ParentReference> other(reference, false);
        other.swap(node.m_parent);
        if (other) [[unlikely]] {
            SceneGraphNode::leave(other.detach());
        }
        node.m_childId = childId;
    }
    /// Registers the snap vertices of a node that answers to this one, and counts the change: the second half.
    void announce(SceneGraphNode& node);
    /// announce() for a child that stands behind all others, then box and structure.
    void announceLast(SceneGraphNode& child);
    /// Brings the box up to date after a child has come at the end, if it was the merge of the others. Merging the last
    /// one into it is what merging all of them in id order does, to the last bit; that the box before is kept if it is
    /// equal does not matter, as an equal box may differ in the signs of zeros alone, and no merge keeps those.
    /// @return whether the boxes above have to follow
    bool mergeBox(const SceneGraphNode& child)
    {
        BoundingBox box = m_boundingBox;
        if (child.isActive()) [[likely]] {
            box.merge(child.m_boundingBox);
        }
        if (box == m_boundingBox) {
            return false;
        }
        m_boundingBox = box;
        return true;
    }
    /// requireNewChild() for what is no leaf.
    void requireNewParent(const SceneGraphNode* node) const;
    static const SceneGraphParent* asParent(const SceneGraphNode& node);
    bool standsBelow(const SceneGraphNode& node) const;
    void loseChild();
    static bool contains(const SceneGraphParent& top, const SceneGraphNode& wanted);
    template <class Enter, class Leaf>
    void walk(bool inside, Enter enter, Leaf leaf) const;

    ChangeNumber m_childrenChangeId;
    boost::intrusive_ptr<ParentReference> m_reference; ///< on this node, for its children
};

} // namespace vxgraphics3d
