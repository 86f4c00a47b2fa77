// Placement, settings and navigation of the 3D camera. The computation of its matrices is in camera3dtransforms.cpp.
#include "graphics3d/cameras/camera3d.h"

#include "graphics3d/cameras/viewarithmetic.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace vxgraphics3d {

namespace {

constexpr float c_pi = 3.1415927f;
constexpr float c_defaultFov = 20.0f;
/// The view is not magnified further below this fraction of the clipping range.
constexpr float c_smallestView = 1e-05f;

HalfAngle fromDegrees(float degrees)
{
    return HalfAngle(degrees * c_pi / 180.0f);
}

float toDegrees(float radians)
{
    return radians * 180.0f / c_pi;
}

/// The half angle of a view that is s times as large.
HalfAngle scaledAngle(const HalfAngle& angle, float s)
{
    return HalfAngle(static_cast<float>(std::atan(static_cast<double>(s) * angle.tangent())));
}

/// The extent of a view of a half angle at a distance.
float extentAt(float distance, const HalfAngle& angle)
{
    return static_cast<float>(2.0 * static_cast<double>(distance) * angle.tangent());
}

/// Successive rotations about axes through the origin, each multiplied on the right, stored as the images of the axes
/// of space: a whole matrix would add a zero translation and a division by 1 to every step.
class Turn {
public:
    Turn() = default;

    /// An angle of 0 changes nothing.
    void rotate(const Vector3f& axis, float angle)
    {
        if (angle == 0.0f) {
            return;
        }
        Matrixf rotation(Matrixf::MatrixUninitialized);
        rotation.initRotation(axis, angle);
        const float* m = rotation.data();
        const Vector3f x(m[0], m[1], m[2]);
        const Vector3f y(m[4], m[5], m[6]);
        const Vector3f z(m[8], m[9], m[10]);
        *this = m_turned ? Turn((*this)(x), (*this)(y), (*this)(z)) : Turn(x, y, z);
    }
    /// The rotated vector. The last summand turns a component of -0 into 0.
    Vector3f operator()(const Vector3f& v) const { return m_x * v.x + m_y * v.y + m_z * v.z + Vector3f(); }

private:
    Turn(const Vector3f& x, const Vector3f& y, const Vector3f& z) : m_x(x), m_y(y), m_z(z), m_turned(true) {}

    Vector3f m_x{1.0f, 0.0f, 0.0f};
    Vector3f m_y{0.0f, 1.0f, 0.0f};
    Vector3f m_z{0.0f, 0.0f, 1.0f};
    bool m_turned = false;
};

Vector3f row(const Matrixf& m, int i)
{
    return {m.get(i, 1), m.get(i, 2), m.get(i, 3)};
}

} // namespace

Camera3d::Camera3d() : m_horizontalFov(fromDegrees(c_defaultFov)), m_verticalFov(fromDegrees(c_defaultFov))
{
    calculatePerspective();
}

Camera3d::Camera3d(const Camera3d& other) : ChangeableSetting(other), ICameraTransforms(), ICameraActions()
{
    *this = other;
    calculatePerspective();
}

void Camera3d::import(const Camera3d& other)
{
    if (&other == this) {
        return;
    }
    ChangeableSetting::import(other);
    Camera3d taken(other);
    taken.m_renderArea = m_renderArea;
    taken.m_dollySpeedScale = m_dollySpeedScale;
    *this = taken;
    calculatePerspective();
    countChange();
}

void Camera3d::lookAt(const Vector3f& position, const Vector3f& direction, const Vector3f& upHint)
{
    // The arguments may be vectors of this camera.
    const float length = direction.length();
    const Vector3f forward = direction.normalized();
    const Vector3f right = forward.cross(upHint).normalized();
    m_position = position;
    m_forward = forward;
    m_right = right;
    m_up = right.cross(forward);
    calculateRotationMatrix(m_right, m_up, m_forward);
    m_actualPosition = m_position;
    calculateViewMatrix();
    calculateDepthOrder();
    m_lookAtLength = length;
    countChange();
}

void Camera3d::moveToBoundingBox(const BoundingBox& focus, const BoundingBox& scene, float expansion)
{
    const Canvas3dGlobalSettings& settings = *Canvas3dGlobalSettings::getInstance();
    const float margin = 1.0f + settings.getZoomToExtentMargin();

    const BoundingBox whole = getViewBoundingBox(scene);
    const float distance = whole.isZeroSize() ? 1.0f : whole.getBoundingRadius() * margin / 0.1f;
    m_dollySpeedScale = whole.getBoundingRadius();

    BoundingBox target = getViewBoundingBox(focus);
    const float border = target.getBoundingRadius() * expansion;
    target.expand(border, border, border);
    const float t = target.isZeroSize() ? 0.25f : target.getBoundingRadius() * margin / distance;

    if (isPerspectiveProjection()) {
        setFOV(toDegrees(static_cast<float>(std::atan(static_cast<double>(t)))));
    } else if (renderAreaRatio() < 1.0f) {
        setOrthographicHeight(2.0f * t * distance);
    } else {
        setOrthographicWidth(2.0f * t * distance);
    }
    lookAt(target.getCenter() - m_forward * distance, m_forward, m_up);

    if (settings.getZoomToExtentBehaviour() == Canvas3dGlobalSettings::ZoomToExtentTight) {
        fitTightly(target, margin);
    }
}

