// Computes the matrices of the 3D camera and the values derived from them. Navigation is in camera3d.cpp.
#include "graphics3d/cameras/camera3d.h"
#include "graphics3d/cameras/viewarithmetic.h"
#include "graphics3d/foundation/errorlog.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace vxgraphics3d {

namespace {

/// A clipping plane moves only if it changes by more than this fraction of the clipping range.
constexpr float c_clippingThreshold = 0.1f;
/// The smallest near clipping distance, as a fraction of the radius that the planes enclose.
constexpr float c_smallestNearClip = 0.001f;

/// Whether the base view determines the size of the view.
constexpr bool isGoverned(Camera3d::ResizeBehaviour behaviour)
{
    using enum Canvas3dGlobalSettings::ResizeBehaviour;
    return behaviour == ResizeWidth || behaviour == ResizeHeight || behaviour == ResizeFill || behaviour == ResizeFit;
}

/// A rotated point, without the division by its w, which is 1.
Vector3f turned(const Matrixf& rotation, const Vector3f& p)
{
    const float* m = rotation.data();
    return {m[0] * p.x + m[4] * p.y + m[8] * p.z + m[12], m[1] * p.x + m[5] * p.y + m[9] * p.z + m[13],
            m[2] * p.x + m[6] * p.y + m[10] * p.z + m[14]};
}

/// A rotation followed by a translation.
Matrixf movedTo(const Matrixf& rotation, const Vector3f& t)
{
    const Matrixf& r = rotation;
    return {r.get(1, 1), r.get(1, 2), r.get(1, 3), t.x, //
            r.get(2, 1), r.get(2, 2), r.get(2, 3), t.y, //
            r.get(3, 1), r.get(3, 2), r.get(3, 3), t.z, //
            0.0f,        0.0f,        0.0f,        1.0f};
}

} // namespace

void Camera3d::setAxisViewScales(float x, float y, float z)
{
    m_axisViewScaleX = x;
    m_axisViewScaleY = y;
    m_axisViewScaleZ = z;
    if (x != 1.0f || y != 1.0f || z != 1.0f) {
        m_axisViewScaleTransform.initScale(x, y, z);
        m_invAxisViewScaleTransform.initScale(1.0f / x, 1.0f / y, 1.0f / z);
        m_hasAxisViewScale = true;
    } else {
        resetAxisViewScales();
    }
    m_scaledRotationPoint = m_rotationPoint.scaled(x, y, z);
}

float Camera3d::getFOV() const
{
    const ResizeBehaviour behaviour = resizeBehaviour();
    if (!isGoverned(behaviour)) {
        return 0.0f;
    }
    return widthGoverns(behaviour, m_verticalFov.tangent() / m_horizontalFov.tangent()) ? getHorizontalFOV()
                                                                                        : getVerticalFOV();
}

float Camera3d::getOrthographicSize() const
{
    const ResizeBehaviour behaviour = resizeBehaviour();
    if (behaviour == ResizeBehaviour::ResizePixels || behaviour == ResizeBehaviour::ResizeKeep) {
        return static_cast<float>(
            std::sqrt(static_cast<double>(m_orthographicHeight) * static_cast<double>(m_orthographicWidth)));
    }
    if (!isGoverned(behaviour)) {
        return 0.0f;
    }
    return widthGoverns(behaviour, static_cast<double>(m_orthographicHeight / m_orthographicWidth))
               ? m_orthographicWidth
               : m_orthographicHeight;
}

Vector3f Camera3d::screenToWorld(int x, int y, float z) const
{
    const Vector3f device(
        view::pixelDistance(m_renderArea.left, x) * 2.0f / static_cast<float>(m_renderArea.width) - 1.0f,
        view::pixelDistance(m_renderArea.bottom, y) * 2.0f / static_cast<float>(m_renderArea.height) - 1.0f, z);
    return device.transformed(m_invProjectionTransformRH).transformed(m_invAxisViewScaleTransform * m_invViewTransform);
}

