#pragma once

#include "graphics3d/foundation/vector3f.h"

#include <cstddef>
#include <span>
#include <string>
#include <string_view>

namespace vxgraphics3d {

// The contents of one row of a text format. Row numbers, from 1, are those in reports.

/// Whether a row contains no character above the blank.
bool isEmptyRow(const char* row);

/// Whether a row begins a section: "%", then any one character, then the tag. Anything after the tag is ignored.
bool isTagRow(const char* row, std::string_view tag);

/// A row without its line end, for messages.
std::string textOf(const char* row);

/// Finds the section that a tag row begins. Sections have a fixed order, so the search goes forward from the current
/// one, which is searched first. A row without such a tag is reported.
/// @param section the current section; becomes the one found
bool findTag(std::span<const std::string_view> tags, std::size_t& section, const char* row, int rowNumber,
             const std::string& fileName);

/// Reads a real. A missing one is reported.
bool getReal(double& value, const char* row, int rowNumber);

/// Reads three reals. A missing one is reported with the row's number.
bool getVector3f(Vector3f& vector, const char* row, int rowNumber);

/// Reads `count` integers and subtracts 1 from each, as files count from 1 and memory from 0. A missing one is reported
/// with the row's number. One that does not fit into an int becomes the nearest limit of int, which is not the index of
/// a point.
bool getIndices(int* indices, int count, const char* row, int rowNumber);

} // namespace vxgraphics3d
