#include "renderer/canvas/boxfilter.h"

#include <cstddef>

namespace vxrenderer {

std::vector<std::uint8_t> reduced(const std::vector<std::uint8_t>& pixels, int width, int factor)
{
    constexpr std::size_t c_channels = 4;
    const auto side = static_cast<std::size_t>(factor);
    const auto row = static_cast<std::size_t>(width) * c_channels;
    const std::size_t height = pixels.size() / (row * side * side);
    const auto area = static_cast<unsigned>(side * side);
    std::vector<std::uint8_t> result(row * height);
    std::vector<unsigned> sums(row);
    for (std::size_t y = 0; y < height; ++y) {
        sums.assign(row, area / 2);
        const std::uint8_t* pixel = pixels.data() + y * side * side * row;
        for (std::size_t line = 0; line < side; ++line) {
            for (std::size_t x = 0; x < row; x += c_channels) {
                for (std::size_t column = 0; column < side; ++column, pixel += c_channels) {
                    for (std::size_t channel = 0; channel < c_channels; ++channel) {
                        sums[x + channel] += pixel[channel];
                    }
                }
            }
        }
        for (std::size_t x = 0; x < row; ++x) {
            result[y * row + x] = static_cast<std::uint8_t>(sums[x] / area);
        }
    }
    return result;
}

} // namespace vxrenderer
