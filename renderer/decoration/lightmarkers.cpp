#include "renderer/decoration/lightmarkers.h"

#include "graphics3d/foundation/boundingbox.h"
#include "graphics3d/foundation/matrixf.h"
#include "graphics3d/lights/directionlightsource.h"
#include "graphics3d/lights/pointlightsource.h"
#include "graphics3d/lights/scenelight.h"
#include "graphics3d/lights/spotlightsource.h"
#include "graphics3d/viewing/icameratransforms.h"
#include "renderer/frame/lightplaces.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

namespace vxrenderer {
namespace {

using namespace vxgraphics3d;

// All in units of the radius of the scene.
constexpr float c_bulbRadius = 0.035f;
/// Where the rays of a bulb begin and end, in units of its radius.
constexpr float c_raysFrom = 1.5f;
constexpr float c_raysTo = 2.4f;
constexpr float c_footRadius = 0.03f;
constexpr float c_shortestCone = 0.4f;
constexpr float c_longestCone = 4.0f;
constexpr float c_arrowStart = 1.5f;
constexpr float c_arrowLength = 0.4f;
constexpr float c_arrowHead = 0.14f;
constexpr float c_arrowHeadRadius = 0.05f;
constexpr float c_arrowRadius = 0.018f;
/// The lines beside an arrow: their distance from it, and how near to the middle of the scene they go.
constexpr float c_beside = 0.12f;
constexpr float c_besideEnd = 0.0f;
/// An arrow comes nearer to the middle of the scene in these steps, and not nearer than this, to lie within the view.
constexpr float c_arrowStep = 0.05f;
constexpr float c_nearestArrowStart = 0.5f;
/// Part of the view from its middle to its borders that counts as in sight.
constexpr float c_visiblePart = 0.97f;
constexpr int c_circleSides = 48;
constexpr int c_coneLines = 8;
constexpr float c_degree = std::numbers::pi_v<float> / 180.0f;

/// Two unit vectors at right angles to a third and to each other.
struct Sides {
    Vector3f first;
    Vector3f second;

