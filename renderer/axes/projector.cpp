#include "renderer/axes/projector.h"

#include "graphics3d/viewing/icameratransforms.h"

#include <algorithm>

namespace vxrenderer {
namespace {

/// Farther away, a float cannot tell pixels apart.
constexpr double c_farthestPixel = 1e7;

} // namespace

bool isFinite(const Point& point)
{
    return std::all_of(point.begin(), point.end(), [](double value) { return std::isfinite(value); });
}

Projector::Projector(const vxgraphics3d::ICameraTransforms& camera, const PixelArea& area) : m_area(area)
{
    const vxgraphics3d::Matrixf& projection = camera.getProjectionTransformRH();
    const vxgraphics3d::Matrixf matrix = projection * camera.getViewTransform() * camera.getAxisViewScaleTransform();
    for (std::size_t row = 0; row < 4; ++row) {
        for (std::size_t column = 0; column < 4; ++column) {
            m_rows[row][column] = static_cast<double>(matrix.data()[4 * column + row]);
        }
    }
    m_isPerspective = projection.get(4, 3) != 0.0f;
    const float* eye = camera.getInvViewTransform().data() + (m_isPerspective ? 12 : 8);
    for (std::size_t i = 0; i < 3; ++i) {
        m_scale[i] = static_cast<double>(camera.getInvAxisViewScaleTransform().data()[5 * i]);
        m_eye[i] = static_cast<double>(eye[i]) * m_scale[i];
    }
}

bool Projector::isFinite() const
{
    const auto isFiniteRow = [](const std::array<double, 4>& row) {
        return std::all_of(row.begin(), row.end(), [](double value) { return std::isfinite(value); });
    };
    return vxrenderer::isFinite(m_eye) && std::all_of(m_rows.begin(), m_rows.end(), isFiniteRow);
}

std::optional<Pixel> Projector::pixelOf(const Point& point) const
{
    const double w = product(3, point);
    const Pixel pixel = {m_area.x + (0.5 + 0.5 * product(0, point) / w) * m_area.width,
                         m_area.y + (0.5 - 0.5 * product(1, point) / w) * m_area.height};
    const bool isSeen = w > 0.0 && std::abs(pixel.x) < c_farthestPixel && std::abs(pixel.y) < c_farthestPixel;
    return isSeen ? std::optional(pixel) : std::nullopt;
}

double Projector::sineOfView(std::size_t axis, bool isHigh, double coordinate, const Point& center) const
{
    // Angles are those that the eye sees, in axis-scaled space.
    double ahead = m_isPerspective ? m_eye[axis] - coordinate : m_eye[axis];
    ahead /= std::abs(m_scale[axis]);
    double squares = 0.0;
    for (std::size_t i = 0; i < 3; ++i) {
        const double away = (m_isPerspective ? m_eye[i] - center[i] : m_eye[i]) / m_scale[i];
        squares += away * away;
    }
    return squares > 0.0 ? (isHigh ? ahead : -ahead) / std::sqrt(squares) : 0.0;
}

double Projector::product(std::size_t row, const Point& point) const
{
    const std::array<double, 4>& r = m_rows[row];
    return r[0] * point[0] + r[1] * point[1] + r[2] * point[2] + r[3];
}

} // namespace vxrenderer
