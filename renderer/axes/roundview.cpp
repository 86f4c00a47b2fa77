#include "renderer/axes/roundview.h"

#include "graphics3d/cameras/camera2d.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace vxrenderer {
namespace {

constexpr double c_degree = std::numbers::pi / 180.0;

} // namespace

RoundView::RoundView(const vxgraphics3d::Camera2d& camera, const PixelArea& area) : m_area(area)
{
    const auto left = static_cast<double>(camera.getActualMinX());
    const auto right = static_cast<double>(camera.getActualMaxX());
    const auto low = static_cast<double>(camera.getActualMinY());
    const auto high = static_cast<double>(camera.getActualMaxY());
    m_unitX = area.width / (right - left);
    m_unitY = area.height / (high - low);
    m_origin = {area.x - left * m_unitX, area.y + high * m_unitY};

    m_nearest = std::hypot(std::clamp(0.0, std::min(left, right), std::max(left, right)),
                           std::clamp(0.0, std::min(low, high), std::max(low, high)));
    const double towards = std::atan2(0.5 * (low + high), 0.5 * (left + right));
    double spread = 0.0;
    for (const double x : {left, right}) {
        for (const double y : {low, high}) {
            m_farthest = std::max(m_farthest, std::hypot(x, y));
            spread = std::max(spread, std::abs(std::remainder(std::atan2(y, x) - towards, 2.0 * std::numbers::pi)));
        }
    }
    if (!showsOrigin()) {
        m_firstDegrees = (towards - spread) / c_degree;
        m_lastDegrees = (towards + spread) / c_degree;
    }
}

double RoundView::pixelsPerUnit() const
{
    return std::min(std::abs(m_unitX), std::abs(m_unitY));
}

Pixel RoundView::at(double radius, double degrees) const
{
    return {m_origin.x + radius * m_unitX * std::cos(degrees * c_degree),
            m_origin.y - radius * m_unitY * std::sin(degrees * c_degree)};
}

std::optional<Pixel> RoundView::exit(double degrees) const
{
    const Pixel step = at(1.0, degrees) - m_origin;
    double from = 0.0;
    double to = HUGE_VAL;
    const auto clip = [&](double start, double along, double low, double high) {
        // A ray that runs along the border, except for rounding, stays within.
        if (std::abs(along) < 1e-9 * step.length()) {
            to = start < low || start > high ? -1.0 : to;
            return;
        }
        from = std::max(from, std::min((low - start) / along, (high - start) / along));
        to = std::min(to, std::max((low - start) / along, (high - start) / along));
    };
    clip(m_origin.x, step.x, m_area.x, m_area.x + m_area.width);
    clip(m_origin.y, step.y, m_area.y, m_area.y + m_area.height);
    return from < to && std::isfinite(to) ? std::optional(m_origin + step * to) : std::nullopt;
}

} // namespace vxrenderer
