#pragma once

#include "base/export.h"
#include "interaction/overlayplane.h"

#include <optional>

namespace vxgraphics3d {
class OverlayObject;
}

namespace vxinteraction {

/// Converts mouse actions over a view into changes of an overlay object that the view shows in its scene.
///
/// Pointer positions are pixels as in mouse events: from the top left corner of the picture, also outside of it. All
/// functions return whether the picture may have changed. The objects are not synchronised. Destructors leave the
/// overlay as it is, because they may run on a thread that must not access it: cancel() before. Closing the Java peer
/// does.
class VX_API OverlayInteraction {
public:
    using PeerRoot = OverlayInteraction;

    OverlayInteraction(const OverlayInteraction&) = delete;
    OverlayInteraction& operator=(const OverlayInteraction&) = delete;
    virtual ~OverlayInteraction();

    /// @throws std::invalid_argument for a height below 1
    void setCanvasHeight(int canvasHeight) { m_view.setCanvasHeight(canvasHeight); }

    /// The button goes down.
    virtual bool press(int x, int y) = 0;
    /// The pointer moves, with the button down or up.
    virtual bool drag(int x, int y) = 0;
    /// The button goes up: what the drag shows stays.
    virtual bool release() = 0;
    /// Restores what was before.
    virtual bool cancel() = 0;
    /// Whether something has begun that can be cancelled.
    virtual bool isActive() const = 0;

protected:
    explicit OverlayInteraction(OverlayView view);

    OverlayPlane plane() const { return m_view.plane(); }
    /// The point of the plane at a position of the picture, in the coordinates of an object. Nothing if the plane is
    /// not seen there, or the transformation of the object cannot be inverted.
    std::optional<PlanePoint> toObject(const vxgraphics3d::OverlayObject& object, const PlanePoint& picture) const;

private:
    OverlayView m_view;
};

} // namespace vxinteraction
