#include "interaction/cameradrag.h"

#include "graphics3d/viewing/icameraactions.h"
#include "graphics3d/viewing/icameratransforms.h"
#include "interaction/zoomfactor.h"

#include <cmath>
#include <utility>

namespace vxinteraction {

using vxgraphics3d::Canvas3dGlobalSettings;
using vxgraphics3d::ICameraActions;
using vxgraphics3d::ICameraTransforms;
using vxgraphics3d::Matrixf;
using vxgraphics3d::Vector3f;

CameraDrag::CameraDrag(boost::shared_ptr<ICameraActions> camera, const ICameraTransforms& transforms, Action action,
                       const AreaPoint& start)
    : m_camera(std::move(camera)),
      m_action(action),
      m_start(start),
      m_areaWidth(static_cast<float>(m_camera->getRenderAreaWidth())),
      m_areaHeight(static_cast<float>(m_camera->getRenderAreaHeight()))
{
    const Canvas3dGlobalSettings& settings = *Canvas3dGlobalSettings::getInstance();
    m_orbitSpeed = settings.getCameraMouseOrbitSpeed();
    m_dollySpeed = settings.getCameraMouseDollySpeed() * m_camera->getDollySpeedScale();
    m_zoomSpeed = settings.getCameraMouseZoomSpeed();
    takeView(transforms);
}

void CameraDrag::takeView(const ICameraTransforms& transforms)
{
    const Matrixf& projection = transforms.getProjectionTransformRH();
    m_isPerspective = projection.get(4, 4) == 0.0f;
    m_pixelWidth = 2.0f / (projection.get(1, 1) * m_areaWidth);
    m_pixelHeight = 2.0f / (projection.get(2, 2) * m_areaHeight);
    m_rotationPoint = transforms.getRotationPoint()
                          .transformed(transforms.getAxisViewScaleTransform())
                          .transformed(transforms.getViewTransform());

    // The centre of a roll in the picture: the point straight ahead for a roll of the camera, the rotation point for a
    // roll of the scene.
    const Vector3f axis = m_action == Action::ActionRoll ? Vector3f(0.0f, 0.0f, -1.0f) : m_rotationPoint;
    const Vector3f device = axis.transformed(projection);
    m_rollCentre = {(device.x * 0.5f + 0.5f) * m_areaWidth, (device.y * 0.5f + 0.5f) * m_areaHeight};
}

bool CameraDrag::moveTo(float dx, float dy)
{
    if (!m_hasMoved && dx == 0.0f && dy == 0.0f) {
        return false;
    }
    switch (m_action) {
    case Action::ActionOrbit:
        // The camera orbits against the pointer, so that the near side of the scene follows it.
        return apply(&ICameraActions::setAdditionalSceneRotation, m_orbitSpeed * dy, -m_orbitSpeed * dx, 0.0f);
    case Action::ActionTurn:
        return turnTo(dx, dy);
    case Action::ActionOrbitRoll:
    case Action::ActionRoll:
        return rollTo(dx, dy);
    case Action::ActionSceneMove:
    case Action::ActionMove:
        return shiftTo(dx, dy);
    case Action::ActionSceneDolly:
        return apply(&ICameraActions::setAdditionalSceneTranslation, 0.0f, 0.0f, m_dollySpeed * dy);
    case Action::ActionDolly:
        return apply(&ICameraActions::setAdditionalTranslation, 0.0f, 0.0f, m_dollySpeed * dy);
    case Action::ActionPan:
        return apply(&ICameraActions::setAdditionalRelativeViewOffset, dx / m_areaWidth, dy / m_areaHeight);
    case Action::ActionZoom:
        return zoomTo(dy);
    default:
        return false;
    }
}

/// Turns the camera so that the point straight ahead follows the pointer.
bool CameraDrag::turnTo(float dx, float dy)
{
    const float distance = m_isPerspective ? 1.0f : m_rotationPoint.length();
    const float x = dx * m_pixelWidth / distance;
    const float y = dy * m_pixelHeight / distance;
    // The camera turns to the side and then pitches by the angle of y. In the pitched direction the picture plane is at
    // the distance sqrt(1 + y y), where the turn has to cover x.
    return apply(&ICameraActions::setAdditionalRotation, -std::atan(y), std::atan(x / std::hypot(1.0f, y)), 0.0f);
}

/// Rotates the picture by the angle that the pointer moves about the centre of the roll.
bool CameraDrag::rollTo(float dx, float dy)
{
    const float x = m_start.x - m_rollCentre.x;
    const float y = m_start.y - m_rollCentre.y;
    const float before = std::atan2(y, x);
    const float now = std::atan2(y + dy, x + dx);
    if (m_action == Action::ActionRoll) {
        return apply(&ICameraActions::setAdditionalRotation, 0.0f, 0.0f, now - before);
    }
    // The scene turns about the line from the eye to the rotation point. If that is behind the eye, so does the line.
    const float angle = m_rotationPoint.z < 0.0f ? now - before : before - now;
    return apply(&ICameraActions::setAdditionalSceneRotation, 0.0f, 0.0f, angle);
}

/// Moves the camera sideways so that a point at the rotation point follows the pointer.
bool CameraDrag::shiftTo(float dx, float dy)
{
    const bool isSceneMove = m_action == Action::ActionSceneMove;
    // The directions of the movement in the coordinates of the eye.
    Vector3f right(1.0f, 0.0f, 0.0f);
    Vector3f up(0.0f, 1.0f, 0.0f);
    if (isSceneMove) {
        right = m_rotationPoint.cross(up).normalized();
        up = right.cross(m_rotationPoint).normalized();
    }

    // In perspective the position of a point in the picture is its x and y divided by its depth. A point behind the eye
    // has no position there, so a point straight ahead at the same distance is used instead.
    double depth = 1.0;
    double placeX = 0.0;
    double placeY = 0.0;
    const double shiftX = static_cast<double>(dx) * static_cast<double>(m_pixelWidth);
    const double shiftY = static_cast<double>(dy) * static_cast<double>(m_pixelHeight);
    if (m_isPerspective) {
        const bool isAhead = m_rotationPoint.z < 0.0f;
        const Vector3f point = isAhead ? m_rotationPoint : Vector3f(0.0f, 0.0f, -m_rotationPoint.length());
        depth = -static_cast<double>(point.z);
        placeX = static_cast<double>(point.x) / depth + shiftX;
        placeY = static_cast<double>(point.y) / depth + shiftY;
    }
    const auto seen = [](float sideways, float backwards, double place) {
        return static_cast<double>(sideways) + place * static_cast<double>(backwards);
    };
    // With a and b the steps to the right and up, the point moves to its new position where
    //     a rightX + b upX = -shiftX depth,    a rightY + b upY = -shiftY depth.
    const double rightX = seen(right.x, right.z, placeX);
    const double upX = seen(up.x, up.z, placeX);
    const double rightY = seen(right.y, right.z, placeY);
    const double upY = seen(up.y, up.z, placeY);
    const double factor = -depth / (rightX * upY - upX * rightY);
    const auto a = static_cast<float>((shiftX * upY - shiftY * upX) * factor);
    const auto b = static_cast<float>((shiftY * rightX - shiftX * rightY) * factor);
    return apply(isSceneMove ? &ICameraActions::setAdditionalSceneTranslation
                             : &ICameraActions::setAdditionalTranslation,
                 a, b, 0.0f);
}

bool CameraDrag::zoomTo(float dy)
{
    const float factor = zoomFactor(-dy, m_zoomSpeed);
    if (!isZoomFactor(factor)) {
        return false;
    }
    // The camera refuses to magnify a view that is already very small. The request starts from the initial view, so the
    // answer does not depend on the earlier positions of the pointer.
    discard();
    m_camera->setAdditionalScale(m_start.x / m_areaWidth, m_start.y / m_areaHeight, factor);
    m_hasMoved = true;
    return true;
}

/// Gives the camera its additional transformation.
template <class... Floats>
bool CameraDrag::apply(void (ICameraActions::*call)(Floats...), Floats... arguments)
{
    if (!(std::isfinite(arguments) && ...)) {
        return false;
    }
    (*m_camera.*call)(arguments...);
    m_hasMoved = true;
    return true;
}

void CameraDrag::merge()
{
    if (m_hasMoved) {
        m_camera->mergeAdditionalTransformation();
    }
}

bool CameraDrag::discard()
{
    if (m_hasMoved) {
        m_camera->discardAdditionalTransformation();
    }
    return m_hasMoved;
}

} // namespace vxinteraction
