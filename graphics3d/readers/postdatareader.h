#pragma once

#include <string>

namespace vxdatacarrier {
class PostDataObject;
}

namespace vxgraphics3d {

/// Reads a plot file into a record according to the record's kind: a surface in two or three dimensions, or an iso
/// surface.
/// @return false if the file has a fault, which is logged, or if files cannot contain the record's kind
bool readPostData(vxdatacarrier::PostDataObject& record, const std::string& fileName);

} // namespace vxgraphics3d
