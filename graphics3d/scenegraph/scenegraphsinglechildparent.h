#pragma once

#include "graphics3d/scenegraph/scenegraphobject.h"
#include "graphics3d/scenegraph/scenegraphparent.h"

namespace vxgraphics3d {

/// A node with at most one child, whose id is 0. The id that the operations on the child take is ignored.
class VX_API SceneGraphSingleChildParent : public SceneGraphParent {
public:
    ~SceneGraphSingleChildParent() override;

    /// Takes a node in, and lets a present child go.
    /// @throws std::invalid_argument for no node, this node itself or one that this node stands below
    void setChild(boost::shared_ptr<SceneGraphNode> node);
    /// The kind of object that the child is.
    /// @throws std::out_of_range if there is no child
    /// @throws vxbase::WrongClass if the child is no object
    SceneGraphObject::ObjectType getChildObjectType(int childId) const;

    int getNoOfChildren() const override { return m_child ? 1 : 0; }
    bool doesChildExist(int) const override { return m_child != nullptr; }
    const SceneGraphNode* getChild(int) const override { return find().get(); }
    SceneGraphNode* child(int) override { return find().get(); }
    boost::shared_ptr<SceneGraphNode> childPtr(int) override { return find(); }
    /// Lets a present child go. Box and structure count as changed in any case.
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
