#include "producer/relations.h"

#include <algorithm>
#include <cstddef>
#include <limits>
#include <span>
#include <stdexcept>
#include <string>
#include <utility>

namespace vxproducer {

using vxdatacarrier::AdjacencyRecord;

namespace {

/// The values of a row.
std::span<const int> row(const AdjacencyRecord& relation, std::size_t index)
{
    const auto [start, count] = relation.m_rows[index];
    return start < 0 ? std::span<const int>()
                     : std::span<const int>(relation.m_values.get() + start, static_cast<std::size_t>(count));
}

} // namespace

AdjacencyRecord toRelation(const RelationRows& rows)
{
    std::size_t numValues = 0;
    for (const std::vector<int>& values : rows) {
        numValues += values.size();
    }
    if (std::max(rows.size(), numValues) > static_cast<std::size_t>(std::numeric_limits<int>::max())) {
        throw std::length_error("A relation of " + std::to_string(numValues) + " values.");
    }
    AdjacencyRecord relation;
    relation.allocate(static_cast<int>(rows.size()), static_cast<int>(numValues));
    for (std::size_t i = 0; i < rows.size(); ++i) {
        if (!rows[i].empty()) {
            relation.m_rows[i] = {relation.m_numUsed, static_cast<int>(rows[i].size())};
            std::copy(rows[i].begin(), rows[i].end(), relation.m_values.get() + relation.m_numUsed);
            relation.m_numUsed += static_cast<int>(rows[i].size());
        }
    }
    return relation;
}

RelationRows rowsOf(const AdjacencyRecord& relation)
{
    RelationRows rows(static_cast<std::size_t>(relation.m_numRows));
    for (std::size_t i = 0; i < rows.size(); ++i) {
        const std::span<const int> values = row(relation, i);
        rows[i].assign(values.begin(), values.end());
    }
    return rows;
}

AdjacencyRecord join(const AdjacencyRecord& first, const AdjacencyRecord& second, int numValues)
{
    RelationRows rows(static_cast<std::size_t>(first.m_numRows));
    // For each value the last row that has it.
    std::vector<std::size_t> found(static_cast<std::size_t>(numValues), rows.size());
    for (std::size_t i = 0; i < rows.size(); ++i) {
        for (const int middle : row(first, i)) {
            for (const int value : row(second, static_cast<std::size_t>(middle))) {
                if (found[static_cast<std::size_t>(value)] != i) {
                    found[static_cast<std::size_t>(value)] = i;
                    rows[i].push_back(value);
                }
            }
        }
    }
    return toRelation(rows);
}

AdjacencyRecord copyOf(const AdjacencyRecord& relation)
{
    AdjacencyRecord copy;
    if (relation.m_numRows > 0) {
        copy.allocate(relation.m_numRows, relation.m_numValues);
        std::copy_n(relation.m_rows.get(), relation.m_numRows, copy.m_rows.get());
        std::copy_n(relation.m_values.get(), relation.m_numValues, copy.m_values.get());
        copy.m_numUsed = relation.m_numUsed;
    }
    return copy;
}

void completePair(AdjacencyRecord& relation, AdjacencyRecord& inverse, int numRows, int numValues)
{
    AdjacencyRecord made;
    if (!isAbsent(inverse)) {
        invertAdjacency(made, inverse, numRows, numValues);
        if (isAbsent(relation)) {
            relation = std::move(made);
        }
    }
    if (relation.m_numRows != 0) {
        invertAdjacency(made, relation, numValues, numRows);
        if (isAbsent(inverse)) {
            inverse = std::move(made);
        }
    }
}

} // namespace vxproducer
