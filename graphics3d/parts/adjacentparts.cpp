#include "graphics3d/parts/adjacentparts.h"

#include <algorithm>
#include <stdexcept>
#include <utility>

namespace vxgraphics3d {

void AdjacentParts::allocate(int numRows, int numValues)
{
    auto rows = std::make_unique<Row[]>(static_cast<std::size_t>(numRows));
    auto values = std::make_unique<int[]>(static_cast<std::size_t>(numValues));
    m_numRows = numRows;
    m_rows = std::move(rows);
    m_capacity = numValues;
    m_values = std::move(values);
    m_numUsed = 0;
}

void AdjacentParts::setConnection(int row, const int* values, int count)
{
    if (count < 0 || count > m_capacity - m_numUsed) {
        throw std::out_of_range("The relation has no space for this row.");
    }
    std::copy_n(values, count, m_values.get() + m_numUsed);
    m_rows[static_cast<std::size_t>(row)] = {m_numUsed, count};
    m_numUsed += count;
}

void AdjacentParts::deallocate()
{
    *this = AdjacentParts();
}

} // namespace vxgraphics3d
