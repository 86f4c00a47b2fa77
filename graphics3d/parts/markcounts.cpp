#include "graphics3d/parts/markcounts.h"

namespace vxgraphics3d {

void MarkCounts::setMark(SelectablePart& part, MarkFlags mark, bool on)
{
    const bool wasMarked = part.getDisplayFlags() != 0;
    const bool hadMark = part.isMarked(mark);
    if (on) {
        part.setMark(mark, true);
        m_numMarked += wasMarked ? 0 : 1;
        m_numPrimary += mark == MarkPrimary && !hadMark ? 1 : 0;
    } else if (hadMark) {
        part.setMark(mark, false);
        m_numMarked -= part.getDisplayFlags() == 0 ? 1 : 0;
        m_numPrimary -= mark == MarkPrimary ? 1 : 0;
    }
}

void MarkCounts::setUnpickableMark(SelectablePart& part, bool on)
{
    part.setMark(MarkUnpickable, on);
}

} // namespace vxgraphics3d
