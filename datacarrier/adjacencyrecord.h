#pragma once

#include "base/export.h"

#include <memory>

namespace vxdatacarrier {

/// A relation between the parts of two kinds in one record: for each part of the first kind a row with the indices of
/// the adjacent parts of the second kind. All rows are stored in one array.
struct VX_API AdjacencyRecord {
    struct Row {
        /// Index of the row's first value; below 0 the row is empty.
        int start = -1;
        int count = 0;
    };

    /// Replaces the relation by one of empty rows, with space for the given number of values.
    void allocate(int numRows, int numValues);

    /// 0 if the relation is absent.
    int m_numRows = 0;
    std::unique_ptr<Row[]> m_rows;
    /// Number of entries in the two arrays below.
    int m_numValues = 0;
    std::unique_ptr<int[]> m_values;
    /// One entry for each value, 0.
    std::unique_ptr<int[]> m_extra;
    /// Number of values written so far.
    int m_numUsed = 0;
};

/// Replaces `target` by the inverse of a relation: for each target part the source parts whose rows name it, in
/// ascending order. A source part that names a target part twice is listed twice.
/// @param numTargetRows the number of parts of the kind that the values of `source` refer to
/// @param numSourceRows the number of parts that the rows of `source` belong to; without rows, all lists are empty
/// @throws std::invalid_argument or std::out_of_range, and changes nothing, if the relation has rows, but not
///         `numSourceRows`, if an array is missing, if rows overlap, or if a row or a value is out of range
VX_API void invertAdjacency(AdjacencyRecord& target, const AdjacencyRecord& source, int numTargetRows,
                            int numSourceRows);

} // namespace vxdatacarrier
