#include "graphics3d/canvas/axissetup.h"

#include "graphics3d/foundation/textutil.h"

#include <array>
#include <utility>

namespace vxgraphics3d {

namespace {

constexpr std::array<int, 7> c_kindOfType = {2, 1, 2, 1, 1, 1, 2};

} // namespace

AxisSetup::AxisSetup(const AxisSetup& other)
{
    *this = other;
}

AxisSetup& AxisSetup::operator=(const AxisSetup& other)
{
    m_yAxisLog = other.m_yAxisLog;
    m_xAxisLog = other.m_xAxisLog;
    m_xSpacing = other.m_xSpacing;
    m_ySpacing = other.m_ySpacing;
    m_autoSpacing = other.m_autoSpacing;
    m_extraX = other.m_extraX;
    m_extraY = other.m_extraY;
    m_axisType = other.m_axisType;
    m_symmetryAxisTitle = other.m_symmetryAxisTitle;
    m_axisKind = other.m_axisKind;
    m_legendPosition = other.m_legendPosition;
    m_legendLayoutStrategy = other.m_legendLayoutStrategy;
    m_xAxisTitle = other.m_xAxisTitle;
    m_yAxisTitle = other.m_yAxisTitle;
    return *this;
}

void AxisSetup::import(const AxisSetup& other)
{
    if (this != &other) {
        *this = other;
        raiseChange(m_changeId);
    }
}

void AxisSetup::setAxisType(int type)
{
    if (type == m_axisType) {
        return;
    }
    m_axisType = type;
    const auto row = static_cast<std::size_t>(type);
    m_axisKind = type >= 0 && row < c_kindOfType.size() ? c_kindOfType[row] : 0;
    raiseChange(m_changeId);
}

void AxisSetup::setExtraX(std::vector<double> positions)
{
    m_extraX = std::move(positions);
    raiseChange(m_changeId);
}

void AxisSetup::setExtraY(std::vector<double> positions)
{
    m_extraY = std::move(positions);
    raiseChange(m_changeId);
}

void AxisSetup::setTitle(vxbase::UString& title, const vxbase::UString& text)
{
    title.clear();
    if (!text.empty()) {
        vxbase::UString escaped;
        TextUtil::escapeBracesAndBackslash(text, escaped);
        title.append("\\begin{center}\\unicode{").append(escaped).append("}\\end{center}");
    }
    raiseChange(m_changeId);
}

void AxisSetup::setXAxisTitle(const vxbase::UString& text)
{
    setTitle(m_xAxisTitle, text);
}

void AxisSetup::setYAxisTitle(const vxbase::UString& text)
{
    setTitle(m_yAxisTitle, text);
}

void AxisSetup::setSymmetryAxis(const vxbase::UString& text)
{
    vxbase::UString equation = text;
    if (!equation.empty()) {
        equation.append("=0");
    }
    setTitle(m_symmetryAxisTitle, equation);
}

} // namespace vxgraphics3d
