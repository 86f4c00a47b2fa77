#pragma once

#include <string>

namespace vxgraphics3d {

/// The text of a surface plot file: a hilly grid of `columns` by `rows` points, two triangles per cell, the height as
/// data. Numbers have `digits` significant digits.
std::string gridPlotText(int columns, int rows, int digits);

} // namespace vxgraphics3d
