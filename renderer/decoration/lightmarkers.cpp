#include "renderer/decoration/lightmarkers.h"

#include "graphics3d/foundation/boundingbox.h"
#include "graphics3d/foundation/matrixf.h"
#include "graphics3d/lights/directionlightsource.h"
#include "graphics3d/lights/pointlightsource.h"
#include "graphics3d/lights/scenelight.h"
#include "graphics3d/lights/spotlightsource.h"
#include "graphics3d/viewing/icameratransforms.h"
#include "renderer/frame/lightplaces.h"

#include <cmath>
#include <numbers>

namespace vxrenderer {
namespace {

using namespace vxgraphics3d;

// All in units of the radius of the scene.
constexpr float c_starSize = 0.06f;
constexpr float c_coneLength = 0.4f;
constexpr float c_arrowStart = 1.5f;
constexpr float c_arrowLength = 0.4f;
constexpr float c_arrowHead = 0.08f;
/// An arrow comes nearer to the middle of the scene in these steps, and not nearer than this, to lie within the view.
constexpr float c_arrowStep = 0.05f;
constexpr float c_nearestArrowStart = 0.5f;
/// Part of the view from its middle to its borders that counts as in sight.
constexpr float c_visiblePart = 0.97f;
constexpr int c_coneSides = 24;
constexpr float c_degree = std::numbers::pi_v<float> / 180.0f;

/// Two unit vectors at right angles to a third and to each other.
struct Sides {
    Vector3f first;
    Vector3f second;

    explicit Sides(const Vector3f& axis) : first(axis.orthogonal()), second(axis.cross(first)) {}
};

void addStar(std::vector<LineSegment>& lines, const Vector3f& place, float size)
{
    for (const Vector3f& arm : {Vector3f(size, 0.0f, 0.0f), Vector3f(0.0f, size, 0.0f), Vector3f(0.0f, 0.0f, size),
                                Vector3f(size, size, size) * 0.577f, Vector3f(-size, size, size) * 0.577f,
                                Vector3f(size, -size, size) * 0.577f, Vector3f(size, size, -size) * 0.577f}) {
        lines.push_back({place - arm, place + arm});
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

/// How far from the middle of the scene the arrow of a direction light starts, in radii: outside the scene if the
/// view reaches that far.
float arrowStart(const Matrixf& projection, const Vector3f& center, const Vector3f& from, float radius)
{
    for (float start = c_arrowStart; start > c_nearestArrowStart; start -= c_arrowStep) {
        if (isInView(projection, center + from * (start * radius))) {
            return start;
        }
    }
    return c_nearestArrowStart;
}

void addArrow(std::vector<LineSegment>& lines, const Matrixf& projection, const Vector3f& center, const Vector3f& from,
              float radius)
{
    const float distance = arrowStart(projection, center, from, radius);
    const Vector3f start = center + from * (distance * radius);
    const Vector3f end = center + from * ((distance - c_arrowLength) * radius);
    const Sides sides(from);
    lines.push_back({start, end});
    for (const Vector3f& side : {sides.first, -sides.first, sides.second, -sides.second}) {
        lines.push_back({end, end + (from + side * 0.5f) * (c_arrowHead * radius)});
    }
}

void addCone(std::vector<LineSegment>& lines, const Vector3f& tip, const Vector3f& axis, float angle, float radius)
{
    const Sides sides(axis);
    const float length = c_coneLength * radius;
    const auto rim = [&](int side) {
        const float turn = 360.0f / c_coneSides * c_degree * static_cast<float>(side);
        const Vector3f out = sides.first * std::cos(turn) + sides.second * std::sin(turn);
        return tip + (axis * std::cos(0.5f * angle) + out * std::sin(0.5f * angle)) * length;
    };
    for (int side = 0; side < c_coneSides; ++side) {
        lines.push_back({rim(side), rim(side + 1)});
        if (side % (c_coneSides / 4) == 0) {
            lines.push_back({tip, rim(side)});
        }
    }
}

} // namespace

std::vector<LightMarker> lightMarkers(const SceneLight& light, const BoundingBox& box, const ICameraTransforms& camera)
{
    const LightPlaces eye(camera);
    const float size = camera.getViewBoundingBox(box).getHalfSize().length();
    const float radius = size > 0.0f ? size : 1.0f;
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
            addArrow(marker.lines, camera.getProjectionTransformRH(), eye.toEye(box.getCenter()), eye.direction(sun),
                     radius);
            break;
        }
        case LightSource::LightPoint: {
            const auto& lamp = static_cast<const PointLightSource&>(*source);
            addStar(marker.lines, eye.place(lamp, lamp.getPosition()), c_starSize * radius);
            break;
        }
        case LightSource::LightSpot: {
            const auto& spot = static_cast<const SpotLightSource&>(*source);
            const Vector3f place = eye.place(spot, spot.getPosition());
            addStar(marker.lines, place, c_starSize * radius);
            addCone(marker.lines, place, eye.aim(spot), spot.getSpreadAngle(), radius);
            break;
        }
        }
        markers.push_back(std::move(marker));
    }
    return markers;
}

} // namespace vxrenderer
