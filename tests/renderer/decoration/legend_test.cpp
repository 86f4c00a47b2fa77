// Pixels of legends of colours.

#include "graphics3d/canvas/canvas3dsettings.h"
#include "graphics3d/canvas/scenesettings.h"
#include "graphics3d/plots/scalar/scenegraphplotisosurface3d.h"
#include "renderer/frame/appearance.h"
#include "renderer/frame/view.h"
#include "tests/renderer/support/testscene.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace vxrenderer {
namespace {

using vxgraphics3d::SceneGraphPlotSurface2d;

constexpr Rgb c_blue = {0, 0, 255};
constexpr Rgb c_red = {255, 0, 0};

/// The part of a picture with a colour.
struct Extent {
    int left = 1 << 20;
    int right = 0;
    int top = 1 << 20;
    int bottom = 0;
    int count = 0;

    Extent(const Picture& picture, const PixelArea& without, const Rgb& color)
    {
        for (int y = 0; y < picture.height; ++y) {
            for (int x = 0; x < picture.width; ++x) {
                const bool isScene =
                    x >= without.x && x < without.x + without.width && y >= without.y && y < without.y + without.height;
                if (!isScene && picture.at(x, y) == color) {
                    left = std::min(left, x);
                    right = std::max(right, x + 1);
                    top = std::min(top, y);
                    bottom = std::max(bottom, y + 1);
                    ++count;
                }
            }
        }
    }

    int width() const { return right - left; }
    int height() const { return bottom - top; }
};

/// The legend of a plot of values from 0 to 1, in two colours.
class LegendTest : public ::testing::Test {
protected:
    LegendTest()
    {
        showFlat(m_canvas, m_scene);
        m_canvas.getCanvas3dSettings()->setRenderMask(RenderPlots | RenderBackground | RenderLegends);
        m_canvas.getSceneSettings()->setShowMinMax(false);
        m_plot = m_scene.add<SceneGraphPlotSurface2d>(1, {}, {0x0000ff, 0xff0000});
    }

    Picture look() { return m_picture = drawn(m_canvas); }
    Extent extentOf(const Rgb& color) const { return {m_picture, m_canvas.getView().area, color}; }
    /// Pixels of a colour in a row beside the scene.
    int widthAt(int y, const Rgb& color) const
    {
        int width = 0;
        for (int x = m_canvas.getView().area.x + m_canvas.getView().area.width; x < m_picture.width; ++x) {
            width += m_picture.at(x, y) == color ? 1 : 0;
        }
        return width;
    }