/// Moves and scales the view so that the corners of a box of the view fill the render area except for the margin.
void Camera3d::fitTightly(const BoundingBox& viewBox, float margin)
{
    float minX = 1.0f;
    float maxX = -1.0f;
    float minY = 1.0f;
    float maxY = -1.0f;
    for (int i = 0; i < 8; ++i) {
        const Vector3f corner = viewBox.getVertex(i).transformed(m_viewTransform).transformed(m_projectionTransformLH);
        minX = std::min(minX, corner.x);
        maxX = std::max(maxX, corner.x);
        minY = std::min(minY, corner.y);
        maxY = std::max(maxY, corner.y);
    }
    for (const auto& [min, max] : {std::pair(&minX, &maxX), std::pair(&minY, &maxY)}) {
        if (*min == *max) {
            *min -= 0.05f;
            *max += 0.05f;
        }
        *min *= margin;
        *max *= margin;
    }
    setAdditionalRelativeViewOffset(-(minX + maxX) * 0.25f, -(minY + maxY) * 0.25f);
    mergeAdditionalTransformation();
    setAdditionalScale(0.5f, 0.5f, std::max((maxX - minX) * 0.5f, (maxY - minY) * 0.5f));
    mergeAdditionalTransformation();
}

void Camera3d::setFOV(float degrees)
{
    m_horizontalFov = fromDegrees(degrees);
    m_verticalFov = m_horizontalFov;
    recalculateIn(ProjectionPerspective);
}

void Camera3d::setHorizontalFOV(float degrees)
{
    m_horizontalFov = fromDegrees(degrees);
    recalculateIn(ProjectionPerspective);
}

void Camera3d::setVerticalFOV(float degrees)
{
    m_verticalFov = fromDegrees(degrees);
    recalculateIn(ProjectionPerspective);
}

void Camera3d::setOrthographicSize(float size)
{
    m_orthographicWidth = size;
    m_orthographicHeight = size;
    recalculateIn(ProjectionOrthographic);
}

void Camera3d::setOrthographicWidth(float width)
{
    m_orthographicWidth = width;
    m_orthographicHeight = width / static_cast<float>(m_renderArea.width) * static_cast<float>(m_renderArea.height);
    recalculateIn(ProjectionOrthographic);
}

void Camera3d::setOrthographicHeight(float height)
{
    m_orthographicHeight = height;
    m_orthographicWidth = height / static_cast<float>(m_renderArea.height) * static_cast<float>(m_renderArea.width);
    recalculateIn(ProjectionOrthographic);
}

/// Counts a change of a value that is only visible in one projection.
void Camera3d::recalculateIn(ProjectionType type)
{
    if (m_projectionType == type) {
        calculatePerspective();
    }
    countChange();
}

void Camera3d::setViewingScale(float scale)
{
    m_viewingScale = scale;
    if (resizeBehaviour() == ResizeBehaviour::ResizePixels) {
        calculatePerspective();
    }
    countChange();
}

void Camera3d::setRelativeViewOffset(float x, float y)
{
    m_baseRelativeViewOffsetX = x;
    m_baseRelativeViewOffsetY = y;
    m_relativeViewOffsetX = x;
    m_relativeViewOffsetY = y;
    calculatePerspective();
    countChange();
}

void Camera3d::setProjectionType(ProjectionType type)
{
    if (type != m_projectionType) {
        const float distance = (m_scaledRotationPoint - m_actualPosition).length();
        if (type == ProjectionPerspective) {
            m_horizontalFov = HalfAngle(view::halfAngle(m_orthographicWidth, distance));
            m_verticalFov = HalfAngle(view::halfAngle(m_orthographicHeight, distance));
            m_viewingScale *= distance / m_nearClip;
        } else {
            m_orthographicWidth = extentAt(distance, m_horizontalFov);
            m_orthographicHeight = extentAt(distance, m_verticalFov);
            m_viewingScale *= m_nearClip / distance;
        }
        m_projectionType = type;
    }
    calculatePerspective();
    countChange();
}

void Camera3d::setRotationPoint(const Vector3f& point)
{
    m_rotationPoint = point;
    m_scaledRotationPoint = point.scaled(m_axisViewScaleX, m_axisViewScaleY, m_axisViewScaleZ);
}

void Camera3d::setOverrideResizeBehaviour(bool overrideGlobal, ResizeBehaviour behaviour)
{
    m_overrideResizeBehaviour = overrideGlobal;
    m_ownResizeBehaviour = behaviour;
}

float Camera3d::getHorizontalFOV() const
{
    return toDegrees(m_horizontalFov.radians());
}

float Camera3d::getVerticalFOV() const
{
    return toDegrees(m_verticalFov.radians());
}

