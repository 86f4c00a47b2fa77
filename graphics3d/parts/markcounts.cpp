#include "graphics3d/parts/markcounts.h"

#include "graphics3d/parts/selectablepart.h"

namespace vxgraphics3d {

void MarkCounts::setMark(SelectablePart& part, MarkFlags mark, bool on)
{
    const bool wasMarked = part.getDisplayFlags() != 0;
    const bool hadMark = part.isMarked(mark);
    if (on) {
        part.m_markFlags |= mark;
        m_numMarked += wasMarked ? 0 : 1;
        m_numPrimary += mark == MarkPrimary && !hadMark ? 1 : 0;
    } else if (hadMark) {
        part.m_markFlags &= ~static_cast<unsigned>(mark);
        m_numMarked -= part.getDisplayFlags() == 0 ? 1 : 0;
        m_numPrimary -= mark == MarkPrimary ? 1 : 0;
    }
}

void MarkCounts::setUnpickableMark(SelectablePart& part, bool on)
{
    if (on) {
        part.m_markFlags |= MarkUnpickable;
    } else {
        part.m_markFlags &= ~static_cast<unsigned>(MarkUnpickable);
    }
}

void MarkCounts::adjacentPrimaryMark(SelectablePart& part, bool on)
{
    adjacentMark(part, on, part.m_adjacentMarks.primary, MarkPrimaryAdjacent);
}

void MarkCounts::adjacentSecondaryMark(SelectablePart& part, bool on)
{
    adjacentMark(part, on, part.m_adjacentMarks.secondary, MarkSecondaryAdjacent);
}

void MarkCounts::adjacentMark(SelectablePart& part, bool on, int& count, MarkFlags mark)
{
    const bool wasMarked = part.getDisplayFlags() != 0;
    if (on) {
        if (++count == 1) {
            part.m_markFlags |= mark;
        }
        m_numMarked += wasMarked ? 0 : 1;
    } else if (wasMarked) {
        if (--count == 0) {
            part.m_markFlags &= ~static_cast<unsigned>(mark);
        }
        m_numMarked -= part.getDisplayFlags() == 0 ? 1 : 0;
    }
}

bool MarkCounts::adjacentHiddenMark(SelectablePart& part, bool on, int level, int sourceFlags)
{
    const bool wasMarked = part.getDisplayFlags() != 0;
    const bool isChanged = controlMark(part, on, level, sourceFlags, part.m_adjacentMarks.hidden, MarkHiddenAdjacent);
    const bool isMarked = part.getDisplayFlags() != 0;
    m_numMarked += static_cast<int>(isMarked) - static_cast<int>(wasMarked);
    return isChanged;
}

bool MarkCounts::adjacentUnpickableMark(SelectablePart& part, bool on, int level, int sourceFlags)
{
    return controlMark(part, on, level, sourceFlags, part.m_adjacentMarks.unpickable, MarkUnpickableAdjacent);
}

bool MarkCounts::controlMark(SelectablePart& part, bool on, int level, int sourceFlags, int& count, MarkFlags mark)
{
    const int step = on ? 1 : -1;
    if ((static_cast<unsigned>(sourceFlags) & SelectablePart::c_unreachable) == 0) {
        part.m_adjacentCounts.at(static_cast<std::size_t>(level)) -= step;
    }
    if (level != part.m_controlLevel) {
        return false;
    }
    count += step;
    const bool isAll = count >= part.m_controlCount;
    if (on != isAll || on == part.isMarked(mark)) {
        return false;
    }
    part.m_markFlags ^= mark;
    return true;
}

} // namespace vxgraphics3d
