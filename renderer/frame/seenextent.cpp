#include "renderer/frame/seenextent.h"

#include "graphics3d/foundation/matrixf.h"
#include "graphics3d/viewing/icameratransforms.h"

#include <algorithm>
#include <cmath>

namespace vxrenderer {
namespace {

using vxgraphics3d::Matrixf;
using vxgraphics3d::Vector3f;

/// Beyond this, products of coordinates are no longer finite.
constexpr float c_farthest = 1e18f;

} // namespace

SeenExtent::SeenExtent(const vxgraphics3d::ICameraTransforms& camera)
    : m_isPerspective(camera.getProjectionTransformRH().get(4, 3) != 0.0f)
{
    const Matrixf toEye = camera.getViewTransform() * camera.getAxisViewScaleTransform();
    for (int row = 0; row < 3; ++row) {
        for (int column = 0; column < 4; ++column) {
            m_rows[static_cast<std::size_t>(row)][static_cast<std::size_t>(column)] = toEye.get(row + 1, column + 1);
        }
    }
    const auto length = [&](int column) {
        return Vector3f(toEye.get(1, column), toEye.get(2, column), toEye.get(3, column)).length();
    };
    // Spheres stay round: their radii are in the mean of the units of x and y.
    m_radiusScale = std::sqrt(length(1) * length(2));
}

void SeenExtent::add(const PointRun& points)
{
    if (points.radius != nullptr) {
        addSpheres(points);
    } else if (m_isPerspective) {
        addPoints<true>(points);
    } else {
        addPoints<false>(points);
    }
}

void SeenExtent::add(const Vector3f& point)
{
    add({.first = &point.x, .count = 1});
}

template <bool isPerspective>
void SeenExtent::addPoints(const PointRun& points)
{
    const auto& [a, b, c] = m_rows;
    float left = m_left;
    float right = m_right;
    float bottom = m_bottom;
    float top = m_top;
    const float* p = points.first;
    for (std::size_t i = 0; i < points.count; ++i, p += points.stride) {
        const float z = p[2] * points.heightScale + points.planeOffset;
        float x = a[0] * p[0] + a[1] * p[1] + a[2] * z + a[3];
        float y = b[0] * p[0] + b[1] * p[1] + b[2] * z + b[3];
        if (isPerspective) {
            const float distance = -(c[0] * p[0] + c[1] * p[1] + c[2] * z + c[3]);
            const float inverse = distance > 0.0f ? 1.0f / distance : std::numeric_limits<float>::quiet_NaN();
            x *= inverse;
            y *= inverse;
        }
        // The comparison also fails for what is no number.
        if (std::abs(x) + std::abs(y) < c_farthest) {
            left = std::min(left, x);
            right = std::max(right, x);
            bottom = std::min(bottom, y);
            top = std::max(top, y);
        }
    }
    m_left = left;
    m_right = right;
    m_bottom = bottom;
    m_top = top;
}

void SeenExtent::addSpheres(const PointRun& points)
{
    const auto& [a, b, c] = m_rows;
    for (std::size_t i = 0; i < points.count; ++i) {
        const float* p = points.first + i * points.stride;
        const float r = points.radius[i * points.stride] * points.radiusScale * m_radiusScale;
        const float z = p[2] * points.heightScale + points.planeOffset;
        const float x = a[0] * p[0] + a[1] * p[1] + a[2] * z + a[3];
        const float y = b[0] * p[0] + b[1] * p[1] + b[2] * z + b[3];
        const float distance = -(c[0] * p[0] + c[1] * p[1] + c[2] * z + c[3]);
        addAtEye({x, y, -distance}, r);
    }
}

void SeenExtent::addAtEye(const Vector3f& center, float radius)
{
    const float distance = -center.z;
    if (!(radius >= 0.0f) || !(std::abs(center.x) + std::abs(center.y) + radius < c_farthest)) {
        return;
    }
    // The lines of sight that touch a sphere, seen from above and from the side.
    const auto take = [&](float across, float& low, float& high) {
        if (!m_isPerspective) {
            low = std::min(low, across - radius);
            high = std::max(high, across + radius);
            return;
        }
        const float squared = across * across + distance * distance - radius * radius;
        if (distance > radius && squared > 0.0f) {
            const float root = std::sqrt(squared);
            low = std::min(low, (across * root - radius * distance) / (distance * root + radius * across));
            high = std::max(high, (across * root + radius * distance) / (distance * root - radius * across));
        }
    };
    take(center.x, m_left, m_right);
    take(center.y, m_bottom, m_top);
}

void PointBox::add(const PointRun& points)
{
    const float* p = points.first;
    for (std::size_t i = 0; i < points.count; ++i, p += points.stride) {
        const float point[3] = {p[0], p[1], p[2] * points.heightScale + points.planeOffset};
        const float radius = points.radius != nullptr ? points.radius[i * points.stride] * points.radiusScale : 0.0f;
        if (radius >= 0.0f && std::abs(point[0]) + std::abs(point[1]) + std::abs(point[2]) + radius < c_farthest) {
            for (std::size_t axis = 0; axis < 3; ++axis) {
                m_low[axis] = std::min(m_low[axis], point[axis] - radius * m_radii[axis]);
                m_high[axis] = std::max(m_high[axis], point[axis] + radius * m_radii[axis]);
            }
        }
    }
}

vxgraphics3d::BoundingBox PointBox::get() const
{
    return m_low[0] <= m_high[0]
               ? vxgraphics3d::BoundingBox(m_low[0], m_high[0], m_low[1], m_high[1], m_low[2], m_high[2])
               : vxgraphics3d::BoundingBox();
}

} // namespace vxrenderer
