#pragma once

#include "graphics3d/viewing/icameratransforms.h"

#include <array>
#include <optional>

namespace vxinteraction {

/// The pixels of a picture that a click or a rectangle covers, counted from the lower left corner of the drawable: the
/// columns from left up to, but not including, right, and the rows in the same way.
struct PixelRectangle {
    int left;
    int bottom;
    int right;
    int top;
};

/// The point of a part that a click found.
struct Touch {
    /// From the middle of the pixel under the pointer, in pixels; 0 if the part covers it.
    double pixels = 0.0;
    /// The way to the point: its depth in the view, and from there sideways from the line through the pixel.
    double way = 0.0;
};

/// What a camera shows in the pixels around the pointer, for geometry given by its vertices.
class ClickView {
public:
    /// A vertex in homogeneous coordinates: u / w and v / w are its pixels to the right of the pointer and above it.
    struct Vertex {
        double u;
        double v;
        double w;
        double depth;
    };

    /// @param x the column under the pointer, y the row
    /// @param area the pixels that count as touched, which include the one under the pointer
    ClickView(const vxgraphics3d::ICameraTransforms& camera, int x, int y, const PixelRectangle& area);

    Vertex project(const vxgraphics3d::Vector3f& point) const;

    // Whether geometry touches the area, and where next to the pointer.

    std::optional<Touch> touchPoint(const Vertex& p) const { return touchSegment(p, p); }
    std::optional<Touch> touchSegment(const Vertex& a, const Vertex& b) const;
    std::optional<Touch> touchTriangle(const Vertex& a, const Vertex& b, const Vertex& c) const;

private:
    using Row = std::array<double, 4>;

    static double dot(const Row& row, const vxgraphics3d::Vector3f& p)
    {
        return row[0] * static_cast<double>(p.x) + row[1] * static_cast<double>(p.y) +
               row[2] * static_cast<double>(p.z) + row[3];
    }
    Touch touchAt(const Vertex& p) const;

    Row m_u;
    Row m_v;
    Row m_w;
    Row m_depth;
    /// Limits of u / w and v / w.
    double m_left;
    double m_right;
    double m_bottom;
    double m_top;
    /// The size of a pixel in the view, where w is 1.
    double m_pixelWidth;
    double m_pixelHeight;
};

} // namespace vxinteraction
