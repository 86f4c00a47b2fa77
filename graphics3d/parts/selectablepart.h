#pragma once

#include "base/export.h"
#include "graphics3d/foundation/boundingbox.h"
#include "graphics3d/parts/markflags.h"

#include <array>
#include <cstddef>

namespace vxgraphics3d {

/// What every part of an object has that can be marked, hidden and picked by itself: its level, box, marks, and the
/// counts of adjacent parts that determine the marks which it gets from them.
///
/// The levels are the dimensions 0 to 3. The adjacent parts of the lowest higher level that has any are the part's
/// control: once all of them are hidden or unpickable, so is the part. A plain value, which its collection changes so
/// that its counters agree with the marks (`MarkCounts`).
class VX_API SelectablePart {
public:
    static constexpr int c_numLevels = 7;
    /// The control level of a part without adjacent parts of a higher level.
    static constexpr int c_noControl = 7;
    /// The marks that keep a part from being picked.
    static constexpr unsigned c_unreachable = MarkHidden | MarkHiddenAdjacent | MarkUnpickable | MarkUnpickableAdjacent;

    /// How many adjacent parts have a mark.
    struct AdjacentMarks {
        int primary = 0;    ///< of those of any higher level
        int secondary = 0;  ///< of those of any higher level
        int hidden = 0;     ///< of those of the control level
        int unpickable = 0; ///< of those of the control level
    };

    /// @param dimension 0 point, 1 line, 2 sheet, 3 subdomain
    explicit SelectablePart(int dimension) : m_dimension(dimension) {}

    /// Stores the numbers of adjacent parts at the other three levels, the lowest first, and derives the control.
    void setAdjacentCounts(int first, int second, int third);

    int getDimension() const { return m_dimension; }
    const BoundingBox& getBoundingBox() const { return m_boundingBox; }
    void setBoundingBox(const BoundingBox& box) { m_boundingBox = box; }
    /// All marks.
    unsigned getMarkFlags() const { return m_markFlags; }
    /// The marks that decide how the part looks.
    unsigned short getDisplayFlags() const { return static_cast<unsigned short>(m_markFlags); }
    bool isMarked(MarkFlags mark) const { return (m_markFlags & mark) != 0; }
    /// The lowest level above the part's own with adjacent parts, or `c_noControl`.
    int getControlLevel() const { return m_controlLevel; }
    /// The number of adjacent parts of the control level.
    int getControlCount() const { return m_controlCount; }
    /// The number of adjacent parts of a level that are neither hidden nor unpickable; 1 for the part's own level.
    int getAdjacentCount(int level) const { return m_adjacentCounts.at(static_cast<std::size_t>(level)); }
    const AdjacentMarks& getAdjacentMarks() const { return m_adjacentMarks; }
    /// Prefetches the marks, which are about to change: the parts of a row are scattered in memory.
    void prefetchMarks() const
    {
        __builtin_prefetch(&m_markFlags, 1);
        __builtin_prefetch(&m_adjacentMarks, 1);
    }

protected:
    /// Drops all marks, its own and those from adjacent parts. The collection does not count that.
    void clearMarks();

private:
    friend class MarkCounts;

    void setMark(MarkFlags mark, bool on)
    {
        m_markFlags = on ? m_markFlags | mark : m_markFlags & ~static_cast<unsigned>(mark);
    }

    int m_dimension;
    BoundingBox m_boundingBox;
    unsigned m_markFlags = 0;
    int m_controlLevel = c_noControl;
    int m_controlCount = 0;
    std::array<int, c_numLevels> m_adjacentCounts{};
    AdjacentMarks m_adjacentMarks;
};

} // namespace vxgraphics3d
