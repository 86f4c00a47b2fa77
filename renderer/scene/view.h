#pragma once

#include "graphics3d/foundation/matrixf.h"

namespace vxgraphics3d {
class BoundingBox;
}

namespace vxrenderer {

/// A rectangle of pixels, with its corner at the top left of the picture.
struct PixelArea {
    int x = 0;
    int y = 0;
    int width = 0;
    int height = 0;
};

/// How the scene is seen, and where in the picture.
struct View {
    PixelArea area;
    /// From the scene to the eye, which looks along its negative z axis.
    vxgraphics3d::Matrixf view{vxgraphics3d::Matrixf::MatrixIdentity};
    vxgraphics3d::Matrixf projection{vxgraphics3d::Matrixf::MatrixIdentity};
    /// Looks straight down on a flat scene: without perspective, and colours are shown unlit.
    bool isFlat = false;

    /// Whether there is anything to see.
    bool isEmpty() const { return area.width < 1 || area.height < 1; }
};

/// Where a picture without a camera is taken from.
struct ViewDirection {
    /// Degrees around the z axis, from the x axis on, and above the xy plane.
    double azimuth = -50.0;
    double elevation = 30.0;
};

/// A view that shows a whole box, as large as it fits into the area. A box without height in z is seen flat from above.
/// An empty box, or one that is not finite, gives an empty view.
View fitView(const vxgraphics3d::BoundingBox& box, const PixelArea& area, const ViewDirection& direction);

} // namespace vxrenderer
