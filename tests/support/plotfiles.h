#pragma once

#include <string>

namespace vxgraphics3d {

/// The text of a surface plot file: a hilly grid of so many points, two triangles a cell, the height as data. Numbers
/// have so many significant digits.
std::string gridPlotText(int columns, int rows, int digits);

} // namespace vxgraphics3d
