#include "renderer/scene/view.h"

#include "graphics3d/foundation/boundingbox.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

namespace vxrenderer {
namespace {

using vxgraphics3d::BoundingBox;
using vxgraphics3d::Matrixf;
using vxgraphics3d::Vector3f;

using Vector = std::array<double, 3>;

/// Part of the area that the box fills.
constexpr double c_fill = 0.94;
/// Tangent of half the angle of view, from top to bottom.
constexpr double c_halfView = 0.22;

Vector toDouble(const Vector3f& v)
{
    return {static_cast<double>(v.x), static_cast<double>(v.y), static_cast<double>(v.z)};
}

double dot(const Vector& a, const Vector& b)
{
    return a[0] * b[0] + a[1] * b[1] + a[2] * b[2];
}

/// The axes of the eye in the scene, and the place that it looks at.
struct Frame {
    Vector right;
    Vector up;
    Vector back;

    static Frame lookingFrom(const ViewDirection& direction)
    {
        const double azimuth = direction.azimuth * std::numbers::pi / 180.0;
        const double elevation = direction.elevation * std::numbers::pi / 180.0;
        const double ca = std::cos(azimuth);
        const double sa = std::sin(azimuth);
        const double ce = std::cos(elevation);
        const double se = std::sin(elevation);
        return {{-sa, ca, 0.0}, {-se * ca, -se * sa, ce}, {ce * ca, ce * sa, se}};
    }

    /// The matrix to an eye that sees `target` straight ahead in some distance.
    Matrixf viewMatrix(const Vector& target, double distance) const
    {
        const auto f = [](double value) { return static_cast<float>(value); };
        return {f(right[0]), f(right[1]), f(right[2]), f(-dot(right, target)),
                f(up[0]),    f(up[1]),    f(up[2]),    f(-dot(up, target)),
                f(back[0]),  f(back[1]),  f(back[2]),  f(-dot(back, target) - distance),
                0.0f,        0.0f,        0.0f,        1.0f};
    }
};

std::array<Vector, 8> cornersOf(const Vector& half)
{
    std::array<Vector, 8> corners;
    for (std::size_t i = 0; i < corners.size(); ++i) {
        corners[i] = {(i & 1) != 0 ? half[0] : -half[0], (i & 2) != 0 ? half[1] : -half[1],
                      (i & 4) != 0 ? half[2] : -half[2]};
    }
    return corners;
}

void lookFlat(View& view, const Vector3f& center, const Vector& half)
{
    const bool isPoint = half[0] == 0.0 && half[1] == 0.0;
    const double width = isPoint ? 1.0 : 2.0 * half[0];
    const double height = isPoint ? 1.0 : 2.0 * half[1];
    const double pixel = std::max(width / view.area.width, height / view.area.height) / c_fill;
    const double depth = std::max(width, height);
    view.isFlat = true;
    view.view.initTranslation(-center.x, -center.y, -center.z);
    view.projection.initScale(static_cast<float>(2.0 / (pixel * view.area.width)),
                              static_cast<float>(2.0 / (pixel * view.area.height)), static_cast<float>(-1.0 / depth));
}

void lookFrom(View& view, const Vector& center, const Vector& half, const ViewDirection& direction)
{
    const Frame frame = Frame::lookingFrom(direction);
    const double aspect = static_cast<double>(view.area.width) / view.area.height;
    const double halfHeight = c_halfView * c_fill;
    const double halfWidth = halfHeight * aspect;

    // The corners as the eye sees them. The distance in which all of them fit depends on where the eye looks, and where
    // it has to look, so that they lie in the middle, on the distance: a few rounds settle both.
    std::array<Vector, 8> corners = cornersOf(half);
    for (Vector& corner : corners) {
        corner = {dot(frame.right, corner), dot(frame.up, corner), dot(frame.back, corner)};
    }
    const double closest = 0.05 * std::sqrt(dot(half, half));
    const auto distanceTo = [&](double x, double y) {
        double distance = 0.0;
        for (const Vector& corner : corners) {
            distance = std::max({distance, corner[2] + closest, corner[2] + std::abs(corner[0] - x) / halfWidth,
                                 corner[2] + std::abs(corner[1] - y) / halfHeight});
        }
        return distance;
    };
    double x = 0.0;
    double y = 0.0;
    for (int round = 0; round < 4; ++round) {
        const double distance = distanceTo(x, y);
        std::array<double, 4> extent = {1e300, -1e300, 1e300, -1e300};
        for (const Vector& corner : corners) {
            const double away = distance - corner[2];
            extent[0] = std::min(extent[0], (corner[0] - x) / away);
            extent[1] = std::max(extent[1], (corner[0] - x) / away);
            extent[2] = std::min(extent[2], (corner[1] - y) / away);
            extent[3] = std::max(extent[3], (corner[1] - y) / away);
        }
        x += 0.5 * (extent[0] + extent[1]) * distance;
        y += 0.5 * (extent[2] + extent[3]) * distance;
    }
    const double distance = distanceTo(x, y);
    double nearest = distance;
    double farthest = distance;
    for (const Vector& corner : corners) {
        nearest = std::min(nearest, distance - corner[2]);
        farthest = std::max(farthest, distance - corner[2]);
    }
    nearest = std::max(0.9 * nearest, 1e-3 * distance);
    farthest *= 1.1;

    Vector target = center;
    for (std::size_t i = 0; i < 3; ++i) {
        target[i] += x * frame.right[i] + y * frame.up[i];
    }
    view.view = frame.viewMatrix(target, distance);
    const double scale = 1.0 / c_halfView;
    view.projection =
        Matrixf(static_cast<float>(scale / aspect), 0.0f, 0.0f, 0.0f, 0.0f, static_cast<float>(scale), 0.0f, 0.0f, 0.0f,
                0.0f, static_cast<float>((farthest + nearest) / (nearest - farthest)),
                static_cast<float>(2.0 * farthest * nearest / (nearest - farthest)), 0.0f, 0.0f, -1.0f, 0.0f);
}

} // namespace

View fitView(const BoundingBox& box, const PixelArea& area, const ViewDirection& direction)
{
    View view;
    const Vector3f half = box.getHalfSize();
    if (!box.isValid() || area.width < 1 || area.height < 1 || !std::isfinite(half.length()) ||
        !std::isfinite(box.getCenter().length())) {
        return view;
    }
    view.area = area;
    if (half.z == 0.0f) {
        lookFlat(view, box.getCenter(), toDouble(half));
    } else {
        lookFrom(view, toDouble(box.getCenter()), toDouble(half), direction);
    }
    return view;
}

} // namespace vxrenderer
