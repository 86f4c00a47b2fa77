#include "graphics3d/canvas/axissetup.h"

#include "graphics3d/foundation/textutil.h"

#include <array>
#include <utility>

namespace vxgraphics3d {

namespace {

constexpr std::array<int, 7> c_kindOfType = {2, 1, 2, 1, 1, 1, 2};

} // namespace

void AxisSetup::import(const AxisSetup& other)
{
    if (this != &other) {
        *this = other;
        m_changeId.raise();
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
    m_changeId.raise();
}

void AxisSetup::setExtraX(std::vector<double> positions)
{
    m_extraX = std::move(positions);
    m_changeId.raise();
}

void AxisSetup::setExtraY(std::vector<double> positions)
{
    m_extraY = std::move(positions);
    m_changeId.raise();
}

void AxisSetup::setTitle(vxbase::UString& title, const vxbase::UString& text)
{
    // The text may be the current title.
    vxbase::UString markup;
    if (!text.empty()) {
        vxbase::UString escaped;
        TextUtil::escapeBracesAndBackslash(text, escaped);
        markup.append("\\begin{center}\\unicode{").append(escaped).append("}\\end{center}");
    }
    title = std::move(markup);
    m_changeId.raise();
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