    explicit Sides(const Vector3f& axis) : first(axis.orthogonal()), second(axis.cross(first)) {}
};

/// The part of a turn of a circle of some sides, as a unit vector.
Vector3f turned(const Sides& sides, int side)
{
    const float turn = 360.0f / c_circleSides * c_degree * static_cast<float>(side % c_circleSides);
    return sides.first * std::cos(turn) + sides.second * std::sin(turn);
}

void addBulb(LightMarker& marker, const Vector3f& place, float radius)
{
    const float size = c_bulbRadius * radius;
    marker.solids.push_back({Solid::Shape::ball, place, place, size, marker.color});
}

void addRays(LightMarker& marker, const Vector3f& place, float radius)
{
    constexpr float c_third = 0.577f;
    for (const Vector3f& arm : {Vector3f(1.0f, 0.0f, 0.0f), Vector3f(0.0f, 1.0f, 0.0f), Vector3f(0.0f, 0.0f, 1.0f),
                                Vector3f(c_third, c_third, c_third), Vector3f(-c_third, c_third, c_third),
                                Vector3f(c_third, -c_third, c_third), Vector3f(c_third, c_third, -c_third)}) {
        const Vector3f from = arm * (c_raysFrom * c_bulbRadius * radius);
        const Vector3f to = arm * (c_raysTo * c_bulbRadius * radius);
        marker.lines.push_back({place + from, place + to});
        marker.lines.push_back({place - from, place - to});
    }
}

/// A line down to the bottom of the scene, with a ring around its foot.
void addFoot(LightMarker& marker, const Vector3f& place, const Vector3f& foot, const Sides& ground, float radius)
{
    const Vector3f down = (foot - place).normalized();
    marker.lines.push_back({place + down * (c_raysTo * c_bulbRadius * radius), foot});
    for (int side = 0; side < c_circleSides; ++side) {
        const auto at = [&](int corner) { return foot + turned(ground, corner) * (c_footRadius * radius); };
        marker.lines.push_back({at(side), at(side + 1)});
    }
}

/// Whether a point in coordinates of the eye is in sight.
bool isInView(const Matrixf& projection, const Vector3f& eye)
{
    const float w = projection.get(4, 3) * eye.z + projection.get(4, 4);
    const Vector3f clip = projection * eye;
    return w > 0.0f && std::abs(clip.x) <= c_visiblePart && std::abs(clip.y) <= c_visiblePart &&
           std::abs(clip.z) <= 1.0f;
}

/// From an arrow to the lines beside it, in units of the radius of the scene.
std::array<Vector3f, 4> besideArrow(const Vector3f& from)
{
    const Sides sides(from);
    return {sides.first * c_beside, sides.first * -c_beside, sides.second * c_beside, sides.second * -c_beside};
}

/// How far from the middle of the scene the arrow of a direction light starts with the lines beside it, in radii:
/// outside the scene if the view reaches that far.
float arrowStart(const Matrixf& projection, const Vector3f& center, const Vector3f& from, float radius)
{
    for (float start = c_arrowStart; start > c_nearestArrowStart; start -= c_arrowStep) {
        const auto isSeen = [&](const Vector3f& aside) {
            return isInView(projection, center + (from * start + aside) * radius);
        };
        if (std::ranges::all_of(besideArrow(from), isSeen)) {
            return start;
        }
    }
    return c_nearestArrowStart;
}

void addArrow(LightMarker& marker, const Matrixf& projection, const Vector3f& center, const Vector3f& from,
              float radius)
{
    const float distance = arrowStart(projection, center, from, radius);
    const auto at = [&](float where) { return center + from * (where * radius); };
    const Vector3f start = at(distance);
    const Vector3f neck = at(distance - c_arrowLength + c_arrowHead);
    const Vector3f tip = at(distance - c_arrowLength);
    addBulb(marker, start, radius);
    marker.solids.push_back({Solid::Shape::cylinder, start, neck, c_arrowRadius * radius, marker.color});
    marker.solids.push_back({Solid::Shape::cone, neck, tip, c_arrowHeadRadius * radius, marker.color});
    marker.lines.push_back({tip, at(c_besideEnd)});
    for (const Vector3f& aside : besideArrow(from)) {
        marker.lines.push_back({start + aside * radius, at(c_besideEnd) + aside * radius});
    }
}

/// @param bulb how far from the tip the lines begin
void addCone(LightMarker& marker, const Vector3f& tip, const Vector3f& axis, float angle, float length, float bulb)
{
    const Sides sides(axis);
    const auto rim = [&](int side) {
        return tip + (axis * std::cos(0.5f * angle) + turned(sides, side) * std::sin(0.5f * angle)) * length;
    };
    for (int side = 0; side < c_circleSides; ++side) {
        marker.lines.push_back({rim(side), rim(side + 1)});
    }
    for (int side = 0; side < c_circleSides; side += c_circleSides / c_coneLines) {
        marker.lines.push_back({tip + (rim(side) - tip) * (bulb / length), rim(side)});
    }
    marker.lines.push_back({tip + axis * bulb, tip + axis * length});
}

} // namespace

std::vector<LightMarker> lightMarkers(const SceneLight& light, const BoundingBox& box, const ICameraTransforms& camera)
{
    const LightPlaces eye(camera);
    const float size = camera.getViewBoundingBox(box).getHalfSize().length();
    const float radius = size > 0.0f ? size : 1.0f;
    const Vector3f center = eye.toEye(box.getCenter());
    std::vector<LightMarker> markers;
    for (const auto& [id, source] : light.getLightSources()) {
        if (!source->isMarkerVisible()) {
            continue;
        }
        LightMarker marker;
        marker.color = source->isActive() ? source->getColor() : Color::fromRgb(0x808080);
        marker.isSelected = source->isSelected();
        switch (source->getType()) {
        case LightSource::LightDirection: {
            const auto& sun = static_cast<const DirectionLightSource&>(*source);
            addArrow(marker, camera.getProjectionTransformRH(), center, eye.direction(sun), radius);
            break;
        }
        case LightSource::LightPoint: {
            const auto& lamp = static_cast<const PointLightSource&>(*source);
            const Vector3f place = eye.place(lamp, lamp.getPosition());
            addBulb(marker, place, radius);
            addRays(marker, place, radius);
            if (!lamp.isLockedToCamera() && box.isValid()) {
                Vector3f foot = lamp.getPosition();
                foot.z = box.getMin().z;
                const Vector3f up = camera.getRotationTransform() * Vector3f(0.0f, 0.0f, 1.0f);
                addFoot(marker, place, eye.toEye(foot), Sides(up), radius);
            }
            break;
        }
        case LightSource::LightSpot: {
            const auto& spot = static_cast<const SpotLightSource&>(*source);
            const Vector3f place = eye.place(spot, spot.getPosition());
            const Vector3f aim = eye.aim(spot);
            const float length = std::clamp(aim.dot(center - place), c_shortestCone * radius, c_longestCone * radius);
            addBulb(marker, place, radius);
            addCone(marker, place, aim, spot.getSpreadAngle(), length, c_raysFrom * c_bulbRadius * radius);
            break;
        }
        }
        markers.push_back(std::move(marker));
    }
    return markers;
}

} // namespace vxrenderer
