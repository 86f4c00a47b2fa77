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
/// Nodes are created by the static `create()` of their class and owned by the parents that hold them and by their Java
/// peers; the reference to the parent is weak. Several parents may hold a node. It reports to the one that added it
/// last: changes and boxes are propagated from there. A parent that has been destroyed counts as none.
///
/// The destructor of a node accesses only what the node alone owns. So the last owner may release a subtree on any
/// thread, even while another thread works on a scene that shares nodes with it.
///
/// Two things are propagated immediately: the bounding box, which every node stores, and the snap vertices, which the
/// root collects. Every other change raises a number, which readers compare with the number they saw last, for equality
/// only.
class VX_API SceneGraphNode {
public:
    using PeerRoot = SceneGraphNode;

    enum NodeType { NodeRoot = 0, NodeGroup = 1, NodePlotGroup = 2, NodeObject = 3 };

    SceneGraphNode(const SceneGraphNode&) = delete;
    SceneGraphNode& operator=(const SceneGraphNode&) = delete;
    virtual ~SceneGraphNode();

    // Identity

    NodeType getType() const { return m_type; }
    /// The id of the node, unique in the process, from 1.
    int getNodeId() const { return m_nodeId; }
    /// A reference to the node itself.
    /// @throws boost::bad_weak_ptr if the node was not made by `create()`
    boost::shared_ptr<SceneGraphNode> self() const { return boost::shared_ptr<SceneGraphNode>(m_self); }

    // Position in the tree

    /// The parent that the node reports to, or null. The reference keeps it alive, even if all other owners release it.
    boost::shared_ptr<SceneGraphParent> getParent() const { return m_parent.lock(); }
    /// The id under the parent: -1 before the first parent, 0 after the last one.
    int getChildId() const { return m_childId; }
    /// Makes the node report to a parent, registers its snap vertices there and counts a change. Called by the parent
    /// that adds the node.
    void setParent(boost::weak_ptr<SceneGraphParent> parent, int childId);
    /// Withdraws the snap vertices and makes the node report to no parent. Called by the parent that removes the node;
    /// the parent counts the removal itself.
    void removeParent();
    /// Removes the node from its parent, if there is one.
    void disconnectFromParent();

    // Changes

    /// The number of changes of this node itself, from 1.
    int getChangeId() const { return m_changeId.get(); }
    /// Counts a change of this node, and a change below it for every node above.
    void markChanged();

    // Visibility and bounding box

    bool isActive() const { return m_active; }
    /// Shows or hides the node. A hidden node counts as empty in the boxes above; no change number changes.
    void setActive(bool active);
    /// The box of an active node; for every inactive one, the same empty box object.
    const BoundingBox& getBoundingBox() const { return m_active ? m_boundingBox : c_emptyBox; }
    /// The box that the node stores, active or not.
    const BoundingBox& getStoredBoundingBox() const { return m_boundingBox; }
    /// Stores the box and updates the boxes above, as far up as they change. An equal box does nothing; an empty one is
    /// always propagated, since empty boxes are never equal.
    void setBoundingBox(const BoundingBox& box)
    {
        if (storeBoundingBox(box)) {
            updateBoxesAbove();
        }
    }

    // What each kind of node implements

    /// Registers the snap vertices with the parent again. Not called when a node is added to a parent at the top of its
    /// tree, unless that is a root: roots store the snap vertices.
    virtual void updateNodeSnapVertices();
    /// Withdraws the snap vertices from the parent.
    virtual void removeNodeSnapVertices();
    /// Adds to `result` the parts of this node and its subtree in the frustum that the settings ask for.
    /// @param inside whether a group above is wholly inside the frustum, so that nothing here needs a test
    virtual void getSelection(const SelectionFrustrum& frustum, const CanvasPickSettings& settings,
                              PickedObjectCollection& result, bool inside) const = 0;
    /// Merges into `box` the box of all marked parts of this node and its subtree. Leaves define the two masks.
    virtual void getMarkedBoundingBox(BoundingBox& box, int include, int exclude) const = 0;
    virtual const std::vector<SnapVertex>& getSnapVertices() const;

protected:
    explicit SceneGraphNode(NodeType type);

    /// Puts a new node under shared ownership and gives it a reference to its owner, as every `create()` requires.
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

    /// Stops reporting to the parent, which may still hold the node.
    void leaveParent();
    /// @return whether the box differs from the previous one
    bool storeBoundingBox(const BoundingBox& box)
    {
        const bool isNew = !(box == m_boundingBox);
        if (isNew) {
            m_boundingBox = box;
        }
        return isNew;
    }
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
    BoundingBox m_boundingBox;
    std::vector<SnapVertex> m_snapVertices;
};

} // namespace vxgraphics3d
