#pragma once

#include <string>

namespace vxgraphics3d {

/// The text of a surface plot file: a hilly grid of `columns` by `rows` points, two triangles per cell, the height as
/// data. Numbers have `digits` significant digits.
std::string gridPlotText(int columns, int rows, int digits);

/// The text of a solid file with the same coordinates and triangles, those of each row of cells as a face, the lines
/// between them as edges, and the ends of these as vertices.
std::string gridSolidText(int columns, int rows, int digits);

} // namespace vxgraphics3d
