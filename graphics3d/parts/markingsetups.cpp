#include "graphics3d/parts/markingsetups.h"

#include <stdexcept>
#include <string>

namespace vxgraphics3d {

namespace {

/// The initial state of a visible row. The line colour is also that of points and labels.
struct Start {
    MarkingType row;
    Color sheet;
    Color line;
    float lineWidth;      // modes 0 and 1
    float lineWidthMode2; // mode 2 draws every line wider
    float pointSize;
    int polygonLayer;
};

constexpr Color c_black = Color::fromRgb(0x000000);
constexpr Color c_darkGrey = Color::fromRgb(0x141414);
constexpr Color c_grey = Color::fromRgb(0xd9d9d9);
constexpr Color c_red = Color::fromRgb(0xff0000);
constexpr Color c_paleRed = Color::fromRgb(0xf28c8c);
constexpr Color c_blue = Color::fromRgb(0x0000ff);
constexpr Color c_paleBlue = Color::fromRgb(0x8c8cf2);
constexpr Color c_green = Color::fromRgb(0x009900);
constexpr Color c_paleGreen = Color::fromRgb(0x8cf28c);

constexpr Start c_starts[] = {
    {RowNormal, c_grey, c_black, 1.0f, 1.5f, 5.0f, 0},
    {RowPrimary, c_paleRed, c_red, 3.0f, 4.0f, 7.0f, 2},
    {RowSecondary, c_paleBlue, c_blue, 3.0f, 4.0f, 7.0f, 1},
    {RowBoth, c_paleGreen, c_green, 3.0f, 4.0f, 7.0f, 3},
    {RowPrimaryAdjacent, c_paleRed, c_red, 1.0f, 3.0f, 5.0f, 2},
    {RowSecondaryAdjacent, c_paleBlue, c_blue, 1.0f, 3.0f, 5.0f, 1},
    {RowBothAdjacent, c_paleGreen, c_green, 1.0f, 3.0f, 5.0f, 3},
};

std::size_t checkedMode(MarkingSetups::MarkingMode mode)
{
    const auto index = static_cast<std::size_t>(mode);
    if (index >= std::size_t{MarkingSetups::c_numModes}) {
        throw std::out_of_range("There is no marking mode " + std::to_string(static_cast<int>(mode)) + '.');
    }
    return index;
}

} // namespace

MarkingSetups::MarkingSetups()
{
    for (const MarkingMode mode : {MarkingMode0, MarkingMode1, MarkingMode2}) {
        for (const Start& start : c_starts) {
            const Color& line = mode == MarkingMode2 && start.row == RowNormal ? c_darkGrey : start.line;
            setMarkingSetup(mode, start.row, start.sheet, line,
                            mode == MarkingMode2 ? start.lineWidthMode2 : start.lineWidth, start.line, start.pointSize,
                            start.line, start.polygonLayer);
        }
        setMarkingSetupHidden(mode, RowMeshed);
        setMarkingSetupHidden(mode, RowHidden);
    }
}

void MarkingSetups::setMarkingSetup(MarkingMode mode, MarkingType row, const Color& sheet, const Color& line,
                                    float lineWidth, const Color& point, float pointSize, const Color& label,
                                    int polygonLayer)
{
    m_modes[checkedMode(mode)].setMarking(row, sheet, line, lineWidth, point, pointSize, label, polygonLayer);
}

void MarkingSetups::setMarkingSetupHidden(MarkingMode mode, MarkingType row)
{
    m_modes[checkedMode(mode)].setHiddenMarking(row);
}

void MarkingSetups::setMarkingModeSetup(MarkingMode mode, const MarkingModeSetup& setup)
{
    m_modes[checkedMode(mode)] = setup;
}

const MarkingModeSetup& MarkingSetups::getMarkingModeSetup(MarkingMode mode) const
{
    return m_modes[checkedMode(mode)];
}

const Marking& MarkingSetups::getMarking(MarkingMode mode, MarkingType row) const
{
    return getMarkingModeSetup(mode).getMarking(row);
}

} // namespace vxgraphics3d
