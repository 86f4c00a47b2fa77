#include "renderer/paint/linedashes.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace vxrenderer {
namespace {

using vxgraphics3d::Vector3f;

/// Lengths of dashes and gaps in units of the line width.
std::vector<double> patternOf(LineStyle style)
{
    switch (style) {
    case LineStyle::dashed:
        return {5.0, 3.0};
    case LineStyle::dotted:
        return {1.0, 2.0};
    default:
        return {6.0, 2.5, 1.0, 2.5};
    }
}

/// Thin lines have the pattern of this width in pixels of the screen, so that their dots are seen as separate.
constexpr float c_leastWidth = 1.5f;

/// The part of a line within a rectangle about the origin of its coordinates.
/// @return false if there is none
bool clip(double from, double step, double low, double high, double& first, double& last)
{
    if (step == 0.0) {
        return from >= low && from <= high;
    }
    double enter = (low - from) / step;
    double leave = (high - from) / step;
    if (enter > leave) {
        std::swap(enter, leave);
    }
    first = std::max(first, enter);
    last = std::min(last, leave);
    return first < last;
}

} // namespace

LineDashes::LineDashes(LineStyle style, float lineWidth, float width, float height, float scale)
    : m_reach(0.5f * lineWidth), m_width(width), m_height(height), m_pattern(patternOf(style))
{
    for (double& length : m_pattern) {
        length *= static_cast<double>(std::max(lineWidth, c_leastWidth * scale));
        m_period += length;
    }
}

void LineDashes::moveTo(const Vector3f& point)
{
    m_point = point;
    m_distance = 0.0;
}

void LineDashes::lineTo(const Vector3f& point)
{
    const double dx = static_cast<double>(point.x) - static_cast<double>(m_point.x);
    const double dy = static_cast<double>(point.y) - static_cast<double>(m_point.y);
    const double length = std::hypot(dx, dy);
    if (std::isfinite(length) && length > 0.0) {
        const auto reach = static_cast<double>(2.0f * m_reach);
        double first = 0.0;
        double last = 1.0;
        if (clip(static_cast<double>(m_point.x), dx, -reach, static_cast<double>(m_width) + reach, first, last) &&
            clip(static_cast<double>(m_point.y), dy, -reach, static_cast<double>(m_height) + reach, first, last)) {
            const auto at = [&](double part) {
                return Vector3f(static_cast<double>(m_point.x) + part * dx, static_cast<double>(m_point.y) + part * dy,
                                0.0);
            };
            addDashes(at(first), at(last), m_distance + first * length, (last - first) * length);
        }
        m_distance = std::fmod(m_distance + length, m_period);
    }
    m_point = point;
}

/// @param start distance of `from` from the start of the pattern
void LineDashes::addDashes(const Vector3f& from, const Vector3f& to, double start, double length)
{
    double position = -std::fmod(start, m_period);
    for (std::size_t part = 0; position < length; part = (part + 1) % m_pattern.size()) {
        const double end = position + m_pattern[part];
        if (part % 2 == 0 && end > 0.0) {
            // The ends of a dash reach beyond their points; where it goes on behind a corner, its end is the corner.
            const auto reach = static_cast<double>(m_reach);
            double low = position + reach;
            double high = end - reach;
            if (low > high) {
                low = high = 0.5 * (position + end);
            }
            low = std::max(low, 0.0);
            high = std::min(high, length);
            if (low <= high) {
                const auto at = [&](double distance) {
                    return from + (to - from) * static_cast<float>(distance / length);
                };
                m_dashes.push_back({at(low), at(high)});
            }
        }
        position = end;
    }
}

} // namespace vxrenderer
