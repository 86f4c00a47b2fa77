#pragma once

#include <string>

namespace vxgraphics3d {

/// The row of an error that refers to a file as a whole.
inline constexpr int c_wholeFile = 0;

/// The reason why a reader has refused a file.
struct ReaderError {
    std::string message;   ///< as in the log
    int row = c_wholeFile; ///< the row to which it refers, from 1
};

} // namespace vxgraphics3d
