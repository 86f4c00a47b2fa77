#include "datacarrier/adjacencyrecord.h"

#include <cstddef>
#include <cstdint>
#include <stdexcept>
#include <string>
#include <utility>

namespace vxdatacarrier {
namespace {

/// Calls `each(row, value)` for all values of all rows, in their order. Throws if an array is missing, if a row or a
/// value is out of range, or if the rows have more values than there are.
template <class Each>
void forEachValue(const AdjacencyRecord& source, int numTargets, Each each)
{
    if ((source.m_numRows > 0 && !source.m_rows) || (source.m_numValues > 0 && !source.m_values)) {
        throw std::invalid_argument("The relation has no array of its rows or values.");
    }
    std::int64_t total = 0;
    for (int row = 0; row < source.m_numRows; ++row) {
        const auto [start, count] = source.m_rows[static_cast<std::size_t>(row)];
        if (start < 0) {
            continue;
        }
        total += count;
        if (count < 0 || start > source.m_numValues - count || total > source.m_numValues) {
            throw std::out_of_range("Row " + std::to_string(row) +
                                    " of the relation is outside its values or overlaps another row.");
        }
        for (int i = start; i < start + count; ++i) {
            const int value = source.m_values[static_cast<std::size_t>(i)];
            if (value < 0 || value >= numTargets) {
                throw std::out_of_range("Row " + std::to_string(row) + " of the relation refers to part " +
                                        std::to_string(value) + " of " + std::to_string(numTargets) + ".");
            }
            each(row, static_cast<std::size_t>(value));
        }
    }
}

} // namespace

void AdjacencyRecord::allocate(int numRows, int numValues)
{
    auto rows = std::make_unique<Row[]>(static_cast<std::size_t>(numRows));
    auto values = std::make_unique<int[]>(static_cast<std::size_t>(numValues));
    m_extra = std::make_unique<int[]>(static_cast<std::size_t>(numValues));
    m_rows = std::move(rows);
    m_values = std::move(values);
    m_numRows = numRows;
    m_numValues = numValues;
    m_numUsed = 0;
}

void invertAdjacency(AdjacencyRecord& target, const AdjacencyRecord& source, int numTargetRows, int numSourceRows)
{
    if (source.m_numRows != 0 && source.m_numRows != numSourceRows) {
        throw std::invalid_argument("The relation has " + std::to_string(source.m_numRows) + " rows for " +
                                    std::to_string(numSourceRows) + " parts.");
    }
    AdjacencyRecord inverse;
    int numValues = 0;
    forEachValue(source, numTargetRows, [&](int, std::size_t) { ++numValues; });
    inverse.allocate(numTargetRows, numValues);
    forEachValue(source, numTargetRows, [&](int, std::size_t value) { ++inverse.m_rows[value].count; });
    for (int row = 0; row < numTargetRows; ++row) {
        AdjacencyRecord::Row& entry = inverse.m_rows[static_cast<std::size_t>(row)];
        entry.start = inverse.m_numUsed;
        inverse.m_numUsed += entry.count;
        entry.count = 0;
    }
    forEachValue(source, numTargetRows, [&](int row, std::size_t value) {
        AdjacencyRecord::Row& entry = inverse.m_rows[value];
        inverse.m_values[static_cast<std::size_t>(entry.start + entry.count++)] = row;
    });
    target = std::move(inverse);
}

} // namespace vxdatacarrier