Vector3f Camera3d::getLookAtDirection() const
{
    return -row(m_rotationTransform, 3);
}

Vector3f Camera3d::getUpDirection() const
{
    return row(m_rotationTransform, 2);
}

float Camera3d::getPanSpeed() const
{
    const float pixel = m_nearWidth / static_cast<float>(m_renderArea.width);
    return isOrthographicProjection() ? pixel : pixel * distanceToRotationPoint() / m_nearClip;
}

void Camera3d::setAdditionalSceneRotation(float a, float b, float c)
{
    const Vector3f toPoint = m_scaledRotationPoint - m_position;
    const Vector3f sight = toPoint.normalized();
    const Vector3f horizontal = sight.cross(m_up);
    Turn turn;
    turn.rotate(horizontal.cross(sight), b);
    turn.rotate(horizontal, a);
    turn.rotate(sight, c);
    calculateRotationMatrix(turn(m_right), turn(m_up), turn(m_forward));
    m_actualPosition = m_scaledRotationPoint - turn(toPoint);
    calculateViewMatrix();
    calculateDepthOrder();
    countChange();
}

void Camera3d::setAdditionalRotation(float a, float b, float c)
{
    Turn turn;
    turn.rotate(m_up, b);
    turn.rotate(m_right, a);
    turn.rotate(m_forward, c);
    calculateRotationMatrix(turn(m_right), turn(m_up), turn(m_forward));
    calculateViewMatrix();
    calculateDepthOrder();
    countChange();
}

void Camera3d::setAdditionalSceneTranslation(float a, float b, float c)
{
    const Vector3f toPoint = m_scaledRotationPoint - m_position;
    Vector3f step;
    if (c != 0.0f) {
        step += toPoint.normalized() * c;
    }
    if (a != 0.0f || b != 0.0f) {
        const Vector3f horizontal = toPoint.cross(m_up);
        if (a != 0.0f) {
            step += horizontal.normalized() * a;
        }
        if (b != 0.0f) {
            step += horizontal.cross(toPoint).normalized() * b;
        }
    }
    m_actualPosition = m_position + step;
    calculateViewMatrix();
    countChange();
}

void Camera3d::setAdditionalTranslation(float a, float b, float c)
{
    m_actualPosition = m_position + a * m_right + b * m_up + c * m_forward;
    calculateViewMatrix();
    countChange();
}

void Camera3d::setAdditionalScale(float cx, float cy, float s)
{
    if (s < 1.0f) {
        const double smallest = static_cast<double>((m_farClip - m_nearClip) * c_smallestView);
        const double extent = isOrthographicProjection()
                                  ? static_cast<double>(m_nearWidth)
                                  : view::tangent(std::min(m_actualHorizontalFov, m_actualVerticalFov)) *
                                        static_cast<double>(distanceToRotationPoint());
        if (extent < smallest) {
            return;
        }
    }
    const float k = 1.0f - 1.0f / s;
    m_relativeViewOffsetX = ((cx - 0.5f) - m_baseRelativeViewOffsetX) * k + m_baseRelativeViewOffsetX;
    m_relativeViewOffsetY = ((cy - 0.5f) - m_baseRelativeViewOffsetY) * k + m_baseRelativeViewOffsetY;
    m_additionalScale = s;
    calculatePerspective();
    countChange();
}

void Camera3d::setAdditionalScale(float cx, float cy, float sx, float sy)
{
    setAdditionalScale(cx, cy, std::max(sx, sy));
}

void Camera3d::setAdditionalRelativeViewOffset(float x, float y)
{
    m_relativeViewOffsetX = m_baseRelativeViewOffsetX + x;
    m_relativeViewOffsetY = m_baseRelativeViewOffsetY + y;
    calculatePerspective();
    countChange();
}

void Camera3d::mergeAdditionalTransformation()
{
    m_right = row(m_rotationTransform, 1);
    m_up = row(m_rotationTransform, 2);
    m_forward = -row(m_rotationTransform, 3);
    m_position = m_actualPosition;
    m_orthographicWidth *= m_additionalScale;
    m_orthographicHeight *= m_additionalScale;
    m_horizontalFov = scaledAngle(m_horizontalFov, m_additionalScale);
    m_verticalFov = scaledAngle(m_verticalFov, m_additionalScale);
    m_baseRelativeViewOffsetX = m_relativeViewOffsetX;
    m_baseRelativeViewOffsetY = m_relativeViewOffsetY;
    m_additionalScale = 1.0f;
    countChange();
}

void Camera3d::discardAdditionalTransformation()
{
    calculateRotationMatrix(m_right, m_up, m_forward);
    m_actualPosition = m_position;
    m_additionalScale = 1.0f;
    m_relativeViewOffsetX = m_baseRelativeViewOffsetX;
    m_relativeViewOffsetY = m_baseRelativeViewOffsetY;
    calculateViewMatrix();
    calculatePerspective();
    countChange();
}

float Camera3d::distanceToRotationPoint() const
{
    return (m_scaledRotationPoint - m_position).length();
}

} // namespace vxgraphics3d
