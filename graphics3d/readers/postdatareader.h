#pragma once

#include "base/export.h"
#include "graphics3d/readers/readererror.h"

#include <string>

namespace vxdatacarrier {
class PostDataObject;
class RenderDraw3D;
} // namespace vxdatacarrier

namespace vxgraphics3d {

class Vector3f;

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

/// Reads a solid (docs/solid-data-format.md) into a record. Its id, name and validity stay as they are, the boxes of
/// its sheets and curves are left empty, and it has only the relations that the file has.
/// @param offset is added to all coordinates
/// @param error receives the reason if the function returns false, and is unchanged otherwise
/// @return false, with the record unchanged, if the file is invalid
/// @throws std::bad_alloc with the record unchanged
VX_API bool readDrawObjectSolid(vxdatacarrier::RenderDraw3D& record, const std::string& fileName,
                                const Vector3f& offset, ReaderError& error);

} // namespace vxgraphics3d
