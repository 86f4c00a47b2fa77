#include "interaction/camerainteraction.h"

#include "graphics3d/cameras/camera2d.h"
#include "graphics3d/canvas/canvas3dsettings.h"
#include "graphics3d/viewing/icameraactions.h"
#include "interaction/zoomfactor.h"

#include <algorithm>
#include <stdexcept>
#include <string>
#include <utility>

namespace vxinteraction {

using vxgraphics3d::Canvas3dGlobalSettings;
using vxgraphics3d::Canvas3dSettings;
using vxgraphics3d::ICameraActions;

namespace {

/// A notch of the wheel zooms as a drag over this number of pixels does.
constexpr double c_pixelsPerNotch = 50.0;
/// The smallest side of a rectangle to zoom to.
constexpr float c_smallestSide = 2.0f;

float toFloat(int pixels)
{
    return static_cast<float>(pixels);
}

int requireHeight(int canvasHeight)
{
    if (canvasHeight < 1) {
        throw std::invalid_argument("The canvas height is " + std::to_string(canvasHeight) + ", not 1 or more.");
    }
    return canvasHeight;
}

bool contains(const ICameraActions& camera, const AreaPoint& point)
{
    return point.x >= 0.0f && point.x < toFloat(camera.getRenderAreaWidth()) && point.y >= 0.0f &&
           point.y < toFloat(camera.getRenderAreaHeight());
}

/// Whether a camera of a 2D view supports an action.
bool isPlanar(CameraInteraction::Action action)
{
    return action == Canvas3dGlobalSettings::ActionPan || action == Canvas3dGlobalSettings::ActionZoom;
}

/// The part of one side of a render area between two positions, as fractions of the side.
struct Span {
    float middle;
    float size;
    bool isWideEnough;

    Span(float a, float b, int areaSize)
    {
        const auto side = toFloat(areaSize);
        const float low = std::max(std::min(a, b), 0.0f);
        const float high = std::min(std::max(a, b), side);
        middle = (low + high) * 0.5f / side;
        size = (high - low) / side;
        isWideEnough = high - low >= c_smallestSide;
    }

    /// The position that must stay fixed while the view is scaled, so that the middle moves to the middle of the side.
    float fixedPlace(float scale) const { return 0.5f + (0.5f - middle) / (scale * (1.0f - 1.0f / scale)); }
};

} // namespace

CameraInteraction::CameraInteraction(boost::shared_ptr<Canvas3dSettings> settings, int canvasHeight)
    : m_settings(std::move(settings)), m_canvasHeight(requireHeight(canvasHeight))
{
    if (!m_settings) {
        throw std::invalid_argument("There are no settings of a view to interact with.");
    }
}

void CameraInteraction::setCanvasHeight(int canvasHeight)
{
    m_canvasHeight = requireHeight(canvasHeight);
}

bool CameraInteraction::press(int button, int keyMask, int x, int y)
{
    if (m_drag) {
        if (button != m_dragButton) {
            return false;
        }
        release();
    }
    boost::shared_ptr<ICameraActions> camera = m_settings->getCurrentCameraActionsPtr();
    const Action action = Canvas3dGlobalSettings::getInstance()->getCameraMouseAction(button, keyMask);
    const bool isCamera2d = camera.get() == m_settings->camera2d();
    const AreaPoint start = toArea(*camera, x, y);
    if (action == Canvas3dGlobalSettings::ActionNone || (isCamera2d && !isPlanar(action)) ||
        !contains(*camera, start)) {
        return false;
    }
    m_drag.emplace(std::move(camera), m_settings->getCameraTransforms(), action, start);
    m_dragButton = button;
    m_pressX = x;
    m_pressY = y;
    return true;
}

bool CameraInteraction::drag(int x, int y)
{
    return m_drag && m_drag->moveTo(toFloat(x) - toFloat(m_pressX), toFloat(m_pressY) - toFloat(y));
}

void CameraInteraction::release()
{
    if (m_drag) {
        m_drag->merge();
        m_drag.reset();
    }
}

bool CameraInteraction::cancel()
{
    const bool hasChanged = m_drag && m_drag->discard();
    m_drag.reset();
    return hasChanged;
}

bool CameraInteraction::wheel(double notches, int x, int y)
{
    const boost::shared_ptr<ICameraActions> camera = m_settings->getCurrentCameraActionsPtr();
    const AreaPoint pointer = toArea(*camera, x, y);
    const float factor = zoomFactor(static_cast<float>(notches * c_pixelsPerNotch),
                                    Canvas3dGlobalSettings::getInstance()->getCameraMouseZoomSpeed());
    if (m_drag || notches == 0.0 || !isZoomFactor(factor) || !contains(*camera, pointer)) {
        return false;
    }
    camera->setAdditionalScale(pointer.x / toFloat(camera->getRenderAreaWidth()),
                               pointer.y / toFloat(camera->getRenderAreaHeight()), factor);
    camera->mergeAdditionalTransformation();
    return true;
}

bool CameraInteraction::zoomToRectangle(int x0, int y0, int x1, int y1)
{
    const boost::shared_ptr<ICameraActions> camera = m_settings->getCurrentCameraActionsPtr();
    const AreaPoint a = toArea(*camera, x0, y0);
    const AreaPoint b = toArea(*camera, x1, y1);
    const Span horizontal(a.x, b.x, camera->getRenderAreaWidth());
    const Span vertical(a.y, b.y, camera->getRenderAreaHeight());
    if (m_drag || !horizontal.isWideEnough || !vertical.isWideEnough) {
        return false;
    }
    const float scale = std::max(horizontal.size, vertical.size);
    if (scale == 1.0f) {
        camera->setAdditionalRelativeViewOffset(0.5f - horizontal.middle, 0.5f - vertical.middle);
    } else {
        camera->setAdditionalScale(horizontal.fixedPlace(scale), vertical.fixedPlace(scale), scale);
    }
    camera->mergeAdditionalTransformation();
    return true;
}

CameraInteraction::Action CameraInteraction::getAction() const
{
    return m_drag ? m_drag->getAction() : Canvas3dGlobalSettings::ActionNone;
}

/// The middle of a pixel of the picture, in the render area of a camera.
AreaPoint CameraInteraction::toArea(const ICameraActions& camera, int x, int y) const
{
    return {toFloat(x) + 0.5f - toFloat(camera.getRenderAreaLeft()),
            toFloat(m_canvasHeight) - toFloat(y) - 0.5f - toFloat(camera.getRenderAreaBottom())};
}

} // namespace vxinteraction
