#include "renderer/picture/pngwriter.h"

#include <gtest/gtest.h>
#include <png.h>

#include <cstdio>
#include <cstring>
#include <filesystem>
#include <fstream>
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

    explicit ReadBack(const std::string& path)
    {
        png_structp png = png_create_read_struct(PNG_LIBPNG_VER_STRING, nullptr, nullptr, nullptr);
        png_infop info = png_create_info_struct(png);
        std::FILE* file = std::fopen(path.c_str(), "rb");
        png_init_io(png, file);
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
        std::fclose(file);
        png_destroy_read_struct(&png, &info, nullptr);
    }
};

class PngWriter : public ::testing::Test {
protected:
    void TearDown() override { std::filesystem::remove(m_path); }

    std::string m_path = ::testing::TempDir() + "vxrenderer_pngwriter_test.png";
};

std::vector<std::uint8_t> pictureOf(int width, int height)
{
    std::vector<std::uint8_t> pixels;
    for (int i = 0; i < 4 * width * height; ++i) {
        pixels.push_back(static_cast<std::uint8_t>(7 * i));
    }
    return pixels;
}

TEST_F(PngWriter, keepsPixelsResolutionAndTexts)
{
    const auto pixels = pictureOf(5, 3);
    writePng(m_path, pixels.data(), 5, 3, {.dpi = 300, .hasAlpha = true, .title = "Stress", .creator = "R\xC3\xA9mi"});
    const ReadBack file(m_path);
    EXPECT_EQ(file.width, 5);
    EXPECT_EQ(file.height, 3);
    EXPECT_EQ(file.numChannels, 4);
    EXPECT_EQ(file.pixels, pixels);
    EXPECT_EQ(file.perMetre, 11811u);
    EXPECT_EQ(file.texts, (std::map<std::string, std::string>{{"Title", "Stress"}, {"Creator", "R\xC3\xA9mi"}}));
}

TEST_F(PngWriter, leavesOutAlphaResolutionAndTextsThatAreNotAskedFor)
{
    const auto pixels = pictureOf(2, 2);
    writePng(m_path, pixels.data(), 2, 2, {});
    const ReadBack file(m_path);
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

TEST_F(PngWriter, namesThePathThatCannotBeWritten)
{
    const auto pixels = pictureOf(1, 1);
    try {
        writePng("/no/such/folder/a.png", pixels.data(), 1, 1, {});
        FAIL();
    } catch (const std::runtime_error& fault) {
        EXPECT_STREQ(fault.what(), "The image file /no/such/folder/a.png cannot be written: No such file or directory");
    }
}

TEST_F(PngWriter, reportsAFullDiskAndLeavesDevicesAlone)
{
    if (!std::filesystem::exists("/dev/full")) {
        GTEST_SKIP() << "no /dev/full here";
    }
    const auto pixels = pictureOf(8, 8);
    EXPECT_THROW(writePng("/dev/full", pixels.data(), 8, 8, {}), std::runtime_error);
    EXPECT_TRUE(std::filesystem::exists("/dev/full"));
}

TEST_F(PngWriter, refusesSizesAndResolutionsThatAreNone)
{
    const auto pixels = pictureOf(1, 1);
    EXPECT_THROW(encodePng(pixels.data(), 0, 1, {}), std::invalid_argument);
    EXPECT_THROW(encodePng(pixels.data(), 1, -1, {}), std::invalid_argument);
    EXPECT_THROW(encodePng(pixels.data(), 1, 1, {.dpi = -1, .title = {}, .creator = {}}), std::invalid_argument);
}

} // namespace
} // namespace vxrenderer
