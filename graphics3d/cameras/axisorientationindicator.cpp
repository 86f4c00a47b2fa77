#include "graphics3d/cameras/axisorientationindicator.h"

namespace vxgraphics3d {

AxisOrientationIndicator::AxisOrientationIndicator(const AxisOrientationIndicator& other)
{
    copySettings(other);
}

void AxisOrientationIndicator::import(const AxisOrientationIndicator& other)
{
    if (&other != this) {
        copySettings(other);
        raiseChange(m_changeId);
    }
}

void AxisOrientationIndicator::setColor(Axis axis, const Color& color)
{
    m_axisColors.at(axis) = color;
    raiseChange(m_changeId);
}

void AxisOrientationIndicator::setLabel(Axis axis, const std::string& label)
{
    m_labels.at(axis) = label;
    raiseChange(m_changeId);
}

void AxisOrientationIndicator::setLineWidth(float width)
{
    m_lineWidth = width;
    raiseChange(m_changeId);
}

void AxisOrientationIndicator::setAxisLength(float length)
{
    m_axisLength = length;
    raiseChange(m_changeId);
}

void AxisOrientationIndicator::show(bool shown)
{
    m_shown = shown;
    raiseChange(m_changeId);
}

void AxisOrientationIndicator::copySettings(const AxisOrientationIndicator& other)
{
    m_shown = other.m_shown;
    m_axisLength = other.m_axisLength;
    m_extraSize = other.m_extraSize;
    m_lineWidth = other.m_lineWidth;
    m_extraColor = other.m_extraColor;
    m_labels = other.m_labels;
    m_axisColors = other.m_axisColors;
}

} // namespace vxgraphics3d
