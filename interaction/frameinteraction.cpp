#include "interaction/frameinteraction.h"

#include "graphics3d/overlays/overlaytransformation.h"

#include <algorithm>
#include <cmath>
#include <stdexcept>
#include <utility>

namespace vxinteraction {

using vxgraphics3d::Matrixf;
using vxgraphics3d::OverlayTransformation;
using vxgraphics3d::Vector3f;

namespace {

constexpr float c_smallestScale = 0.01f;

/// The factor that brings a coordinate to where it was dragged, about a fixed one.
float scaleFactor(float coordinate, float dragged, float fixed)
{
    const float factor = (dragged - fixed) / (coordinate - fixed);
    return coordinate == fixed || !std::isfinite(factor) ? 1.0f : std::max(factor, c_smallestScale);
}

} // namespace

FrameInteraction::FrameInteraction(OverlayView view, boost::shared_ptr<OverlayTransformation> frame)
    : OverlayInteraction(std::move(view)), m_frame(std::move(frame))
{
    if (!m_frame) {
        throw std::invalid_argument("There is no frame to interact with.");
    }
}

FrameInteraction::~FrameInteraction() = default;

const Matrixf& FrameInteraction::getTransformation() const
{
    return m_frame->getTransformation();
}

int FrameInteraction::handleAt(const PlanePoint& picture) const
{
    const OverlayPlane view = plane();
    const double reach = static_cast<double>(static_cast<float>(m_frame->getHandleSize()) * m_frame->getHandleScale());
    double nearest = reach + pickingTolerance() / 2.0;
    int found = -1;
    for (int handle = 0; handle < m_frame->getNumHandles(); ++handle) {
        if (const auto position = view.toPicture(m_frame->getTransformedHandlePos(handle))) {
            const PlanePoint distance = *position - picture;
            const double far = std::max(std::abs(distance.x), std::abs(distance.y));
            if (far <= nearest) {
                nearest = far;
                found = handle;
            }
        }
    }
    return found;
}

bool FrameInteraction::isInside(const PlanePoint& picture) const
{
    const auto local = toObject(*m_frame, picture);
    if (!local) {
        return false;
    }
    const Vector3f low = m_frame->getHandlePos(0);
    const Vector3f high = m_frame->getHandlePos(4);
    const auto isBetween = [](double value, float least, float most) {
        return value >= static_cast<double>(least) && value <= static_cast<double>(most);
    };
    return isBetween(local->x, low.x, high.x) && isBetween(local->y, low.y, high.y);
}

bool FrameInteraction::mark(int handle)
{
    if (handle == m_markedHandle) {
        return false;
    }
    if (m_markedHandle >= 0) {
        m_frame->setMarkedHandle(m_markedHandle, false);
    }
    if (handle >= 0) {
        m_frame->setMarkedHandle(handle, true);
    }
    m_markedHandle = handle;
    return true;
}

bool FrameInteraction::press(int x, int y)
{
    const bool hasChanged = release();
    if (m_frame->getHandlePos(0) == m_frame->getHandlePos(4)) {
        return hasChanged; // not drawn yet
    }
    const PlanePoint picture = PlanePoint::ofPixel(x, y);
    const auto start = plane().toPlane(picture);
    const int handle = handleAt(picture);
    Matrixf inverse(Matrixf::MatrixUninitialized);
    if (!start || (handle < 0 && !isInside(picture)) ||
        !Matrixf::invertMatrixf(getTransformation().data(), inverse.data())) {
        return hasChanged;
    }
    m_drag = {handle, getTransformation(), inverse, *start};
    mark(handle);
    return true;
}

Matrixf FrameInteraction::scaled(const Drag& drag, const PlanePoint& moved) const
{
    const int numHandles = m_frame->getNumHandles();
    const Vector3f handle = m_frame->getHandlePos(drag.handle);
    const Vector3f fixed = m_frame->getHandlePos((drag.handle + numHandles / 2) % numHandles);
    const Vector3f dragged = drag.inverse * (drag.before * handle + Vector3f(moved.x, moved.y, 0.0));
    const bool isCorner = drag.handle % 2 == 0;
    const bool isVertical = isCorner || drag.handle % 4 == 1;
    const bool isHorizontal = isCorner || drag.handle % 4 == 3;
    return Matrixf(drag.before)
        .translate(fixed)
        .scale(isHorizontal ? scaleFactor(handle.x, dragged.x, fixed.x) : 1.0f,
               isVertical ? scaleFactor(handle.y, dragged.y, fixed.y) : 1.0f, 1.0f)
        .translateNeg(fixed);
}

bool FrameInteraction::drag(int x, int y)
{
    const PlanePoint picture = PlanePoint::ofPixel(x, y);
    if (!m_drag) {
        return mark(handleAt(picture));
    }
    const auto point = plane().toPlane(picture);
    if (!point) {
        return false;
    }
    const PlanePoint moved = *point - m_drag->start;
    if (m_drag->handle >= 0) {
        m_frame->setTransformation(scaled(*m_drag, moved));
    } else {
        Matrixf shift(Matrixf::MatrixUninitialized);
        shift.initTranslation(static_cast<float>(moved.x), static_cast<float>(moved.y), 0.0f);
        m_frame->setTransformation(shift * m_drag->before);
    }
    return true;
}

bool FrameInteraction::release()
{
    m_drag.reset();
    return mark(-1);
}

bool FrameInteraction::cancel()
{
    const bool wasActive = isActive();
    if (wasActive) {
        m_frame->setTransformation(m_drag->before);
    }
    return release() || wasActive;
}

} // namespace vxinteraction
