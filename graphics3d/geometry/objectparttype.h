#pragma once

namespace vxgraphics3d {

/// The kinds of parts that an object consists of. The numbers of the first four are the levels of the parts, their
/// dimensions.
enum ObjectPartType : int {
    PartPoint = 0, ///< the points
    PartLine = 1,  ///< the lines
    PartSheet = 2, ///< the sheets
    PartSolid = 3, ///< the subdomains
    PartAll = 4    ///< all of them
};

} // namespace vxgraphics3d
