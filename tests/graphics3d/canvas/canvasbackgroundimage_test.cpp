#include "graphics3d/canvas/canvasbackgroundimage.h"

#include <gtest/gtest.h>

#include <array>
#include <limits>
#include <stdexcept>
#include <utility>
#include <vector>

namespace vxgraphics3d {
namespace {

/// The sizes of all levels that have an image.
std::vector<std::pair<int, int>> sizes(const CanvasBackgroundImage& background)
{
    std::vector<std::pair<int, int>> result;
    for (int level = 0; level < CanvasBackgroundImage::c_maxNumLevels; ++level) {
        if (const Image* image = background.getImage(level)) {
            result.emplace_back(image->getWidth(), image->getHeight());
        }
    }
    return result;
}

Image plain(int width, int height)
{
    return {width, height, Image::Rgba, 2.0f};
}

using Sizes = std::vector<std::pair<int, int>>;

TEST(CanvasBackgroundImage, startsWithoutLevels)
{
    CanvasBackgroundImage background;
    const auto expectStart = [&] {
        EXPECT_FALSE(background.wasImageSet());
        EXPECT_EQ(background.getMaxLevel(), std::numeric_limits<int>::lowest());
        EXPECT_EQ(background.getMinLevel(), std::numeric_limits<int>::max());
        EXPECT_EQ(background.getWidthFraction(), 0.0f);
        EXPECT_EQ(background.getHeightFraction(), 0.0f);
        EXPECT_TRUE(sizes(background).empty());
    };
    expectStart();
    EXPECT_EQ(background.resetImage(), 0);
    expectStart();
    EXPECT_THROW(background.getImage(16), std::out_of_range);
    EXPECT_THROW(background.getImage(-1), std::out_of_range);
}

TEST(CanvasBackgroundImage, aPictureIsInTheTopLeftCornerOfAPowerOfTwo)
{
    Image source = plain(3, 2);
    const std::array<std::uint32_t, 6> words = {0x010203ff, 0x111213ff, 0x212223ff, 0x313233ff, 0x414243ff, 0x515253ff};
    std::copy(words.begin(), words.end(), source.data());
    CanvasBackgroundImage background;
    EXPECT_EQ(background.setImage(source), 0);
    EXPECT_EQ(sizes(background), (Sizes{{4, 2}, {2, 1}, {1, 1}}));
    EXPECT_EQ(background.getMinLevel(), 0);
    EXPECT_EQ(background.getMaxLevel(), 2);
    EXPECT_EQ(background.getWidthFraction(), 0.75f);
    EXPECT_EQ(background.getHeightFraction(), 1.0f);
    const Image& first = *background.getImage(0);
    EXPECT_EQ(std::vector<std::uint32_t>(first.getData(), first.getData() + 8),
              (std::vector<std::uint32_t>{words[0], words[1], words[2], 0, words[3], words[4], words[5], 0}));
    EXPECT_EQ(first.getScale(), 2.0f);
    EXPECT_EQ(background.getImage(1)->getScale(), 1.0f) << "half the size, half the scale";
}

TEST(CanvasBackgroundImage, theChainEndsAtOnePixelOrAtSixteenLevels)
{
    CanvasBackgroundImage background;
    background.setImage(plain(1, 1));
    EXPECT_EQ(sizes(background), (Sizes{{1, 1}, {1, 1}}));
    EXPECT_EQ(background.getMaxLevel(), 1);
    background.setImage(plain(1 << 16, 1));
    EXPECT_EQ(background.getMaxLevel(), 15);
    EXPECT_EQ(background.getImage(15)->getWidth(), 2);
    background.setImage(plain(2, 2));
    EXPECT_EQ(sizes(background), (Sizes{{2, 2}, {1, 1}})) << "nothing is left of the longer chain";
}

TEST(CanvasBackgroundImage, resetReleasesTheLevelsAndKeepsTheNumbers)
{
    CanvasBackgroundImage background;
    background.setImage(plain(3, 2));
    background.resetImage();
    EXPECT_TRUE(sizes(background).empty());
    EXPECT_TRUE(background.wasImageSet());
    EXPECT_EQ(background.getMaxLevel(), 2);
    EXPECT_EQ(background.getMinLevel(), 0);
    EXPECT_EQ(background.getWidthFraction(), 0.75f);
}

TEST(CanvasBackgroundImage, aPictureTooLongForAChainLeavesTheCurrentOne)
{
    CanvasBackgroundImage background;
    background.setImage(plain(3, 2));
    EXPECT_THROW(background.setImage(Image((1 << 30) + 1, 1, Image::Rgba, 1.0f, nullptr)), std::out_of_range);
    EXPECT_EQ(sizes(background), (Sizes{{4, 2}, {2, 1}, {1, 1}}));
    background.setImage(Image(0, 0, Image::Rgba, 1.0f, nullptr));
    EXPECT_EQ(sizes(background), (Sizes{{1, 1}, {1, 1}})) << "nothing to show is one transparent pixel";
}

TEST(CanvasBackgroundImage, nextPower2IsTheSmallestNotBelow)
{
    for (const auto& [n, power] :
         Sizes{{-5, 1}, {0, 1}, {1, 1}, {2, 2}, {3, 4}, {4, 4}, {5, 8}, {1023, 1024}, {1 << 30, 1 << 30}}) {
        EXPECT_EQ(CanvasBackgroundImage::nextPower2(n), power) << n;
    }
}

} // namespace
} // namespace vxgraphics3d
