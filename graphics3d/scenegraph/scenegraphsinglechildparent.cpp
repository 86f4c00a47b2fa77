#include "graphics3d/scenegraph/scenegraphsinglechildparent.h"

#include "base/wrongclass.h"

#include <stdexcept>
#include <string>
#include <utility>

namespace vxgraphics3d {

SceneGraphSingleChildParent::~SceneGraphSingleChildParent()
{
    if (m_child) {
        release(std::move(m_child));
    }
}

void SceneGraphSingleChildParent::setChild(boost::shared_ptr<SceneGraphNode> node)
{
    requireNewChild(node.get());
    detachChild();
    m_child = std::move(node);
    attach(*m_child, 0);
    calculateBoundingBox();
    treeStructureChanged();
}

void SceneGraphSingleChildParent::removeChild(int)
{
    detachChild();
    calculateBoundingBox();
    treeStructureChanged();
}

/// Detaches an existing child and releases it.
void SceneGraphSingleChildParent::detachChild()
{
    if (m_child) {
        m_child->removeParent();
        m_child.reset();
    }
}

SceneGraphObject::ObjectType SceneGraphSingleChildParent::getChildObjectType(int) const
{
    return vxbase::castTo<const SceneGraphObject>(*find(), "child").getObjectType();
}

const boost::shared_ptr<SceneGraphNode>& SceneGraphSingleChildParent::find() const
{
    if (!m_child) {
        throw std::out_of_range("The node " + std::to_string(getNodeId()) + " has no child.");
    }
    return m_child;
}

const BoundingBox& SceneGraphSingleChildParent::mergeChildBoxes()
{
    return m_child ? m_child->getBoundingBox() : emptyBox();
}

void SceneGraphSingleChildParent::pushChildren(std::vector<OpenNode>& open, bool inside) const
{
    if (m_child) {
        open.push_back({m_child.get(), inside});
    }
}

} // namespace vxgraphics3d
