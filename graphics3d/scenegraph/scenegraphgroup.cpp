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
    orphanChildren();
    for (auto& [id, child] : m_children) {
        bury(child);
    }
}

boost::shared_ptr<SceneGraphGroup> SceneGraphGroup::create()
{
    return own(new SceneGraphGroup);
}

// --- children -------------------------------------------------------------------------------------------------------

void SceneGraphGroup::refuseMoreChildren() const
{
    throw std::length_error("The group (node " + std::to_string(getNodeId()) + ") has used up its child ids.");
}

/// Moving the children to larger tables is most of what a table costs, so it grows by large steps.
void SceneGraphGroup::growTable()
{
    m_children.reserve(4 * m_children.size() + 8);
}

void SceneGraphGroup::logAddition(int childId) const
{
    logInfo("Adding child %d to group (node %d).", childId, getNodeId());
    logConnection(childId);
}

void SceneGraphGroup::removeChild(int childId)
{
    const auto found = placeOf(childId);
    if (found == m_children.end()) {
        return;
    }
    logInfo("Removing child %d from group (node %d).", childId, getNodeId());
    // The child may die with its place in the table, but not while it is being detached.
    letGo(*found->second);
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
        letGo(*child);
    }
    m_children.clear();
    calculateBoundingBox();
    treeStructureChanged();
}

SceneGraphGroup::ChildTable::const_iterator SceneGraphGroup::placeOf(int childId) const
{
    const auto found = std::lower_bound(m_children.begin(), m_children.end(), childId,
                                        [](const auto& entry, int id) { return entry.first < id; });
    return found != m_children.end() && found->first == childId ? found : m_children.end();
}

const boost::shared_ptr<SceneGraphNode>& SceneGraphGroup::find(int childId) const
{
    const auto found = placeOf(childId);
    if (found == m_children.end()) {
        throw std::out_of_range("The group (node " + std::to_string(getNodeId()) + ") has no child " +
                                std::to_string(childId) + ".");
    }
    return found->second;
}

// --- boxes, snap vertices and picks ---------------------------------------------------------------------------------

BoundingBox SceneGraphGroup::mergeChildBoxes() const
{
    BoundingBox box;
    for (const auto& [id, child] : m_children) {
        box.merge(child->getBoundingBox());
    }
    return box;
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
