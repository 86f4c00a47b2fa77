#include "graphics3d/scenegraph/scenegraphgroup.h"

#include "graphics3d/foundation/errorlog.h"
#include "graphics3d/picking/selectionfrustrum.h"

#include <algorithm>
#include <limits>
#include <stdexcept>
#include <string>
#include <utility>

namespace vxgraphics3d {

SceneGraphGroup::SceneGraphGroup() : SceneGraphParent(NodeGroup)
{
    logInfo("Creating SceneGraphGroup (node %d)", getNodeId());
}

SceneGraphGroup::~SceneGraphGroup()
{
    logInfo("Destroying SceneGraphGroup (node %d)", getNodeId());
    for (auto& [id, child] : m_children) {
        release(std::move(child));
    }
}

boost::shared_ptr<SceneGraphGroup> SceneGraphGroup::create()
{
    return own(new SceneGraphGroup);
}

// --- children -------------------------------------------------------------------------------------------------------

bool SceneGraphGroup::addChild(boost::shared_ptr<SceneGraphNode> node)
{
    requireNewChild(node.get());
    if (m_lastChildId == std::numeric_limits<int>::max()) {
        throw std::length_error("The group (node " + std::to_string(getNodeId()) + ") has used up its child ids.");
    }
    m_children.emplace_back(m_lastChildId + 1, std::move(node));
    const int id = ++m_lastChildId;
    SceneGraphNode& child = *m_children.back().second;
    logInfo("Adding child %d to group (node %d).", id, getNodeId());
    // The box does not include the child until it is attached, which may throw.
    const bool isBoxCurrent = std::exchange(m_hearsAllChildren, false);
    attach(child, id);
    if (isBoxCurrent) {
        // Merging the last child into the box gives the same bits as merging all children in id order.
        BoundingBox box = m_childBox;
        box.merge(child.getBoundingBox());
        m_childBox = box;
        setBoundingBox(box);
        m_hearsAllChildren = true;
    } else {
        calculateBoundingBox();
        m_hearsAllChildren = doAllChildrenAnswer();
    }
    treeStructureChanged();
    return true;
}

void SceneGraphGroup::removeChild(int childId)
{
    const auto found = findEntry(childId);
    if (found == m_children.end()) {
        return;
    }
    logInfo("Removing child %d from group (node %d).", childId, getNodeId());
    // Removing the table entry may destroy the child, which must not happen while it is being detached.
    found->second->removeParent();
    m_children.erase(found);
    calculateBoundingBox();
    treeStructureChanged();
}

void SceneGraphGroup::removeAllChildren()
{
    logInfo("Removing all children from group (node %d).", getNodeId());
    if (m_children.empty()) {
        return;
    }
    for (const auto& [id, child] : m_children) {
        child->removeParent();
    }
    m_children.clear();
    calculateBoundingBox();
    treeStructureChanged();
}

SceneGraphGroup::ChildTable::const_iterator SceneGraphGroup::findEntry(int childId) const
{
    const auto found = std::lower_bound(m_children.begin(), m_children.end(), childId,
                                        [](const auto& entry, int id) { return entry.first < id; });
    return found != m_children.end() && found->first == childId ? found : m_children.end();
}

const boost::shared_ptr<SceneGraphNode>& SceneGraphGroup::find(int childId) const
{
    const auto found = findEntry(childId);
    if (found == m_children.end()) {
        throw std::out_of_range("The group (node " + std::to_string(getNodeId()) + ") has no child " +
                                std::to_string(childId) + ".");
    }
    return found->second;
}

bool SceneGraphGroup::doAllChildrenAnswer() const
{
    return std::all_of(m_children.begin(), m_children.end(),
                       [this](const auto& entry) { return entry.second->getParent().get() == this; });
}

// --- boxes, snap vertices and picks ---------------------------------------------------------------------------------

const BoundingBox& SceneGraphGroup::mergeChildBoxes()
{
    BoundingBox box;
    for (const auto& [id, child] : m_children) {
        box.merge(child->getBoundingBox());
    }
    m_childBox = box;
    return m_childBox;
}

void SceneGraphGroup::updateNodeSnapVertices()
{
    for (const auto& [id, child] : m_children) {
        removeSnapVertices(child->getNodeId());
        addSnapVertices(child->getNodeId(), child->getSnapVertices());
    }
}

void SceneGraphGroup::removeNodeSnapVertices()
{
    for (const auto& [id, child] : m_children) {
        removeSnapVertices(child->getNodeId());
    }
}

bool SceneGraphGroup::admitsPick(const SelectionFrustrum& frustum, bool& inside) const
{
    if (m_children.empty()) {
        return false;
    }
    if (inside) {
        return true;
    }
    const int place = frustum.enclosesBoundingBox(getBoundingBox());
    inside = place == SelectionFrustrum::Inside;
    return place != SelectionFrustrum::Outside;
}

void SceneGraphGroup::pushChildren(std::vector<OpenNode>& open, bool inside) const
{
    for (auto place = m_children.rbegin(); place != m_children.rend(); ++place) {
        open.push_back({place->second.get(), inside});
    }
}

} // namespace vxgraphics3d
