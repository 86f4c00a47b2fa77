#include "renderer/canvas/pngencoder.h"

#include <png.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <csetjmp>
#include <cstdio>
#include <new>
#include <stdexcept>
#include <utility>

namespace vxrenderer {
namespace {

constexpr double c_metresPerInch = 0.0254;

/// What the callbacks of the encoder share with `encodePng`.
struct Encoding {
    std::vector<std::uint8_t> bytes;
    std::array<char, 200> message{};
};

extern "C" {

void vxPngWrite(png_structp png, png_bytep data, png_size_t size)
{
    auto& encoding = *static_cast<Encoding*>(png_get_io_ptr(png));
    bool isWritten = true;
    try {
        encoding.bytes.insert(encoding.bytes.end(), data, data + size);
    } catch (const std::bad_alloc&) {
        isWritten = false;
    }
    // The encoder leaves by a jump, which must not pass a catch block.
    if (!isWritten) {
        png_error(png, "there is not enough memory");
    }
}

void vxPngFlush(png_structp) {}

[[noreturn]] void vxPngError(png_structp png, png_const_charp message)
{
    auto& encoding = *static_cast<Encoding*>(png_get_error_ptr(png));
    std::snprintf(encoding.message.data(), encoding.message.size(), "%s", message);
    png_longjmp(png, 1);
}

void vxPngWarning(png_structp, png_const_charp) {}

} // extern "C"

class Encoder {
public:
    explicit Encoder(Encoding& encoding)
        : m_png(png_create_write_struct(PNG_LIBPNG_VER_STRING, &encoding, vxPngError, vxPngWarning)),
          m_info(m_png != nullptr ? png_create_info_struct(m_png) : nullptr)
    {}
    ~Encoder() { png_destroy_write_struct(&m_png, &m_info); }
    Encoder(const Encoder&) = delete;
    Encoder& operator=(const Encoder&) = delete;

    png_structp png() const { return m_png; }
    png_infop info() const { return m_info; }

private:
    png_structp m_png;
    png_infop m_info;
};

bool isAscii(const std::string& text)
{
    return std::all_of(text.begin(), text.end(), [](char c) { return static_cast<signed char>(c) > 0; });
}

png_text textField(const char* key, const std::string& value)
{
    png_text text = {};
    // Latin-1 is what the short form holds; anything beyond plain ASCII goes into the long form, which is UTF-8.
    text.compression = isAscii(value) ? PNG_TEXT_COMPRESSION_NONE : PNG_ITXT_COMPRESSION_NONE;
    text.key = const_cast<char*>(key);
    text.text = const_cast<char*>(value.c_str());
    return text;
}

/// There are no objects between the jump's origin and its end that would have to be destroyed.
bool encode(const Encoder& encoder, const std::uint8_t* rgba, int width, int height, const PngSettings& settings,
            png_text* texts, int numTexts)
{
    if (setjmp(png_jmpbuf(encoder.png())) != 0) {
        return false;
    }
    const int colorType = settings.hasAlpha ? PNG_COLOR_TYPE_RGB_ALPHA : PNG_COLOR_TYPE_RGB;
    png_set_IHDR(encoder.png(), encoder.info(), static_cast<png_uint_32>(width), static_cast<png_uint_32>(height), 8,
                 colorType, PNG_INTERLACE_NONE, PNG_COMPRESSION_TYPE_DEFAULT, PNG_FILTER_TYPE_DEFAULT);
    // Colours are those of a screen, so that other programs show and print them alike; the older chunks say the same to
    // programs that do not know sRGB.
    png_set_sRGB_gAMA_and_cHRM(encoder.png(), encoder.info(), PNG_sRGB_INTENT_RELATIVE);
    if (settings.dpi > 0) {
        const auto perMetre = static_cast<png_uint_32>(std::lround(settings.dpi / c_metresPerInch));
        png_set_pHYs(encoder.png(), encoder.info(), perMetre, perMetre, PNG_RESOLUTION_METER);
    }
    png_set_text(encoder.png(), encoder.info(), texts, numTexts);
    png_write_info(encoder.png(), encoder.info());
    if (!settings.hasAlpha) {
        png_set_filler(encoder.png(), 0, PNG_FILLER_AFTER);
    }
    for (int y = 0; y < height; ++y) {
        png_write_row(encoder.png(),
                      rgba + std::size_t(4) * static_cast<std::size_t>(width) * static_cast<unsigned>(y));
    }
    png_write_end(encoder.png(), encoder.info());
    return true;
}

} // namespace

std::vector<std::uint8_t> encodePng(const std::uint8_t* rgba, int width, int height, const PngSettings& settings)
{
    if (width < 1 || height < 1 || settings.dpi < 0 || settings.dpi > PngSettings::c_largestDpi) {
        throw std::invalid_argument("An image of " + std::to_string(width) + " by " + std::to_string(height) +
                                    " pixels at " + std::to_string(settings.dpi) + " dpi cannot be written.");
    }
    std::vector<png_text> texts;
    if (!settings.title.empty()) {
        texts.push_back(textField("Title", settings.title));
    }
    if (!settings.creator.empty()) {
        texts.push_back(textField("Creator", settings.creator));
    }
    Encoding encoding;
    const Encoder encoder(encoding);
    if (encoder.info() == nullptr) {
        throw std::bad_alloc();
    }
    png_set_write_fn(encoder.png(), &encoding, vxPngWrite, vxPngFlush);
    if (!encode(encoder, rgba, width, height, settings, texts.data(), static_cast<int>(texts.size()))) {
        throw std::runtime_error(std::string("The image cannot be encoded: ") + encoding.message.data());
    }
    return std::move(encoding.bytes);
}

} // namespace vxrenderer
