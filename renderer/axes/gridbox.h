#pragma once

#include "renderer/axes/axislayout.h"
#include "renderer/frame/pixelarea.h"

#include <array>
#include <string>
#include <vector>

namespace vxgraphics3d {
class BoundingBox;
class ICameraTransforms;
} // namespace vxgraphics3d

namespace vxrenderer {

/// The box around a scene of a 3D view.
struct GridBoxLayout {
    /// In world coordinates, on the faces behind the scene.
    std::vector<AxisLine> grid;
    /// In world coordinates: the edges of those faces.
    std::vector<AxisLine> edges;
    /// In pixels, from an edge on the outline of the box outwards: at the numbers, and shorter ones between them.
    std::vector<AxisLine> ticks;
    std::vector<AxisLine> minorTicks;
    /// Outside the outline of the box. Titles are the names of the axes.
    std::vector<AxisLabel> labels;
};

/// How the values of an axis follow from world coordinates: (coordinate - offset) / scale.
struct AxisUnits {
    double offset = 0.0;
    double scale = 1.0;

    double valueAt(double coordinate) const { return (coordinate - offset) / scale; }
    double coordinateOf(double value) const { return value * scale + offset; }
};

/// What a grid box shows.
struct GridBoxInput {
    /// In world coordinates.
    const vxgraphics3d::BoundingBox& box;
    const vxgraphics3d::ICameraTransforms& camera;
    /// Names of the axes, in title markup.
    std::array<std::string, 3> names = {"x", "y", "z"};
    /// Significant digits of tick labels.
    int digits = 3;
    /// What the numbers of the axes are.
    std::array<AxisUnits, 3> units{};
    /// What numbers must not reach beyond; nothing if it is empty.
    PixelArea picture{};
};

/// The space that labels need around a box that fills its area. It follows from names, digits and font alone; a name
/// with a power of ten may reach further.
AxisMargins gridBoxMargins(const GridBoxInput& input, const AxisMetrics& metrics);

/// Lays out the box as the camera sees it in an area of the picture.
///
/// A face is behind the scene if its normal points away from the eye; faces seen edge-on have no grid. Lines that would
/// run right beside an edge of the box are left out. Each axis with an extent on the screen is labelled along one edge
/// on the outline of the box, the lowest or else the leftmost one, and only where that lies within the area. It has at
/// least two numbers; where there is no space for them, they are moved apart. A box that reaches behind the eye keeps
/// its grid but has no labels; an empty box, one behind the eye, or one that is not finite has nothing.
GridBoxLayout layoutGridBox(const GridBoxInput& input, const PixelArea& area, const AxisMetrics& metrics);

} // namespace vxrenderer
