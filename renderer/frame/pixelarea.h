#pragma once

#include <algorithm>

namespace vxrenderer {

/// A rectangle of pixels, with its corner at the top left of the picture.
struct PixelArea {
    int x = 0;
    int y = 0;
    int width = 0;
    int height = 0;

    friend bool operator==(const PixelArea& a, const PixelArea& b) = default;

    /// Whether there is anything to see.
    bool isEmpty() const { return width < 1 || height < 1; }
};

/// The largest square in the middle of an area.
inline PixelArea centeredSquare(const PixelArea& area)
{
    const int side = std::min(area.width, area.height);
    return {area.x + (area.width - side) / 2, area.y + (area.height - side) / 2, side, side};
}

} // namespace vxrenderer
