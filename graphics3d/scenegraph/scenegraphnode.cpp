#include "graphics3d/scenegraph/scenegraphnode.h"

#include "graphics3d/foundation/errorlog.h"
#include "graphics3d/scenegraph/scenegraphparent.h"

#include <utility>

namespace vxgraphics3d {

const BoundingBox SceneGraphNode::c_emptyBox;
std::atomic<int> SceneGraphNode::m_lastUniqueNodeId = 0;

SceneGraphNode::SceneGraphNode(NodeType type) : m_type(type), m_nodeId(++m_lastUniqueNodeId) {}

SceneGraphNode::~SceneGraphNode() = default;

void SceneGraphNode::setParent(boost::weak_ptr<SceneGraphParent> parent, int childId)
{
    if (const auto living = parent.lock()) {
        living->attach(*this, childId);
    } else {
        leaveParent();
        m_childId = childId;
        markChanged();
    }
}

void SceneGraphNode::removeParent()
{
    if (!m_parent.expired()) {
        removeNodeSnapVertices();
    }
    leaveParent();
    m_childId = 0;
    markChanged();
}

void SceneGraphNode::leaveParent()
{
    if (const auto parent = getParent()) {
        parent->loseChild();
    }
    m_parent.reset();
}

void SceneGraphNode::disconnectFromParent()
{
    if (const auto parent = getParent()) {
        logInfo("Disconnecting child node %d from parent (node %d)", m_childId, parent->getNodeId());
        parent->removeChild(m_childId);
    }
}

void SceneGraphNode::markChanged()
{
    m_changeId.raise();
    if (const auto parent = getParent()) {
        parent->markChildChanged();
    }
}

void SceneGraphNode::setActive(bool active)
{
    if (active != m_active) {
        m_active = active;
        updateBoxesAbove();
    }
}

/// Each parent has its box calculated as in calculateBoundingBox(), but in a loop: a tree may be deeper than the stack.
void SceneGraphNode::updateBoxesAbove()
{
    for (auto parent = getParent(); parent && parent->storeBoundingBox(parent->mergeChildBoxes());
         parent = parent->getParent()) {
    }
}

void SceneGraphNode::updateNodeSnapVertices()
{
    if (const auto parent = getParent()) {
        removeNodeSnapVertices();
        parent->addSnapVertices(m_nodeId, m_snapVertices);
    }
}

void SceneGraphNode::removeNodeSnapVertices()
{
    if (const auto parent = getParent()) {
        parent->removeSnapVertices(m_nodeId);
    }
}

const std::vector<SnapVertex>& SceneGraphNode::getSnapVertices() const
{
    return m_snapVertices;
}

} // namespace vxgraphics3d
