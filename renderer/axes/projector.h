#pragma once

#include "renderer/frame/pixelarea.h"

#include <array>
#include <cmath>
#include <cstddef>
#include <optional>

namespace vxgraphics3d {
class ICameraTransforms;
}

namespace vxrenderer {

/// A point or direction of the world.
using Point = std::array<double, 3>;

bool isFinite(const Point& point);

/// A position in the picture, or a direction, in pixels from its top left corner.
struct Pixel {
    double x;
    double y;

    Pixel operator+(const Pixel& other) const { return {x + other.x, y + other.y}; }
    Pixel operator-(const Pixel& other) const { return {x - other.x, y - other.y}; }
    Pixel operator*(double factor) const { return {x * factor, y * factor}; }
    double dot(const Pixel& other) const { return x * other.x + y * other.y; }
    double length() const { return std::hypot(x, y); }
};

/// Where the points of the world are seen in an area of the picture, with the current state of a camera.
class Projector {
public:
    Projector(const vxgraphics3d::ICameraTransforms& camera, const PixelArea& area);

    /// False for a camera that shows nothing, as after a division by zero.
    bool isFinite() const;

    /// Where a point is seen; nothing for one that is not in front of the eye, or too far out to tell pixels apart.
    std::optional<Pixel> pixelOf(const Point& point) const;

    /// The sine of the angle at which a face of a box is seen from outside; negative where it is seen from within.
    /// @param axis the normal of the face: 0 to 2
    /// @param isHigh which of the two faces of the axis
    /// @param coordinate of the face, on the axis
    /// @param center of the box
    double sineOfView(std::size_t axis, bool isHigh, double coordinate, const Point& center) const;

private:
    double product(std::size_t row, const Point& point) const;

    PixelArea m_area;
    std::array<std::array<double, 4>, 4> m_rows;
    bool m_isPerspective;
    /// In the world; in parallel projection the direction from the scene to it.
    Point m_eye;
    /// From axis-scaled space to the world.
    Point m_scale;
};

} // namespace vxrenderer
