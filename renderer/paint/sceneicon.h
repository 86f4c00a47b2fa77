#pragma once

#include "graphics3d/foundation/vector3f.h"

#include <boost/shared_ptr.hpp>

#include <vector>

namespace vxgraphics3d {
class Image;
}

namespace vxrenderer {

class ImageTextures;
class OverlayPainter;
struct View;

/// A small image at a point of the scene, which keeps its size and faces the eye.
struct SceneIcon {
    /// In world coordinates.
    vxgraphics3d::Vector3f point;
    /// A null image, or one without pixels, is shown as a small square.
    boost::shared_ptr<const vxgraphics3d::Image> image;
    /// How far its middle lies to the right of the point, in widths of the icon: those at the same point lie side by
    /// side.
    float shift = 0.0f;
    /// Size of the largest symbols that it is drawn over, in pixels of the screen.
    float over = 0.0f;
};

/// Draws icons into the scene buffer, whose depths they are compared with, each as a whole: what an icon lies on does
/// not cut into it. Those whose point is not in view are left out. The viewport is the whole picture.
/// @param width,height of the picture
/// @param scale pixels of the picture for a pixel of the screen
void drawIcons(std::vector<SceneIcon> icons, const View& view, int width, int height, float scale,
               ImageTextures& textures, OverlayPainter& painter);

} // namespace vxrenderer
