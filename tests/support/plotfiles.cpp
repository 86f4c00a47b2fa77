#include "tests/support/plotfiles.h"

#include <cmath>
#include <cstdio>

namespace vxgraphics3d {

std::string gridPlotText(int columns, int rows, int digits)
{
    std::string text;
    char line[200];
    const auto height = [&](int column, int row) {
        return std::sin(0.0123 * column) * std::cos(0.0234 * row) + 0.001 * (column * 7 % 11);
    };
    text += "% Coordinates\n";
    for (int row = 0; row < rows; ++row) {
        for (int column = 0; column < columns; ++column) {
            std::snprintf(line, sizeof line, "%.*g %.*g %.*g\n", digits, 0.0137 * column, digits, 0.0251 * row, digits,
                          height(column, row));
            text += line;
        }
    }
    text += "% Elements (triangular)\n";
    for (int row = 0; row + 1 < rows; ++row) {
        for (int column = 0; column + 1 < columns; ++column) {
            const int corner = row * columns + column + 1;
            std::snprintf(line, sizeof line, "%d %d %d\n%d %d %d\n", corner, corner + 1, corner + columns, corner + 1,
                          corner + columns + 1, corner + columns);
            text += line;
        }
    }
    text += "% Data\n";
    for (int row = 0; row < rows; ++row) {
        for (int column = 0; column < columns; ++column) {
            std::snprintf(line, sizeof line, "%.*g\n", digits, height(column, row));
            text += line;
        }
    }
    return text;
}

} // namespace vxgraphics3d
