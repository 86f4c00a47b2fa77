#include "renderer/paint/sceneicon.h"

#include "graphics3d/foundation/color.h"
#include "graphics3d/foundation/image.h"
#include "renderer/frame/view.h"
#include "renderer/paint/overlaypainter.h"
#include "renderer/paint/picturepoint.h"
#include "renderer/upload/imagetextures.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <utility>

namespace vxrenderer {
namespace {

using vxgraphics3d::Color;
using vxgraphics3d::Image;

/// Side of the square for an icon without an image, in pixels of the screen.
constexpr float c_emptySide = 9.0f;
constexpr int c_emptyColor = 0x4d4d4d;
/// How far symbols are before their points, and a little more, see `View::aboveFaces`.
constexpr float c_aboveSymbols = 3.5f;

/// A side of an icon in pixels of the picture.
float sideOf(const boost::shared_ptr<const Image>& image, int (Image::*side)() const, float scale)
{
    if (!image) {
        return std::round(c_emptySide * scale);
    }
    const float density = image->getScale() > 0.0f && std::isfinite(image->getScale()) ? image->getScale() : 1.0f;
    return std::round(static_cast<float>((*image.*side)()) * scale / density);
}

} // namespace

void drawIcons(std::vector<SceneIcon> icons, const View& view, int width, int height, float scale,
               ImageTextures& textures, OverlayPainter& painter)
{
    if (icons.empty()) {
        return;
    }
    // What is nearer is drawn later.
    std::ranges::stable_sort(icons, {}, [&](const SceneIcon& icon) { return (view.sceneToEye * icon.point).z; });
    painter.begin(width, height);
    glEnable(GL_DEPTH_TEST);
    glDepthMask(GL_FALSE);
    for (const SceneIcon& icon : icons) {
        const float iconWidth = sideOf(icon.image, &Image::getWidth, scale);
        const float iconHeight = sideOf(icon.image, &Image::getHeight, scale);
        const float reach = std::max({iconWidth, iconHeight, c_aboveSymbols * icon.over * scale});
        const std::optional<PicturePoint> place = PicturePoint::of(icon.point, view, reach);
        if (!place) {
            continue;
        }
        // Whole pixels, so that images of the size of the screen stay sharp.
        const float left = std::round(place->x + (icon.shift - 0.5f) * iconWidth);
        const float top = std::round(place->y - 0.5f * iconHeight);
        const PixelRect rect = {left, top, left + iconWidth, top + iconHeight};
        if (textures.bind(icon.image)) {
            painter.drawImage(rect, place->nearerDepth);
        } else {
            painter.fillRect(rect, Color::fromRgb(c_emptyColor), place->nearerDepth);
        }
    }
    glDepthMask(GL_TRUE);
    glDisable(GL_DEPTH_TEST);
}

} // namespace vxrenderer