    OffscreenCanvas m_canvas{400, 300, 4};
    TestScene m_scene;
    boost::shared_ptr<SceneGraphPlotSurface2d> m_plot;
    Picture m_picture;
};

TEST_F(LegendTest, clippedEndsAreTrianglesInTheColorsOfTheEnds)
{
    look();
    const int full = extentOf(c_red).width();
    EXPECT_EQ(widthAt(extentOf(c_red).top, c_red), full) << "a flat end";
    EXPECT_EQ(widthAt(extentOf(c_blue).bottom - 1, c_blue), full);
    const auto limits = {std::pair(0.25, 1.0), std::pair(0.0, 0.75), std::pair(0.25, 0.75), std::pair(-1.0, 2.0)};
    for (const auto& [low, high] : limits) {
        m_plot->setLegendLimits(low, high);
        look();
        const Extent red = extentOf(c_red);
        const Extent blue = extentOf(c_blue);
        EXPECT_EQ(widthAt(red.top, c_red) < full / 3, high < 1.0) << low << " to " << high;
        EXPECT_EQ(widthAt(blue.bottom - 1, c_blue) < full / 3, low > 0.0) << low << " to " << high;
    }
    m_plot->setReverseColorTable(true);
    m_plot->setLegendLimits(0.0, 0.75);
    look();
    EXPECT_LT(widthAt(extentOf(c_blue).top, c_blue), full / 3);
    EXPECT_EQ(widthAt(extentOf(c_red).bottom - 1, c_red), full);
    // All that is beyond the end is hidden: the triangle is empty, and the bar as long as before.
    const Extent red = extentOf(c_red);
    const int top = extentOf(c_blue).top;
    m_plot->setValueRestrictions(0.0, 0.75);
    look();
    EXPECT_EQ(extentOf(c_red).bottom, red.bottom);
    EXPECT_EQ(widthAt(extentOf(c_blue).top, c_blue), full);
    const int middle = (red.left + red.right) / 2;
    EXPECT_EQ(m_picture.at(middle, extentOf(c_blue).top - 4), c_white);
    EXPECT_GT(m_picture.countDrawn(middle - 1, top - 3, middle + 2, top + 3), 1) << "its outline";
}

TEST_F(LegendTest, barOfLogarithmicLevelsIsLogarithmic)
{
    m_scene.group->removeAllPlots();
    const auto plot = boost::make_shared<vxgraphics3d::SceneGraphPlotIsoSurface3d>(2);
    m_scene.group->addPlot(plot);
    plot->fillPlot(levelRecord({1, 10, 100, 1000}));
    plot->setColorTable("log", {{0.0, 0.0, 1.0}, {1.0, 0.0, 0.0}}, false);
    for (const int width : {400, 800}) {
        m_canvas.resize(width, 300);
        look();
        const Extent red = extentOf(c_red);
        const Extent blue = extentOf(c_blue);
        // The colours meet at 500.5.
        const double part = width == 400 ? static_cast<double>(red.height()) / (red.height() + blue.height())
                                         : static_cast<double>(red.width()) / (red.width() + blue.width());
        EXPECT_NEAR(part, 0.1, 0.01) << width;
    }

    // Stripes are as high as each other. Those of hidden levels are empty.
    m_canvas.resize(400, 300);
    plot->setLegendLevels({1, 10, 100, 1000});
    look();
    const int whole = extentOf(c_blue).height();
    EXPECT_NEAR(whole, 3 * extentOf(c_red).height(), 2);
    plot->setValueRestrictions(5.0, 1000.0);
    look();
    EXPECT_NEAR(extentOf(c_blue).height(), whole * 2 / 3, 2);
    m_scene.group->removeAllPlots();
}

TEST_F(LegendTest, theHiddenPartOfTheBarIsEmpty)
{
    look();
    const Extent red = extentOf(c_red);
    const Extent blue = extentOf(c_blue);
    m_plot->setValueRestrictions(0.25, 1.0);
    look();
    EXPECT_NEAR(extentOf(c_red).count, red.count, 30);
    EXPECT_NEAR(extentOf(c_blue).height(), blue.height() / 2, 2);
    const int middle = (blue.left + blue.right) / 2;
    EXPECT_EQ(m_picture.at(middle, blue.bottom - 5), c_white);
}

TEST_F(LegendTest, pointersMarkTheExtremesOnTheBar)
{
    m_canvas.getSceneSettings()->setShowMinMax(true);
    const auto pointers = [&] {
        look();
        const Extent bar = extentOf(c_red);
        std::vector<int> rows;
        for (int y = bar.top; y < extentOf(c_blue).bottom; ++y) {
            if (m_picture.at(bar.left - 3, y) != c_white) {
                rows.push_back(y - bar.top);
            }
        }
        return rows;
    };
    m_plot->setLegendLimits(-1.0, 3.0);
    const auto inside = pointers();
    const Extent red = extentOf(c_red);
    ASSERT_FALSE(inside.empty());
    // 1 is in the middle, where the colours meet, and 0 a quarter above the lower end.
    EXPECT_NEAR(inside.front(), red.height(), 4);
    EXPECT_NEAR(inside.back(), 1.5 * red.height(), 4);
    m_plot->setLegendLimits(0.25, 0.75);
    EXPECT_TRUE(pointers().empty()) << "both are beyond the ends";
}

TEST_F(LegendTest, hasATitleOrTheUnitAloneWhereThePictureHasTheTitle)
{
    m_canvas.getCanvas3dSettings()->addRenderMask(RenderTitle);
    const auto above = [&](const char* title) {
        m_plot->setTitle(TextFormat::plain, title);
        look();
        const PixelArea& area = m_canvas.getView().area;
        return m_picture.countDrawn(area.x + area.width, area.y, 400, extentOf(c_red).top - 8);
    };
    EXPECT_EQ(above(""), 0);
    const int unit = above("Stress in MPa");
    EXPECT_GT(unit, 20);
    EXPECT_EQ(above("MPa"), unit);
    const auto second = m_scene.add<SceneGraphPlotSurface2d>(2, {}, {0x00ff00, 0xffff00});
    EXPECT_GT(above("Stress in MPa"), 2 * unit) << "which of both legends it is";
    second->setActive(false);
    EXPECT_EQ(above("Stress in MPa"), unit);
    m_canvas.getSceneSettings()->setShowTitle(false);
    EXPECT_GT(above("Stress in MPa"), 2 * unit);
}

TEST_F(LegendTest, liesBelowTheSceneInAWidePicture)
{
    for (const bool isWide : {false, true}) {
        m_canvas.resize(isWide ? 700 : 600, 300);
        m_plot->setLegendLimits(-0.5, 0.5);
        look();
        const Extent red = extentOf(c_red);
        const Extent blue = extentOf(c_blue);
        const PixelArea& area = m_canvas.getView().area;
        EXPECT_EQ(red.width() > 5 * red.height(), isWide);
        EXPECT_EQ(red.top >= area.y + area.height, isWide);
        EXPECT_EQ(red.left >= area.x + area.width, !isWide);
        // The higher values are to the right or above, with a clipped end there.
        EXPECT_EQ(blue.right <= red.left, isWide);
        EXPECT_EQ(red.bottom <= blue.top, !isWide);
        if (isWide) {
            EXPECT_GT(red.width(), blue.width() + 5);
            EXPECT_GT(m_picture.countDrawn(0, red.bottom + 2, 700, 300), 50) << "numbers below the bar";
        }
    }
}

TEST_F(LegendTest, twoPicturesAreEqual)
{
    m_plot->setLegendLimits(0.25, 0.75);
    m_canvas.getSceneSettings()->setShowMinMax(true);
    for (const int width : {400, 800}) {
        m_canvas.resize(width, 300);
        const Picture first = look();
        EXPECT_EQ(first.bytes, look().bytes);
    }
}

} // namespace
} // namespace vxrenderer
