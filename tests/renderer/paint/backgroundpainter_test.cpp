#include "renderer/paint/backgroundpainter.h"

#include "graphics3d/canvas/canvas3dsettings.h"
#include "graphics3d/canvas/canvasbackgroundimage.h"
#include "graphics3d/canvas/hardcopysettings.h"
#include "graphics3d/foundation/image.h"
#include "graphics3d/settings/canvas3dglobalsettings.h"
#include "tests/renderer/support/pngfile.h"
#include "tests/renderer/support/testscene.h"

#include <gtest/gtest.h>

#include <boost/make_shared.hpp>

#include <cmath>
#include <string>
#include <vector>

namespace vxrenderer {
namespace {

using vxgraphics3d::Canvas3dBackgroundSettings;
using vxgraphics3d::Canvas3dSettings;
using vxgraphics3d::CanvasBackgroundImage;
using vxgraphics3d::Color;
using vxgraphics3d::Image;

constexpr Rgb c_red = {255, 0, 0};
constexpr Rgb c_green = {0, 255, 0};
constexpr Rgb c_blue = {0, 0, 255};

/// Fills an image with pixels 0xAARRGGBB, row by row.
void setPixels(CanvasBackgroundImage& image, int width, int height, const std::vector<std::uint32_t>& pixels,
               float scale = 1.0f)
{
    Image source(width, height, Image::Format{}, scale);
    for (std::size_t i = 0; i < pixels.size(); ++i) {
        source.data()[i] = Image::wordFromArgb(static_cast<std::int32_t>(pixels[i]));
    }
    image.setImage(source);
}

/// A picture of 10 by 8 pixels without a scene.
class BackgroundTest : public ::testing::Test {
protected:
    Canvas3dBackgroundSettings& background()
    {
        return m_canvas.getCanvas3dSettings()->background(Canvas3dSettings::RenderMode3d);
    }
    void show(int horizontal, int vertical)
    {
        background().setBackgroungImage(m_image,
                                        static_cast<Canvas3dBackgroundSettings::HorizontalPosition>(horizontal),
                                        static_cast<Canvas3dBackgroundSettings::VerticalPosition>(vertical));
    }