Vector3f Camera3d::toPixels(const Vector3f& viewPoint, const Matrixf& projection) const
{
    const Vector3f device = viewPoint.transformed(projection);
    return {(device.x * 0.5f + 0.5f) * static_cast<float>(m_renderArea.width),
            (device.y * 0.5f + 0.5f) * static_cast<float>(m_renderArea.height), device.z};
}

Vector3f Camera3d::worldToScreen(const Vector3f& point, const Matrixf& projection) const
{
    const Vector3f scaled = m_hasAxisViewScale ? point.transformed(m_axisViewScaleTransform) : point;
    return toPixels(scaled.transformed(m_viewTransform), projection);
}

Vector3f Camera3d::worldToScreenRH(const Vector3f& point) const
{
    return worldToScreen(point, m_projectionTransformRH);
}

Vector3f Camera3d::worldToScreenLH(const Vector3f& point) const
{
    return worldToScreen(point, m_projectionTransformLH);
}

float Camera3d::worldToPixelScale(const Vector3f& point) const
{
    const Vector3f viewPoint = point.transformed(m_axisViewScaleTransform).transformed(m_viewTransform);
    const Vector3f step = Vector3f(1.0f, 1.0f, 0.0f).transformed(m_axisViewScaleTransform);
    return (toPixels(viewPoint + step, m_projectionTransformRH) - toPixels(viewPoint, m_projectionTransformRH))
        .length();
}

void Camera3d::setRenderArea(int canvasWidth, int canvasHeight, int left, int bottom, int width, int height)
{
    const RenderArea area = {canvasWidth, canvasHeight, left, bottom, width, height};
    if (!(area == m_renderArea)) {
        m_renderArea = area;
        logInfo("Setting renderarea to, w:%d, h:%d.", width, height);
        countChange();
    }
    calculatePerspective();
}

void Camera3d::setBoundingBox(const BoundingBox& box)
{
    m_sceneBoundingBox = box;
    if (!box.isValid()) {
        return;
    }
    const auto [x, y, z] = m_scaledRotationPoint;
    BoundingBox enclosed(x, x, y, y, z, z);
    enclosed.merge(getViewBoundingBox(box));
    const float distance = (enclosed.getCenter() - m_actualPosition).length();
    const float radius = enclosed.isZeroSize() ? 1.0f : 1.5f * enclosed.getBoundingRadius();
    const float nearClip = std::max(distance - radius, c_smallestNearClip * radius);
    const float farClip = distance + radius;

    const float threshold = c_clippingThreshold * (m_farClip - m_nearClip);
    const bool moves = std::abs(nearClip - m_nearClip) > threshold || std::abs(farClip - m_farClip) > threshold;
    if (moves && farClip != nearClip) {
        logInfo("Setting clippingplanes near: %f, far: %f", nearClip, farClip);
        m_nearClip = nearClip;
        m_farClip = farClip;
        calculatePerspective();
        countChange();
    }
}

BoundingBox Camera3d::getViewBoundingBox(const BoundingBox& box) const
{
    if (!box.isValid()) {
        return box;
    }
    const Vector3f min = box.getMin().scaled(m_axisViewScaleX, m_axisViewScaleY, m_axisViewScaleZ);
    const Vector3f max = box.getMax().scaled(m_axisViewScaleX, m_axisViewScaleY, m_axisViewScaleZ);
    return {min.x, max.x, min.y, max.y, min.z, max.z};
}

void Camera3d::jitterPerspective(float dx, float dy)
{
    const float jx = dx / static_cast<float>(m_renderArea.width) + m_relativeViewOffsetX;
    const float jy = dy / static_cast<float>(m_renderArea.height) + m_relativeViewOffsetY;
    shiftProjection(jx, jy);
}

void Camera3d::setAxisViewScalesAuto()
{
    if (!m_sceneBoundingBox.isValid()) {
        resetAxisViewScales();
        return;
    }
    const Vector3f extent = m_sceneBoundingBox.getHalfSize() * 2.0f;
    const float largest = std::max({extent.x, extent.y, extent.z});
    const auto scale = [largest](float e) { return e > 0.0f ? largest / e : 1.0f; };
    setAxisViewScales(scale(extent.x), scale(extent.y), scale(extent.z));
}

