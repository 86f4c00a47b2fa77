#pragma once

#include "graphics3d/foundation/changenumber.h"
#include "graphics3d/parts/linecollection.h"
#include "graphics3d/parts/pointcollection.h"
#include "graphics3d/scenegraph/scenegraphobject.h"

namespace vxdatacarrier {
class RenderDrawProj2D;
}

namespace vxgraphics3d {

/// A leaf of the scene tree that shows curves and points projected to a plane, in two classes, such as what lies in a
/// work plane and what is beside it. Its points are snap vertices. It cannot be picked.
class VX_API SceneGraphDrawProj : public SceneGraphObject {
public:
    /// @param id an id for the caller; the id of a record is not compared with it
    static boost::shared_ptr<SceneGraphDrawProj> create(int id);
    ~SceneGraphDrawProj() override;

    /// Replaces lines, points, snap vertices and box. A curve without geometry is a line without segments.
    /// @throws std::invalid_argument if an array of the record is missing or too short for its count, which the text
    ///         names with its row; then nothing has changed
    void fillData(const vxdatacarrier::RenderDrawProj2D& record);

    int getId() const { return m_id; }
    /// Counts the fills.
    int getGeometryChangeId() const { return m_geometryChangeId.get(); }
    const LineCollection& getPrimaryLines() const { return m_primaryLines; }
    const PointCollection& getPrimaryPoints() const { return m_primaryPoints; }
    const LineCollection& getSecondaryLines() const { return m_secondaryLines; }
    const PointCollection& getSecondaryPoints() const { return m_secondaryPoints; }

    void getSelection(const SelectionFrustrum& frustum, const CanvasPickSettings& settings,
                      PickedObjectCollection& result, bool inside) const override;
    /// Merges the boxes of the parts whose marks have a bit of `include`, or of all parts if it is 0, and none of
    /// `exclude`.
    void getMarkedBoundingBox(BoundingBox& box, int include, int exclude) const override;

private:
    explicit SceneGraphDrawProj(int id);

    LineCollection m_primaryLines;
    PointCollection m_primaryPoints;
    LineCollection m_secondaryLines;
    PointCollection m_secondaryPoints;
    int m_id;
    ChangeNumber m_geometryChangeId;
};

} // namespace vxgraphics3d
