#pragma once

#include "base/export.h"
#include "graphics3d/foundation/image.h"

#include <boost/shared_ptr.hpp>

#include <array>
#include <limits>

namespace vxgraphics3d {

/// A picture for the background of canvases, as a chain of images whose sides are powers of two, each half as large as
/// the previous one. The picture is in the upper left corner of the first one, whose remaining part is transparent.
///
/// Java creates it; it is shared by every background that shows it.
class VX_API CanvasBackgroundImage {
public:
    /// The longest chain.
    static constexpr int c_maxNumLevels = 16;

    /// Builds the chain of a picture, which is copied; the last level is 1 by 1, unless the chain ends before. A chain
    /// has at least two levels. If it cannot be built, the current one is kept.
    /// @return 0
    /// @throws std::out_of_range if a side of the picture is longer than the largest power of two of an int
    int setImage(const Image& src);
    /// Drops the levels. The level numbers and the size of the picture are kept.
    /// @return 0
    int resetImage();

    /// Whether a picture has ever been set.
    bool wasImageSet() const { return m_imageSet; }
    /// The first and the last level of the chain; before the first picture is set, the first is above the last.
    int getMinLevel() const { return m_minLevel; }
    int getMaxLevel() const { return m_maxLevel; }
    /// The part of the first level that the picture covers, as fractions of its sides.
    float getWidthFraction() const { return m_widthFraction; }
    float getHeightFraction() const { return m_heightFraction; }
    /// An image of the chain, or null.
    /// @throws std::out_of_range if no chain can have such a level
    const Image* getImage(int level) const;

    /// The smallest power of two that is not below a number; 1 for numbers below 1.
    /// @throws std::out_of_range if it does not fit into an int
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
