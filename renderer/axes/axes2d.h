#pragma once

#include "renderer/axes/axislayout.h"
#include "renderer/frame/pixelarea.h"

#include <vector>

namespace vxgraphics3d {
class AxisSetup;
class Camera2d;
} // namespace vxgraphics3d

namespace vxrenderer {

/// The axes of a 2D view, all in pixels.
struct Axes2dLayout {
    /// Over the area, from border to border: below the frame, and not right beside it.
    std::vector<AxisLine> grid;
    /// Around the area, the outer circle of a polar view, and the symmetry axis.
    std::vector<AxisLine> frame;
    /// Short lines from the frame outwards: at the numbers, and shorter ones between them.
    std::vector<AxisLine> ticks;
    std::vector<AxisLine> minorTicks;
    std::vector<AxisLabel> labels;
};

/// What the axes of a 2D view are laid out from.
///
/// The camera says how the area is filled: in polar mode a round view whose centre is the inner radial limit, at equal
/// scales, so its area has to be a square. Where the setup alone is polar, the view keeps its limits in x and y and has
/// circles and rays about the origin. Angles are in degrees, counted counter-clockwise from the right.
struct Axes2dInput {
    const vxgraphics3d::Camera2d& camera;
    const vxgraphics3d::AxisSetup& setup;
    /// Of the whole picture, in pixels.
    int pictureWidth = 0;
    int pictureHeight = 0;
    /// Significant digits of tick labels.
    int digits = 4;
    /// Pixels of the picture for a pixel of the screen.
    double pixel = 1.0;
    /// What the camera draws to, where straight axes enclose a part of it; empty where they enclose all.
    PixelArea cameraArea{};
};

/// The space that tick labels and titles need around the area, whatever the view shows. It follows from titles, kind of
/// axes, digits and font alone.
AxisMargins axes2dMargins(const Axes2dInput& input, const AxisMetrics& metrics);

/// The area that the axes leave to the camera in a part of the picture; in polar mode a square in the middle. It is
/// empty if there is no space.
///
/// At the left it leaves as much as the numbers of the upright axis need, in steps of a few characters, so that it
/// seldom changes while the view moves. They are those of the camera with an area of its own: the visible limits follow
/// the shape of the area.
PixelArea axes2dArea(const Axes2dInput& input, const PixelArea& space, const AxisMetrics& metrics);

/// The axes around the area that the camera draws to. Labels that would leave the picture, and ticks of an axis without
/// extent, are left out; an empty area has no axes.
Axes2dLayout layoutAxes2d(const Axes2dInput& input, const PixelArea& area, const AxisMetrics& metrics);

} // namespace vxrenderer
