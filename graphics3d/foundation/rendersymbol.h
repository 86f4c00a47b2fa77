#pragma once

/// The symbol that marks points of a line. The numbers are fixed; their shapes are those of the reference renderer.
enum class RenderSymbol : int {
    none = -1,
    circle = 0,
    square = 1,
    diamond = 2,
    triangleUp = 3,
    triangleDown = 4,
    plus = 5,
    cross = 6,
    star = 7,
};
