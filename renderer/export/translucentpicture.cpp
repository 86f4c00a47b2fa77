#include "renderer/export/translucentpicture.h"

#include <algorithm>
#include <cstddef>

namespace vxrenderer {
namespace {

/// What white adds to the pixel is what the picture lets through.
std::uint32_t pixelOf(const std::uint8_t* onBlack, const std::uint8_t* onWhite)
{
    int through = 0;
    for (int i = 0; i < 3; ++i) {
        through += std::max(onWhite[i] - onBlack[i], 0);
    }
    const int largest = std::max({onBlack[0], onBlack[1], onBlack[2]});
    const auto alpha = static_cast<std::uint32_t>(std::max(255 - (through + 1) / 3, largest));
    return alpha << 24U | std::uint32_t(onBlack[0]) << 16U | std::uint32_t(onBlack[1]) << 8U | onBlack[2];
}

} // namespace

TranslucentPicture TranslucentPicture::of(const std::vector<std::uint8_t>& onBlack,
                                          const std::vector<std::uint8_t>& onWhite, int width)
{
    const int height = static_cast<int>(onBlack.size() / 4) / width;
    const auto at = [&](int x, int y) {
        const std::size_t offset =
            4 * (static_cast<std::size_t>(y) * static_cast<std::size_t>(width) + static_cast<std::size_t>(x));
        return pixelOf(onBlack.data() + offset, onWhite.data() + offset);
    };
    int left = width;
    int top = height;
    int right = 0;
    int bottom = 0;
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            if (at(x, y) != 0) {
                left = std::min(left, x);
                top = std::min(top, y);
                right = std::max(right, x + 1);
                bottom = y + 1;
            }
        }
    }
    if (bottom == 0) {
        return {};
    }
    TranslucentPicture picture = {left, top, right - left, bottom - top, {}};
    picture.argb.reserve(static_cast<std::size_t>(picture.width) * static_cast<std::size_t>(picture.height));
    for (int y = top; y < bottom; ++y) {
        for (int x = left; x < right; ++x) {
            picture.argb.push_back(at(x, y));
        }
    }
    return picture;
}

} // namespace vxrenderer
