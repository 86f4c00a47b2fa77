#pragma once

/// How a line is drawn. The numbers are fixed; their patterns are those of the reference renderer.
enum class LineStyle : int {
    none = -1,
    solid = 0,
    dashed = 1,
    dotted = 2,
    dashDot = 3,
};
