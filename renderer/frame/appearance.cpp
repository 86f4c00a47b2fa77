#include "renderer/frame/appearance.h"

#include "graphics3d/cameras/axisorientationindicator.h"
#include "graphics3d/canvas/canvas3dsettings.h"
#include "graphics3d/canvas/gridboxsettings.h"
#include "graphics3d/canvas/hardcopysettings.h"
#include "graphics3d/canvas/scenesettings.h"
#include "graphics3d/lights/scenesettingslight.h"
#include "graphics3d/settings/canvas3dglobalsettings.h"
#include "renderer/frame/frame.h"

#include <algorithm>
#include <cmath>

namespace vxrenderer {
namespace {

using namespace vxgraphics3d;

constexpr float c_pointsPerInch = 72.0f;
// Of 255.
constexpr float c_darkLuminance = 110.0f;
constexpr float c_leastContrast = 60.0f;

float luminance(const Color& color)
{
    return 0.299f * static_cast<float>(color.red) + 0.587f * static_cast<float>(color.green) +
           0.114f * static_cast<float>(color.blue);
}

float luminance(const Appearance::Backdrop& backdrop)
{
    return 0.5f * (luminance(backdrop.top) + luminance(backdrop.bottom));
}

int pixelsOf(int points, float pixelsPerInch)
{
    return std::max(1, static_cast<int>(std::lround(static_cast<float>(points) * pixelsPerInch / c_pointsPerInch)));
}

/// The settings that hold the font of a kind of text: some belong to the canvas, others to the scene.
const FontSetting& fontSetting(TextItem item, const Canvas3dSettings& canvas, const SceneSettings* scene)
{
    switch (item) {
    case TextItem::TextAxisTitle:
        return canvas.getFont(Canvas3dSettings::TextAxisTitle);
    case TextItem::TextAxisTick:
        return canvas.getFont(Canvas3dSettings::TextAxisTick);
    case TextItem::TextLegendTitle:
        return canvas.getFont(Canvas3dSettings::TextLegendTitle);
    case TextItem::TextLegendTick:
        return canvas.getFont(Canvas3dSettings::TextLegendTick);
    case TextItem::TextAxisOrientation:
        return canvas.getFont(Canvas3dSettings::TextAxisOrientation);
    case TextItem::TextLabel:
    case TextItem::TextTitle:
        break;
    }
    if (scene == nullptr) {
        return Canvas3dGlobalSettings::getInstance()->getFont(item);
    }
    return scene->getFont(item == TextItem::TextTitle ? SceneSettings::TextTitle : SceneSettings::TextLabel);
}

/// Whether a render mask lets a kind of item be drawn.
bool isDrawn(const Canvas3dSettings& canvas, RenderMask bit)
{
    return (canvas.getRenderMask() & bit) != 0;
}

Appearance::Backdrop backdropOf(const Canvas3dSettings& canvas)
{
    if (!isDrawn(canvas, RenderBackground)) {
        return {};
    }
    const Canvas3dBackgroundSettings& settings = canvas.getBackground(renderModeOf(canvas));
    return {settings.getTopBackgroundColor(),
            settings.isBackgroundShaded() ? settings.getBottomBackgroundColor() : settings.getTopBackgroundColor(),
            settings.getImage(), settings.getHorizontalPosition(), settings.getVerticalPosition()};
}

} // namespace

Color Appearance::textColor() const
{
    return Color::fromRgb(luminance(backdrop) < c_darkLuminance ? 0xffffff : 0x000000);
}

Color Appearance::readable(const Color& wanted) const
{
    return std::abs(luminance(wanted) - luminance(backdrop)) < c_leastContrast ? textColor() : wanted;
}

Appearance Appearance::onScreen(const Canvas3dSettings& canvas, const SceneSettings* scene)
{
    Appearance appearance;
    appearance.pixelsPerInch =
        static_cast<float>(std::max(1, Canvas3dGlobalSettings::getInstance()->getOnScreenResolution()));
    for (int i = 0; i < c_numTextItems; ++i) {
        const FontSetting& font = fontSetting(static_cast<TextItem>(i), canvas, scene);
        appearance.fonts[static_cast<std::size_t>(i)] = {font.getName(),
                                                         pixelsOf(font.getSize(), appearance.pixelsPerInch)};
    }
    appearance.backdrop = backdropOf(canvas);
    if (scene != nullptr) {
        appearance.showTitle = scene->isTitleShown() && isDrawn(canvas, RenderTitle);
        appearance.showLegends = scene->isLegendsShown() && isDrawn(canvas, RenderLegends);
        appearance.showMinMax = scene->isMinMaxShown();
        appearance.opacity = std::clamp(scene->getGlobalOpacity(), 0.0f, 1.0f);
        appearance.showLightMarkers = scene->getLight()->isRenderLightMarkers() && isDrawn(canvas, RenderLightMarkers);
        appearance.showLabels = scene->isLabelsShown();
        appearance.showLineDirections = scene->isLineDirectionsShown();
        appearance.showPhysicsMarkers = scene->isPhysicsMarkersShown();
    }
    appearance.showAxes = isDrawn(canvas, RenderAxes);
    appearance.showGrid = canvas.getGridBoxSettingsPtr()->isGridShown();
    appearance.showAxisOrientation =
        canvas.getAxisOrientationIndicatorPtr()->isShown() && isDrawn(canvas, RenderAxisOrientation);
    return appearance;
}

Appearance Appearance::ofHardcopy(const HardcopySettings& hardcopy, const Canvas3dSettings& canvas,
                                  const SceneSettings* scene)
{
    Appearance appearance = onScreen(canvas, scene);
    const float screen = appearance.pixelsPerInch;
    appearance.pixelsPerInch = static_cast<float>(std::max(1, hardcopy.getDpi()));
    appearance.scale = appearance.pixelsPerInch / screen;
    for (int i = 0; i < c_numTextItems; ++i) {
        const auto item = static_cast<TextItem>(i);
        const int points =
            hardcopy.isFontSizeValid(item) ? hardcopy.getFontSize(item) : fontSetting(item, canvas, scene).getSize();
        appearance.fonts[static_cast<std::size_t>(i)].size = pixelsOf(points, appearance.pixelsPerInch);
    }
    if (!hardcopy.isUseCurrentBackground()) {
        appearance.backdrop = {hardcopy.getTopColor(), hardcopy.getBottomColor(), nullptr, {}, {}};
    }
    appearance.showTitle = hardcopy.isTitleShown();
    appearance.showLegends = hardcopy.isLegendsShown();
    appearance.showAxes = hardcopy.isAxisShown();
    appearance.showAxisOrientation = hardcopy.isAxisOrientationShown();
    appearance.showPhysicsMarkers = appearance.showPhysicsMarkers && hardcopy.isShowPhysicsMarkers();
    return appearance;
}

} // namespace vxrenderer
