#pragma once

#include "base/export.h"
#include "graphics3d/foundation/image.h"

#include <boost/shared_ptr.hpp>

#include <array>
#include <limits>

namespace vxgraphics3d {

/// A picture for the background of canvases, as a chain of images whose sides are powers of two, each half as large as
/// the one before. The picture lies in the upper left corner of the first one; the rest of that is transparent.
///
/// Java makes it, and every background that shows it has a share.
class VX_API CanvasBackgroundImage {
public:
    /// The longest chain.
    static constexpr int c_maxNumLevels = 16;

    /// Builds the chain of a picture, which is copied; the last level is 1 by 1, unless the chain ends before. A chain
    /// has at least two levels. If it cannot be built, the present one stays.
    /// @return 0
    /// @throws std::out_of_range if a side of the picture is longer than the largest power of two of an int
    int setImage(const Image& src);
    /// Gives up the levels. The numbers of the levels and the size of the picture stay as they were.
    /// @return 0
    int resetImage();

    /// Whether a picture has been set at any time.
    bool wasImageSet() const { return m_imageSet; }
    /// The first and the last level of the chain; before the first picture the first stands above the last.
    int getMinLevel() const { return m_minLevel; }
    int getMaxLevel() const { return m_maxLevel; }
    /// The part of the first level that the picture covers, as fractions of its sides.
    float getWidthFraction() const { return m_widthFraction; }
    float getHeightFraction() const { return m_heightFraction; }
    /// An image of the chain, or null.
    /// @throws std::out_of_range if no chain has such a level
    const Image* getImage(int level) const;

    /// The smallest power of two that is not below a number; 1 for numbers below 1.
    /// @throws std::out_of_range if that is no int
    static int nextPower2(int n);

private:
    bool m_imageSet = false;
    int m_maxLevel = std::numeric_limits<int>::lowest();
    int m_minLevel = std::numeric_limits<int>::max();
    float m_widthFraction = 0.0f;
    float m_heightFraction = 0.0f;
    std::array<boost::shared_ptr<Image>, c_maxNumLevels> m_levels;
};

} // namespace vxgraphics3d
