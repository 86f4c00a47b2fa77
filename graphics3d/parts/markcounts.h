#pragma once

#include "base/export.h"
#include "graphics3d/parts/markflags.h"
#include "graphics3d/parts/selectablepart.h"

#include <cstddef>

namespace vxgraphics3d {

/// Sets and removes the marks of the parts of one collection, and counts the parts that have any, so that a renderer
/// can leave out what shows marked parts. No operation looks at more than one part.
class VX_API MarkCounts {
public:
    /// Sets or removes a primary, secondary, hidden or mesh mark of a part. Doing so twice changes nothing.
    void setMark(SelectablePart& part, MarkFlags mark, bool on);
    /// Sets or removes the unpickable mark, which does not show and is not counted.
    static void setUnpickableMark(SelectablePart& part, bool on);

    /// An adjacent part of a higher level got or lost its primary mark. The part has the adjacent mark while at least
    /// one of them is marked.
    void adjacentPrimaryMark(SelectablePart& part, bool on);
    /// The same for the secondary mark.
    void adjacentSecondaryMark(SelectablePart& part, bool on);
    /// An adjacent part was hidden or shown. The part has the adjacent mark while all parts of its control level are
    /// hidden.
    /// @param level that of the other part
    /// @param sourceFlags the other part's marks without that one
    /// @return whether the part's adjacent mark has changed
    bool adjacentHiddenMark(SelectablePart& part, bool on, int level, int sourceFlags);
    /// The same for the unpickable mark, which is not counted.
    static bool adjacentUnpickableMark(SelectablePart& part, bool on, int level, int sourceFlags);

    /// The number of parts with marks that decide how they look.
    int getNumMarked() const { return m_numMarked; }
    /// The number of parts with a primary mark of their own.
    int getNumPrimary() const { return m_numPrimary; }

private:
    void adjacentMark(SelectablePart& part, bool on, int& count, MarkFlags mark);
    static bool controlMark(SelectablePart& part, bool on, int level, int sourceFlags, int& count, MarkFlags mark);

    int m_numMarked = 0;
    int m_numPrimary = 0;
};

// What a mark does to each adjacent part is inline, and has no branches that depend on the part: marks without pattern
// would mispredict them.

inline void MarkCounts::adjacentPrimaryMark(SelectablePart& part, bool on)
{
    adjacentMark(part, on, part.m_adjacentMarks.primary, MarkPrimaryAdjacent);
}

inline void MarkCounts::adjacentSecondaryMark(SelectablePart& part, bool on)
{
    adjacentMark(part, on, part.m_adjacentMarks.secondary, MarkSecondaryAdjacent);
}

inline void MarkCounts::adjacentMark(SelectablePart& part, bool on, int& count, MarkFlags mark)
{
    const int wasMarked = part.getDisplayFlags() != 0 ? 1 : 0;
    if (!on && wasMarked == 0) {
        return;
    }
    count += on ? 1 : -1;
    part.setMark(mark, count > 0);
    m_numMarked += (part.getDisplayFlags() != 0 ? 1 : 0) - wasMarked;
}

inline bool MarkCounts::adjacentHiddenMark(SelectablePart& part, bool on, int level, int sourceFlags)
{
    const int wasMarked = part.getDisplayFlags() != 0 ? 1 : 0;
    const bool isChanged = controlMark(part, on, level, sourceFlags, part.m_adjacentMarks.hidden, MarkHiddenAdjacent);
    m_numMarked += (part.getDisplayFlags() != 0 ? 1 : 0) - wasMarked;
    return isChanged;
}

inline bool MarkCounts::adjacentUnpickableMark(SelectablePart& part, bool on, int level, int sourceFlags)
{
    return controlMark(part, on, level, sourceFlags, part.m_adjacentMarks.unpickable, MarkUnpickableAdjacent);
}

inline bool MarkCounts::controlMark(SelectablePart& part, bool on, int level, int sourceFlags, int& count,
                                    MarkFlags mark)
{
    const int step = on ? 1 : -1;
    const bool isReachable = (static_cast<unsigned>(sourceFlags) & SelectablePart::c_unreachable) == 0;
    part.m_adjacentCounts[static_cast<std::size_t>(level)] -= isReachable ? step : 0;
    if (level != part.m_controlLevel) {
        return false;
    }
    count += step;
    const bool wasSet = part.isMarked(mark);
    const bool isAll = count >= part.m_controlCount;
    const bool isChanged = wasSet != isAll && isAll == on;
    part.m_markFlags ^= isChanged ? static_cast<unsigned>(mark) : 0u;
    return isChanged;
}

} // namespace vxgraphics3d
