#include "graphics3d/geometry/partmarking.h"

#include <span>

namespace vxgraphics3d {
namespace {

constexpr MarkFlags c_ownMarks[] = {MarkPrimary, MarkSecondary, MarkHidden, MarkUnpickable};

bool isCounted(PartMarking::Action action)
{
    return action == SceneGraphObject::MarkingPrimary || action == SceneGraphObject::MarkingSecondary;
}

template <int level>
auto& collectionOf(ObjectParts& parts)
{
    if constexpr (level == PartPoint) {
        return parts.points();
    } else if constexpr (level == PartLine) {
        return parts.lines();
    } else {
        return parts.sheets();
    }
}

/// The parts of a row are all over the memory: has the processor fetch them together.
template <class Parts>
void prefetch(const Parts& parts, std::span<const int> indices)
{
    for (const int index : indices) {
        parts.getPart(index).prefetchMarks();
    }
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
        propagateThreshold(level, index, {action, on, parts.getMarkFlags(index)});
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

void PartMarking::propagateThreshold(int level, int index, Source source)
{
    if (level > PartLine) {
        prefetch(m_parts.getLines(), m_parts.getAdjacents(level, PartLine).of(index));
    }
    if (level > PartPoint) {
        prefetch(m_parts.getPoints(), m_parts.getAdjacents(level, PartPoint).of(index));
    }
    switch (level) {
    case PartSolid:
        controlAdjacent<PartSolid, PartSheet>(index, source);
        controlAdjacent<PartSolid, PartLine>(index, source);
        controlAdjacent<PartSolid, PartPoint>(index, source);
        break;
    case PartSheet:
        controlAdjacent<PartSheet, PartLine>(index, source);
        controlAdjacent<PartSheet, PartPoint>(index, source);
        break;
    case PartLine:
        controlAdjacent<PartLine, PartPoint>(index, source);
        break;
    default:
        break;
    }
}

/// Propagates to the adjacent parts of one level, and from those whose mark changes to the parts one level below. For
/// each pair of levels there is a loop of its own, whose branches the processor can predict.
template <int level, int lower>
void PartMarking::controlAdjacent(int index, Source source)
{
    auto& parts = collectionOf<lower>(m_parts);
    for (const int adjacent : m_parts.getAdjacents(level, lower).of(index)) {
        const bool isHidden = source.action == SceneGraphObject::MarkingHidden;
        const bool isChanged = isHidden ? parts.adjacentHiddenMark(source.on, adjacent, level, source.flags)
                                        : parts.adjacentUnpickableMark(source.on, adjacent, level, source.flags);
        if constexpr (lower > PartPoint) {
            if (isChanged) {
                // Without the mark that has just changed, in both directions. The unpickable one is not among them.
                const unsigned flags = parts.getMarkFlags(adjacent) & ~(isHidden ? MarkHiddenAdjacent : 0u);
                controlAdjacent<lower, lower - 1>(adjacent, {source.action, source.on, static_cast<int>(flags)});
            }
        }
    }
}

} // namespace vxgraphics3d
