#pragma once

#include <functional>
#include <string>

namespace vxdatacarrier {
class PostDataObject;
}

namespace vxgraphics3d {

/// Names the first field in which two records differ, comparing numbers bitwise; empty if they are equal. Kind and
/// roles are not compared.
std::string differenceOf(const vxdatacarrier::PostDataObject& a, const vxdatacarrier::PostDataObject& b);

/// Reads a plot file in every way and names the first difference from the reference reader in result, record, groups
/// and messages; empty if there is none.
/// @param takeError returns everything written to standard error since its last call
/// @param numGood is increased for each way in which the file was accepted
std::string differenceFromReference(const std::string& path, const std::function<std::string()>& takeError,
                                    int& numGood);

} // namespace vxgraphics3d
