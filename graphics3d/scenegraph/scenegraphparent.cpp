#include "graphics3d/scenegraph/scenegraphparent.h"

#include "graphics3d/foundation/errorlog.h"

#include <stdexcept>
#include <string>
#include <unordered_set>
#include <utility>

namespace vxgraphics3d {

/// The node as a parent, or null for a leaf.
const SceneGraphParent* SceneGraphParent::asParent(const SceneGraphNode& node)
{
    return mayHold(node) ? dynamic_cast<const SceneGraphParent*>(&node) : nullptr;
}

// --- ways down ------------------------------------------------------------------------------------------------------

/// Visits this node and all below it, depth first, with a stack of its own.
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

// --- ways up --------------------------------------------------------------------------------------------------------

SceneGraphParent* SceneGraphParent::root()
{
    SceneGraphParent* parent = this;
    while (parent != nullptr && parent->getType() != NodeRoot) {
        parent = parent->parentOrNull();
    }
    return parent;
}

void SceneGraphParent::markChildChangedAbove()
{
    for (SceneGraphParent* parent = parentOrNull(); parent != nullptr; parent = parent->parentOrNull()) {
        parent->m_childrenChangeId.raise();
    }
}

void SceneGraphParent::calculateBoundingBox()
{
    setBoundingBox(mergeChildBoxes());
    m_boxIsMerged = getNumAnswering() == getNoOfChildren();
}

void SceneGraphParent::changeVertexState(int nodeId, int index, int state)
{
    if (SceneGraphParent* top = root()) {
        top->changeVertexState(nodeId, index, state);
    }
}

void SceneGraphParent::addSnapVertices(int nodeId, const std::vector<SnapVertex>& vertices)
{
    if (vertices.empty()) {
        return;
    }
    if (SceneGraphParent* top = root()) {
        top->addSnapVertices(nodeId, vertices);
    }
}

void SceneGraphParent::removeSnapVertices(int nodeId)
{
    if (SceneGraphParent* top = root()) {
        top->removeSnapVertices(nodeId);
    }
}

// --- children -------------------------------------------------------------------------------------------------------

void SceneGraphParent::requireNewParent(const SceneGraphNode* node) const
{
    if (node == nullptr) {
        throw std::invalid_argument("The child is null.");
    }
    if (standsBelow(*node)) {
        throw std::invalid_argument("Node " + std::to_string(node->getNodeId()) + " cannot be a child of node " +
                                    std::to_string(getNodeId()) + ", which it is itself or which stands below it.");
    }
}

void SceneGraphParent::logConnection(int childId) const
{
    logInfo("Connecting node as child %d to parent (node %d)", childId, getNodeId());
}

void SceneGraphParent::announce(SceneGraphNode& node)
{
    if (root() != nullptr) {
        node.updateNodeSnapVertices();
    }
    node.m_changeId.raise();
    markChildChanged();
}

void SceneGraphParent::announceLast(SceneGraphNode& child)
{
    try {
        announce(child);
    } catch (...) {
        // The child stands in the table, but the box is without it.
        m_boxIsMerged = false;
        throw;
    }
    if (!m_boxIsMerged) {
        calculateBoundingBox();
    } else if (mergeBox(child)) {
        updateBoxesAbove();
    }
    treeStructureChanged();
}

void SceneGraphParent::takeIn(SceneGraphNode& child, int childId)
{
    ++child.m_numHolders;
    logConnection(childId);
    connect(child, childId);
    announce(child);
    calculateBoundingBox();
    treeStructureChanged();
}

void SceneGraphParent::letGo(SceneGraphNode& child)
{
    child.removeParent();
    --child.m_numHolders;
}

/// Takes note that a node which answered to this one no longer does, though it may still stand in the table.
void SceneGraphParent::loseChild()
{
    m_boxIsMerged = false;
}

bool SceneGraphParent::standsBelow(const SceneGraphNode& node) const
{
    if (&node == this) {
        return true;
    }
    const SceneGraphParent* top = asParent(node);
    if (top == nullptr || top->getNoOfChildren() == 0) {
        return false;
    }
    const SceneGraphParent* parent = nullptr;
    for (const SceneGraphNode* below = this; below->m_numHolders != 0; below = parent) {
        parent = below->parentOrNull();
        if (below->m_numHolders != 1 || parent == nullptr) {
            // Other parents hold this node too, and the way up does not show them: look from above.
            return contains(*top, *this);
        }
        if (parent == &node) {
            return true;
        }
    }
    return false;
}

bool SceneGraphParent::contains(const SceneGraphParent& top, const SceneGraphNode& wanted)
{
    std::unordered_set<const SceneGraphNode*> seen;
    bool found = false;
    top.walk(
        false,
        [&](const SceneGraphParent& parent, bool) {
            found = found || &parent == &wanted;
            return !found && seen.insert(&parent).second;
        },
        [](const SceneGraphNode&, bool) {});
    return found;
}

void SceneGraphParent::bury(boost::shared_ptr<SceneGraphNode>& child) noexcept
{
    --child->m_numHolders;
    if (asParent(*child) == nullptr) {
        child.reset();
        return;
    }
    // The first parent to die opens the list, and empties it; those that die meanwhile only add to it.
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
