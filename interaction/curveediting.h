#pragma once

#include "interaction/overlayinteraction.h"

#include <optional>

namespace vxgraphics3d {
class OverlayCurve;
}

namespace vxinteraction {

/// Moves vertices and control points of a curve: a press takes the nearest one within the picking tolerance, a vertex
/// rather than a control point, and the drag moves it, so that it keeps its distance from the pointer. All edges at a
/// vertex follow it. What is dragged is marked until the next press elsewhere.
class VX_API CurveEditing : public OverlayInteraction {
public:
    /// @throws std::invalid_argument if the curve is null
    CurveEditing(OverlayView view, boost::shared_ptr<vxgraphics3d::OverlayCurve> curve);
    ~CurveEditing() override;

    bool press(int x, int y) override;
    bool drag(int x, int y) override;
    bool release() override;
    bool cancel() override;
    bool isActive() const override { return m_drag.has_value(); }

    /// The vertex that was taken last, or -1 if that was a control point or nothing.
    int getVertex() const { return m_taken.edge < 0 ? m_taken.index : -1; }
    /// The id of the control point that was taken last, or -1.
    int getControlPoint() const { return m_taken.id; }

private:
    struct Taken {
        /// -1 for a vertex.
        int edge = -1;
        /// Of the vertex, or of the control point in its edge.
        int index = -1;
        int id = -1;
    };
    struct Drag {
        PlanePoint before;
        /// From the pointer to the point, in the coordinates of the curve.
        PlanePoint offset;
    };

    Taken takenAt(const PlanePoint& picture) const;
    PlanePoint position() const;
    void moveTo(const PlanePoint& position);
    void mark(const Taken& taken, bool on);

    boost::shared_ptr<vxgraphics3d::OverlayCurve> m_curve;
    Taken m_taken;
    std::optional<Drag> m_drag;
};

} // namespace vxinteraction
