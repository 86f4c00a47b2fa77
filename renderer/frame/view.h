#pragma once

#include "graphics3d/foundation/matrixf.h"
#include "graphics3d/foundation/vector3f.h"
#include "renderer/frame/pixelarea.h"

namespace vxgraphics3d {
class ICameraTransforms;
}

namespace vxrenderer {

/// What brings a point of clip space nearer to the eye and leaves it at its position in the picture: z and w grow by
/// these for each unit of w, and the position in the picture is then found with the former w.
struct DepthShift {
    float z = 0.0f;
    float w = 0.0f;
};

/// How a camera sees the scene in one frame, in the form that shaders take it.
struct View {
    PixelArea area;
    /// From the world through the scales of the axes to the eye, which looks along its negative z axis. In a flat view
    /// all depth is lost: what is drawn later lies above.
    vxgraphics3d::Matrixf sceneToEye{vxgraphics3d::Matrixf::MatrixIdentity};
    vxgraphics3d::Matrixf projection{vxgraphics3d::Matrixf::MatrixIdentity};
    bool isPerspective = false;
    bool isFlat = false;

    /// The size of a pixel in the eye's coordinates, for each unit of w.
    float pixelSize() const;
    /// The size of a pixel in the eye's coordinates, at a point of them.
    float pixelSizeAt(const vxgraphics3d::Vector3f& eyePoint) const;

    /// How far lines of a width in pixels are drawn before their points, to be seen whole on faces through them.
    ///
    /// A line keeps the depth of its middle across its width, and a steep face comes before that at one side of it. The
    /// distance is about six times the half width, or three pixels, in the scale of the picture: enough for faces up to
    /// 80 degrees, and too little to show a line that is visibly behind something. All faces of a flat view have one
    /// depth.
    DepthShift aboveFaces(float lineWidth) const;

    /// How far the parts of a layer are drawn before their points, to be seen on those of lower layers at the same
    /// position. All layers together take less than the distance of lines.
    /// @param rank of the layer, 0 for one that is drawn where it is
    DepthShift aboveLayers(int rank) const;

    /// The current view of a camera that draws to an area.
    /// @param isFlat whether it is the camera of a 2D view
    static View of(const vxgraphics3d::ICameraTransforms& camera, const PixelArea& area, bool isFlat);

private:
    DepthShift nearer(float pixels) const;
};

} // namespace vxrenderer
