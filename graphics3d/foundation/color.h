#pragma once

namespace vxgraphics3d {

/// A colour of four channels, each 0 to 255. A plain value; the default is opaque black.
struct Color {
    int red = 0;
    int green = 0;
    int blue = 0;
    int alpha = 255;

    /// The opaque colour for a number 0xRRGGBB; higher bits are ignored.
    static constexpr Color fromRgb(int rgb) { return {rgb >> 16 & 0xff, rgb >> 8 & 0xff, rgb & 0xff, 255}; }
    /// The number 0xRRGGBB of the three colour channels, without alpha.
    constexpr int toRgb() const { return (red & 0xff) << 16 | (green & 0xff) << 8 | (blue & 0xff); }

    friend constexpr bool operator==(const Color&, const Color&) = default;
};

} // namespace vxgraphics3d
