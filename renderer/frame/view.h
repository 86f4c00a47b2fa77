#pragma once

#include "graphics3d/foundation/matrixf.h"
#include "renderer/frame/pixelarea.h"

namespace vxgraphics3d {
class ICameraTransforms;
}

namespace vxrenderer {

/// How a camera sees the scene in one frame, in the form that shaders take it.
struct View {
    PixelArea area;
    /// From the world through the scales of the axes to the eye, which looks along its negative z axis. In a flat view
    /// all depth is lost: what is drawn later lies above.
    vxgraphics3d::Matrixf sceneToEye{vxgraphics3d::Matrixf::MatrixIdentity};
    vxgraphics3d::Matrixf projection{vxgraphics3d::Matrixf::MatrixIdentity};
    bool isPerspective = false;
    bool isFlat = false;

    /// The present view of a camera that draws to an area.
    /// @param isFlat whether it is the camera of a 2D view
    static View of(const vxgraphics3d::ICameraTransforms& camera, const PixelArea& area, bool isFlat);
};

} // namespace vxrenderer
