#pragma once

#include "renderer/gl/globject.h"
#include "renderer/upload/uploadcounts.h"

#include <boost/shared_ptr.hpp>
#include <boost/weak_ptr.hpp>

#include <cstdint>
#include <map>
#include <optional>

namespace vxgraphics3d {
class Image;
}

namespace vxrenderer {

/// The images of objects on the graphics hardware, with all levels of detail, for materials and icons. Colours are
/// multiplied by alpha, so that none is mixed in from pixels that are transparent.
///
/// Images have no change number: what their pixels are is compared by a digest with each use.
class ImageTextures {
public:
    /// The texture unit that shaders read images from.
    static constexpr GLint c_unit = 3;

    explicit ImageTextures(UploadCounts& counts) : m_counts(counts) {}

    /// Binds the texture of an image, which is repeated beyond its borders.
    /// @return false if the image is null or has no pixels
    bool bind(const boost::shared_ptr<const vxgraphics3d::Image>& image);

    /// Frees the textures of images that are gone.
    void dropLost();

private:
    struct Entry {
        boost::weak_ptr<const vxgraphics3d::Image> image;
        std::optional<std::uint64_t> digest;
        GlTexture texture;
    };

    UploadCounts& m_counts;
    std::map<const vxgraphics3d::Image*, Entry> m_entries;
};

} // namespace vxrenderer
