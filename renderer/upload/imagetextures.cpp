#include "renderer/upload/imagetextures.h"

#include "graphics3d/foundation/image.h"
#include "renderer/upload/contentdigest.h"

#include <boost/make_shared.hpp>

#include <algorithm>
#include <cstddef>
#include <span>
#include <vector>

namespace vxrenderer {
namespace {

using vxgraphics3d::Image;

std::span<const std::uint32_t> pixelsOf(const Image& image)
{
    return {image.getData(), static_cast<std::size_t>(image.getWidth()) * static_cast<std::size_t>(image.getHeight())};
}

/// A pixel with its colour channels multiplied by alpha, its lowest byte.
std::uint32_t premultiplied(std::uint32_t pixel)
{
    const std::uint32_t alpha = pixel & 255u;
    std::uint32_t result = alpha;
    for (const unsigned shift : {8u, 16u, 24u}) {
        result |= ((pixel >> shift & 255u) * alpha + 127u) / 255u << shift;
    }
    return result;
}

/// Copies an image to the texture that is bound, in half the size until the driver takes it.
void load(boost::shared_ptr<const Image> image)
{
    GLint largest = 0;
    glGetIntegerv(GL_MAX_TEXTURE_SIZE, &largest);
    while (std::max(image->getWidth(), image->getHeight()) > largest) {
        image = Image::createDownsampled(*image);
    }
    std::vector<std::uint32_t> pixels(pixelsOf(*image).size());
    std::ranges::transform(pixelsOf(*image), pixels.begin(), premultiplied);
    glTexImage2D(GL_TEXTURE_2D, 0, GL_RGBA8, image->getWidth(), image->getHeight(), 0, GL_RGBA, GL_UNSIGNED_INT_8_8_8_8,
                 pixels.data());
    glGenerateMipmap(GL_TEXTURE_2D);
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER, GL_LINEAR_MIPMAP_LINEAR);
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MAG_FILTER, GL_LINEAR);
}

} // namespace

bool ImageTextures::bind(const boost::shared_ptr<const Image>& image)
{
    if (!image || image->getWidth() < 1 || image->getHeight() < 1 || image->getData() == nullptr) {
        return false;
    }
    Entry& entry = m_entries[image.get()];
    glActiveTexture(GL_TEXTURE0 + static_cast<GLenum>(c_unit));
    glBindTexture(GL_TEXTURE_2D, entry.texture.name());
    const std::uint64_t digest = contentDigest(pixelsOf(*image), image->getWidth());
    if (entry.image.expired() || digest != entry.digest) {
        load(image);
        entry.image = image;
        entry.digest = digest;
        ++m_counts.images;
    }
    return true;
}

void ImageTextures::dropLost()
{
    std::erase_if(m_entries, [](const auto& entry) { return entry.second.image.expired(); });
}

} // namespace vxrenderer
