#pragma once

#include "graphics3d/foundation/vector3f.h"

#include <string>
#include <string_view>

namespace vxgraphics3d {

// What the rows of the text formats hold, as the readers of these formats take it.

/// Whether a row holds no character above the blank.
bool isBlankRow(const char* row);

/// Whether a row begins a section: "%", then any one character, then the tag. What stands behind is not looked at.
bool isTagRow(const char* row, std::string_view tag);

/// A row without its line end, as it stands in messages.
std::string textOf(const char* row);

/// Reads three reals. A missing one is logged with the row's number.
bool readVector(Vector3f& vector, const char* row, int rowNumber);

/// Reads so many integers and subtracts 1 from each, as files count from 1 and memory from 0. A missing one is logged
/// with the row's number. One that no int holds becomes the nearest limit of int, which is no point's index.
bool readIndices(int* indices, int count, const char* row, int rowNumber);

} // namespace vxgraphics3d
