#pragma once

#include "base/export.h"
#include "graphics3d/settings/canvas3dglobalsettings.h"
#include "interaction/cameradrag.h"

#include <boost/shared_ptr.hpp>

#include <optional>

namespace vxgraphics3d {
class Canvas3dSettings;
}

namespace vxinteraction {

/// Converts mouse actions over a view into movements of its camera.
///
/// A press begins a drag with the current camera of the view and the action that the settings of the process specify
/// for the button and the keys. While the pointer moves, the camera shows an additional transformation relative to the
/// press; the release keeps it, and cancelling restores the previous view. A drag keeps its camera even if the view
/// changes its mode meanwhile. Pointer positions are pixels as in mouse events: from the top left corner of the
/// picture, also outside of it.
///
/// It holds a reference to the settings of the view, which keeps them alive. Like the cameras that it controls it is
/// not synchronised. The destructor leaves the camera as a drag shows it, because it may run on a thread that must not
/// access the view: cancel() or release() the drag first. Closing the Java peer cancels it.
class VX_API CameraInteraction {
public:
    using Action = vxgraphics3d::Canvas3dGlobalSettings::CameraMouseAction;

    /// The bits of a set of keys, which is the column of the table of mouse actions.
    enum Key : int { KeyShift = 1, KeyControl = 2, KeyAlt = 4 };

    /// @param canvasHeight rows of the picture, 1 or more
    /// @throws std::invalid_argument for settings that are null or a height below 1
    CameraInteraction(boost::shared_ptr<vxgraphics3d::Canvas3dSettings> settings, int canvasHeight);
    CameraInteraction(const CameraInteraction&) = delete;
    CameraInteraction& operator=(const CameraInteraction&) = delete;

    /// Sets the number of rows of the picture. A current drag is still measured from its press.
    /// @throws std::invalid_argument for a height below 1
    void setCanvasHeight(int canvasHeight);

    /// Begins a drag, if the button has an action with these keys, the camera supports the action (that of a 2D view
    /// supports only pan and zoom), and the pointer is in the render area. During a drag other buttons are ignored; a
    /// second press of the same button means that its release was lost, so the drag ends as by a release and a new one
    /// may begin.
    /// @param button 1 to 3
    /// @param keyMask the keys held down, 0 to 7
    /// @return whether a drag has begun
    bool press(int button, int keyMask, int x, int y);
    /// Moves the camera by the movement of the pointer since the press. The pointer may be anywhere.
    /// @return whether the picture may have changed
    bool drag(int x, int y);
    /// Ends the drag and keeps what it shows. Nothing is changed if the pointer has not moved.
    void release();
    /// Ends the drag and restores the view before it.
    /// @return whether the picture may have changed
    bool cancel();

    /// Zooms about the pointer and keeps the result. Ignored during a drag and outside the render area.
    /// @param notches how far the wheel was turned, above 0 towards the user, which makes the picture smaller
    /// @return whether the picture may have changed
    bool wheel(double notches, int x, int y);

    /// Zooms to a rectangle given by two opposite corners: its middle moves to the middle of the render area, and the
    /// part of it in the area stays completely visible. Ignored during a drag, and for a rectangle with less than 2
    /// pixels in either direction in the area.
    /// @return whether the picture may have changed
    bool zoomToRectangle(int x0, int y0, int x1, int y1);

    bool isDragging() const { return m_drag.has_value(); }
    /// The action of the drag; `ActionNone` if there is none.
    Action getAction() const;

private:
    AreaPoint toArea(const vxgraphics3d::ICameraActions& camera, int x, int y) const;

    boost::shared_ptr<vxgraphics3d::Canvas3dSettings> m_settings;
    int m_canvasHeight;
    std::optional<CameraDrag> m_drag;
    int m_dragButton = 0;
    int m_pressX = 0;
    int m_pressY = 0;
};

} // namespace vxinteraction
