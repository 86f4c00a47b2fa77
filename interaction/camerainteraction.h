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

/// Turns what the mouse does over a view into the movement of its camera.
///
/// A press begins a drag with the camera that the view shows now and with the action that the settings of the process
/// have for the button and the keys. While the pointer moves, the camera shows an additional transformation, counted
/// from the press; the release keeps it, and cancelling falls back. A drag stays with its camera when the view changes
/// its mode meanwhile. Pointer positions are pixels as mouse events give them: from the top left corner of the picture,
/// also outside of it.
///
/// It holds a reference to the settings of the view, so they stay alive with it. Like the cameras that it drives it is
/// not synchronised. The destructor leaves the camera as a drag shows it, because it may run on a thread that must not
/// touch the view: cancel() or release() the drag first. Closing the Java peer cancels it.
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

    /// Tells how many rows the picture has from now on. A drag keeps counting from its press.
    /// @throws std::invalid_argument for a height below 1
    void setCanvasHeight(int canvasHeight);

    /// Begins a drag, if the button has an action under the keys, the camera knows the action (one of a 2D view knows
    /// only pan and zoom), and the pointer is in the render area. During a drag other buttons are ignored; the same
    /// button once more means that its release was lost, so the drag ends as by a release and a new one may begin.
    /// @param button 1 to 3
    /// @param keyMask the keys held down, 0 to 7
    /// @return whether a drag has begun
    bool press(int button, int keyMask, int x, int y);
    /// Moves the camera by the drag that has begun. The pointer may be anywhere.
    /// @return whether the picture may have changed
    bool drag(int x, int y);
    /// Ends the drag and keeps what it shows. Nothing is changed if the pointer has not moved.
    void release();
    /// Ends the drag and falls back to the view before it.
    /// @return whether the picture may have changed
    bool cancel();

    /// Zooms about the pointer and keeps it. Ignored during a drag and outside the render area.
    /// @param notches how far the wheel was turned, towards the user above 0, which makes the picture smaller
    /// @return whether the picture may have changed
    bool wheel(double notches, int x, int y);

    /// Zooms to a rectangle given by two opposite corners: its middle comes to the middle of the render area, and as
    /// much of it as lies in the area stays visible as a whole. Ignored during a drag, and for a rectangle of which
    /// less than 2 pixels each way lie in the area.
    /// @return whether the picture may have changed
    bool zoomToRectangle(int x0, int y0, int x1, int y1);

    bool isDragging() const { return m_drag.has_value(); }
    /// What the drag does; `ActionNone` if there is none.
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
