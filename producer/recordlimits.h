#pragma once

#include "base/export.h"
#include "datacarrier/postdataobject.h"

#include <limits>
#include <string>
#include <vector>

namespace vxproducer {

/// The range that values span. Without values it runs from plus to minus infinity, so that it counts for nothing when
/// ranges are merged.
struct VX_API ValueRange {
    double min = std::numeric_limits<double>::infinity();
    double max = -std::numeric_limits<double>::infinity();

    bool isEmpty() const { return !(min <= max); }
    void merge(const ValueRange& other);
};

/// The range of the finite values; infinite ones and those that are no number are left out.
VX_API ValueRange finiteRange(const std::vector<double>& values);

/// The bounds of a record: by axis, the range of the finite coordinates of all groups, or 0 to 0 without any.
VX_API vxdatacarrier::PostDataObject::DoubleArrays boundsOf(const vxdatacarrier::PostDataObject& record);

/// Refuses indices outside the points.
/// @param field,group what to call the arrays in the message
/// @throws std::out_of_range for the first corner array that has one, with its first such index
VX_API void requireInside(const vxdatacarrier::PostDataObject::IntArrays& corners, std::size_t numPoints,
                          const char* field, std::size_t group);

} // namespace vxproducer
