#include "graphics3d/foundation/image.h"

#include <boost/make_shared.hpp>

#include <algorithm>
#include <cstring>
#include <utility>

namespace vxgraphics3d {

namespace {

/// Mean of several pixels, each colour weighted by its alpha; transparent if all of them are.
template <class... Words>
std::uint32_t weightedMean(Words... words)
{
    const std::uint32_t alpha = ((words & 0xFF) + ...);
    if (alpha == 0) {
        return 0;
    }
    const auto channel = [&](int shift) { return (((words >> shift & 0xFF) * (words & 0xFF)) + ...) / alpha; };
    return channel(24) << 24 | channel(16) << 16 | channel(8) << 8 |
           alpha / static_cast<std::uint32_t>(sizeof...(words));
}

} // namespace

Image::Image(int width, int height, Format format, float scale)
    : m_format(format), m_width(std::max(width, 1)), m_height(std::max(height, 1)), m_scale(scale)
{
    m_owned = std::make_unique<std::uint32_t[]>(numPixels());
    m_data = m_owned.get();
}

Image::Image(int width, int height, Format format, float scale, void* data)
    : m_format(format), m_width(width), m_height(height), m_scale(scale), m_data(static_cast<std::uint32_t*>(data))
{}

Image::Image(const Image& other)
    : m_format(other.m_format), m_width(other.m_width), m_height(other.m_height), m_scale(other.m_scale)
{
    m_owned = std::make_unique<std::uint32_t[]>(numPixels());
    m_data = m_owned.get();
    fill(other);
}

Image& Image::operator=(const Image& other)
{
    if (this != &other) {
        Image copy(other);
        std::swap(m_owned, copy.m_owned);
        m_format = copy.m_format;
        m_width = copy.m_width;
        m_height = copy.m_height;
        m_scale = copy.m_scale;
        m_data = m_owned.get();
    }
    return *this;
}

Image::~Image() = default;

boost::shared_ptr<Image> Image::createDownsampled(const Image& src)
{
    const int w = std::max(src.m_width, 0);
    const int h = std::max(src.m_height, 0);
    const int halfWidth = w / 2;
    const int halfHeight = h / 2;
    auto result = boost::make_shared<Image>(halfWidth + w % 2, halfHeight + h % 2, src.m_format, src.m_scale / 2.0f);
    if (src.m_data == nullptr || w == 0 || h == 0) {
        return result;
    }
    std::uint32_t* out = result->m_data;
    for (int y = 0; y < halfHeight; ++y) {
        const std::uint32_t* upper = src.m_data + std::ptrdiff_t{2} * y * w;
        const std::uint32_t* lower = upper + w;
        for (int x = 0; x < halfWidth; ++x, upper += 2, lower += 2) {
            *out++ = weightedMean(upper[0], upper[1], lower[0], lower[1]);
        }
        if (w % 2 != 0) {
            *out++ = weightedMean(*upper, *lower);
        }
    }
    if (h % 2 != 0) {
        const std::uint32_t* last = src.m_data + std::ptrdiff_t{2} * halfHeight * w;
        for (int x = 0; x < halfWidth; ++x, last += 2) {
            *out++ = weightedMean(last[0], last[1]);
        }
        if (w % 2 != 0) {
            *out = *last;
        }
    }
    return result;
}

int Image::getBytesPerPixel(Format format)
{
    return format == Rgba || format == RendererDefined ? static_cast<int>(sizeof(std::uint32_t)) : 0;
}

void Image::fill(const Image& other)
{
    const int columns = std::min(m_width, other.m_width);
    const int rows = std::min(m_height, other.m_height);
    if (m_data == nullptr || other.m_data == nullptr || columns < 1) {
        return;
    }
    for (std::ptrdiff_t row = 0; row < rows; ++row) {
        // Two images may wrap the same words.
        std::memmove(m_data + row * m_width, other.m_data + row * other.m_width,
                     static_cast<std::size_t>(columns) * sizeof(std::uint32_t));
    }
}

std::size_t Image::numPixels() const
{
    return m_width < 1 || m_height < 1 ? 0 : static_cast<std::size_t>(m_width) * static_cast<std::size_t>(m_height);
}

} // namespace vxgraphics3d
