#pragma once

#include "base/export.h"

#include <boost/shared_ptr.hpp>

#include <bit>
#include <cstddef>
#include <cstdint>
#include <memory>

namespace vxgraphics3d {

/// A raster image: background of a canvas, texture of a physics object, or a picture that a renderer made for Java.
///
/// Each pixel is one 32-bit word, row by row without gaps. In the words that the library builds, the highest byte is
/// red, followed by green, blue and alpha. An image owns its words or wraps words of another owner that outlives it. A
/// wrapped image, and the one of a new Java peer, may have sizes below 1 or no words at all.
class VX_API Image {
public:
    /// Both formats have four bytes per pixel; the renderer and the caller agree on the meaning of the second one.
    enum Format : int { Rgba = 0, RendererDefined = 1 };

    /// Owns its words, all 0. A size below 1 becomes 1.
    Image(int width, int height, Format format, float scale);
    /// Wraps words without owning them; `data` may be null.
    Image(int width, int height, Format format, float scale, void* data);
    /// The copy always owns its words, which are 0 if the other image has none.
    Image(const Image& other);
    /// Copies sizes, format and scale, and owns a copy of the words.
    Image& operator=(const Image& other);
    ~Image();

    /// An image of half the size, rounded up, and half the scale. Each pixel is the mean of up to four, each colour
    /// weighted by its alpha. If the source has no words, all words are 0.
    static boost::shared_ptr<Image> createDownsampled(const Image& src);

    /// 4, or 0 for an unknown format.
    static int getBytesPerPixel(Format format);
    /// The word of a Java pixel 0xAARRGGBB.
    static constexpr std::uint32_t wordFromArgb(std::int32_t argb)
    {
        return std::rotl(static_cast<std::uint32_t>(argb), 8);
    }

    /// Copies the part that both images have in common, starting at the top left; the other pixels are unchanged.
    void fill(const Image& other);

    Format getFormat() const { return m_format; }
    bool isOwned() const { return m_owned != nullptr; }
    int getWidth() const { return m_width; }
    int getHeight() const { return m_height; }
    /// A size factor for the renderer.
    float getScale() const { return m_scale; }
    /// Width times height words, or null.
    const std::uint32_t* getData() const { return m_data; }
    std::uint32_t* data() { return m_data; }

private:
    std::size_t numPixels() const;

    Format m_format;
    std::unique_ptr<std::uint32_t[]> m_owned;
    int m_width;
    int m_height;
    float m_scale;
    std::uint32_t* m_data;
};

} // namespace vxgraphics3d
