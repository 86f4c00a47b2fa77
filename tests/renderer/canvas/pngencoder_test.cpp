#include "renderer/canvas/pngencoder.h"

#include "tests/renderer/support/pngfile.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace vxrenderer {
namespace {

std::vector<std::uint8_t> pictureOf(int width, int height)
{
    std::vector<std::uint8_t> pixels;
    for (int i = 0; i < 4 * width * height; ++i) {
        pixels.push_back(static_cast<std::uint8_t>(7 * i));
    }
    return pixels;
}

TEST(PngEncoder, keepsPixelsResolutionAndTexts)
{
    const auto pixels = pictureOf(5, 3);
    const PngFile file(
        encodePng(pixels.data(), 5, 3, {.dpi = 300, .hasAlpha = true, .title = "Stress", .creator = "R\xC3\xA9mi"}));
    EXPECT_EQ(file.width, 5);
    EXPECT_EQ(file.height, 3);
    EXPECT_EQ(file.numChannels, 4);
    EXPECT_EQ(file.pixels, pixels);
    EXPECT_EQ(file.perMetre, 11811u);
    EXPECT_TRUE(file.isSrgb);
    EXPECT_EQ(file.texts, (std::map<std::string, std::string>{{"Title", "Stress"}, {"Creator", "R\xC3\xA9mi"}}));
}

TEST(PngEncoder, leavesOutAlphaResolutionAndTextsThatAreNotAskedFor)
{
    const auto pixels = pictureOf(2, 2);
    const PngFile file(encodePng(pixels.data(), 2, 2, {}));
    EXPECT_EQ(file.numChannels, 3);
    EXPECT_EQ(file.perMetre, 0u);
    EXPECT_TRUE(file.texts.empty());
    std::vector<std::uint8_t> expected;
    for (std::size_t i = 0; i < pixels.size(); ++i) {
        if (i % 4 != 3) {
            expected.push_back(pixels[i]);
        }
    }
    EXPECT_EQ(file.pixels, expected);
}

TEST(PngEncoder, refusesInvalidSizesAndResolutions)
{
    const auto pixels = pictureOf(1, 1);
    PngSettings settings;
    EXPECT_THROW(encodePng(pixels.data(), 0, 1, settings), std::invalid_argument);
    EXPECT_THROW(encodePng(pixels.data(), 1, -1, settings), std::invalid_argument);
    settings.dpi = -1;
    EXPECT_THROW(encodePng(pixels.data(), 1, 1, settings), std::invalid_argument);
    settings.dpi = 1000001;
    EXPECT_THROW(encodePng(pixels.data(), 1, 1, settings), std::invalid_argument);
}

} // namespace
} // namespace vxrenderer
