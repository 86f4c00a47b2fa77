#pragma once

#include <functional>
#include <string>

namespace vxdatacarrier {
class PostDataObject;
}

namespace vxgraphics3d {

/// Names the first field in which two records differ, to the bit of every number; empty if they are equal. Kind and
/// roles are not looked at.
std::string differenceOf(const vxdatacarrier::PostDataObject& a, const vxdatacarrier::PostDataObject& b);

/// Reads a plot file in every way and names the first difference from the plain reader in result, record, groups and
/// messages; empty if there is none.
/// @param takeError gives what was written on standard error since its last call
/// @param numGood is raised by each way in which the file was accepted
std::string differenceFromReference(const std::string& path, const std::function<std::string()>& takeError,
                                    int& numGood);

} // namespace vxgraphics3d
