#include "renderer/frame/appearance.h"

#include "graphics3d/cameras/axisorientationindicator.h"
#include "graphics3d/canvas/canvas3dsettings.h"
#include "graphics3d/canvas/gridboxsettings.h"
#include "graphics3d/canvas/hardcopysettings.h"
#include "graphics3d/canvas/irenderersetup.h"
#include "graphics3d/canvas/scenesettings.h"
#include "graphics3d/lights/scenesettingslight.h"
#include "graphics3d/settings/canvas3dglobalsettings.h"
#include "renderer/frame/contrast.h"

#include <gtest/gtest.h>

namespace vxrenderer {
namespace {

using namespace vxgraphics3d;

class AppearanceTest : public ::testing::Test {
protected:
    ~AppearanceTest() override { process().setOnScreenResolution(m_resolution); }

    static Canvas3dGlobalSettings& process() { return *Canvas3dGlobalSettings::getInstance(); }
    Appearance onScreen() const { return Appearance::onScreen(m_canvas, &m_scene); }
    Appearance ofHardcopy() const { return Appearance::ofHardcopy(m_hardcopy, m_canvas, &m_scene); }

    struct Setup : IRendererSetup {};

    int m_resolution = process().getOnScreenResolution();
    Setup m_setup;
    Canvas3dSettings m_canvas;
    SceneSettings m_scene{m_setup};
    HardcopySettings m_hardcopy;
};

TEST_F(AppearanceTest, fontsArePointsOfTheResolution)
{
    m_canvas.font(Canvas3dSettings::TextLegendTick).setFont("serif", 9);
    m_scene.font(SceneSettings::TextTitle).setFont("mono", 20);
    const struct {
        int resolution, label, title, legendTick;
    } cases[] = {{72, 12, 20, 9}, {96, 16, 27, 12}, {144, 24, 40, 18}, {1, 1, 1, 1}, {0, 1, 1, 1}};
    for (const auto& c : cases) {
        process().setOnScreenResolution(c.resolution);
        const Appearance look = onScreen();
        EXPECT_EQ(look.font(TextItem::TextLabel).size, c.label) << c.resolution;
        EXPECT_EQ(look.font(TextItem::TextAxisTick).size, c.label) << c.resolution;
        EXPECT_EQ(look.font(TextItem::TextTitle).size, c.title) << c.resolution;
        EXPECT_EQ(look.font(TextItem::TextLegendTick).size, c.legendTick) << c.resolution;
        EXPECT_EQ(look.font(TextItem::TextLegendTick).name, "serif");
        EXPECT_EQ(look.font(TextItem::TextTitle).name, "mono");
    }
    // Without a scene, its two fonts are those of the process.
    EXPECT_EQ(Appearance::onScreen(m_canvas, nullptr).font(TextItem::TextTitle).name,
              process().getFont(TextItem::TextTitle).getName());
}

TEST_F(AppearanceTest, hardcopiesHaveFontsOfTheirOwn)
{
    process().setOnScreenResolution(96);
    m_canvas.font(Canvas3dSettings::TextLegendTick).setFont("serif", 9);
    m_hardcopy.setDpi(288);
    m_hardcopy.setFontSize(TextItem::TextTitle, 10);
    m_hardcopy.setFontSize(TextItem::TextAxisTitle, 0);
    const Appearance look = ofHardcopy();
    EXPECT_EQ(look.font(TextItem::TextTitle).size, 40);
    EXPECT_EQ(look.font(TextItem::TextLegendTick).size, 36);
    EXPECT_EQ(look.font(TextItem::TextLegendTick).name, "serif");
    EXPECT_EQ(look.font(TextItem::TextAxisTitle).size, 48) << "not given";
    EXPECT_FLOAT_EQ(look.scale, 3.0f);
    EXPECT_FLOAT_EQ(look.millimetres(25.4f), 288.0f);
}

TEST_F(AppearanceTest, everyDecorationHasItsSettingAndItsBit)
{
    m_scene.getLight()->setRenderLightMarkers(true);
    m_canvas.getAxisOrientationIndicatorPtr()->show(true);
    const auto shown = [](const Appearance& look) {
        return (look.showTitle ? RenderTitle : 0u) | (look.showLegends ? RenderLegends : 0u) |
               (look.showAxes ? RenderAxes : 0u) | (look.showAxisOrientation ? RenderAxisOrientation : 0u) |
               (look.showLightMarkers ? RenderLightMarkers : 0u);
    };
    constexpr unsigned all = RenderTitle | RenderLegends | RenderAxes | RenderAxisOrientation | RenderLightMarkers;
    EXPECT_EQ(shown(onScreen()), all);
    for (const unsigned bit : {RenderTitle, RenderLegends, RenderAxes, RenderAxisOrientation, RenderLightMarkers}) {
        m_canvas.removeRenderMask(bit);
        EXPECT_EQ(shown(onScreen()), all & ~bit);
        m_canvas.addRenderMask(bit);
    }
    // An export has its own decorations, independent of what the screen shows.
    EXPECT_EQ(shown(ofHardcopy()), unsigned{RenderLightMarkers});
    m_scene.setShowTitle(false);
    EXPECT_EQ(shown(onScreen()), all & ~RenderTitle);
    m_scene.setShowLegends(false);
    m_canvas.getAxisOrientationIndicatorPtr()->show(false);
    m_scene.getLight()->setRenderLightMarkers(false);
    EXPECT_EQ(shown(onScreen()), unsigned{RenderAxes});
    m_canvas.getGridBoxSettingsPtr()->setShowGrid(false);
    EXPECT_EQ(shown(onScreen()), unsigned{RenderAxes}) << "without grid";
    EXPECT_FALSE(onScreen().showGrid);
    m_canvas.removeRenderMask(RenderAxes);
    EXPECT_EQ(shown(onScreen()), 0u);
    m_hardcopy.setTitleShown(true);
    EXPECT_EQ(shown(ofHardcopy()), unsigned{RenderTitle});
    m_hardcopy.setLegendsShown(true);
    m_hardcopy.setAxisShown(true);
    m_hardcopy.setAxisOrientationShown(true);
    EXPECT_EQ(shown(ofHardcopy()), all & ~RenderLightMarkers);
}

TEST_F(AppearanceTest, hardcopiesHaveTheirBackgroundOrThatOfTheScreen)
{
    m_canvas.background(Canvas3dSettings::RenderMode3d).setShadedBackground(Color::fromRgb(1), Color::fromRgb(2));
    m_hardcopy.setBackground(0x102030, 0x405060);
    EXPECT_EQ(ofHardcopy().backdrop.top, Color::fromRgb(0x102030));
    EXPECT_EQ(ofHardcopy().backdrop.bottom, Color::fromRgb(0x405060));
    m_hardcopy.setUseCurrentBackground(true);
    EXPECT_EQ(ofHardcopy().backdrop.top, Color::fromRgb(1));
    EXPECT_EQ(ofHardcopy().backdrop.bottom, Color::fromRgb(2));
    m_scene.setGlobalOpacity(1.5f);
    EXPECT_EQ(ofHardcopy().opacity, 1.0f);
    m_scene.setGlobalOpacity(-1.0f);
    EXPECT_EQ(ofHardcopy().opacity, 0.0f);
}

TEST_F(AppearanceTest, colorsThatCannotBeReadAreReplaced)
{
    const auto gray = [](int level) { return Color{level, level, level, 255}; };
    const struct {
        int top, bottom, wanted, expected;
    } cases[] = {{255, 255, 0, 0},  {255, 255, 118, 118}, {255, 255, 119, 0}, {0, 0, 0, 255},    {0, 0, 128, 128},
                 {40, 40, 80, 255}, {255, 200, 80, 80},   {255, 200, 120, 0}, {128, 128, 128, 0}};
    for (const auto& c : cases) {
        m_hardcopy.setBackground(c.top * 0x10101, c.bottom * 0x10101);
        EXPECT_EQ(ofHardcopy().readable(gray(c.wanted)), gray(c.expected))
            << c.top << ' ' << c.bottom << ' ' << c.wanted;
    }
}

TEST_F(AppearanceTest, gridsAndTextsKeepTheirContrastOnAnyPlainBackground)
{
    for (int level = 0; level < 256; ++level) {
        const Color behind = {level, level, level, 255};
        m_hardcopy.setBackground(behind.toRgb(), behind.toRgb());
        const Appearance look = ofHardcopy();
        EXPECT_GE(contrastOf(look.textColor(), behind), 4.5) << level;
        EXPECT_FALSE(look.isBackdropUneven()) << level;
        EXPECT_EQ(look.haloOf(look.textColor(), 0.5), behind) << "not seen";
        const Color grid = look.visible(Color::fromRgb(0x808080));
        EXPECT_GE(contrastOf(grid, behind), 1.5) << level;
        EXPECT_GE(contrastOf(look.faintGrid(grid, 0.35), behind), 1.5) << level;
    }
    m_hardcopy.setBackground(0xffffff, 0x000000);
    EXPECT_TRUE(ofHardcopy().isBackdropUneven()) << "no colour can be read on all of it";
    for (const double part : {0.0, 0.5, 1.0}) {
        EXPECT_GE(contrastOf(ofHardcopy().textColor(), ofHardcopy().haloOf(ofHardcopy().textColor(), part)), 4.5);
    }
}

TEST(Contrast, isThatOfTheGuidelines)
{
    EXPECT_DOUBLE_EQ(contrastOf(Color::fromRgb(0), Color::fromRgb(0xffffff)), 21.0);
    EXPECT_NEAR(contrastOf(Color::fromRgb(0x767676), Color::fromRgb(0xffffff)), 4.54, 0.005);
    EXPECT_NEAR(contrastOf(Color::fromRgb(0xff0000), Color::fromRgb(0x0000ff)), 2.15, 0.005);
    EXPECT_EQ(contrastingWith(Color::fromRgb(0x00ff00)), Color::fromRgb(0));
    EXPECT_EQ(contrastingWith(Color::fromRgb(0x0000ff)), Color::fromRgb(0xffffff));
}

} // namespace
} // namespace vxrenderer
