#include "graphics3d/canvas/canvasbackgroundimage.h"

#include <boost/make_shared.hpp>

#include <bit>
#include <cstddef>
#include <stdexcept>
#include <string>
#include <utility>

namespace vxgraphics3d {

int CanvasBackgroundImage::setImage(const Image& src)
{
    const int width = nextPower2(src.getWidth());
    const int height = nextPower2(src.getHeight());
    decltype(m_levels) levels;
    levels[0] = boost::make_shared<Image>(width, height, Image::Rgba, src.getScale());
    levels[0]->fill(src);
    std::size_t last = 0;
    do {
        levels[last + 1] = Image::createDownsampled(*levels[last]);
        ++last;
    } while (last + 1 < levels.size() && (levels[last]->getWidth() > 1 || levels[last]->getHeight() > 1));

    m_levels = std::move(levels);
    m_widthFraction = static_cast<float>(src.getWidth()) / static_cast<float>(width);
    m_heightFraction = static_cast<float>(src.getHeight()) / static_cast<float>(height);
    m_minLevel = 0;
    m_maxLevel = static_cast<int>(last);
    m_imageSet = true;
    return 0;
}

int CanvasBackgroundImage::resetImage()
{
    m_levels = {};
    return 0;
}

const Image* CanvasBackgroundImage::getImage(int level) const
{
    if (level < 0 || level >= c_maxNumLevels) {
        throw std::out_of_range("No background image has a level " + std::to_string(level) + '.');
    }
    return m_levels[static_cast<std::size_t>(level)].get();
}

int CanvasBackgroundImage::nextPower2(int n)
{
    constexpr int largest = 1 << 30;
    if (n > largest) {
        throw std::out_of_range("No power of two of an int reaches " + std::to_string(n) + '.');
    }
    return n < 1 ? 1 : static_cast<int>(std::bit_ceil(static_cast<unsigned>(n)));
}

} // namespace vxgraphics3d
