#include "interaction/overlayplane.h"

#include "graphics3d/canvas/canvas3dsettings.h"
#include "graphics3d/foundation/matrixf.h"
#include "graphics3d/settings/canvas3dglobalsettings.h"
#include "graphics3d/viewing/icameratransforms.h"

#include <algorithm>
#include <cmath>
#include <stdexcept>
#include <string>
#include <utility>

namespace vxinteraction {

using vxgraphics3d::Canvas3dSettings;
using vxgraphics3d::ICameraTransforms;
using vxgraphics3d::Matrixf;

OverlayPlane::OverlayPlane(const ICameraTransforms& camera, int canvasHeight)
    : m_left(camera.getRenderAreaLeft()),
      m_top(canvasHeight - camera.getRenderAreaBottom() - camera.getRenderAreaHeight()),
      m_width(camera.getRenderAreaWidth()),
      m_height(camera.getRenderAreaHeight())
{
    Matrixf toEye = camera.getViewTransform();
    if (camera.hasViewScaleTransform()) {
        toEye *= camera.getAxisViewScaleTransform();
    }
    const Matrixf toClip = camera.getProjectionTransformRH() * toEye;
    for (std::size_t row = 0; row < 4; ++row) {
        for (std::size_t column = 0; column < 4; ++column) {
            m_rows[row][column] =
                static_cast<double>(toClip.get(static_cast<int>(row) + 1, static_cast<int>(column) + 1));
        }
    }
}

double OverlayPlane::product(std::size_t row, const std::array<double, 4>& point) const
{
    const std::array<double, 4>& r = m_rows[row];
    return r[0] * point[0] + r[1] * point[1] + r[2] * point[2] + r[3] * point[3];
}

std::optional<PlanePoint> OverlayPlane::toPicture(const vxgraphics3d::Vector3f& point) const
{
    const std::array<double, 4> p = {static_cast<double>(point.x), static_cast<double>(point.y),
                                     static_cast<double>(point.z), 1.0};
    const double w = product(3, p);
    if (!(w > 0.0)) {
        return std::nullopt;
    }
    const PlanePoint pixel = {m_left + 0.5 * (1.0 + product(0, p) / w) * m_width,
                              m_top + 0.5 * (1.0 - product(1, p) / w) * m_height};
    return std::isfinite(pixel.x) && std::isfinite(pixel.y) ? std::optional(pixel) : std::nullopt;
}

std::optional<PlanePoint> OverlayPlane::toPlane(const PlanePoint& picture) const
{
    // x and y that solve (row 0 - right * row 3) p = 0 and (row 1 - up * row 3) p = 0 for p = (x, y, 0, 1).
    const double right = 2.0 * (picture.x - m_left) / m_width - 1.0;
    const double up = 1.0 - 2.0 * (picture.y - m_top) / m_height;
    const auto coefficient = [&](std::size_t row, double factor, std::size_t column) {
        return m_rows[row][column] - factor * m_rows[3][column];
    };
    const double a = coefficient(0, right, 0);
    const double b = coefficient(0, right, 1);
    const double c = coefficient(1, up, 0);
    const double d = coefficient(1, up, 1);
    const double e = -coefficient(0, right, 3);
    const double f = -coefficient(1, up, 3);
    const double determinant = a * d - b * c;
    const PlanePoint point = {(e * d - b * f) / determinant, (a * f - e * c) / determinant};
    const bool isFinite = std::isfinite(point.x) && std::isfinite(point.y);
    return isFinite && product(3, {point.x, point.y, 0.0, 1.0}) > 0.0 ? std::optional(point) : std::nullopt;
}

OverlayView::OverlayView(boost::shared_ptr<Canvas3dSettings> settings, int canvasHeight)
    : m_settings(std::move(settings)), m_canvasHeight(0)
{
    if (!m_settings) {
        throw std::invalid_argument("There are no settings of a view to interact with.");
    }
    setCanvasHeight(canvasHeight);
}

void OverlayView::setCanvasHeight(int canvasHeight)
{
    if (canvasHeight < 1) {
        throw std::invalid_argument("The canvas height is " + std::to_string(canvasHeight) + ", not 1 or more.");
    }
    m_canvasHeight = canvasHeight;
}

OverlayPlane OverlayView::plane() const
{
    return {m_settings->getCameraTransforms(), m_canvasHeight};
}

double pickingTolerance()
{
    return std::max(0, vxgraphics3d::Canvas3dGlobalSettings::getInstance()->getPickingTolerance());
}

} // namespace vxinteraction
