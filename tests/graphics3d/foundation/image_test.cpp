#include "graphics3d/foundation/image.h"

#include <gtest/gtest.h>

#include <vector>

namespace vxgraphics3d {
namespace {

using Words = std::vector<std::uint32_t>;

Words wordsOf(const Image& image)
{
    return {image.getData(), image.getData() + image.getWidth() * image.getHeight()};
}

/// Wraps words that the caller owns.
Image wrap(int width, int height, Words& words)
{
    return {width, height, Image::Rgba, 1.0f, words.data()};
}

TEST(Image, bothFormatsHaveFourBytesPerPixel)
{
    EXPECT_EQ(Image::getBytesPerPixel(Image::Rgba), 4);
    EXPECT_EQ(Image::getBytesPerPixel(Image::RendererDefined), 4);
    EXPECT_EQ(Image::getBytesPerPixel(static_cast<Image::Format>(2)), 0);
    EXPECT_EQ(Image::getBytesPerPixel(static_cast<Image::Format>(-1)), 0);
}

TEST(Image, javaPixelsRotateToAlphaLast)
{
    EXPECT_EQ(Image::wordFromArgb(static_cast<std::int32_t>(0x80123456)), 0x12345680u);
    EXPECT_EQ(Image::wordFromArgb(-1), 0xFFFFFFFFu);
}

TEST(Image, anOwnedImageIsZeroAndHasAtLeastOnePixel)
{
    const Image image(0, -3, Image::RendererDefined, 2.5f);
    EXPECT_EQ(image.getWidth(), 1);
    EXPECT_EQ(image.getHeight(), 1);
    EXPECT_EQ(image.getFormat(), Image::RendererDefined);
    EXPECT_EQ(image.getScale(), 2.5f);
    EXPECT_TRUE(image.isOwned());
    EXPECT_EQ(wordsOf(image), Words{0});
}

TEST(Image, aWrappedImageKeepsItsSizesAndTheWordsOfItsOwner)
{
    const Image none(0, -3, Image::Rgba, 0, nullptr);
    EXPECT_EQ(none.getWidth(), 0);
    EXPECT_EQ(none.getHeight(), -3);
    EXPECT_EQ(none.getData(), nullptr);
    EXPECT_FALSE(none.isOwned());
    Words words{1, 2};
    Image two = wrap(2, 1, words);
    two.data()[1] = 7;
    EXPECT_EQ(words[1], 7u);
}

TEST(Image, copiesAreDeepAndOwned)
{
    Words words{1, 2, 3, 4};
    const Image source = wrap(2, 2, words);
    const Image copy(source);
    Image assigned(5, 5, Image::RendererDefined, 9.0f);
    assigned = source;
    words[3] = 99;
    for (const Image* image : {&copy, static_cast<const Image*>(&assigned)}) {
        EXPECT_TRUE(image->isOwned());
        EXPECT_EQ(image->getFormat(), Image::Rgba);
        EXPECT_EQ(image->getScale(), 1.0f);
        EXPECT_EQ(image->getWidth(), 2);
        EXPECT_EQ(wordsOf(*image), (Words{1, 2, 3, 4}));
    }
    const Image withoutWords(3, 2, Image::Rgba, 1, nullptr);
    EXPECT_EQ(wordsOf(Image(withoutWords)), Words(6, 0));
    const Image withoutSize(-1, 5, Image::Rgba, 1, nullptr);
    assigned = withoutSize;
    EXPECT_EQ(assigned.getWidth(), -1);
    EXPECT_TRUE(assigned.isOwned());
}

TEST(Image, fillCopiesTheCommonPartOnly)
{
    Words small{1, 2, 3, 4};
    Words wide(6, 9);
    Image target = wrap(3, 2, wide);
    target.fill(wrap(2, 2, small));
    EXPECT_EQ(wide, (Words{1, 2, 9, 3, 4, 9}));
    Image narrow(1, 3, Image::Rgba, 1);
    narrow.fill(target);
    EXPECT_EQ(wordsOf(narrow), (Words{1, 3, 0}));
    Image none(3, 2, Image::Rgba, 1, nullptr);
    none.fill(target);
    target.fill(none);
    target.fill(Image(-2, 2, Image::Rgba, 1, small.data()));
    EXPECT_EQ(wide, (Words{1, 2, 9, 3, 4, 9}));
}

TEST(Image, downsamplingWeightsColorsByAlpha)
{
    struct Case {
        int width;
        int height;
        Words words;
        Words result;
    };
    const Case cases[] = {
        {1, 1, {0x12345678}, {0x12345678}},
        {2, 2, {0xFFFFFF00, 0x11111100, 0x22222200, 0x33333300}, {0}},
        // red (200 * 1 + 100 * 2) / 6 = 66, green 6 * 3 / 6, blue 0, alpha 6 / 4
        {2, 2, {0xC8000001, 0x64000002, 0x00060003, 0xFFFFFF00}, {0x42030001}},
        {2, 2, Words(4, 0xFFFFFFFF), {0xFFFFFFFF}},
        // the last column: red (255 * 1 + 0 * 3) / 4 = 63, alpha 4 / 2
        {1, 2, {0xFF000001, 0x00000003}, {0x3F000002}},
        {2, 1, {0xFF000001, 0x00000003}, {0x3F000002}},
        {2, 1, {0xFFFFFF00, 0xFFFFFF00}, {0}},
        {3,
         3,
         {0x10000004, 0x20000004, 0x30000002,  //
          0x30000004, 0x40000004, 0x40000002,  //
          0x50000006, 0x60000006, 0x12345600}, //
         {0x28000004, 0x38000002, 0x58000006, 0x12345600}},
        {4,
         2,
         {0x01000001, 0x01000001, 0x02000002, 0x02000002, 0x01000001, 0x01000001, 0x02000002, 0x02000002},
         {0x01000001, 0x02000002}},
    };
    for (const Case& each : cases) {
        Words words = each.words;
        const auto half = Image::createDownsampled(wrap(each.width, each.height, words));
        EXPECT_EQ(half->getWidth(), (each.width + 1) / 2);
        EXPECT_EQ(half->getHeight(), (each.height + 1) / 2);
        EXPECT_EQ(half->getScale(), 0.5f);
        EXPECT_EQ(wordsOf(*half), each.result);
    }
}

TEST(Image, downsamplingAnImageWithoutWordsGivesZeros)
{
    EXPECT_EQ(wordsOf(*Image::createDownsampled(Image(3, 2, Image::RendererDefined, 1, nullptr))), (Words{0, 0}));
    const auto one = Image::createDownsampled(Image(0, 0, Image::RendererDefined, 0, nullptr));
    EXPECT_EQ(wordsOf(*one), Words{0});
    EXPECT_EQ(one->getFormat(), Image::RendererDefined);
}

} // namespace
} // namespace vxgraphics3d
