#pragma once

#include "graphics3d/cameras/camera2d.h"
#include "graphics3d/canvas/canvas3dsettings.h"
#include "renderer/frame/appearance.h"

namespace vxgraphics3d {
class ICameraTransforms;
class Scene;
class SceneSettings;
} // namespace vxgraphics3d

namespace vxrenderer {

/// Everything that one picture is drawn from.
struct Frame {
    const vxgraphics3d::Canvas3dSettings& canvas;
    /// Null for a picture of the background alone, like its settings.
    const vxgraphics3d::Scene* scene;
    const vxgraphics3d::SceneSettings* sceneSettings;
    /// The camera of the canvas' render mode, or a copy of it for a picture of another size.
    vxgraphics3d::ICameraTransforms& camera;
    const Appearance& appearance;

    /// Whether it is a 2D view.
    bool isFlat() const { return canvas.getRenderMode() == vxgraphics3d::Canvas3dSettings::RenderMode2d; }
    /// The camera of a 2D view.
    const vxgraphics3d::Camera2d& camera2d() const { return static_cast<const vxgraphics3d::Camera2d&>(camera); }
    /// Whether the view shows angles and radii.
    bool isPolar() const { return isFlat() && camera2d().getCameraMode() == vxgraphics3d::Camera2d::ModePolar; }
};

} // namespace vxrenderer
