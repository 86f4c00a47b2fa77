#pragma once

#include "base/export.h"
#include "graphics3d/foundation/vector3f.h"
#include "graphics3d/settings/canvas3dglobalsettings.h"

#include <boost/shared_ptr.hpp>

namespace vxgraphics3d {
class ICameraActions;
class ICameraTransforms;
} // namespace vxgraphics3d

namespace vxinteraction {

/// A position in a render area, in pixels from its lower left corner. The middle of the first pixel is (0.5, 0.5).
struct AreaPoint {
    float x = 0.0f;
    float y = 0.0f;
};

/// The effect of one drag of the pointer on a camera.
///
/// Everything that a drag depends on is read when it begins: the view, the size of the render area, the speeds. Each
/// position of the pointer then gives one additional transformation relative to the beginning, so the view depends on
/// the position of the pointer and not on the number of events.
class VX_API CameraDrag {
public:
    using Action = vxgraphics3d::Canvas3dGlobalSettings::CameraMouseAction;

    /// @param camera the camera to control; the drag keeps it alive
    /// @param transforms the same camera
    /// @param start the position of the pointer
    CameraDrag(boost::shared_ptr<vxgraphics3d::ICameraActions> camera,
               const vxgraphics3d::ICameraTransforms& transforms, Action action, const AreaPoint& start);

    Action getAction() const { return m_action; }

    /// Moves the pointer to a position relative to the start of the drag: `dx` pixels to the right and `dy` upwards.
    /// Nothing happens if speeds or view give a transformation that is not finite.
    /// @return whether the camera was changed
    bool moveTo(float dx, float dy);
    /// Makes the displayed view the view of the camera. If the drag never moved, nothing happens.
    void merge();
    /// Restores the view that the drag began with.
    /// @return whether there was anything to discard
    bool discard();

private:
    void takeView(const vxgraphics3d::ICameraTransforms& transforms);
    bool turnTo(float dx, float dy);
    bool rollTo(float dx, float dy);
    bool shiftTo(float dx, float dy);
    bool zoomTo(float dy);
    template <class... Floats>
    bool apply(void (vxgraphics3d::ICameraActions::*call)(Floats...), Floats... arguments);

    boost::shared_ptr<vxgraphics3d::ICameraActions> m_camera;
    Action m_action;
    AreaPoint m_start;
    bool m_hasMoved = false;

    float m_areaWidth;
    float m_areaHeight;
    float m_orbitSpeed;
    float m_dollySpeed;
    float m_zoomSpeed;

    bool m_isPerspective = false;
    /// The size of a pixel in the units of the eye: in perspective at distance 1, in orthographic projection at any.
    float m_pixelWidth = 0.0f;
    float m_pixelHeight = 0.0f;
    /// The rotation point in the coordinates of the eye.
    vxgraphics3d::Vector3f m_rotationPoint;
    /// The point of the render area about which a roll turns.
    AreaPoint m_rollCentre;
};

} // namespace vxinteraction
