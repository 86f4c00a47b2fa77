#include "graphics3d/scenegraph/scenegraphsinglechildparent.h"

#include "base/wrongclass.h"

#include <stdexcept>
#include <string>
#include <utility>

namespace vxgraphics3d {

SceneGraphSingleChildParent::~SceneGraphSingleChildParent()
{
    orphanChildren();
    if (m_child) {
        bury(m_child);
    }
}

void SceneGraphSingleChildParent::setChild(boost::shared_ptr<SceneGraphNode> node)
{
    requireNewChild(node.get());
    takeChild();
    m_child = std::move(node);
    takeIn(*m_child, 0);
}

void SceneGraphSingleChildParent::removeChild(int)
{
    takeChild();
    calculateBoundingBox();
    treeStructureChanged();
}

/// Detaches a present child and releases it.
void SceneGraphSingleChildParent::takeChild()
{
    if (m_child) {
        letGo(*m_child);
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

BoundingBox SceneGraphSingleChildParent::mergeChildBoxes() const
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