void Camera3d::resetAxisViewScales()
{
    m_axisViewScaleX = 1.0f;
    m_axisViewScaleY = 1.0f;
    m_axisViewScaleZ = 1.0f;
    m_hasAxisViewScale = false;
    m_axisViewScaleTransform.identity();
    m_invAxisViewScaleTransform.identity();
    m_scaledRotationPoint = m_rotationPoint;
}

/// The current resize behaviour.
Camera3d::ResizeBehaviour Camera3d::resizeBehaviour() const
{
    return m_overrideResizeBehaviour ? m_ownResizeBehaviour
                                     : Canvas3dGlobalSettings::getInstance()->getResizeBehaviour();
}

/// Whether the base width, rather than the base height, determines the size of the view.
/// @param baseRatio height over width of the base view
bool Camera3d::widthGoverns(ResizeBehaviour behaviour, double baseRatio) const
{
    const double areaRatio = static_cast<double>(renderAreaRatio());
    switch (behaviour) {
    case ResizeBehaviour::ResizeWidth:
        return true;
    case ResizeBehaviour::ResizeFill:
        return areaRatio < baseRatio;
    case ResizeBehaviour::ResizeFit:
        return !(areaRatio < baseRatio);
    default:
        return false;
    }
}

/// Height over width.
float Camera3d::renderAreaRatio() const
{
    return view::aspect(m_renderArea.height, m_renderArea.width);
}

void Camera3d::calculateViewRectangle()
{
    const float areaRatio = renderAreaRatio();
    const ResizeBehaviour behaviour = resizeBehaviour();
    if (behaviour == ResizeBehaviour::ResizePixels) {
        m_nearWidth = m_additionalScale * static_cast<float>(m_renderArea.width) / m_viewingScale;
        m_nearHeight = m_nearWidth * areaRatio;
    } else if (isGoverned(behaviour)) {
        // In perspective the base view is given by tangents, at twice the near distance to cover both halves.
        double width = static_cast<double>(m_orthographicWidth);
        double height = static_cast<double>(m_orthographicHeight);
        double baseRatio = static_cast<double>(m_orthographicHeight / m_orthographicWidth);
        double unit = 1.0;
        if (isPerspectiveProjection()) {
            width = m_horizontalFov.tangent();
            height = m_verticalFov.tangent();
            baseRatio = height / width;
            unit = 2.0 * static_cast<double>(m_nearClip);
        }
        const double scale = static_cast<double>(m_additionalScale);
        if (widthGoverns(behaviour, baseRatio)) {
            m_nearWidth = static_cast<float>(scale * width * unit);
            m_nearHeight = m_nearWidth * areaRatio;
        } else {
            m_nearHeight = static_cast<float>(scale * height * unit);
            m_nearWidth = m_nearHeight / areaRatio;
        }
    }
}

