#pragma once

#include "base/export.h"

#include <cstddef>
#include <memory>
#include <span>

namespace vxgraphics3d {

/// A relation between parts of two levels, such as sheet to line: a row of indices for each part of the first level,
/// all rows in one array.
///
/// It is allocated for its rows and values, then each row is set once. Row numbers are the caller's to keep in range.
class VX_API AdjacentParts {
public:
    /// Replaces the relation by one whose rows are not set yet.
    void allocate(int numRows, int numValues);
    /// Sets a row to copies of values, which are stored after those of the rows set before.
    /// @throws std::out_of_range, and changes nothing, if there is no space for them
    void setConnection(int row, const int* values, int count);
    /// Frees everything; the relation has no rows then.
    void deallocate();

    /// The values of a row; null if it was not set, or if the relation has no rows.
    const int* getAdjacents(int row) const;
    /// The number of values of a row; 0 if it was not set, or if the relation has no rows.
    int getNumberOfAdjacents(int row) const;
    /// Both together.
    std::span<const int> of(int row) const
    {
        return {getAdjacents(row), static_cast<std::size_t>(getNumberOfAdjacents(row))};
    }

private:
    struct Row {
        int start = -1;
        int count = 0;
    };

    int m_numRows = 0;
    std::unique_ptr<Row[]> m_rows;
    int m_capacity = 0;
    std::unique_ptr<int[]> m_values;
    int m_numUsed = 0;
};

inline const int* AdjacentParts::getAdjacents(int row) const
{
    const int start = m_numRows == 0 ? -1 : m_rows[static_cast<std::size_t>(row)].start;
    return start < 0 ? nullptr : m_values.get() + start;
}

inline int AdjacentParts::getNumberOfAdjacents(int row) const
{
    return m_numRows == 0 ? 0 : m_rows[static_cast<std::size_t>(row)].count;
}

} // namespace vxgraphics3d
