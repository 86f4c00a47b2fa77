#include "graphics3d/cameras/axisorientationindicator.h"

namespace vxgraphics3d {

void AxisOrientationIndicator::import(const AxisOrientationIndicator& other)
{
    if (&other != this) {
        *this = other;
        m_changeId.raise();
    }
}

void AxisOrientationIndicator::setColor(Axis axis, const Color& color)
{
    m_axisColors.at(axis) = color;
    m_changeId.raise();
}

void AxisOrientationIndicator::setLabel(Axis axis, const std::string& label)
{
    m_labels.at(axis) = label;
    m_changeId.raise();
}

void AxisOrientationIndicator::setLineWidth(float width)
{
    m_lineWidth = width;
    m_changeId.raise();
}

void AxisOrientationIndicator::setAxisLength(float length)
{
    m_axisLength = length;
    m_changeId.raise();
}

void AxisOrientationIndicator::show(bool shown)
{
    m_shown = shown;
    m_changeId.raise();
}

} // namespace vxgraphics3d
