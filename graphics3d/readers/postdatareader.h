#pragma once

#include "base/export.h"
#include "graphics3d/readers/readererror.h"

#include <string>

namespace vxdatacarrier {
class PostDataObject;
}

namespace vxgraphics3d {

/// Reads a plot file (docs/plot-data-format.md) into a record in the way that the record's kind asks for: a surface in
/// two or three dimensions, or an iso surface. The groups of the file are added to those of the record, and its bounds
/// become those of the file; kind and roles stay as they are.
/// @return false if the file is invalid, which is reported in the log, or if files hold nothing of the record's kind.
/// The record is unchanged then, except for the levels of an iso surface that precede an invalid row
/// @throws std::bad_alloc with the record unchanged
VX_API bool readPostData(vxdatacarrier::PostDataObject& record, const std::string& fileName);

/// The same, with the reason.
/// @param error becomes what is wrong if the function returns false, and stays as it is otherwise
VX_API bool readPostData(vxdatacarrier::PostDataObject& record, const std::string& fileName, ReaderError& error);

} // namespace vxgraphics3d
