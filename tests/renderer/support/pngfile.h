#pragma once

#include <png.h>

#include <cstdint>
#include <cstring>
#include <map>
#include <string>
#include <vector>

namespace vxrenderer {

/// A file as the image library reads it back.
struct PngFile {
    int width = 0;
    int height = 0;
    int numChannels = 0;
    unsigned perMetre = 0;
    bool isSrgb = false;
    std::map<std::string, std::string> texts;
    std::vector<std::uint8_t> pixels;

    explicit PngFile(const std::vector<std::uint8_t>& file) : m_next(file.data())
    {
        png_structp png = png_create_read_struct(PNG_LIBPNG_VER_STRING, nullptr, nullptr, nullptr);
        png_infop info = png_create_info_struct(png);
        png_set_read_fn(png, this, [](png_structp from, png_bytep to, png_size_t size) {
            auto& self = *static_cast<PngFile*>(png_get_io_ptr(from));
            std::memcpy(to, self.m_next, size);
            self.m_next += size;
        });
        png_read_png(png, info, PNG_TRANSFORM_IDENTITY, nullptr);
        width = static_cast<int>(png_get_image_width(png, info));
        height = static_cast<int>(png_get_image_height(png, info));
        numChannels = png_get_channels(png, info);
        perMetre = png_get_x_pixels_per_meter(png, info);
        isSrgb = png_get_valid(png, info, PNG_INFO_sRGB) != 0;
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

} // namespace vxrenderer
