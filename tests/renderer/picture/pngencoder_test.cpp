#include "renderer/picture/pngencoder.h"

#include <gtest/gtest.h>
#include <png.h>

#include <cstring>
#include <map>
#include <stdexcept>

namespace vxrenderer {
namespace {

/// A file as the image library reads it back.
struct ReadBack {
    int width = 0;
    int height = 0;
    int numChannels = 0;
    unsigned perMetre = 0;
    std::map<std::string, std::string> texts;
    std::vector<std::uint8_t> pixels;

    explicit ReadBack(const std::vector<std::uint8_t>& file) : m_next(file.data())
    {
        png_structp png = png_create_read_struct(PNG_LIBPNG_VER_STRING, nullptr, nullptr, nullptr);
        png_infop info = png_create_info_struct(png);
        png_set_read_fn(png, this, [](png_structp from, png_bytep to, png_size_t size) {
            auto& self = *static_cast<ReadBack*>(png_get_io_ptr(from));
            std::memcpy(to, self.m_next, size);
            self.m_next += size;
        });
        png_read_png(png, info, PNG_TRANSFORM_IDENTITY, nullptr);
        width = static_cast<int>(png_get_image_width(png, info));
        height = static_cast<int>(png_get_image_height(png, info));
        numChannels = png_get_channels(png, info);
        perMetre = png_get_x_pixels_per_meter(png, info);
        png_textp found = nullptr;
        const int numTexts = png_get_text(png, info, &found, nullptr);
        for (int i = 0; i < numTexts; ++i) {
            texts[found[i].key] = found[i].text;
        }
        for (int y = 0; y < height; ++y) {
            const png_bytep row = png_get_rows(png, info)[y];
            pixels.insert(pixels.end(), row, row + width * numChannels);
        }
        png_destroy_read_struct(&png, &info, nullptr);
    }

private:
    const std::uint8_t* m_next;
};

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
    const ReadBack file(
        encodePng(pixels.data(), 5, 3, {.dpi = 300, .hasAlpha = true, .title = "Stress", .creator = "R\xC3\xA9mi"}));
    EXPECT_EQ(file.width, 5);
    EXPECT_EQ(file.height, 3);
    EXPECT_EQ(file.numChannels, 4);
    EXPECT_EQ(file.pixels, pixels);
    EXPECT_EQ(file.perMetre, 11811u);
    EXPECT_EQ(file.texts, (std::map<std::string, std::string>{{"Title", "Stress"}, {"Creator", "R\xC3\xA9mi"}}));
}

TEST(PngEncoder, leavesOutAlphaResolutionAndTextsThatAreNotAskedFor)
{
    const auto pixels = pictureOf(2, 2);
    const ReadBack file(encodePng(pixels.data(), 2, 2, {}));
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

TEST(PngEncoder, refusesSizesAndResolutionsThatAreNone)
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
