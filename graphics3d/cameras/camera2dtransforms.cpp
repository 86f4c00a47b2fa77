// Computes the matrices of the 2D camera and the values derived from them. Limits and navigation are in camera2d.cpp.
#include "graphics3d/cameras/camera2d.h"
#include "graphics3d/cameras/viewarithmetic.h"

#include <algorithm>

namespace vxgraphics3d {

namespace {

/// The limits after an uncommitted zoom and a shift by a fraction of the view size.
void displayedRange(float min, float max, float scale, float shift, float& displayedMin, float& displayedMax)
{
    const float a = min * scale;
    const float b = max * scale;
    const float s = (b - a) * shift;
    displayedMin = a - s;
    displayedMax = b - s;
}

} // namespace

BoundingBox Camera2d::getViewBoundingBox(const BoundingBox& box) const
{
    if (!box.isValid()) {
        return box;
    }
    const Vector3f min = box.getMin();
    const Vector3f max = box.getMax();
    return {min.x, max.x, min.y, max.y, 0.0f, 0.0f};
}

const Matrixf& Camera2d::getAxisViewScaleTransform() const
{
    static const Matrixf transform(Matrixf::MatrixIdentity);
    return transform;
}

const Matrixf& Camera2d::getInvAxisViewScaleTransform() const
{
    static const Matrixf transform(Matrixf::MatrixIdentity);
    return transform;
}

Vector3f Camera2d::screenToWorld(int x, int y, float z) const
{
    return {(m_actualMaxX - m_actualMinX) * view::pixelDistance(m_renderArea.left, x) /
                    static_cast<float>(m_renderArea.width) +
                m_actualMinX,
            (m_actualMaxY - m_actualMinY) * view::pixelDistance(m_renderArea.bottom, y) /
                    static_cast<float>(m_renderArea.height) +
                m_actualMinY,
            -z};
}

Vector3f Camera2d::worldToScreen(const Vector3f& point, const Matrixf& projection) const
{
    const Vector3f device = point.transformed(m_viewTransform).transformed(projection);
    return {(device.x * 0.5f + 0.5f) * static_cast<float>(m_renderArea.width) + static_cast<float>(m_renderArea.left),
            (device.y * 0.5f + 0.5f) * static_cast<float>(m_renderArea.height) +
                static_cast<float>(m_renderArea.bottom),
            device.z};
}

Vector3f Camera2d::worldToScreenRH(const Vector3f& point) const
{
    return worldToScreen(point, m_projectionTransformRH);
}

Vector3f Camera2d::worldToScreenLH(const Vector3f& point) const
{
    return worldToScreen(point, m_projectionTransformLH);
}

void Camera2d::jitterPerspective(float dx, float dy)
{
    shiftProjection(2.0f * dx / static_cast<float>(m_renderArea.width),
                    2.0f * dy / static_cast<float>(m_renderArea.height));
}

float Camera2d::worldToPixelScale(const Vector3f&) const
{
    return std::min(static_cast<float>(getRenderAreaWidth()) / (m_actualMaxX - m_actualMinX),
                    static_cast<float>(getRenderAreaHeight()) / (m_actualMaxY - m_actualMinY));
}

float Camera2d::getPanSpeed() const
{
    return (m_viewMaxX - m_viewMinX) / static_cast<float>(m_renderArea.width);
}

void Camera2d::calculateDisplayedLimits()
{
    if (m_cameraMode == ModePolar) {
        m_actualPolarMin = m_polarMin;
        m_actualPolarMax = std::max(m_polarMin + (m_polarMax - m_polarMin) * m_additionalScaleY, m_polarMin);
        m_actualPolarRadius = m_actualPolarMax - m_polarMin;
        m_actualMinX = m_actualMinY = -m_actualPolarRadius;
        m_actualMaxX = m_actualMaxY = m_actualPolarRadius;
        return;
    }
    displayedRange(m_viewMinX, m_viewMaxX, m_additionalScaleX, m_offsetX + m_scaleCentreX, m_actualMinX, m_actualMaxX);
    if (m_cameraMode == ModeOneDimensional) {
        m_actualMinY = -1.0f;
        m_actualMaxY = 1.0f;
    } else {
        displayedRange(m_viewMinY, m_viewMaxY, m_additionalScaleY, m_offsetY + m_scaleCentreY, m_actualMinY,
                       m_actualMaxY);
    }
}

void Camera2d::calculatePerspective()
{
    calculateDisplayedLimits();
    const float width = m_actualMaxX - m_actualMinX;
    const float height = m_actualMaxY - m_actualMinY;
    m_projectionTransformRH.initScale(2.0f / width, 2.0f / height, -1.0f);
    m_projectionTransformLH.initScale(2.0f / width, 2.0f / height, -0.5f);
    m_projectionTransformLH.set(3, 4, 0.5f);
    m_invProjectionTransformRH.initScale(width / 2.0f, height / 2.0f, -1.0f);
    shiftProjection(0.0f, 0.0f);
}

/// Writes the entries of the projections that centre the displayed limits, moved in normalised device coordinates.
void Camera2d::shiftProjection(float x, float y)
{
    const float width = m_actualMaxX - m_actualMinX;
    const float height = m_actualMaxY - m_actualMinY;
    const float shiftX = x - (m_actualMinX + m_actualMaxX) / width;
    const float shiftY = y - (m_actualMinY + m_actualMaxY) / height;
    for (Matrixf* projection : {&m_projectionTransformRH, &m_projectionTransformLH}) {
        projection->set(1, 4, shiftX);
        projection->set(2, 4, shiftY);
    }
    m_invProjectionTransformRH.set(1, 4, -0.5f * shiftX * width);
    m_invProjectionTransformRH.set(2, 4, -0.5f * shiftY * height);
}

/// The position moves the view; a 2D camera's position is always the origin.
void Camera2d::calculateViewMatrix()
{
    m_viewTransform.identity();
    m_viewTransform.translateNeg(m_actualPosition);
    m_invViewTransform.initTranslation(m_actualPosition.x, m_actualPosition.y, m_actualPosition.z);
}

} // namespace vxgraphics3d
