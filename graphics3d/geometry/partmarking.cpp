#include "graphics3d/geometry/partmarking.h"

#include <span>

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
void countAdjacent(Parts& parts, std::span<const int> adjacents, PartMarking::Action action, bool on)
{
    if (action == SceneGraphObject::MarkingPrimary) {
        for (const int index : adjacents) {
            parts.adjacentPrimaryMark(on, index);
        }
    } else {
        for (const int index : adjacents) {
            parts.adjacentSecondaryMark(on, index);
        }
    }
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
        propagateThreshold(index, {level, parts.getMarkFlags(index), action, on});
    }
    if (on) {
        parts.setMark(ownMark, true, index);
    }
}

void PartMarking::propagateCount(int level, int index, Action action, bool on)
{
    if (level > PartSheet) {
        countAdjacent(m_parts.sheets(), m_parts.getAdjacents(level, PartSheet).of(index), action, on);
    }
    if (level > PartLine) {
        countAdjacent(m_parts.lines(), m_parts.getAdjacents(level, PartLine).of(index), action, on);
    }
    if (level > PartPoint) {
        countAdjacent(m_parts.points(), m_parts.getAdjacents(level, PartPoint).of(index), action, on);
    }
}

void PartMarking::propagateThreshold(int index, const Source& source)
{
    if (source.level > PartSheet) {
        controlAdjacent(m_parts.sheets(), PartSheet, index, source);
    }
    if (source.level > PartLine) {
        controlAdjacent(m_parts.lines(), PartLine, index, source);
    }
    if (source.level > PartPoint) {
        controlAdjacent(m_parts.points(), PartPoint, index, source);
    }
}

/// Propagates to the adjacent parts of one level, and from those whose mark changes to the parts one level below.
template <class Parts>
void PartMarking::controlAdjacent(Parts& parts, int level, int index, const Source& source)
{
    const std::span<const int> adjacents = m_parts.getAdjacents(source.level, level).of(index);
    for (const int adjacent : adjacents) {
        parts.getPart(adjacent).prefetchMarks();
    }
    for (const int adjacent : adjacents) {
        const bool isChanged = source.action == SceneGraphObject::MarkingHidden
                                   ? parts.adjacentHiddenMark(source.on, adjacent, source.level, source.flags)
                                   : parts.adjacentUnpickableMark(source.on, adjacent, source.level, source.flags);
        if (isChanged && level > PartPoint) {
            // Without the mark that has just changed, in both directions. The unpickable one is not among them.
            const unsigned changed = source.action == SceneGraphObject::MarkingHidden ? MarkHiddenAdjacent : 0u;
            const unsigned flags = parts.getMarkFlags(adjacent) & ~changed;
            cascade(adjacent, {level, static_cast<int>(flags), source.action, source.on});
        }
    }
}

/// The adjacent mark of a part has changed, which concerns the parts one level below.
void PartMarking::cascade(int index, const Source& source)
{
    if (source.level == PartSheet) {
        controlAdjacent(m_parts.lines(), PartLine, index, source);
    } else {
        controlAdjacent(m_parts.points(), PartPoint, index, source);
    }
}

} // namespace vxgraphics3d
