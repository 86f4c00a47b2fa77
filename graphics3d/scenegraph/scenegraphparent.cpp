#include "graphics3d/scenegraph/scenegraphparent.h"

#include "graphics3d/foundation/errorlog.h"

#include <new>
#include <stdexcept>
#include <string>
#include <unordered_set>
#include <utility>

namespace vxgraphics3d {

SceneGraphParent::SceneGraphParent(NodeType type) : SceneGraphNode(type) {}

SceneGraphParent::~SceneGraphParent() = default;

/// The node as a parent, or null for a leaf. The type is tested first because a cast across the class tree is slow.
const SceneGraphParent* SceneGraphParent::asParent(const SceneGraphNode& node)
{
    const bool mayHold = node.getType() == NodeRoot || node.getType() == NodeGroup;
    return mayHold ? dynamic_cast<const SceneGraphParent*>(&node) : nullptr;
}

// --- traversal downwards --------------------------------------------------------------------------------------------

/// Visits this node and all nodes below it, depth first, with an explicit stack.
template <class Enter, class Leaf>
void SceneGraphParent::walk(bool inside, Enter enter, Leaf leaf) const
{
    std::vector<OpenNode> open{{this, inside}};
    while (!open.empty()) {
        OpenNode next = open.back();
        open.pop_back();
        if (const SceneGraphParent* parent = asParent(*next.node)) {
            if (enter(*parent, next.inside)) {
                parent->pushChildren(open, next.inside);
            }
        } else {
            leaf(*next.node, next.inside);
        }
    }
}

void SceneGraphParent::getSelection(const SelectionFrustrum& frustum, const CanvasPickSettings& settings,
                                    PickedObjectCollection& result, bool inside) const
{
    walk(
        inside,
        [&](const SceneGraphParent& parent, bool& parentInside) { return parent.admitsPick(frustum, parentInside); },
        [&](const SceneGraphNode& leaf, bool leafInside) { leaf.getSelection(frustum, settings, result, leafInside); });
}

void SceneGraphParent::getMarkedBoundingBox(BoundingBox& box, int include, int exclude) const
{
    walk(
        false, [](const SceneGraphParent&, bool) { return true; },
        [&](const SceneGraphNode& leaf, bool) { leaf.getMarkedBoundingBox(box, include, exclude); });
}

// --- propagation upwards --------------------------------------------------------------------------------------------

boost::shared_ptr<SceneGraphParent> SceneGraphParent::rootAbove() const
{
    auto parent = getParent();
    while (parent && parent->getType() != NodeRoot) {
        parent = parent->getParent();
    }
    return parent;
}

void SceneGraphParent::markChildChanged()
{
    m_childrenChangeId.raise();
    for (auto parent = getParent(); parent; parent = parent->getParent()) {
        parent->m_childrenChangeId.raise();
    }
}

void SceneGraphParent::treeStructureChanged()
{
    // A group is usually filled before it is added to the tree.
    if (m_parent.empty()) {
        return;
    }
    if (const auto root = rootAbove()) {
        root->treeStructureChanged();
    }
}

void SceneGraphParent::calculateBoundingBox()
{
    setBoundingBox(mergeChildBoxes());
}

void SceneGraphParent::changeVertexState(int nodeId, int index, int state)
{
    if (const auto root = rootAbove()) {
        root->changeVertexState(nodeId, index, state);
    }
}

void SceneGraphParent::addSnapVertices(int nodeId, const std::vector<SnapVertex>& vertices)
{
    if (vertices.empty()) {
        return;
    }
    if (const auto root = rootAbove()) {
        root->addSnapVertices(nodeId, vertices);
    }
}

void SceneGraphParent::removeSnapVertices(int nodeId)
{
    if (const auto root = rootAbove()) {
        root->removeSnapVertices(nodeId);
    }
}

// --- children -------------------------------------------------------------------------------------------------------

void SceneGraphParent::requireNewChild(const SceneGraphNode* node) const
{
    if (node == nullptr) {
        throw std::invalid_argument("The child is null.");
    }
    const SceneGraphParent* parent = asParent(*node);
    if (parent == nullptr) {
        return;
    }
    // A parent that was never added to another one is below none.
    const bool isBelowOthers = getChildId() != c_neverAttached;
    if (parent == this || (isBelowOthers && parent->contains(*this))) {
        throw std::invalid_argument("Node " + std::to_string(node->getNodeId()) + " cannot be a child of node " +
                                    std::to_string(getNodeId()) + ", which is that node or below it.");
    }
}

/// Searches from the top, because a node with several parents refers to only one of them.
bool SceneGraphParent::contains(const SceneGraphParent& wanted) const
{
    std::unordered_set<const SceneGraphNode*> seen;
    bool found = false;
    walk(
        false,
        [&](const SceneGraphParent& parent, bool) {
            found = found || &parent == &wanted;
            return !found && seen.insert(&parent).second;
        },
        [](const SceneGraphNode&, bool) {});
    return found;
}

void SceneGraphParent::attach(SceneGraphNode& node, int childId)
{
    logInfo("Connecting node as child %d to parent (node %d)", childId, getNodeId());
    if (!node.m_parent.empty()) {
        node.leaveParent();
    }
    node.m_parent = boost::weak_ptr<SceneGraphParent>(m_self, this);
    node.m_childId = childId;
    if (getType() == NodeRoot || !m_parent.expired()) {
        node.updateNodeSnapVertices();
    }
    node.m_changeId.raise();
    markChildChanged();
}

void SceneGraphParent::release(boost::shared_ptr<SceneGraphNode> child) noexcept
{
    if (asParent(*child) == nullptr) {
        return;
    }
    // The first parent to be destroyed creates and empties the list; those destroyed meanwhile only add to it.
    thread_local std::vector<boost::shared_ptr<SceneGraphNode>>* dying = nullptr;
    if (dying != nullptr) {
        try {
            dying->push_back(std::move(child));
        } catch (const std::bad_alloc&) {
            child.reset();
        }
        return;
    }
    std::vector<boost::shared_ptr<SceneGraphNode>> list;
    dying = &list;
    child.reset();
    while (!list.empty()) {
        const auto next = std::move(list.back());
        list.pop_back();
    }
    dying = nullptr;
}

} // namespace vxgraphics3d