void Camera3d::calculatePerspective()
{
    calculateViewRectangle();
    const float n = m_nearClip;
    const float f = m_farClip;
    const float w = m_nearWidth;
    const float h = m_nearHeight;
    if (isOrthographicProjection()) {
        m_actualHorizontalFov = 0.0f;
        m_actualVerticalFov = 0.0f;
        m_projectionTransformRH.init(2.0f / w, 0.0f, 0.0f, 0.0f,                      //
                                     0.0f, 2.0f / h, 0.0f, 0.0f,                      //
                                     0.0f, 0.0f, -2.0f / (f - n), -(f + n) / (f - n), //
                                     0.0f, 0.0f, 0.0f, 1.0f);
        m_invProjectionTransformRH.init(w / 2.0f, 0.0f, 0.0f, 0.0f,                  //
                                        0.0f, h / 2.0f, 0.0f, 0.0f,                  //
                                        0.0f, 0.0f, -(f - n) / 2.0f, (f + n) / 2.0f, //
                                        0.0f, 0.0f, 0.0f, 1.0f);
        m_projectionTransformLH.init(2.0f / w, 0.0f, 0.0f, 0.0f,              //
                                     0.0f, 2.0f / h, 0.0f, 0.0f,              //
                                     0.0f, 0.0f, 1.0f / (n - f), n / (n - f), //
                                     0.0f, 0.0f, 0.0f, 1.0f);
    } else {
        m_actualHorizontalFov = view::halfAngle(w, n);
        m_actualVerticalFov = view::halfAngle(h, n);
        m_projectionTransformRH.init(2.0f * n / w, 0.0f, 0.0f, 0.0f,                          //
                                     0.0f, 2.0f * n / h, 0.0f, 0.0f,                          //
                                     0.0f, 0.0f, -(f + n) / (f - n), -2.0f * f * n / (f - n), //
                                     0.0f, 0.0f, -1.0f, 0.0f);
        m_invProjectionTransformRH.init(w / (2.0f * n), 0.0f, 0.0f, 0.0f, //
                                        0.0f, h / (2.0f * n), 0.0f, 0.0f, //
                                        0.0f, 0.0f, 0.0f, -1.0f,          //
                                        0.0f, 0.0f, -(f - n) / (2.0f * f * n), (n + f) / (2.0f * n * f));
        m_projectionTransformLH.init(2.0f * n / w, 0.0f, 0.0f, 0.0f,             //
                                     0.0f, 2.0f * n / h, 0.0f, 0.0f,             //
                                     0.0f, 0.0f, -f / (f - n), -f * n / (f - n), //
                                     0.0f, 0.0f, -1.0f, 0.0f);
    }
    shiftProjection(m_relativeViewOffsetX, m_relativeViewOffsetY);
}

/// Writes the entries of the projections that move the image, by a fraction of the render area.
void Camera3d::shiftProjection(float x, float y)
{
    // A shift applies after the division by depth, so in perspective its entry is the one that is multiplied by depth.
    const bool orthographic = isOrthographicProjection();
    const int column = orthographic ? 4 : 3;
    const float factor = orthographic ? 2.0f : -2.0f;
    for (Matrixf* projection : {&m_projectionTransformRH, &m_projectionTransformLH}) {
        projection->set(1, column, factor * x);
        projection->set(2, column, factor * y);
    }
    if (orthographic) {
        m_invProjectionTransformRH.set(1, 4, -x * m_nearWidth);
        m_invProjectionTransformRH.set(2, 4, -y * m_nearHeight);
    } else {
        m_invProjectionTransformRH.set(1, 4, -2.0f * x * m_nearWidth / (2.0f * m_nearClip));
        m_invProjectionTransformRH.set(2, 4, -2.0f * y * m_nearHeight / (2.0f * m_nearClip));
    }
}

/// Sets the displayed rotation from the orthonormal axes of the camera.
void Camera3d::calculateRotationMatrix(const Vector3f& right, const Vector3f& up, const Vector3f& forward)
{
    const Vector3f back = -forward;
    m_rotationTransform.init(right.x, right.y, right.z, 0.0f, //
                             up.x, up.y, up.z, 0.0f,          //
                             back.x, back.y, back.z, 0.0f,    //
                             0.0f, 0.0f, 0.0f, 1.0f);
    m_invRotationTransform.init(right.x, up.x, back.x, 0.0f, //
                                right.y, up.y, back.y, 0.0f, //
                                right.z, up.z, back.z, 0.0f, //
                                0.0f, 0.0f, 0.0f, 1.0f);
}

void Camera3d::calculateViewMatrix()
{
    const Vector3f t = -turned(m_rotationTransform, m_actualPosition);
    m_viewTransform = movedTo(m_rotationTransform, t);
    m_invViewTransform = movedTo(m_invRotationTransform, -turned(m_invRotationTransform, t));
}

/// Sorts the axes by the depth of their ends; axes at equal depth keep their order.
void Camera3d::calculateDepthOrder()
{
    const auto depth = [this](int axis) { return m_rotationTransform.get(3, axis + 1); };
    auto [a, b, c] = m_depthOrder;
    if (depth(a) > depth(b)) {
        std::swap(a, b);
    }
    if (depth(b) > depth(c)) {
        m_depthOrder = depth(a) > depth(c) ? std::array{c, a, b} : std::array{a, c, b};
    } else {
        m_depthOrder = {a, b, c};
    }
}

} // namespace vxgraphics3d
