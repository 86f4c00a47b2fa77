#pragma once

#include "datacarrier/adjacencyrecord.h"

#include <vector>

namespace vxproducer {

// Relations between the parts of a record. Their rows must be in range, which `invertAdjacency` checks.

/// The rows of a relation, each with its values in their order.
using RelationRows = std::vector<std::vector<int>>;

/// Makes a relation of rows.
/// @throws std::length_error for more values than an int can count
vxdatacarrier::AdjacencyRecord toRelation(const RelationRows& rows);

/// Whether a relation has nothing to say: one without rows, or one whose rows are all empty.
inline bool isAbsent(const vxdatacarrier::AdjacencyRecord& relation)
{
    return relation.m_numValues == 0;
}

/// The rows of a relation; empty for an absent one.
RelationRows rowsOf(const vxdatacarrier::AdjacencyRecord& relation);

/// Joins two relations: for each row of the first, the values in the rows of the second that it names, each once, in
/// the order in which they are found.
/// @param numValues the number of parts that the second relation refers to
vxdatacarrier::AdjacencyRecord join(const vxdatacarrier::AdjacencyRecord& first,
                                    const vxdatacarrier::AdjacencyRecord& second, int numValues);

vxdatacarrier::AdjacencyRecord copyOf(const vxdatacarrier::AdjacencyRecord& relation);

/// Checks a relation and its inverse, and derives one from the other if it is absent.
/// @param numRows,numValues the number of parts of the first and of the second kind
/// @throws std::invalid_argument or std::out_of_range if a relation does not fit to these numbers
void completePair(vxdatacarrier::AdjacencyRecord& relation, vxdatacarrier::AdjacencyRecord& inverse, int numRows,
                  int numValues);

} // namespace vxproducer
