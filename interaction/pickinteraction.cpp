#include "interaction/pickinteraction.h"

#include "graphics3d/canvas/canvas3dsettings.h"
#include "graphics3d/picking/canvaspicksettings.h"
#include "graphics3d/picking/pickedobjectcollection.h"
#include "graphics3d/picking/selectionfrustrum.h"
#include "graphics3d/scene/scene.h"
#include "graphics3d/settings/canvas3dglobalsettings.h"
#include "interaction/clickpick.h"
#include "interaction/clickview.h"

#include <algorithm>
#include <cstdint>
#include <stdexcept>
#include <string>
#include <utility>

namespace vxinteraction {

using vxgraphics3d::Canvas3dGlobalSettings;
using vxgraphics3d::Canvas3dSettings;
using vxgraphics3d::CanvasPickSettings;
using vxgraphics3d::ICameraTransforms;
using vxgraphics3d::PickedObject;
using vxgraphics3d::PickedObjectCollection;
using vxgraphics3d::Scene;
using vxgraphics3d::SelectionFrustrum;

namespace {

int requireHeight(int canvasHeight)
{
    if (canvasHeight < 1) {
        throw std::invalid_argument("The canvas height is " + std::to_string(canvasHeight) + ", not 1 or more.");
    }
    return canvasHeight;
}

int tolerance()
{
    return std::max(Canvas3dGlobalSettings::getInstance()->getPickingTolerance(), 0);
}

bool isEmpty(const PixelRectangle& pixels)
{
    return pixels.left >= pixels.right || pixels.bottom >= pixels.top;
}

SelectionFrustrum frustumOf(const ICameraTransforms& camera, const PixelRectangle& pixels)
{
    return {camera, pixels.left, pixels.top, pixels.right, pixels.bottom};
}

} // namespace

PickInteraction::PickInteraction(boost::shared_ptr<const Canvas3dSettings> settings,
                                 boost::shared_ptr<const CanvasPickSettings> pickSettings, int canvasHeight)
    : m_settings(std::move(settings)),
      m_pickSettings(std::move(pickSettings)),
      m_canvasHeight(requireHeight(canvasHeight))
{
    if (!m_settings || !m_pickSettings) {
        throw std::invalid_argument("There are no settings of a view, or no pick settings.");
    }
}

void PickInteraction::setCanvasHeight(int canvasHeight)
{
    m_canvasHeight = requireHeight(canvasHeight);
}

int PickInteraction::click(const Scene& scene, PickedObjectCollection& result, int x, int y) const
{
    result.reset();
    const PixelRectangle pointer = pixelsAround(x, y, x, y, 0);
    if (isEmpty(pointer)) {
        return 0;
    }
    const ICameraTransforms& camera = m_settings->getCameraTransforms();
    const PixelRectangle area = pixelsAround(x, y, x, y, tolerance());
    for (const PickedObject& object : pickTouched(scene, ClickView(camera, pointer.left, pointer.bottom, area),
                                                  frustumOf(camera, area), *m_pickSettings)) {
        result.add(object);
    }
    return result.getNumberOfPickedObjects();
}

int PickInteraction::rectangle(const Scene& scene, PickedObjectCollection& result, int x0, int y0, int x1, int y1) const
{
    result.reset();
    const PixelRectangle area = pixelsAround(x0, y0, x1, y1, 0);
    if (!isEmpty(area)) {
        scene.getSelection(frustumOf(m_settings->getCameraTransforms(), area), *m_pickSettings, result);
    }
    return result.getNumberOfPickedObjects();
}

int PickInteraction::drag(const Scene& scene, PickedObjectCollection& result, int pressX, int pressY, int releaseX,
                          int releaseY) const
{
    const auto distance = [](int a, int b) { return std::abs(std::int64_t{a} - std::int64_t{b}); };
    if (std::max(distance(pressX, releaseX), distance(pressY, releaseY)) <= tolerance()) {
        return click(scene, result, releaseX, releaseY);
    }
    return rectangle(scene, result, pressX, pressY, releaseX, releaseY);
}

/// The pixels of the render area between two pixels of the picture, and around them.
PixelRectangle PickInteraction::pixelsAround(int x0, int y0, int x1, int y1, int tolerance) const
{
    const ICameraTransforms& camera = m_settings->getCameraTransforms();
    const auto clamp = [](std::int64_t value, int start, int size) {
        return static_cast<int>(std::clamp<std::int64_t>(value, start, std::int64_t{start} + std::max(size, 0)));
    };
    const auto column = [&](std::int64_t x) {
        return clamp(x, camera.getRenderAreaLeft(), camera.getRenderAreaWidth());
    };
    // The row of the pixel below which there are `y` rows of the picture counted from the top.
    const auto row = [&](std::int64_t y) {
        return clamp(m_canvasHeight - y, camera.getRenderAreaBottom(), camera.getRenderAreaHeight());
    };
    const std::int64_t margin = tolerance;
    return {column(std::min(x0, x1) - margin), row(margin + 1 + std::max(y0, y1)),
            column(margin + 1 + std::max(x0, x1)), row(std::min(y0, y1) - margin)};
}

} // namespace vxinteraction
