#include "graphics3d/geometry/partmarking.h"

#include <cstddef>

namespace vxgraphics3d {
namespace {

constexpr MarkFlags c_ownMarks[] = {MarkPrimary, MarkSecondary, MarkHidden, MarkUnpickable};

bool isCounted(PartMarking::Action action)
{
    return action == SceneGraphObject::MarkingPrimary || action == SceneGraphObject::MarkingSecondary;
}

/// Calls `use` with the collection of a level.
template <class Use>
void withLevel(ObjectParts& parts, int level, Use use)
{
    switch (level) {
    case PartPoint:
        use(parts.points());
        break;
    case PartLine:
        use(parts.lines());
        break;
    case PartSheet:
        use(parts.sheets());
        break;
    default:
        use(parts.subdomains());
        break;
    }
}

template <class Parts>
void countAdjacent(Parts& parts, const AdjacentParts& adjacents, int source, PartMarking::Action action, bool on)
{
    if (action == SceneGraphObject::MarkingPrimary) {
        for (const int index : adjacents.of(source)) {
            parts.adjacentPrimaryMark(on, index);
        }
    } else {
        for (const int index : adjacents.of(source)) {
            parts.adjacentSecondaryMark(on, index);
        }
    }
}

template <class Parts>
bool controlAdjacent(Parts& parts, int index, PartMarking::Action action, bool on, int sourceLevel, int sourceFlags)
{
    return action == SceneGraphObject::MarkingHidden
               ? parts.adjacentHiddenMark(on, index, sourceLevel, sourceFlags)
               : parts.adjacentUnpickableMark(on, index, sourceLevel, sourceFlags);
}

} // namespace

void PartMarking::mark(int level, int index, Action action, bool on)
{
    m_parts.requirePart(level, index);
    withLevel(m_parts, level, [&](auto& parts) { apply(parts, level, index, action, on); });
}

void PartMarking::markAll(int level, Action action, bool on)
{
    // Nothing to remove: a large object without marks costs nothing.
    if (level == PartSheet && action == SceneGraphObject::MarkingPrimary && !on &&
        m_parts.getSheets().getNumPrimary() == 0) {
        return;
    }
    withLevel(m_parts, level, [&](auto& parts) {
        for (int i = 0; i < parts.getNumParts(); ++i) {
            apply(parts, level, i, action, on);
        }
    });
}

void PartMarking::unmarkAll(ObjectPartType part, Action action)
{
    for (int level = m_parts.getHighestLevel(); level >= PartPoint; --level) {
        if (part == PartAll || part == level) {
            markAll(level, action, false);
        }
    }
}

template <class Parts>
void PartMarking::apply(Parts& parts, int level, int index, Action action, bool on)
{
    const MarkFlags ownMark = c_ownMarks[action];
    if (parts.getPart(index).isMarked(ownMark) == on) {
        return;
    }
    // Propagation sees the flags of the source without its own mark, in both directions.
    if (!on) {
        parts.setMark(ownMark, false, index);
    }
    if (isCounted(action)) {
        propagateCount(level, index, action, on);
    } else {
        propagateThreshold(level, index, action, on, parts.getMarkFlags(index));
    }
    if (on) {
        parts.setMark(ownMark, true, index);
    }
}

void PartMarking::propagateCount(int level, int index, Action action, bool on)
{
    if (level > PartSheet) {
        countAdjacent(m_parts.sheets(), m_parts.getAdjacents(level, PartSheet), index, action, on);
    }
    if (level > PartLine) {
        countAdjacent(m_parts.lines(), m_parts.getAdjacents(level, PartLine), index, action, on);
    }
    if (level > PartPoint) {
        countAdjacent(m_parts.points(), m_parts.getAdjacents(level, PartPoint), index, action, on);
    }
}

void PartMarking::propagateThreshold(int level, int index, Action action, bool on, int sourceFlags)
{
    for (int lower = level - 1; lower >= PartPoint; --lower) {
        for (const int adjacent : m_parts.getAdjacents(level, lower).of(index)) {
            if (adjacentThreshold(lower, adjacent, action, on, level, sourceFlags)) {
                cascade(lower, adjacent, action, on);
            }
        }
    }
}

bool PartMarking::adjacentThreshold(int level, int index, Action action, bool on, int sourceLevel, int sourceFlags)
{
    switch (level) {
    case PartPoint:
        return controlAdjacent(m_parts.points(), index, action, on, sourceLevel, sourceFlags);
    case PartLine:
        return controlAdjacent(m_parts.lines(), index, action, on, sourceLevel, sourceFlags);
    default:
        return controlAdjacent(m_parts.sheets(), index, action, on, sourceLevel, sourceFlags);
    }
}

/// The adjacent mark of a part has changed, which concerns the parts one level below.
void PartMarking::cascade(int level, int index, Action action, bool on)
{
    if (level == PartPoint) {
        return;
    }
    const unsigned flags =
        level == PartLine ? m_parts.getLines().getMarkFlags(index) : m_parts.getSheets().getMarkFlags(index);
    // Without the mark that has just changed, in both directions.
    const unsigned changed = action == SceneGraphObject::MarkingHidden ? MarkHiddenAdjacent : 0u;
    const int lower = level - 1;
    for (const int adjacent : m_parts.getAdjacents(level, lower).of(index)) {
        if (adjacentThreshold(lower, adjacent, action, on, level, static_cast<int>(flags & ~changed))) {
            cascade(lower, adjacent, action, on);
        }
    }
}

} // namespace vxgraphics3d
