#pragma once

#include "graphics3d/foundation/changenumber.h"
#include "graphics3d/scenegraph/scenegraphobject.h"

#include <vector>

namespace vxgraphics3d {

/// A leaf of the scene tree that shows a ball, a box, or both, such as those with which a program selects what is
/// inside. It has no box of its own in the tree and cannot be picked.
class VX_API SceneGraphBallBox : public SceneGraphObject {
public:
    static boost::shared_ptr<SceneGraphBallBox> create();
    ~SceneGraphBallBox() override;

    // Each of these counts a change.

    /// Sets the corners of the box, of x, y and z each; a ball stays.
    void setBox(const std::vector<double>& min, const std::vector<double>& max);
    /// Sets the ball, with x, y and z of its centre; a box stays.
    void setBall(const std::vector<double>& center, double radius);
    /// Drops ball and box.
    void clear();

    /// Whether there is a ball or a box.
    bool isValid() const { return !m_ballCenter.empty() || (!m_boxMin.empty() && !m_boxMax.empty()); }
    double getRadius() const { return m_radius; }
    /// The coordinates as they were set; none without a ball.
    const std::vector<double>& getBallCenter() const { return m_ballCenter; }
    /// The coordinates as they were set; none without a box.
    const std::vector<double>& getBoxMin() const { return m_boxMin; }
    const std::vector<double>& getBoxMax() const { return m_boxMax; }
    /// Counts the changes of ball and box, without those of colours.
    int getGeometryChangeId() const { return m_geometryChangeId.get(); }

    void getSelection(const SelectionFrustrum& frustum, const CanvasPickSettings& settings,
                      PickedObjectCollection& result, bool inside) const override;
    /// Merges nothing.
    void getMarkedBoundingBox(BoundingBox& box, int include, int exclude) const override;

private:
    SceneGraphBallBox();

    void markGeometryChanged();

    double m_radius = 0.0;
    std::vector<double> m_ballCenter;
    std::vector<double> m_boxMin;
    std::vector<double> m_boxMax;
    ChangeNumber m_geometryChangeId;
};

} // namespace vxgraphics3d
