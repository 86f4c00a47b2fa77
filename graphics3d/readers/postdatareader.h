#pragma once

#include <string>

namespace vxdatacarrier {
class PostDataObject;
}

namespace vxgraphics3d {

/// Reads a plot file into a record in the way that the record's kind asks for: a surface in two or three dimensions, or
/// an iso surface.
/// @return false if the file is wrong, which is reported in the log, or if files hold nothing of the record's kind
bool readPostData(vxdatacarrier::PostDataObject& record, const std::string& fileName);

} // namespace vxgraphics3d
