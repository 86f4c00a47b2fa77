#include "renderer/frame/appearance.h"

#include "graphics3d/cameras/axisorientationindicator.h"
#include "graphics3d/canvas/canvas3dsettings.h"
#include "graphics3d/canvas/gridboxsettings.h"
#include "graphics3d/canvas/hardcopysettings.h"
#include "graphics3d/canvas/scenesettings.h"
#include "graphics3d/lights/scenesettingslight.h"
#include "graphics3d/settings/canvas3dglobalsettings.h"
#include "renderer/frame/contrast.h"
#include "renderer/frame/frame.h"

#include <algorithm>
#include <cmath>

namespace vxrenderer {
namespace {

using namespace vxgraphics3d;

constexpr float c_pointsPerInch = 72.0f;
/// What is added to a least contrast so that it is kept when colours are rounded.
constexpr double c_roundingSlack = 1.02;
constexpr double c_wantedGridContrast = c_roundingSlack * c_gridContrast;
constexpr int c_gridSteps = 20;

/// The contrast of a colour to the end of the backdrop that it is closer to.
double contrastTo(const Appearance::Backdrop& backdrop, const Color& color)
{
    return std::min(contrastOf(color, backdrop.top), contrastOf(color, backdrop.bottom));
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
    const Color black = Color::fromRgb(0x000000);
    const Color white = Color::fromRgb(0xffffff);
    return contrastTo(backdrop, black) >= contrastTo(backdrop, white) ? black : white;
}

Color Appearance::readable(const Color& wanted) const
{
    return contrastTo(backdrop, wanted) < c_textContrast ? textColor() : wanted;
}

Color Appearance::visible(const Color& wanted, double contrast) const
{
    Color best = wanted;
    for (int step = 1; step <= c_gridSteps && contrastTo(backdrop, best) < c_roundingSlack * contrast; ++step) {
        best = mixed(wanted, textColor(), static_cast<double>(step) / c_gridSteps);
    }
    best.alpha = wanted.alpha;
    return best;
}

Color Appearance::faintGrid(const Color& grid, double part) const
{
    const auto contrastAt = [&](const Color& behind, double of) { return contrastOf(mixed(behind, grid, of), behind); };
    double enough = part;
    for (int step = 1; step <= c_gridSteps && std::min(contrastAt(backdrop.top, enough),
                                                       contrastAt(backdrop.bottom, enough)) < c_wantedGridContrast;
         ++step) {
        enough = std::lerp(part, 1.0, static_cast<double>(step) / c_gridSteps);
    }
    Color faint = grid;
    if (!backdrop.image && backdrop.top == backdrop.bottom) {
        // Without alpha, lines that cross do not add up.
        faint = mixed(backdrop.top, grid, enough);
        faint.alpha = grid.alpha;
    } else {
        faint.alpha = static_cast<int>(std::lround(enough * grid.alpha));
    }
    return faint;
}

Color Appearance::backgroundAt(double part) const
{
    return mixed(backdrop.top, backdrop.bottom, std::clamp(part, 0.0, 1.0));
}

Color Appearance::haloOf(const Color& text, double part) const
{
    const Color behind = backgroundAt(part);
    return backdrop.image || contrastOf(text, behind) < c_textContrast ? contrastingWith(text) : behind;
}

bool Appearance::isBackdropUneven() const
{
    return backdrop.image || contrastTo(backdrop, textColor()) < c_textContrast;
}

void Appearance::enlarge(int factor)
{
    pixelsPerInch *= static_cast<float>(factor);
    scale *= static_cast<float>(factor);
    pixel *= factor;
    for (Font& font : fonts) {
        font.size *= factor;
    }
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
