#pragma once

#include "graphics3d/scenegraph/scenegraphobject.h"

#include <utility>
#include <vector>

namespace vxgraphics3d {

/// A leaf that records the picks that reach it, and whose marked box is its own box.
class TestLeaf : public SceneGraphObject {
public:
    static boost::shared_ptr<TestLeaf> create(const BoundingBox& box = {}, ObjectType type = ObjectSolid)
    {
        boost::shared_ptr<TestLeaf> leaf = own(new TestLeaf(type));
        leaf->setBoundingBox(box);
        return leaf;
    }

    /// Replaces the snap vertices by these points, and registers them.
    void snapTo(const std::vector<Vector3f>& points)
    {
        snapVertices().clear();
        for (const Vector3f& p : points) {
            const int index = static_cast<int>(snapVertices().size());
            snapVertices().push_back(
                {static_cast<double>(p.x), static_cast<double>(p.y), static_cast<double>(p.z), getNodeId(), 0, index});
        }
        updateNodeSnapVertices();
    }

    /// Records the picks of several leaves in one list of (node id, inside).
    void recordPicksIn(std::vector<std::pair<int, bool>>& picks) { m_picks = &picks; }

    void getSelection(const SelectionFrustrum&, const CanvasPickSettings&, PickedObjectCollection&,
                      bool inside) const override
    {
        if (m_picks != nullptr) {
            m_picks->emplace_back(getNodeId(), inside);
        }
    }

    void getMarkedBoundingBox(BoundingBox& box, int include, int exclude) const override
    {
        if (include == 1 && exclude == 2) {
            box.merge(getStoredBoundingBox());
        }
    }

protected:
    explicit TestLeaf(ObjectType type = ObjectSolid) : SceneGraphObject(type) {}

private:
    std::vector<std::pair<int, bool>>* m_picks = nullptr;
};

} // namespace vxgraphics3d
