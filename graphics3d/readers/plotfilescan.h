#pragma once

namespace vxgraphics3d {

class TextFile;
struct PlotFileContents;

/// Where a new group of points begins.
enum class GroupCriteria : int {
    none = 0, ///< nowhere: all points form one group
    x = 1,    ///< where x changes
    y = 2,    ///< where y changes
    z = 3,    ///< where z changes
    data = 4  ///< where the "Data" value changes by more than 1e-5 of the sum of both values
};

/// Reads a whole plot file: counts the rows of each section, forms the groups, checks the elements against them, stores
/// all data, and scales "Data" and "Tetrahedral Data" to 0 to 1. Afterwards the file is at its start again.
/// @param contents receives the result; must be empty
/// @return false if the file has a fault, which is reported
bool scanPlotFile(TextFile& file, GroupCriteria criteria, PlotFileContents& contents);

} // namespace vxgraphics3d
