#pragma once

namespace vxgraphics3d {

/// The part of a canvas that a camera draws to, in pixels from the lower left corner of the canvas.
struct RenderArea {
    int canvasWidth = 100;
    int canvasHeight = 100;
    int left = 0;
    int bottom = 0;
    int width = 100;
    int height = 100;

    friend bool operator==(const RenderArea&, const RenderArea&) = default;
};

} // namespace vxgraphics3d
