#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace vxrenderer {

/// What is written into an image file in addition to its pixels. Texts are UTF-8; empty ones are left out.
struct PngSettings {
    static constexpr int c_largestDpi = 1000000;

    /// Pixels per inch for the physical size; 0 for none.
    int dpi = 0;
    /// Whether the file keeps the alpha channel.
    bool hasAlpha = false;
    std::string title;
    std::string creator;
};

/// The bytes of a PNG file with 8 bits per channel, whose colours are declared as sRGB.
/// @param rgba four bytes per pixel, the top row first
/// @throws std::invalid_argument if a size is below 1, or the dpi negative or above a million
/// @throws std::runtime_error if the encoder fails
std::vector<std::uint8_t> encodePng(const std::uint8_t* rgba, int width, int height, const PngSettings& settings);

} // namespace vxrenderer
