#pragma once

#include "base/export.h"
#include "graphics3d/readers/readererror.h"

#include <string>

namespace vxdatacarrier {
class PostDataObject;
}

namespace vxgraphics3d {

/// Reads a plot file (docs/plot-data-format.md) into a record according to the record's kind: a surface in two or three
/// dimensions, or an iso surface. The groups of the file are added to those of the record, and its bounds become those
/// of the file; kind and roles are unchanged.
/// @return false if the file is invalid, which is logged, or if files cannot contain the record's kind; the record is
/// then unchanged, except for the levels of an iso surface that precede an invalid row
/// @throws std::bad_alloc with the record unchanged
VX_API bool readPostData(vxdatacarrier::PostDataObject& record, const std::string& fileName);

/// The same, with the reason.
/// @param error receives the reason if the function returns false, and is unchanged otherwise
VX_API bool readPostData(vxdatacarrier::PostDataObject& record, const std::string& fileName, ReaderError& error);

} // namespace vxgraphics3d
