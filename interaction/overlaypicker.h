#pragma once

#include "base/export.h"
#include "graphics3d/picking/pickedobject.h"
#include "interaction/overlayplane.h"

namespace vxgraphics3d {
class Overlay;
class OverlayCurve;
class OverlayObject;
class PickedObjectCollection;
} // namespace vxgraphics3d

namespace vxinteraction {

/// Finds the objects of an overlay at a position of the picture.
class VX_API OverlayPicker {
public:
    /// Kinds of parts besides vertices and edges of curves, which are points and lines. The part id of a control point
    /// is its id.
    static constexpr auto c_controlPoint = static_cast<vxgraphics3d::PartType>(4);
    static constexpr auto c_handle = static_cast<vxgraphics3d::PartType>(5);

    /// @throws std::invalid_argument if the overlay is null
    OverlayPicker(OverlayView view, boost::shared_ptr<vxgraphics3d::Overlay> overlay);

    /// @throws std::invalid_argument for a height below 1
    void setCanvasHeight(int canvasHeight) { m_view.setCanvasHeight(canvasHeight); }

    /// The plane of the overlay, for conversions of positions, as the current camera shows it now.
    OverlayPlane plane() const { return m_view.plane(); }

    /// Appends the objects at a pixel with their pick ids, those that are drawn last first: each once, as the part that
    /// is hit, or as a whole. Points and handles are preferred to lines, lines to areas. An object is hit at most as
    /// far from its outline as the picking tolerance, and inside if it is filled. Takes time in proportion to the
    /// number of lines of all objects.
    /// @return whether there was any
    bool pick(int x, int y, vxgraphics3d::PickedObjectCollection& picked) const;

private:
    OverlayView m_view;
    boost::shared_ptr<vxgraphics3d::Overlay> m_overlay;
};

} // namespace vxinteraction
