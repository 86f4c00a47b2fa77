#pragma once

#include "graphics3d/cameras/camera2d.h"
#include "graphics3d/canvas/axissetup.h"
#include "graphics3d/canvas/canvas3dsettings.h"
#include "renderer/frame/appearance.h"

namespace vxgraphics3d {
class BoundingBox;
class ICameraTransforms;
class Overlay;
class Scene;
class SceneSettings;
} // namespace vxgraphics3d

namespace vxrenderer {

/// What a canvas shows: a mode that does not exist counts as the 3D view.
inline vxgraphics3d::Canvas3dSettings::RenderMode renderModeOf(const vxgraphics3d::Canvas3dSettings& canvas)
{
    using vxgraphics3d::Canvas3dSettings;
    const bool isFlat = canvas.getRenderMode() == Canvas3dSettings::RenderMode2d;
    return isFlat ? Canvas3dSettings::RenderMode2d : Canvas3dSettings::RenderMode3d;
}

/// Everything that one picture is drawn from.
struct Frame {
    const vxgraphics3d::Canvas3dSettings& canvas;
    /// Null for a picture of the background alone, like its settings.
    const vxgraphics3d::Scene* scene;
    const vxgraphics3d::SceneSettings* sceneSettings;
    /// The camera of the canvas' render mode, or a copy of it for a picture of another size.
    vxgraphics3d::ICameraTransforms& camera;
    const Appearance& appearance;
    /// Drawn over the scene, in its coordinates; or null.
    const vxgraphics3d::Overlay* overlay = nullptr;
    /// Drawn over the whole picture, in its pixels; or null.
    const vxgraphics3d::Overlay* screenOverlay = nullptr;
    /// What transformation frames of the overlay enclose; null for the whole scene.
    const vxgraphics3d::BoundingBox* framedBox = nullptr;
    /// Whether another picture replaces this one at once, so that what is translucent need not be mixed in its order.
    bool isDraft = false;

    /// Whether it is a 2D view.
    bool isFlat() const { return renderModeOf(canvas) == vxgraphics3d::Canvas3dSettings::RenderMode2d; }
    /// Which axes are logarithmic: bit 0 for x, bit 1 for y. In space none is.
    int logAxes() const
    {
        const vxgraphics3d::AxisSetup& axes = *canvas.getAxisSetupPtr();
        return isFlat() ? (axes.getXAxisLog() ? 1 : 0) + (axes.getYAxisLog() ? 2 : 0) : 0;
    }
    /// The camera of a 2D view.
    const vxgraphics3d::Camera2d& camera2d() const { return static_cast<const vxgraphics3d::Camera2d&>(camera); }
    /// Whether the view shows angles and radii.
    bool isPolar() const { return isFlat() && camera2d().getCameraMode() == vxgraphics3d::Camera2d::ModePolar; }
};

} // namespace vxrenderer
