#pragma once

#include "graphics3d/construction/workplane.h"
#include "graphics3d/foundation/changenumber.h"
#include "graphics3d/scenegraph/scenegraphobject.h"

namespace vxgraphics3d {

/// A leaf of the scene tree that shows a work plane, with the symbol of an operation on it. It cannot be picked.
///
/// Set the plane first: before that nothing is shown, and the operations are computed for the current plane.
class VX_API SceneGraphFeatureObject : public SceneGraphObject {
public:
    /// The bit of the masks of `getMarkedBoundingBox` that means work planes.
    static constexpr int c_marked = 0x1000;

    static boost::shared_ptr<SceneGraphFeatureObject> create();
    ~SceneGraphFeatureObject() override;

    // Each of these takes the box of the plane and counts a change. If it throws, neither happens.

    /// See `WorkPlane::setup`. The plane is visible if its box has a size.
    void setPlane(const float* data);
    /// See `WorkPlane::setExtrude`. Without any value nothing happens.
    void setExtrudeOperation(const float* values, int count);
    /// See `WorkPlane::setRevolve`.
    void setRevolveOperation(const float* data);

    bool isVisible() const { return m_visible; }
    const WorkPlane& getPlane() const { return m_plane; }
    /// Counts the changes of the plane, without those of colours.
    int getGeometryChangeId() const { return m_geometryChangeId.get(); }

    void getSelection(const SelectionFrustrum& frustum, const CanvasPickSettings& settings,
                      PickedObjectCollection& result, bool inside) const override;
    /// Merges the object's box if `include` is 0 or has `c_marked`, and `exclude` does not have it.
    void getMarkedBoundingBox(BoundingBox& box, int include, int exclude) const override;

private:
    SceneGraphFeatureObject();

    void takePlane();

    bool m_visible = true;
    WorkPlane m_plane;
    ChangeNumber m_geometryChangeId;
};

} // namespace vxgraphics3d