    OffscreenCanvas m_canvas{10, 8, 4};
    boost::shared_ptr<CanvasBackgroundImage> m_image = boost::make_shared<CanvasBackgroundImage>();
};

TEST_F(BackgroundTest, everyModeHasItsColor)
{
    const auto settings = m_canvas.getCanvas3dSettings();
    background().setBackgroundColor(Color::fromRgb(0x123456));
    settings->background(Canvas3dSettings::RenderMode2d).setBackgroundColor(Color::fromRgb(0xfedcba));
    EXPECT_EQ(drawnAsIs(m_canvas).at(0, 0), (Rgb{0x12, 0x34, 0x56}));
    settings->setRenderMode(Canvas3dSettings::RenderMode2d);
    const Picture flat = drawnAsIs(m_canvas);
    EXPECT_EQ(flat.at(9, 7), (Rgb{0xfe, 0xdc, 0xba}));
    EXPECT_EQ(flat.bytes[3], 255);
    settings->removeRenderMask(RenderBackground);
    EXPECT_EQ(drawnAsIs(m_canvas).at(9, 7), (Rgb{0, 0, 0}));
    // Text is in whichever colour can be read.
    EXPECT_EQ(Appearance::onScreen(*settings, nullptr).textColor(), Color::fromRgb(0xffffff));
    settings->addRenderMask(RenderBackground);
    EXPECT_EQ(Appearance::onScreen(*settings, nullptr).textColor(), Color::fromRgb(0x000000));
}

TEST_F(BackgroundTest, runsFromTopToBottom)
{
    background().setShadedBackground(Color{200, 0, 80, 255}, Color{40, 160, 0, 255});
    m_canvas.resize(3, 4);
    const Picture picture = drawnAsIs(m_canvas);
    const Rgb rows[] = {{180, 20, 70}, {140, 60, 50}, {100, 100, 30}, {60, 140, 10}};
    for (int y = 0; y < 4; ++y) {
        for (int x = 0; x < 3; ++x) {
            EXPECT_EQ(picture.at(x, y), rows[y]) << x << ' ' << y;
        }
    }
}

TEST_F(BackgroundTest, anImageIsShownAtEachOfItsNinePositions)
{
    setPixels(*m_image, 3, 2, {0xffff0000, 0xff00ff00, 0xff0000ff, 0xff0000ff, 0xff00ff00, 0xffff0000});
    const int lefts[] = {0, 4, 7};
    const int tops[] = {0, 3, 6};
    for (int h = 0; h < 3; ++h) {
        for (int v = 0; v < 3; ++v) {
            SCOPED_TRACE(std::to_string(h) + std::to_string(v));
            show(h, v);
            const Picture picture = drawnAsIs(m_canvas);
            EXPECT_EQ(picture.countDrawn(0, 0, 10, 8), 6);
            const Rgb pixels[] = {c_red, c_green, c_blue, c_blue, c_green, c_red};
            for (int i = 0; i < 6; ++i) {
                EXPECT_EQ(picture.at(lefts[h] + i % 3, tops[v] + i / 3), pixels[i]) << i;
            }
        }
    }
}

TEST_F(BackgroundTest, colorsShowThroughAnImage)
{
    background().setBackgroundColor(Color{0, 0, 200, 255});
    // Half, a fifth and nothing of red.
    setPixels(*m_image, 3, 1, {0x80ff0000, 0x33ff0000, 0x00ff0000});
    show(0, 0);
    const Picture picture = drawnAsIs(m_canvas);
    EXPECT_EQ(picture.at(0, 0), (Rgb{128, 0, 100}));
    EXPECT_EQ(picture.at(1, 0), (Rgb{51, 0, 160}));
    EXPECT_EQ(picture.at(2, 0), (Rgb{0, 0, 200}));
    EXPECT_EQ(picture.bytes[3], 255) << "the picture stays opaque";
}

TEST_F(BackgroundTest, showsWhatItsImageBecomes)
{
    setPixels(*m_image, 1, 1, {0xffff0000});
    show(0, 0);
    EXPECT_EQ(drawnAsIs(m_canvas).at(0, 0), c_red);
    setPixels(*m_image, 1, 1, {0xff0000ff});
    EXPECT_EQ(drawnAsIs(m_canvas).at(0, 0), c_blue);
    m_image->resetImage();
    EXPECT_EQ(drawnAsIs(m_canvas).at(0, 0), c_white);
    const auto other = boost::make_shared<CanvasBackgroundImage>();
    setPixels(*other, 1, 1, {0xff00ff00});
    m_image = other;
    show(0, 0);
    EXPECT_EQ(drawnAsIs(m_canvas).at(0, 0), c_green);
    background().setBackgroungImage(nullptr, Canvas3dBackgroundSettings::HorizontalLeft,
                                    Canvas3dBackgroundSettings::VerticalTop);
    EXPECT_EQ(drawnAsIs(m_canvas).at(0, 0), c_white);
}

TEST_F(BackgroundTest, aLargeImageShowsItsPart)
{
    // Sides of one colour each, wider than the picture by 4 pixels.
    std::vector<std::uint32_t> row(14, 0xff00ff00);
    row[0] = row[1] = 0xffff0000;
    row[12] = row[13] = 0xff0000ff;
    setPixels(*m_image, 14, 1, row);
    const Rgb ends[][2] = {{c_red, c_green}, {c_green, c_green}, {c_green, c_blue}};
    for (int h = 0; h < 3; ++h) {
        show(h, 0);
        const Picture picture = drawnAsIs(m_canvas);
        EXPECT_EQ(picture.at(0, 0), ends[h][0]) << h;
        EXPECT_EQ(picture.at(9, 0), ends[h][1]) << h;
    }
    // More than a texture holds: a coarser one does.
    setPixels(*m_image, 20000, 1, std::vector<std::uint32_t>(20000, 0xffff0000));
    EXPECT_EQ(drawnAsIs(m_canvas).at(5, 0), c_red);
}

TEST_F(BackgroundTest, anImageGrowsWithTheResolutionOfAnExport)
{
    setPixels(*m_image, 3, 1, {0xffff0000, 0xffff0000, 0xffff0000});
    show(0, 0);
    vxgraphics3d::HardcopySettings settings;
    settings.setDpi(2 * vxgraphics3d::Canvas3dGlobalSettings::getInstance()->getOnScreenResolution());
    settings.setUseCurrentBackground(true);
    const PngFile file(m_canvas.encodeHardcopy(settings, 8, 3));
    // Twice three red pixels to the rim, into which nothing of the empty rest of the texture runs.
    std::vector<std::uint8_t> rows;
    for (int i = 0; i < 24; ++i) {
        const bool isRed = i % 8 < 6 && i / 8 < 2;
        rows.insert(rows.end(), {255, std::uint8_t(isRed ? 0 : 255), std::uint8_t(isRed ? 0 : 255)});
    }
    EXPECT_EQ(file.pixels, rows);
}

TEST_F(BackgroundTest, theScaleOfAnImageIsItsPixelsForEachOfTheScreen)
{
    const std::vector<std::uint32_t> red(16, 0xffff0000);
    show(0, 0);
    const struct {
        float scale;
        int side;
    } cases[] = {{1.0f, 4}, {2.0f, 2}, {0.5f, 8}, {0.0f, 4}, {-1.0f, 4}, {std::nanf(""), 4}};
    for (const auto& c : cases) {
        setPixels(*m_image, 4, 4, red, c.scale);
        EXPECT_EQ(drawnAsIs(m_canvas).countDrawn(0, 0, 10, 8), c.side * c.side) << c.scale;
    }
}

} // namespace
} // namespace vxrenderer
