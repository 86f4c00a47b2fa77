#include "tests/support/plotfiles.h"

#include <cmath>
#include <cstdio>

namespace vxgraphics3d {

namespace {

double heightAt(int column, int row)
{
    return std::sin(0.0123 * column) * std::cos(0.0234 * row) + 0.001 * (column * 7 % 11);
}

void appendCoordinates(std::string& text, int columns, int rows, int digits)
{
    char line[200];
    for (int row = 0; row < rows; ++row) {
        for (int column = 0; column < columns; ++column) {
            std::snprintf(line, sizeof line, "%.*g %.*g %.*g\n", digits, 0.0137 * column, digits, 0.0251 * row, digits,
                          heightAt(column, row));
            text += line;
        }
    }
}

} // namespace

std::string gridPlotText(int columns, int rows, int digits)
{
    std::string text = "% Coordinates\n";
    appendCoordinates(text, columns, rows, digits);
    char line[200];
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
            std::snprintf(line, sizeof line, "%.*g\n", digits, heightAt(column, row));
            text += line;
        }
    }
    return text;
}

std::string gridSolidText(int columns, int rows, int digits)
{
    const auto tag = [](const char* name, int count) {
        return std::string("% ") + name + " [" + std::to_string(count) + "]\n";
    };
    std::string text = tag("Coordinates", columns * rows);
    appendCoordinates(text, columns, rows, digits);
    char line[200];
    text += tag("Faces", rows - 1);
    for (int row = 0; row + 1 < rows; ++row) {
        for (int column = 0; column + 1 < columns; ++column) {
            const int corner = row * columns + column + 1;
            std::snprintf(line, sizeof line, "%d %d %d %d\n%d %d %d %d\n", corner, corner + 1, corner + columns,
                          row + 1, corner + 1, corner + columns + 1, corner + columns, row + 1);
            text += line;
        }
    }
    text += tag("Edges", rows);
    for (int row = 0; row < rows; ++row) {
        for (int corner = row * columns + 1; corner < (row + 1) * columns; ++corner) {
            std::snprintf(line, sizeof line, "%d %d %d\n", corner, corner + 1, row + 1);
            text += line;
        }
    }
    text += tag("Vertices", 2 * rows);
    std::string ends = tag("Adj 1 0", 2 * rows);
    std::string lines = tag("Adj 2 1", 2 * (rows - 1));
    for (int row = 1; row <= rows; ++row) {
        std::snprintf(line, sizeof line, "%d\n%d\n", (row - 1) * columns + 1, row * columns);
        text += line;
        std::snprintf(line, sizeof line, "%d %d\n%d %d\n", row, 2 * row - 1, row, 2 * row);
        ends += line;
        std::snprintf(line, sizeof line, "%d %d\n%d %d\n", row, row, row, row + 1);
        lines += row < rows ? line : "";
    }
    return text + ends + lines;
}

} // namespace vxgraphics3d
