#pragma once

#include "base/export.h"

#include <boost/shared_ptr.hpp>

#include <array>
#include <optional>

namespace vxgraphics3d {
class Camera2d;
class Canvas3dSettings;
class Overlay;
class OverlayCurve;
} // namespace vxgraphics3d

namespace vxinteraction {

/// Drags vertices and control points of the curves of an overlay over a 2D view.
///
/// A press takes hold of the point that is nearest to the pointer and within reach. While the pointer moves, the point
/// moves with it, and with it all edges that depend on it; the release keeps the result, and cancelling moves the point
/// back. Pointer positions are pixels as in mouse events: from the top left corner of the picture, also outside of it.
///
/// It holds references to the settings of the view and to the overlay. A drag takes the view as it is when it begins.
/// Nothing is synchronised; the destructor leaves the point where it is.
class VX_API CurveInteraction {
public:
    /// How far from the pointer a point may be, in pixels.
    static constexpr double c_reach = 8.0;

    /// @param canvasHeight rows of the picture, 1 or more
    /// @throws std::invalid_argument for settings or an overlay that are null, or a height below 1
    CurveInteraction(boost::shared_ptr<vxgraphics3d::Canvas3dSettings> settings,
                     boost::shared_ptr<vxgraphics3d::Overlay> overlay, int canvasHeight);
    CurveInteraction(const CurveInteraction&) = delete;
    CurveInteraction& operator=(const CurveInteraction&) = delete;

    /// Sets the number of rows of the picture. A current drag is still measured from its press.
    /// @throws std::invalid_argument for a height below 1
    void setCanvasHeight(int canvasHeight);

    /// Begins a drag, if the view is a 2D view and there is a point within reach in its render area. A curve is
    /// preferred to those below it, and a vertex to a control point at the same position. Ends a current drag as a
    /// release does.
    /// @return whether a drag has begun
    bool press(int x, int y);
    /// Moves the point by the movement of the pointer since the press.
    /// @return whether the picture may have changed
    bool drag(int x, int y);
    /// Ends the drag and keeps what it shows.
    void release();
    /// Ends the drag and moves the point back.
    /// @return whether the picture may have changed
    bool cancel();

    bool isDragging() const { return m_grip.has_value(); }
    /// The curve of the point that is dragged; null without a drag.
    boost::shared_ptr<vxgraphics3d::OverlayCurve> getCurve() const;
    /// The number of the vertex that is dragged; -1 if there is none.
    int getVertex() const { return m_grip ? m_grip->vertex : -1; }
    /// The id of the control point that is dragged; -1 if there is none.
    int getControlPoint() const;

private:
    /// The middle of the pixel under the pointer, from the lower left corner of the picture.
    struct Pointer {
        double x;
        double y;
    };
    /// What is dragged: a vertex, or a control point if the number of the vertex is -1.
    struct Grip {
        boost::shared_ptr<vxgraphics3d::OverlayCurve> curve;
        int vertex = -1;
        int edge = -1;
        int index = -1;
        /// The position before the drag.
        double x = 0.0;
        double y = 0.0;
    };

    std::optional<Grip> findGrip(const vxgraphics3d::Camera2d& camera, const Pointer& pointer) const;
    void moveTo(double x, double y) const;

    boost::shared_ptr<vxgraphics3d::Canvas3dSettings> m_settings;
    boost::shared_ptr<vxgraphics3d::Overlay> m_overlay;
    int m_canvasHeight;
    std::optional<Grip> m_grip;
    int m_pressX = 0;
    int m_pressY = 0;
    /// The last position of the pointer, by which a repeated one is recognised.
    int m_lastX = 0;
    int m_lastY = 0;
    /// From pixels of the picture to the coordinates of the curve, row by row.
    std::array<double, 4> m_toCurve{};
};

} // namespace vxinteraction
