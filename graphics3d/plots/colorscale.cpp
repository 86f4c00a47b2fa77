#include "graphics3d/plots/colorscale.h"

#include <algorithm>
#include <cmath>

namespace vxgraphics3d {

namespace {

/// Written out because std::clamp is undefined for limits that are NaN, which records may contain.
double clampToRange(double value, double min, double max)
{
    return value < min ? min : value > max ? max : value;
}

} // namespace

void ColorScale::setValues(double min, double max)
{
    m_valueMin = min;
    m_valueMax = max;
    m_constant = min == max;
    setLegendLimits(min, max);
    m_autoLegendLimits = true;
    clearRestriction();
}

void ColorScale::setLegendLimits(double min, double max)
{
    m_requestedLegendMin = min;
    m_requestedLegendMax = max;
    if (m_symmetric) {
        max = std::max(std::fabs(min), std::fabs(max));
        min = -max;
    }
    m_legendMin = min;
    m_legendMax = max;
    if (min == max) {
        m_dataTexMin = m_dataTexMax = m_legendTexMin = m_legendTexMax = 0.5f;
    } else {
        const double scale = 1.0 / (max - min);
        m_dataTexMin = static_cast<float>((m_valueMin - min) * scale);
        m_dataTexMax = m_constant ? m_dataTexMin : static_cast<float>((m_valueMax - min) * scale);
        m_legendTexMin = 0.0f;
        m_legendTexMax = 1.0f;
    }
    m_autoLegendLimits = false;
}

void ColorScale::setAutoLegendLimits()
{
    m_dataTexMin = m_legendTexMin = m_constant ? 0.5f : 0.0f;
    m_dataTexMax = m_legendTexMax = m_constant ? 0.5f : 1.0f;
    m_autoLegendLimits = true;
}

void ColorScale::setSymmetric(bool symmetric)
{
    m_symmetric = symmetric;
    setLegendLimits(m_requestedLegendMin, m_requestedLegendMax);
}

void ColorScale::setRestriction(double min, double max)
{
    m_restrictionMin = std::isnan(min) ? m_valueMin : clampToRange(min, m_valueMin, m_valueMax);
    m_restrictionMax = std::isnan(max) ? m_valueMax : clampToRange(max, m_valueMin, m_valueMax);
    m_hasRestriction = true;
    if (m_constant) {
        // Clamping has set both limits to the same value, so only the unclamped limits say whether they include it.
        const bool hidden = max < m_valueMin || min > m_valueMax;
        m_restrictionTexMin = 0.0f;
        m_restrictionTexMax = hidden ? 0.0f : 1.0f;
    } else {
        const double scale = 1.0 / (m_valueMax - m_valueMin);
        m_restrictionTexMin = static_cast<float>((m_restrictionMin - m_valueMin) * scale);
        m_restrictionTexMax = static_cast<float>((m_restrictionMax - m_valueMin) * scale);
    }
}

void ColorScale::resetRestriction()
{
    clearRestriction();
    if (m_autoLegendLimits) {
        m_legendMin = m_valueMin;
        m_legendMax = m_valueMax;
    }
}

void ColorScale::clearRestriction()
{
    m_restrictionMin = m_valueMin;
    m_restrictionMax = m_valueMax;
    m_restrictionTexMin = 0.0f;
    m_restrictionTexMax = 1.0f;
    m_hasRestriction = false;
}

} // namespace vxgraphics3d
