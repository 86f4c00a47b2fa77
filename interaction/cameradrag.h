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

/// A place in a render area, in pixels from its lower left corner. The middle of the first pixel is (0.5, 0.5).
struct AreaPoint {
    float x = 0.0f;
    float y = 0.0f;
};

/// What one drag of the pointer does to a camera.
///
/// Everything that a drag depends on is taken when it begins: the view, the size of the render area, the speeds. Each
/// place of the pointer then gives one additional transformation, counted from the beginning, so the view depends on
/// where the pointer is and not on how many events brought it there.
class VX_API CameraDrag {
public:
    using Action = vxgraphics3d::Canvas3dGlobalSettings::CameraMouseAction;

    /// @param camera the camera to drive; the drag keeps it alive
    /// @param transforms the same camera
    /// @param start where the pointer is
    CameraDrag(boost::shared_ptr<vxgraphics3d::ICameraActions> camera,
               const vxgraphics3d::ICameraTransforms& transforms, Action action, const AreaPoint& start);

    Action getAction() const { return m_action; }

    /// Takes the pointer to a place, in pixels to the right of its start and above it. Nothing happens if the settings
    /// of the process or the view make a transformation that is not finite.
    /// @return whether the camera was driven
    bool moveTo(float dx, float dy);
    /// Keeps what is displayed. A drag that never moved leaves the camera untouched.
    void merge();
    /// Falls back to the view at the beginning.
    /// @return whether there was anything to fall back from
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
    /// What a pixel covers: in perspective at distance 1 from the eye, in orthographic projection anywhere.
    float m_pixelWidth = 0.0f;
    float m_pixelHeight = 0.0f;
    /// The rotation point as the eye sees it.
    vxgraphics3d::Vector3f m_rotationPoint;
    /// The place that a roll leaves where it is.
    AreaPoint m_rollCentre;
};

} // namespace vxinteraction
