#include "graphics3d/parts/markingmodesetup.h"

#include "graphics3d/parts/markflags.h"

#include <stdexcept>
#include <string>

namespace vxgraphics3d {

namespace {

std::size_t checkedRow(MarkingType row)
{
    const auto index = static_cast<std::size_t>(row);
    if (index >= std::size_t{MarkingModeSetup::c_numRows}) {
        throw std::out_of_range("There is no marking row " + std::to_string(static_cast<int>(row)) + '.');
    }
    return index;
}

} // namespace

MarkingType MarkingModeSetup::getMarkingType(int flags)
{
    const auto isSet = [marks = static_cast<unsigned>(flags)](unsigned mask) { return (marks & mask) != 0; };
    if (isSet(MarkHidden | MarkHiddenAdjacent)) {
        return RowHidden;
    }
    if (isSet(MarkMeshed)) {
        return RowMeshed;
    }
    if (isSet(MarkPrimary)) {
        return isSet(MarkSecondary) ? RowBoth : RowPrimary;
    }
    if (isSet(MarkPrimaryAdjacent)) {
        return isSet(MarkSecondaryAdjacent) ? RowBothAdjacent : RowPrimaryAdjacent;
    }
    if (isSet(MarkSecondary)) {
        return RowSecondary;
    }
    return isSet(MarkSecondaryAdjacent) ? RowSecondaryAdjacent : RowNormal;
}

void MarkingModeSetup::setMarking(MarkingType row, const Color& sheet, const Color& line, float lineWidth,
                                  const Color& point, float pointSize, const Color& label, int polygonLayer)
{
    m_rows[checkedRow(row)].init(sheet, line, point, lineWidth, pointSize, label, polygonLayer);
}

void MarkingModeSetup::setHiddenMarking(MarkingType row)
{
    m_rows[checkedRow(row)].initHidden();
}

const Marking& MarkingModeSetup::getMarking(MarkingType row) const
{
    return m_rows[checkedRow(row)];
}

} // namespace vxgraphics3d
