#include "graphics3d/scenegraph/scenegraphgroup.h"

#include "graphics3d/foundation/errorlog.h"
#include "graphics3d/picking/selectionfrustrum.h"

#include <iterator>
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
        bury(child);
    }
}

boost::shared_ptr<SceneGraphGroup> SceneGraphGroup::create()
{
    return own(new SceneGraphGroup);
}

// --- children -------------------------------------------------------------------------------------------------------

bool SceneGraphGroup::addChild(boost::shared_ptr<SceneGraphNode> node)
{
    requireNewChild(node);
    boost::weak_ptr<SceneGraphParent> group = weakSelf();
    if (m_lastChildId == std::numeric_limits<int>::max()) {
        throw std::length_error("The group (node " + std::to_string(getNodeId()) + ") has used up its child ids.");
    }
    const int id = ++m_lastChildId;
    logInfo("Adding child %d to group (node %d).", id, getNodeId());
    SceneGraphNode& child = *node;
    m_children.emplace_hint(m_children.end(), id, std::move(node));
    hold(child);
    child.setParent(std::move(group), id);
    calculateBoundingBox();
    treeStructureChanged();
    return true;
}

SceneGraphGroup::ChildMap::iterator SceneGraphGroup::take(ChildMap::iterator place)
{
    // The child may die with its place in the table, but not while it is being detached.
    const boost::shared_ptr<SceneGraphNode> child = place->second;
    child->removeParent();
    letGo(*child);
    m_numMerged = 0;
    return m_children.erase(place);
}

void SceneGraphGroup::removeChild(int childId)
{
    const auto place = m_children.find(childId);
    if (place == m_children.end()) {
        return;
    }
    logInfo("Removing child %d from group (node %d).", childId, getNodeId());
    take(place);
    calculateBoundingBox();
    treeStructureChanged();
}

void SceneGraphGroup::removeAllChildren()
{
    logInfo("Removing all children from group (node %d).", getNodeId());
    if (m_children.empty()) {
        return;
    }
    for (auto place = m_children.begin(); place != m_children.end();) {
        place = take(place);
    }
    calculateBoundingBox();
    treeStructureChanged();
}

const boost::shared_ptr<SceneGraphNode>& SceneGraphGroup::find(int childId) const
{
    const auto place = m_children.find(childId);
    if (place == m_children.end()) {
        throw std::out_of_range("The group (node " + std::to_string(getNodeId()) + ") has no child " +
                                std::to_string(childId) + ".");
    }
    return place->second;
}

// --- boxes, snap vertices and picks ---------------------------------------------------------------------------------

/// A box that has been merged so far stays good while children only come at the end: merging the new ones into it is
/// what merging all of them in id order does, to the last bit. So filling a group takes a time linear in its children.
BoundingBox SceneGraphGroup::mergeChildBoxes()
{
    const auto count = getNoOfChildren();
    if (m_numMerged == 0 || !hearsOf(count)) {
        m_mergedBox.reset();
        m_numMerged = 0;
    }
    for (auto place = std::prev(m_children.end(), count - m_numMerged); place != m_children.end(); ++place) {
        m_mergedBox.merge(place->second->getBoundingBox());
    }
    m_numMerged = count;
    return m_mergedBox;
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
