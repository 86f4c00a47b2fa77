#include "interaction/clickview.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

namespace vxinteraction {
namespace {

using Row = std::array<double, 4>;
using Rows = std::array<Row, 4>;

Rows rowsOf(const vxgraphics3d::Matrixf& matrix)
{
    Rows rows;
    for (int i = 0; i < 4; ++i) {
        for (int j = 0; j < 4; ++j) {
            rows[static_cast<std::size_t>(i)][static_cast<std::size_t>(j)] =
                static_cast<double>(matrix.get(i + 1, j + 1));
        }
    }
    return rows;
}

Row combine(double a, const Row& first, double b, const Row& second)
{
    Row result;
    for (std::size_t i = 0; i < result.size(); ++i) {
        result[i] = a * first[i] + b * second[i];
    }
    return result;
}

Row operator*(const Row& row, const Rows& matrix)
{
    return combine(1.0, combine(row[0], matrix[0], row[1], matrix[1]), 1.0,
                   combine(row[2], matrix[2], row[3], matrix[3]));
}

ClickView::Vertex between(const ClickView::Vertex& a, const ClickView::Vertex& b, double t)
{
    const auto at = [t](double from, double to) { return (1.0 - t) * from + t * to; };
    return {at(a.u, b.u), at(a.v, b.v), at(a.w, b.w), at(a.depth, b.depth)};
}

/// Where the part of a segment between two points in front of the eye is nearest to the pointer in the picture.
ClickView::Vertex nearest(const ClickView::Vertex& a, const ClickView::Vertex& b)
{
    const double du = b.u / b.w - a.u / a.w;
    const double dv = b.v / b.w - a.v / a.w;
    const double lengthSquared = du * du + dv * dv;
    if (!(lengthSquared > 0.0)) {
        return a.depth <= b.depth ? a : b;
    }
    const double s = std::clamp(-(a.u / a.w * du + a.v / a.w * dv) / lengthSquared, 0.0, 1.0);
    // A fraction of the segment's picture, as a fraction of the segment.
    return between(a, b, s * a.w / (s * a.w + (1.0 - s) * b.w));
}

/// The better of two, by the distance from the pointer in the picture.
std::optional<Touch> nearer(const std::optional<Touch>& a, const std::optional<Touch>& b)
{
    return !a || (b && b->pixels < a->pixels) ? b : a;
}

} // namespace

ClickView::ClickView(const vxgraphics3d::ICameraTransforms& camera, int x, int y, const PixelRectangle& area)
{
    Rows toView = rowsOf(camera.getViewTransform());
    if (camera.hasViewScaleTransform()) {
        const Rows scale = rowsOf(camera.getAxisViewScaleTransform());
        for (Row& row : toView) {
            row = row * scale;
        }
    }
    const Rows projection = rowsOf(camera.getProjectionTransformRH());
    const double halfWidth = 0.5 * camera.getRenderAreaWidth();
    const double halfHeight = 0.5 * camera.getRenderAreaHeight();
    // The middle of the pixel, from the middle of the render area.
    const double middleX = x + 0.5 - camera.getRenderAreaLeft() - halfWidth;
    const double middleY = y + 0.5 - camera.getRenderAreaBottom() - halfHeight;
    m_w = projection[3] * toView;
    m_u = combine(halfWidth, projection[0] * toView, -middleX, m_w);
    m_v = combine(halfHeight, projection[1] * toView, -middleY, m_w);
    m_depth = combine(-1.0, toView[2], 0.0, toView[3]);
    m_left = area.left - (x + 0.5);
    m_right = area.right - (x + 0.5);
    m_bottom = area.bottom - (y + 0.5);
    m_top = area.top - (y + 0.5);
    m_pixelWidth = 1.0 / (projection[0][0] * halfWidth);
    m_pixelHeight = 1.0 / (projection[1][1] * halfHeight);
}

ClickView::Vertex ClickView::project(const vxgraphics3d::Vector3f& point) const
{
    return {dot(m_u, point), dot(m_v, point), dot(m_w, point), dot(m_depth, point)};
}

Touch ClickView::touchAt(const Vertex& p) const
{
    return {std::hypot(p.u / p.w, p.v / p.w), p.depth + std::hypot(p.u * m_pixelWidth, p.v * m_pixelHeight)};
}

std::optional<Touch> ClickView::touchSegment(const Vertex& a, const Vertex& b) const
{
    // The distances from the four sides of the area, above 0 inside. All four are so only in front of the eye.
    const auto sides = [this](const Vertex& p) {
        return std::array<double, 4>{p.u - m_left * p.w, m_right * p.w - p.u, p.v - m_bottom * p.w, m_top * p.w - p.v};
    };
    const std::array<double, 4> atA = sides(a);
    const std::array<double, 4> atB = sides(b);
    double begin = 0.0;
    double end = 1.0;
    for (std::size_t i = 0; i < atA.size(); ++i) {
        const bool isInsideA = atA[i] > 0.0;
        const bool isInsideB = atB[i] > 0.0;
        if (!isInsideA && !isInsideB) {
            return std::nullopt;
        }
        const double crossing = atA[i] / (atA[i] - atB[i]);
        if (!isInsideA) {
            begin = std::max(begin, crossing);
        } else if (!isInsideB) {
            end = std::min(end, crossing);
        }
    }
    if (!(begin <= end)) {
        return std::nullopt;
    }
    const Vertex first = between(a, b, begin);
    const Vertex last = between(a, b, end);
    if (!(first.w > 0.0 && last.w > 0.0)) {
        return std::nullopt;
    }
    return touchAt(nearest(first, last));
}

std::optional<Touch> ClickView::touchTriangle(const Vertex& a, const Vertex& b, const Vertex& c) const
{
    // The weights of the corners in the point of the triangle that the pointer is over.
    const double ofA = b.u * c.v - b.v * c.u;
    const double ofB = c.u * a.v - c.v * a.u;
    const double ofC = a.u * b.v - a.v * b.u;
    const double sum = ofA + ofB + ofC;
    const bool isUnder = (ofA >= 0.0 && ofB >= 0.0 && ofC >= 0.0) || (ofA <= 0.0 && ofB <= 0.0 && ofC <= 0.0);
    if (isUnder && (ofA * a.w + ofB * b.w + ofC * c.w) / sum > 0.0) {
        return Touch{0.0, (ofA * a.depth + ofB * b.depth + ofC * c.depth) / sum};
    }
    // The area is convex, so a triangle that touches it elsewhere has a side that does.
    return nearer(nearer(touchSegment(a, b), touchSegment(b, c)), touchSegment(c, a));
}

} // namespace vxinteraction
