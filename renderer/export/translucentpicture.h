#pragma once

#include <cstdint>
#include <vector>

namespace vxrenderer {

/// Pixels of a part of a picture with their opacity.
struct TranslucentPicture {
    /// Of the top left corner.
    int left = 0;
    int top = 0;
    int width = 0;
    int height = 0;
    /// 0xAARRGGBB with channels multiplied by alpha, the top row first; empty if nothing is seen.
    std::vector<std::uint32_t> argb;

    /// What was drawn over black and over white, from which its opacity follows however it was blended. Borders without
    /// anything are cut off.
    /// @param onBlack,onWhite four bytes per pixel, red first, the top row first
    static TranslucentPicture of(const std::vector<std::uint8_t>& onBlack, const std::vector<std::uint8_t>& onWhite,
                                 int width);
};

} // namespace vxrenderer
