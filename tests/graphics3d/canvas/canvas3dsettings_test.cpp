#include "graphics3d/canvas/canvas3dsettings.h"

#include "graphics3d/cameras/axisorientationindicator.h"
#include "graphics3d/cameras/camera2d.h"
#include "graphics3d/cameras/camera3d.h"
#include "graphics3d/canvas/axissetup.h"
#include "graphics3d/canvas/canvasbackgroundimage.h"
#include "graphics3d/canvas/gridboxsettings.h"
#include "graphics3d/settings/canvas3dglobalsettings.h"
#include "tests/support/capturedlog.h"

#include <gtest/gtest.h>

#include <boost/make_shared.hpp>

#include <array>
#include <cstddef>
#include <functional>
#include <stdexcept>
#include <string>
#include <vector>

namespace vxgraphics3d {
namespace {

using Settings = Canvas3dSettings;
using Background = Canvas3dBackgroundSettings;

constexpr Color c_black{0, 0, 0, 255};
constexpr Color c_red{255, 0, 0, 255};
constexpr Color c_blue{0, 0, 255, 255};

TEST(Canvas3dSettings, startsWithItsDefaults)
{
    const Settings settings;
    EXPECT_EQ(settings.getChangeId(), 1);
    EXPECT_EQ(settings.getRenderMode(), 0);
    EXPECT_EQ(settings.getRenderMask(), 0x7fffffffu);
    EXPECT_EQ(settings.getMouseMode(), 1);
    EXPECT_FALSE(settings.isMarked());
    EXPECT_EQ(settings.getShaderType(), 2);
    EXPECT_TRUE(settings.isSnap());
    for (const Settings::RenderMode mode : {Settings::RenderMode3d, Settings::RenderMode2d}) {
        const Background& background = settings.getBackground(mode);
        EXPECT_EQ(background.getChangeId(), 1);
        EXPECT_FALSE(background.isBackgroundShaded());
        EXPECT_EQ(background.getTopBackgroundColor(), c_black);
        EXPECT_EQ(background.getBottomBackgroundColor(), c_black);
        EXPECT_EQ(background.getImage(), nullptr);
        EXPECT_EQ(background.getHorizontalPosition(), 1);
        EXPECT_EQ(background.getVerticalPosition(), 1);
    }
    const GridBoxSettings& grid = *settings.getGridBoxSettingsPtr();
    EXPECT_TRUE(grid.isGridShown());
    EXPECT_EQ(grid.getGridColor(), (Color{128, 128, 128, 255}));
    EXPECT_EQ(grid.getLabelColor(), c_black);
}

TEST(Canvas3dSettings, takesItsFontsFromTheGlobalSettings)
{
    Canvas3dGlobalSettings& process = *Canvas3dGlobalSettings::getInstance();
    std::array<FontSetting, c_numTextItems> before;
    for (int item = 0; item < c_numTextItems; ++item) {
        FontSetting& font = process.font(static_cast<TextItem>(item));
        before.at(static_cast<std::size_t>(item)) = font;
        font.setFont("font", 20 + item);
    }
    const Settings settings;
    for (int item = 0; item < c_numTextItems; ++item) {
        process.font(static_cast<TextItem>(item)) = before.at(static_cast<std::size_t>(item));
    }
    constexpr int sizes[] = {21, 22, 23, 24, 26};
    for (int item = 0; item < Settings::c_numTextItems; ++item) {
        EXPECT_EQ(settings.getFont(static_cast<Settings::TextItem>(item)).getName(), "font");
        EXPECT_EQ(settings.getFont(static_cast<Settings::TextItem>(item)).getSize(), sizes[item]);
    }
    EXPECT_THROW(settings.getFont(static_cast<Settings::TextItem>(5)), std::out_of_range);
    EXPECT_THROW(settings.getFont(static_cast<Settings::TextItem>(-1)), std::out_of_range);
    EXPECT_THROW(settings.getBackground(static_cast<Settings::RenderMode>(2)), std::out_of_range);
}

TEST(Canvas3dSettings, alwaysCountsChangesOfModeAndShader)
{
    struct Case {
        const char* name;
        std::function<void(Settings&)> set;
        int changes;
    };
    const Case cases[] = {
        {"mode", [](Settings& s) { s.setRenderMode(Settings::RenderMode3d); }, 1},
        {"shader", [](Settings& s) { s.setShaderType(Settings::ShaderType{2}); }, 1},
        {"mask", [](Settings& s) { s.setRenderMask(1); }, 0},
        {"more mask", [](Settings& s) { s.addRenderMask(2); }, 0},
        {"less mask", [](Settings& s) { s.removeRenderMask(2); }, 0},
        {"mouse", [](Settings& s) { s.setMouseMode(Settings::MouseMode{3}); }, 0},
        {"snap", [](Settings& s) { s.setSnap(false); }, 0},
    };
    Settings settings;
    for (const Case& c : cases) {
        const int before = settings.getChangeId();
        c.set(settings);
        EXPECT_EQ(settings.getChangeId(), before + c.changes) << c.name;
    }
    settings.setRenderMask(0xf0);
    settings.addRenderMask(0x1f);
    EXPECT_EQ(settings.getRenderMask(), 0xffu);
    settings.removeRenderMask(0x10f);
    EXPECT_EQ(settings.getRenderMask(), 0xf0u);
}

/// Settings in which every value differs from its default.
void fill(Settings& settings)
{
    settings.setRenderMode(Settings::RenderMode2d);
    settings.setRenderMask(0x55);
    settings.setMouseMode(Settings::MouseMode{4});
    settings.setMarked(true);
    settings.setShaderType(Settings::ShaderType{1});
    settings.setSnap(false);
    settings.camera3d()->setFOV(33.0f);
    settings.camera2d()->setViewLimits(5.0f, 6.0f, 7.0f, 8.0f);
    settings.getAxisOrientationIndicatorPtr()->setLineWidth(3.0f);
    settings.getAxisSetupPtr()->setAxisType(2);
    settings.getGridBoxSettingsPtr()->setShowGrid(false);
    settings.getGridBoxSettingsPtr()->setGridColor(c_red);
    settings.getGridBoxSettingsPtr()->setLabelColor(c_blue);
    settings.font(Settings::TextAxisOrientation).setFont("other", 77);
    Background& background = settings.background(Settings::RenderMode2d);
    background.setShadedBackground(c_red, c_blue);
    background.setBackgroungImage(boost::make_shared<CanvasBackgroundImage>(), Background::HorizontalLeft,
                                  Background::VerticalBottom);
}

void expectEqualValues(const Settings& actual, const Settings& expected)
{
    EXPECT_EQ(actual.getRenderMode(), expected.getRenderMode());
    EXPECT_EQ(actual.getRenderMask(), expected.getRenderMask());
    EXPECT_EQ(actual.getMouseMode(), expected.getMouseMode());
    EXPECT_EQ(actual.isMarked(), expected.isMarked());
    EXPECT_EQ(actual.getShaderType(), expected.getShaderType());
    EXPECT_EQ(actual.isSnap(), expected.isSnap());
    EXPECT_EQ(actual.getCamera3d()->getFOV(), expected.getCamera3d()->getFOV());
    EXPECT_EQ(actual.getCamera2d()->getViewMinX(), expected.getCamera2d()->getViewMinX());
    EXPECT_EQ(actual.getAxisOrientationIndicatorPtr()->getLineWidth(), 3.0f);
    EXPECT_EQ(actual.getAxisSetupPtr()->getAxisType(), 2);
    EXPECT_FALSE(actual.getGridBoxSettingsPtr()->isGridShown());
    EXPECT_EQ(actual.getGridBoxSettingsPtr()->getGridColor(), c_red);
    EXPECT_EQ(actual.getGridBoxSettingsPtr()->getLabelColor(), c_blue);
    EXPECT_EQ(actual.getFont(Settings::TextAxisOrientation).getSize(), 77);
    const Background& background = actual.getBackground(Settings::RenderMode2d);
    EXPECT_TRUE(background.isBackgroundShaded());
    EXPECT_EQ(background.getTopBackgroundColor(), c_red);
    EXPECT_EQ(background.getBottomBackgroundColor(), c_blue);
    EXPECT_EQ(background.getImage(), expected.getBackground(Settings::RenderMode2d).getImage()) << "shared";
    EXPECT_EQ(background.getHorizontalPosition(), Background::HorizontalLeft);
    EXPECT_EQ(background.getVerticalPosition(), Background::VerticalBottom);
    EXPECT_FALSE(actual.getBackground(Settings::RenderMode3d).isBackgroundShaded());
}

TEST(Canvas3dSettings, aCopyIsCompleteAndIndependent)
{
    Settings source;
    fill(source);
    const Settings copy(source);
    EXPECT_EQ(copy.getChangeId(), 1);
    EXPECT_EQ(copy.getBackground(Settings::RenderMode2d).getChangeId(), 1);
    expectEqualValues(copy, source);
    EXPECT_NE(copy.getCamera3dPtr(), source.getCamera3dPtr());
    EXPECT_NE(copy.getCamera2dPtr(), source.getCamera2dPtr());
    EXPECT_NE(copy.getAxisOrientationIndicatorPtr(), source.getAxisOrientationIndicatorPtr());
    EXPECT_NE(copy.getGridBoxSettingsPtr(), source.getGridBoxSettingsPtr());
    EXPECT_NE(copy.getAxisSetupPtr(), source.getAxisSetupPtr());
}

TEST(Canvas3dSettings, importCopiesTheValuesAndKeepsTheObjects)
{
    Settings source;
    fill(source);
    Settings target;
    const auto camera3d = target.getCamera3dPtr();
    const auto camera2d = target.getCamera2dPtr();
    const auto indicator = target.getAxisOrientationIndicatorPtr();
    const auto grid = target.getGridBoxSettingsPtr();
    const auto axes = target.getAxisSetupPtr();
    const int camera3dBefore = camera3d->getChangeId();
    const int fontBefore = target.getFont(Settings::TextAxisTitle).getChangeCount();
    target.import(source);
    expectEqualValues(target, source);
    EXPECT_EQ(target.getCamera3dPtr(), camera3d);
    EXPECT_EQ(target.getCamera2dPtr(), camera2d);
    EXPECT_EQ(target.getAxisOrientationIndicatorPtr(), indicator);
    EXPECT_EQ(target.getGridBoxSettingsPtr(), grid);
    EXPECT_EQ(target.getAxisSetupPtr(), axes);
    EXPECT_EQ(target.getChangeId(), 2);
    EXPECT_EQ(camera3d->getChangeId(), camera3dBefore + 2) << "the camera's own import";
    EXPECT_EQ(indicator->getChangeId(), 2);
    EXPECT_EQ(axes->getChangeId(), 2);
    EXPECT_EQ(target.getBackground(Settings::RenderMode3d).getChangeId(), 2);
    EXPECT_EQ(target.getFont(Settings::TextAxisTitle).getChangeCount(), fontBefore + 1);
    target.import(target);
    EXPECT_EQ(target.getChangeId(), 2);
    EXPECT_EQ(axes->getChangeId(), 2);
}

TEST(Canvas3dSettings, importingACameraKeepsTheCameraObject)
{
    Settings settings;
    const auto camera = settings.getCamera3dPtr();
    Camera3d other;
    other.setFOV(12.0f);
    settings.setCamera3d(other);
    EXPECT_EQ(settings.getCamera3dPtr(), camera);
    EXPECT_EQ(camera->getFOV(), other.getFOV());
    Camera2d flat;
    flat.setPreserveAspectRatio(false);
    settings.setCamera2d(flat);
    EXPECT_FALSE(settings.getCamera2d()->isPreserveAspectRatio());
}

TEST(Canvas3dSettings, theRenderModeSelectsTheCurrentCamera)
{
    Settings settings;
    const Settings& constant = settings;
    const CapturedLog log(ErrorLog::Level::error);
    EXPECT_EQ(&settings.cameraTransforms(), static_cast<ICameraTransforms*>(settings.camera3d()));
    EXPECT_EQ(settings.getCurrentCameraActionsPtr().get(), static_cast<ICameraActions*>(settings.camera3d()));
    settings.setRenderMode(Settings::RenderMode2d);
    EXPECT_EQ(&constant.getCameraTransforms(), static_cast<const ICameraTransforms*>(settings.getCamera2d()));
    EXPECT_EQ(settings.getCurrentCameraActionsPtr().get(), static_cast<ICameraActions*>(settings.camera2d()));
    EXPECT_TRUE(log.messages().empty());
    settings.setRenderMode(static_cast<Settings::RenderMode>(2));
    EXPECT_EQ(&settings.cameraTransforms(), static_cast<ICameraTransforms*>(settings.camera3d()));
    EXPECT_EQ(&constant.getCameraTransforms(), static_cast<const ICameraTransforms*>(settings.getCamera3d()));
    EXPECT_EQ(settings.getCurrentCameraActionsPtr().get(), static_cast<ICameraActions*>(settings.camera3d()));
    EXPECT_EQ(log.messages(), std::vector<std::string>(3, "Unknown render mode."));
}

TEST(Canvas3dBackgroundSettings, twoEqualColoursMeanNoShading)
{
    Background background;
    background.setShadedBackground(c_red, c_red);
    EXPECT_FALSE(background.isBackgroundShaded());
    EXPECT_EQ(background.getBottomBackgroundColor(), c_red);
    background.setShadedBackground(c_red, {255, 0, 0, 254});
    EXPECT_TRUE(background.isBackgroundShaded()) << "alpha counts";
    background.setBackgroundColor(c_blue);
    EXPECT_FALSE(background.isBackgroundShaded());
    EXPECT_EQ(background.getTopBackgroundColor(), c_blue);
    EXPECT_EQ(background.getBottomBackgroundColor(), c_blue);
    background.setBackgroundColor(c_blue);
    EXPECT_EQ(background.getChangeId(), 5) << "every call counts";
    background.setShadedBackground(c_red, c_blue);
    background.setShadedBackground(background.getBottomBackgroundColor(), background.getTopBackgroundColor());
    EXPECT_EQ(background.getTopBackgroundColor(), c_blue);
    EXPECT_EQ(background.getBottomBackgroundColor(), c_red) << "the colours can be exchanged";
}

TEST(Canvas3dBackgroundSettings, withoutAnImageThePositionIsTheCentre)
{
    Background background;
    const auto image = boost::make_shared<CanvasBackgroundImage>();
    background.setBackgroungImage(image, Background::HorizontalRight, Background::VerticalTop);
    EXPECT_EQ(background.getImage(), image);
    EXPECT_EQ(background.getHorizontalPosition(), 2);
    EXPECT_EQ(background.getVerticalPosition(), 0);
    background.setBackgroungImage(nullptr, Background::HorizontalRight, Background::VerticalTop);
    EXPECT_EQ(background.getImage(), nullptr);
    EXPECT_EQ(background.getHorizontalPosition(), 1);
    EXPECT_EQ(background.getVerticalPosition(), 1);
    EXPECT_EQ(background.getChangeId(), 1);
}

} // namespace
} // namespace vxgraphics3d
