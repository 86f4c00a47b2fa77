#pragma once

#include "interaction/overlayinteraction.h"

#include <vector>

namespace vxgraphics3d {
class Overlay;
class OverlayDrawCurve;
} // namespace vxgraphics3d

namespace vxinteraction {

/// Draws a chain of edges point by point: each press sets the next point of the polygon of an edge, whose end is the
/// start of the next edge. The points set so far are shown with an edge to the pointer, in an object of the overlay
/// that exists only meanwhile. A press at the first vertex of the chain ends there and closes it.
///
/// An edge becomes part of the curve with its last point. finish() ends the chain and drops the points of an unfinished
/// edge; cancel() does the same. Edges that are complete stay in either case, because a curve only grows.
class VX_API CurveDrawing : public OverlayInteraction {
public:
    /// @param overlay takes the preview
    /// @throws std::invalid_argument if overlay or curve are null
    CurveDrawing(OverlayView view, boost::shared_ptr<vxgraphics3d::Overlay> overlay,
                 boost::shared_ptr<vxgraphics3d::OverlayDrawCurve> curve);
    ~CurveDrawing() override;

    /// Chooses what the next edges are: straight lines, 1, arcs, 2, or cubic curves, 3. The points of an unfinished
    /// edge are dropped, except for its start.
    /// @throws std::invalid_argument for another number
    void setDegree(int degree);
    int getDegree() const { return m_degree; }

    bool press(int x, int y) override;
    bool drag(int x, int y) override;
    /// Does nothing: points are set by presses.
    bool release() override { return false; }
    bool cancel() override { return finish(); }
    bool isActive() const override { return !m_points.empty(); }
    bool finish();

private:
    bool isAtFirstVertex(const PlanePoint& picture) const;
    void addEdge(bool isClosing);
    void showPreview(const PlanePoint& pointer);
    void hidePreview();

    boost::shared_ptr<vxgraphics3d::Overlay> m_overlay;
    boost::shared_ptr<vxgraphics3d::OverlayDrawCurve> m_curve;
    int m_degree = 1;
    /// Of the unfinished edge, in the coordinates of the curve; the first one is its start.
    std::vector<PlanePoint> m_points;
    /// Vertices of the chain in the curve, -1 as long as they are not part of it.
    int m_firstVertex = -1;
    int m_lastVertex = -1;
    boost::shared_ptr<vxgraphics3d::OverlayDrawCurve> m_preview;
};

} // namespace vxinteraction
