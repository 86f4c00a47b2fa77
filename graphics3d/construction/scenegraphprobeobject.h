#pragma once

#include "graphics3d/foundation/changenumber.h"
#include "graphics3d/parts/pointcollection.h"
#include "graphics3d/scenegraph/scenegraphobject.h"

namespace vxgraphics3d {

/// A leaf of the scene tree that shows where a program probes its data: a point, and a dashed line with a mark at a
/// fraction of its length. It has no box of its own in the tree and cannot be picked.
class VX_API SceneGraphProbeObject : public SceneGraphObject {
public:
    static constexpr int c_numDashes = 30;

    static boost::shared_ptr<SceneGraphProbeObject> create();
    ~SceneGraphProbeObject() override;

    // Each of these counts a change.

    /// Sets the point.
    void setProbe(float x, float y, float z);
    /// Sets the ends of the line, and the fraction of its length at which the mark is: the value is stored as it is,
    /// and the mark is between the ends. NaN counts as 0 there.
    void setLinePoints(float x0, float y0, float z0, float x1, float y1, float z1, float fraction);
    /// Drops point and line. The coordinates stay.
    void clear();

    /// Whether there are both a point and a line.
    bool isValid() const { return m_endPoints.getNumParts() > 0 && m_probePoints.getNumParts() > 0; }
    /// The two ends of the line.
    const PointCollection& getEndPoints() const { return m_endPoints; }
    /// The point.
    const PointCollection& getProbePoints() const { return m_probePoints; }
    /// The start of the line and the point at its fraction; then the ends of each dash.
    const PointCollection& getDashPoints() const { return m_dashPoints; }
    const Vector3f& getLineStart() const { return m_lineStart; }
    const Vector3f& getLineEnd() const { return m_lineEnd; }
    const Vector3f& getProbe() const { return m_probe; }
    float getLineFraction() const { return m_lineFraction; }
    /// Counts the changes of point and line, without those of colours.
    int getGeometryChangeId() const { return m_geometryChangeId.get(); }

    void getSelection(const SelectionFrustrum& frustum, const CanvasPickSettings& settings,
                      PickedObjectCollection& result, bool inside) const override;
    /// Merges nothing.
    void getMarkedBoundingBox(BoundingBox& box, int include, int exclude) const override;

private:
    SceneGraphProbeObject();

    void recomputeLine();
    void markGeometryChanged();

    PointCollection m_endPoints;
    PointCollection m_probePoints;
    PointCollection m_dashPoints;
    Vector3f m_lineStart;
    Vector3f m_lineEnd;
    Vector3f m_probe;
    float m_lineFraction = 0.0f;
    ChangeNumber m_geometryChangeId;
};

} // namespace vxgraphics3d
