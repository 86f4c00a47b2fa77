#pragma once

#include "base/export.h"
#include "graphics3d/foundation/boundingbox.h"
#include "graphics3d/foundation/changenumber.h"
#include "graphics3d/scenegraph/snapvertex.h"

#include <boost/shared_ptr.hpp>
#include <boost/weak_ptr.hpp>

#include <atomic>
#include <vector>

namespace vxgraphics3d {

class PickedObjectCollection;
class SceneGraphParent;
class SelectionFrustrum;
struct CanvasPickSettings;

/// A node of the scene tree: a parent, an object to show, or a group of plots.
///
/// Nodes are made by the static `create()` of their class and owned by the parents that hold them and by their Java
/// peers; the reference to the parent is weak. Several parents may hold a node. It answers to the one that took it
/// last: changes and boxes travel up from there. A parent that has died counts as none.
///
/// The destructor of a node touches nothing but what the node alone owns. So the last owner of a dropped subtree may
/// let go on any thread, also while another thread works on a scene that shares nodes with it.
///
/// Two things travel up at once: the bounding box, which is kept in every node, and the snap vertices, which the root
/// collects. For everything else a change raises a number, with which a reader compares the number it saw last; only
/// equality tells anything.
class VX_API SceneGraphNode {
public:
    using PeerRoot = SceneGraphNode;

    enum NodeType { NodeRoot = 0, NodeGroup = 1, NodePlotGroup = 2, NodeObject = 3 };

    SceneGraphNode(const SceneGraphNode&) = delete;
    SceneGraphNode& operator=(const SceneGraphNode&) = delete;
    virtual ~SceneGraphNode();

    // Identity

    NodeType getType() const { return m_type; }
    /// The id of the node, unique over the process, from 1.
    int getNodeId() const { return m_nodeId; }
    /// A share in the node itself.
    /// @throws boost::bad_weak_ptr if the node was not made by `create()`
    boost::shared_ptr<SceneGraphNode> self() const { return boost::shared_ptr<SceneGraphNode>(m_self); }

    // Position in the tree

    /// The parent that the node answers to, or null. The reference keeps it alive, whoever else lets it go meanwhile.
    boost::shared_ptr<SceneGraphParent> getParent() const { return m_parent.lock(); }
    /// The id under the parent: -1 before the first parent, 0 after the last one.
    int getChildId() const { return m_childId; }
    /// Makes the node answer to a parent, registers its snap vertices there and counts a change. Called by the parent
    /// when it takes the node in.
    void setParent(boost::weak_ptr<SceneGraphParent> parent, int childId);
    /// Withdraws the snap vertices and makes the node answer to nobody. Called by the parent when it lets the node go;
    /// the parent counts the removal itself.
    void removeParent();
    /// Leaves the parent, if there is one.
    void disconnectFromParent();

    // Changes

    /// The number of changes of this node itself, from 1.
    int getChangeId() const { return m_changeId.get(); }
    /// Counts a change of this node, and a change below on every node above it.
    void markChanged();

    // Visibility and bounding box

    bool isActive() const { return m_active; }
    /// Shows or hides the node. A hidden node counts as empty in the boxes above; no change number moves.
    void setActive(bool active);
    /// The box of an active node; one empty box, the same object always, for every inactive one.
    const BoundingBox& getBoundingBox() const { return m_active ? m_boundingBox : c_emptyBox; }
    /// The box that the node keeps, active or not.
    const BoundingBox& getStoredBoundingBox() const { return m_boundingBox; }
    /// Stores the box and brings the boxes above up to date, as far up as they change. An equal box does nothing; an
    /// empty one always travels up, since empty boxes are never equal.
    void setBoundingBox(const BoundingBox& box);

    // What the kinds of nodes do in their own ways

    /// Registers the snap vertices again under the parent. Not called for a node that comes under a parent at the top
    /// of its tree, unless that is a root: roots keep the snap vertices.
    virtual void updateNodeSnapVertices();
    /// Withdraws the snap vertices from the parent.
    virtual void removeNodeSnapVertices();
    /// Adds to `result` what of this node and below lies in the frustum and is asked for.
    /// @param inside whether a group above lies wholly in the frustum, so that nothing here need be tested
    virtual void getSelection(const SelectionFrustrum& frustum, const CanvasPickSettings& settings,
                              PickedObjectCollection& result, bool inside) const = 0;
    /// Merges into `box` the box of what is marked in this node and below. The meaning of the two masks is the leaves'.
    virtual void getMarkedBoundingBox(BoundingBox& box, int include, int exclude) const = 0;
    virtual const std::vector<SnapVertex>& getSnapVertices() const;

protected:
    explicit SceneGraphNode(NodeType type);

    /// Takes a new node into shared ownership and lets it know its owner: what every `create()` does.
    template <class Node>
    static boost::shared_ptr<Node> own(Node* node)
    {
        boost::shared_ptr<Node> owner(node);
        node->m_self = owner;
        return owner;
    }

    /// The vertices to snap to; fill them, then call updateNodeSnapVertices().
    std::vector<SnapVertex>& snapVertices() { return m_snapVertices; }

private:
    friend class SceneGraphParent;

    /// Stops answering to the parent, which may go on holding the node.
    void leaveParent();
    /// @return whether the box differs from the one before
    bool storeBoundingBox(const BoundingBox& box);
    /// Has the parents above merge the boxes of their children again, as far up as that changes a box.
    void updateBoxesAbove();

    static constexpr int c_neverAttached = -1;
    static const BoundingBox c_emptyBox;
    static std::atomic<int> m_lastUniqueNodeId; // nodes may be made on any thread

    boost::weak_ptr<SceneGraphNode> m_self;
    NodeType m_type;
    int m_nodeId;
    boost::weak_ptr<SceneGraphParent> m_parent;
    int m_childId = c_neverAttached;
    bool m_active = true;
    ChangeNumber m_changeId;
    std::vector<SnapVertex> m_snapVertices;
    BoundingBox m_boundingBox;
};

} // namespace vxgraphics3d
