// Limits and navigation of the 2D camera. The computation of its matrices is in camera2dtransforms.cpp.
#include "graphics3d/cameras/camera2d.h"

#include "graphics3d/cameras/viewarithmetic.h"

#include <algorithm>
#include <cmath>

namespace vxgraphics3d {

namespace {

// For this camera the two resize behaviours that depend on the shape of the area mean the opposite of their names: the
// first keeps all limits visible, the second fills the area.
constexpr auto c_limitsStayVisible = Canvas3dGlobalSettings::ResizeFill;
constexpr auto c_limitsFillArea = Canvas3dGlobalSettings::ResizeFit;

/// A range is not magnified further below this fraction of the sum of its limits, where about ten thousand floats lie
/// between them.
constexpr float c_smallestRange = 1.1920929e-07f * 10000.0f;

/// Resizes a range of limits about its centre.
void resizeAboutCentre(float& min, float& max, float range)
{
    const float centre = (min + max) * 0.5f;
    min = centre - range * 0.5f;
    max = centre + range * 0.5f;
}

bool mayScale(float factor, float min, float max)
{
    return !(factor <= 1.0f && (max - min) / std::abs(min + max) <= c_smallestRange);
}

/// The shift, as a fraction of the view size, that keeps a point fixed while the view is scaled.
float scaleCentre(float factor, float point, float min, float max)
{
    const float range = max - min;
    return (1.0f - 1.0f / factor) * (range * point + min) / range;
}

} // namespace

Camera2d::Camera2d(const Camera2d& other) : ICameraTransforms(), ICameraActions()
{
    *this = other;
    m_rotationPoint = Vector3f();
    m_rotationTransform.identity();
}

void Camera2d::import(const Camera2d& other)
{
    if (&other == this) {
        return;
    }
    Camera2d taken(other);
    taken.m_renderArea = m_renderArea;
    taken.m_rotationPoint = m_rotationPoint;
    taken.m_rotationTransform = other.m_rotationTransform;
    *this = taken;
    m_actualMinX = m_viewMinX;
    m_actualMaxX = m_viewMaxX;
    m_actualMinY = m_viewMinY;
    m_actualMaxY = m_viewMaxY;
    m_actualPosition = m_position;
    resetAdditionalTransformation();
}

void Camera2d::setOverrideResizeBehaviour(bool overrideGlobal, ResizeBehaviour behaviour)
{
    m_overrideResizeBehaviour = overrideGlobal;
    m_ownResizeBehaviour = behaviour;
}

void Camera2d::setAxisViewScales(float x, float y)
{
    m_axisViewScaleX = x;
    m_axisViewScaleY = y;
}

bool Camera2d::setViewLimits(float x0, float x1, float y0, float y1)
{
    return setViewLimits(x0, x1, y0, y1, m_preserveAspectRatio);
}

bool Camera2d::setViewLimits(float x0, float x1, float y0, float y1, bool preserve)
{
    const bool hasX = x1 > x0;
    const bool hasY = y1 > y0;
    if (hasX && hasY) {
        if (!preserve) {
            const float largest = std::max(x1 - x0, y1 - y0);
            setAxisViewScales(largest / (x1 - x0),
                              largest / (y1 - y0) * view::aspect(m_renderArea.height, m_renderArea.width));
        }
        intSetViewLimits(x0, x1, y0, y1, true);
        return true;
    }
    if (!preserve) {
        return false;
    }
    if (hasX) {
        const float range = (x1 - x0) / (m_actualMaxX - m_actualMinX) * (m_actualMaxY - m_actualMinY);
        const float start = y0 - range * 0.5f;
        intSetViewLimits(x0, x1, start, start + range, true);
    } else if (hasY) {
        const float range = (m_actualMaxX - m_actualMinX) * (y1 - y0) / (m_actualMaxY - m_actualMinY);
        const float start = x0 - range * 0.5f;
        intSetViewLimits(start, start + range, y0, y1, true);
    } else {
        intSetViewLimits(x0 - 1.0f, x1 + 1.0f, y0 - 1.0f, y1 + 1.0f, false);
    }
    return true;
}

bool Camera2d::setViewLimitsX(float x0, float x1)
{
    if (m_preserveAspectRatio) {
        const float centre = (m_actualMinY + m_actualMaxY) * 0.5f;
        return setViewLimits(x0, x1, centre, centre, true);
    }
    return setViewLimits(x0, x1, m_actualMinY, m_actualMaxY, false);
}

bool Camera2d::setViewLimitsY(float y0, float y1)
{
    if (m_preserveAspectRatio) {
        const float centre = (m_actualMinX + m_actualMaxX) * 0.5f;
        return setViewLimits(centre, centre, y0, y1, true);
    }
    return setViewLimits(m_actualMinX, m_actualMaxX, y0, y1, false);
}

void Camera2d::getViewLimits(float& a, float& b, float& c, float& d) const
{
    if (m_cameraMode == ModePolar) {
        a = m_actualPolarMin;
        b = m_actualPolarMax;
    } else {
        a = m_actualMinX;
        b = m_actualMaxX;
        c = m_actualMinY;
        d = m_actualMaxY;
    }
}

void Camera2d::setPolarLimits(float outer, float inner)
{
    m_polarMax = outer > inner ? outer : inner + 1.0f;
    m_polarMin = inner;
    const float radius = m_polarMax - m_polarMin;
    intSetViewLimits(-radius, radius, -radius, radius, false);
}

void Camera2d::moveToBoundingBox(const BoundingBox& box, float margin)
{
    float marginX = 2.0f * box.getHalfSizeX() * margin;
    float marginY = 2.0f * box.getHalfSizeY() * margin;
    if (marginY == 0.0f && marginX != 0.0f && m_cameraMode != ModePolar) {
        marginY = 0.1f * marginX;
    }
    if (marginX == 0.0f && marginY == 0.0f) {
        marginX = 1.0f;
        marginY = 1.0f;
    }
    if (marginY != 0.0f && marginX == 0.0f) {
        marginX = 0.1f * marginY;
    }
    const Vector3f min = box.getMin();
    const Vector3f max = box.getMax();
    if (m_cameraMode != ModePolar) {
        intSetViewLimits(min.x - marginX, max.x + marginX, min.y - marginY, max.y + marginY, true);
    } else if (marginY == 0.0f) {
        setPolarLimits(max.y + 1.0f, min.y - 1.0f);
    } else {
        setPolarLimits(max.y + marginY, min.y);
    }
}

void Camera2d::setRenderArea(int canvasWidth, int canvasHeight, int left, int bottom, int width, int height)
{
    m_renderArea.canvasWidth = canvasWidth;
    m_renderArea.canvasHeight = canvasHeight;
    m_renderArea.left = std::min(left, canvasWidth);
    m_renderArea.bottom = std::min(bottom, canvasHeight);
    calculateViewLimits(std::max(width, 1), std::max(height, 1), resizeBehaviour());
    calculatePerspective();
}

void Camera2d::setBoundingBox(const BoundingBox& box)
{
    m_sceneBox = box;
    if (m_axisViewScalesAuto) {
        calcViewScalesFromSceneBB();
    }
}

void Camera2d::setAxisViewScalesAuto()
{
    m_axisViewScalesAuto = true;
    calcViewScalesFromSceneBB();
}

void Camera2d::resetAxisViewScales()
{
    setAxisViewScales(1.0f, 1.0f);
    m_axisViewScalesAuto = false;
}

void Camera2d::setAdditionalScale(float cx, float cy, float s)
{
    setAdditionalScale(cx, cy, s, s);
}

void Camera2d::setAdditionalScale(float cx, float cy, float sx, float sy)
{
    if (m_preserveAspectRatio) {
        sx = sy = std::max(sx, sy);
    }
    if (!mayScale(sx, m_viewMinX, m_viewMaxX) || !mayScale(sy, m_viewMinY, m_viewMaxY)) {
        return;
    }
    m_additionalScaleX = sx;
    m_additionalScaleY = sy;
    m_scaleCentreX = scaleCentre(sx, cx, m_viewMinX, m_viewMaxX);
    m_scaleCentreY = scaleCentre(sy, cy, m_viewMinY, m_viewMaxY);
    calculatePerspective();
}

void Camera2d::setAdditionalRelativeViewOffset(float x, float y)
{
    m_offsetX = x;
    m_offsetY = y;
    calculatePerspective();
}

void Camera2d::mergeAdditionalTransformation()
{
    // The displayed view becomes the base, so the factors must be reset before the displayed limits are derived from
    // it.
    resetAdditionalTransformation();
    if (m_cameraMode == ModePolar) {
        setPolarLimits(m_actualPolarMax, m_actualPolarMin);
    } else {
        intSetViewLimits(m_actualMinX, m_actualMaxX, m_actualMinY, m_actualMaxY, false);
    }
    m_position = m_actualPosition;
}

void Camera2d::discardAdditionalTransformation()
{
    m_actualPosition = m_position;
    resetAdditionalTransformation();
    m_actualPolarMin = m_polarMin;
    m_actualPolarMax = m_polarMax;
    calculateViewMatrix();
    calculatePerspective();
}

/// The current resize behaviour.
Camera2d::ResizeBehaviour Camera2d::resizeBehaviour() const
{
    return m_overrideResizeBehaviour ? m_ownResizeBehaviour
                                     : Canvas3dGlobalSettings::getInstance()->getResizeBehaviour();
}

void Camera2d::resetAdditionalTransformation()
{
    m_additionalScaleX = 1.0f;
    m_additionalScaleY = 1.0f;
    m_scaleCentreX = 0.0f;
    m_scaleCentreY = 0.0f;
    m_offsetX = 0.0f;
    m_offsetY = 0.0f;
}

/// Stores base limits and adapts them to the render area.
/// @param fit whether the whole rectangle must be visible, regardless of the resize behaviour
void Camera2d::intSetViewLimits(float x0, float x1, float y0, float y1, bool fit)
{
    m_viewMinX = x0;
    m_viewMaxX = x1;
    m_viewMinY = y0;
    m_viewMaxY = y1;
    calculateViewLimits(m_renderArea.width, m_renderArea.height, fit ? c_limitsStayVisible : resizeBehaviour());
    if (fit) {
        const float rangeX = m_viewMaxX - m_viewMinX;
        if (rangeX > 0.0f && rangeX < x1 - x0) {
            resizeAboutCentre(m_viewMinY, m_viewMaxY, (m_viewMaxY - m_viewMinY) * ((x1 - x0) / rangeX));
            m_viewMinX = x0;
            m_viewMaxX = x1;
        }
        const float rangeY = m_viewMaxY - m_viewMinY;
        if (rangeY > 0.0f && rangeY < y1 - y0) {
            resizeAboutCentre(m_viewMinX, m_viewMaxX, (m_viewMaxX - m_viewMinX) * ((y1 - y0) / rangeY));
            m_viewMinY = y0;
            m_viewMaxY = y1;
        }
    }
    calculatePerspective();
}

/// Stores a render area and adapts the base limits to its shape.
void Camera2d::calculateViewLimits(int width, int height, ResizeBehaviour behaviour)
{
    const float oldAspect = view::aspect(m_renderArea.height, m_renderArea.width);
    const float newAspect = view::aspect(height, width);
    m_renderArea.width = width;
    m_renderArea.height = height;
    const bool wide = newAspect <= 1.0f;
    if (m_cameraMode == ModeOneDimensional) {
        // The y range is fixed, so the height always follows.
        behaviour = wide ? c_limitsFillArea : c_limitsStayVisible;
    }

    switch (behaviour) {
    case ResizeBehaviour::ResizeWidth:
        calculateViewHeight(newAspect);
        break;
    case ResizeBehaviour::ResizeHeight:
        calculateViewWidth(newAspect);
        break;
    case c_limitsStayVisible:
        if (wide) {
            if (oldAspect > 1.0f) {
                calculateViewHeight(1.0f);
            }
            calculateViewWidth(newAspect);
        } else {
            if (oldAspect < 1.0f) {
                calculateViewWidth(1.0f);
            }
            calculateViewHeight(newAspect);
        }
        break;
    case c_limitsFillArea:
        if (wide) {
            if (oldAspect > 1.0f) {
                calculateViewWidth(1.0f);
            }
            calculateViewHeight(newAspect);
        } else {
            if (oldAspect < 1.0f) {
                calculateViewHeight(1.0f);
            }
            calculateViewWidth(newAspect);
        }
        break;
    case ResizeBehaviour::ResizePixels:
        resizeAboutCentre(m_viewMinX, m_viewMaxX, static_cast<float>(width) * m_viewingScaleX);
        resizeAboutCentre(m_viewMinY, m_viewMaxY, static_cast<float>(height) * m_viewingScaleY);
        return;
    default:
        return;
    }
    calculateViewingScales();
}

/// Derives the x range from the y range at a ratio of height to width.
void Camera2d::calculateViewWidth(float aspect)
{
    resizeAboutCentre(m_viewMinX, m_viewMaxX, (m_viewMaxY - m_viewMinY) * m_axisViewScaleY / aspect / m_axisViewScaleX);
}

/// Derives the y range from the x range at a ratio of height to width.
void Camera2d::calculateViewHeight(float aspect)
{
    resizeAboutCentre(m_viewMinY, m_viewMaxY, (m_viewMaxX - m_viewMinX) * m_axisViewScaleX * aspect / m_axisViewScaleY);
}

void Camera2d::calculateViewingScales()
{
    m_viewingScaleY = (m_viewMaxY - m_viewMinY) / static_cast<float>(m_renderArea.height);
    m_viewingScaleX = (m_viewMaxX - m_viewMinX) / static_cast<float>(m_renderArea.width);
}

/// Stretches the scene box to a square, and the square to the area unless the aspect ratio is preserved.
void Camera2d::calcViewScalesFromSceneBB()
{
    const float k = m_preserveAspectRatio ? 1.0f : view::aspect(m_renderArea.height, m_renderArea.width);
    if (!m_sceneBox.isValid()) {
        setAxisViewScales(1.0f, k);
        return;
    }
    const float extentX = 2.0f * m_sceneBox.getHalfSizeX();
    const float extentY = 2.0f * m_sceneBox.getHalfSizeY();
    const float largest = std::max(extentX, extentY);
    const auto scale = [largest](float extent) { return extent > 0.0f ? largest / extent : 1.0f; };
    setAxisViewScales(scale(extentX), scale(extentY) * k);
}

} // namespace vxgraphics3d
