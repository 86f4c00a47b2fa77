#include "graphics3d/scenegraph/scenegraphnode.h"

#include "graphics3d/foundation/errorlog.h"
#include "graphics3d/scenegraph/scenegraphparent.h"

#include <utility>

namespace vxgraphics3d {

const BoundingBox SceneGraphNode::c_emptyBox;
std::atomic<int> SceneGraphNode::m_lastUniqueNodeId = 0;

SceneGraphNode::SceneGraphNode(NodeType type) : m_type(type), m_nodeId(++m_lastUniqueNodeId) {}

SceneGraphNode::~SceneGraphNode() = default;

boost::shared_ptr<SceneGraphParent> SceneGraphNode::getParent() const
{
    SceneGraphParent* parent = parentOrNull();
    return parent != nullptr ? boost::static_pointer_cast<SceneGraphParent>(parent->m_self.lock()) : nullptr;
}

void SceneGraphNode::setParent(boost::weak_ptr<SceneGraphParent> parent, int childId)
{
    if (const auto livingParent = parent.lock()) {
        livingParent->logConnection(childId);
        livingParent->connect(*this, childId);
        livingParent->announce(*this);
    } else {
        leave(m_parent.detach());
        m_childId = childId;
        markChanged();
    }
}

void SceneGraphNode::removeParent()
{
    if (parentOrNull() != nullptr) {
        removeNodeSnapVertices();
    }
    leave(m_parent.detach());
    m_childId = 0;
    markChanged();
}

void SceneGraphNode::leave(ParentReference* reference)
{
    const boost::intrusive_ptr<ParentReference> givenUp(reference, false);
    if (reference != nullptr && reference->parent != nullptr) {
        reference->parent->loseChild();
    }
}

void SceneGraphNode::disconnectFromParent()
{
    if (SceneGraphParent* parent = parentOrNull()) {
        logInfo("Disconnecting child node %d from parent (node %d)", m_childId, parent->getNodeId());
        parent->removeChild(m_childId);
    }
}

void SceneGraphNode::markChanged()
{
    m_changeId.raise();
    if (SceneGraphParent* parent = parentOrNull()) {
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

/// Each parent has its box calculated as if by calculateBoundingBox(). That this goes on in a loop and not from parent
/// to parent lets a tree be deeper than the stack.
void SceneGraphNode::updateBoxesAbove()
{
    for (SceneGraphParent* parent = parentOrNull(); parent != nullptr; parent = parent->parentOrNull()) {
        const BoundingBox box = parent->mergeChildBoxes();
        if (box == parent->m_boundingBox) {
            break;
        }
        parent->m_boundingBox = box;
    }
}

void SceneGraphNode::updateNodeSnapVertices()
{
    if (SceneGraphParent* parent = parentOrNull()) {
        removeNodeSnapVertices();
        if (!m_snapVertices.empty()) {
            parent->addSnapVertices(m_nodeId, m_snapVertices);
        }
    }
}

void SceneGraphNode::removeNodeSnapVertices()
{
    if (SceneGraphParent* parent = parentOrNull()) {
        parent->removeSnapVertices(m_nodeId);
    }
}

const std::vector<SnapVertex>& SceneGraphNode::getSnapVertices() const
{
    return m_snapVertices;
}

} // namespace vxgraphics3d
