#pragma once

#include "graphics3d/scenegraph/scenegraphobject.h"
#include "graphics3d/scenegraph/scenegraphparent.h"

namespace vxgraphics3d {

/// A node with at most one child, whose id is 0. The child id that some operations take is ignored.
class VX_API SceneGraphSingleChildParent : public SceneGraphParent {
public:
    ~SceneGraphSingleChildParent() override;

    /// Adds a node, and removes an existing child.
    /// @throws std::invalid_argument for null, this node itself, or a parent that contains this node
    void setChild(boost::shared_ptr<SceneGraphNode> node);
    /// The object type of the child.
    /// @throws std::out_of_range if there is no child
    /// @throws vxbase::WrongClass if the child is not an object
    SceneGraphObject::ObjectType getChildObjectType(int childId) const;

    int getNoOfChildren() const override { return m_child ? 1 : 0; }
    bool doesChildExist(int) const override { return m_child != nullptr; }
    const SceneGraphNode* getChild(int) const override { return find().get(); }
    SceneGraphNode* child(int) override { return find().get(); }
    boost::shared_ptr<SceneGraphNode> childPtr(int) override { return find(); }
    /// Removes an existing child. Box and structure always count as changed.
    void removeChild(int childId) override;
    NodeType getChildType(int) const override { return find()->getType(); }

protected:
    explicit SceneGraphSingleChildParent(NodeType type) : SceneGraphParent(type) {}

    const BoundingBox& mergeChildBoxes() override;
    bool admitsPick(const SelectionFrustrum&, bool&) const override { return true; }
    void pushChildren(std::vector<OpenNode>& open, bool inside) const override;

private:
    const boost::shared_ptr<SceneGraphNode>& find() const;
    void detachChild();

    boost::shared_ptr<SceneGraphNode> m_child;
};

} // namespace vxgraphics3d
