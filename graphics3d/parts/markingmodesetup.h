#pragma once

#include "base/export.h"
#include "graphics3d/parts/marking.h"

#include <array>

namespace vxgraphics3d {

/// The marking table of one mode: a row for each appearance of a part. A plain value; a new table has default rows.
class VX_API MarkingModeSetup {
public:
    /// The named rows and one more, which nothing selects.
    static constexpr int c_numRows = 10;

    /// The row that determines how a part is drawn. Hidden has priority over everything, a mesh over the marks, a
    /// part's own primary mark over anything adjacent, and an adjacent primary mark over the part's own secondary one.
    /// @param flags the low 16 bits of the part's flags
    static MarkingType getMarkingType(int flags);

    /// Sets a row and makes it visible.
    /// @throws std::out_of_range if there is no such row
    void setMarking(MarkingType row, const Color& sheet, const Color& line, float lineWidth, const Color& point,
                    float pointSize, const Color& label, int polygonLayer);
    /// Makes a row hidden; its colours and sizes are lost.
    /// @throws std::out_of_range if there is no such row
    void setHiddenMarking(MarkingType row);

    /// @throws std::out_of_range if there is no such row
    const Marking& getMarking(MarkingType row) const;

private:
    std::array<Marking, c_numRows> m_rows;
};

} // namespace vxgraphics3d
