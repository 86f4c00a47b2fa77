#include "renderer/decoration/triad.h"

#include "graphics3d/foundation/matrixf.h"
#include "graphics3d/viewing/icameratransforms.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace vxrenderer {
namespace {

using vxgraphics3d::Color;
using vxgraphics3d::Vector3f;

constexpr Color c_ballColor = {150, 150, 150, 255};
/// An axis that is seen shorter than this part of its length points at the viewer, or away.
constexpr float c_shortest = 0.05f;
/// Letters are tried in these steps around the tip of an axis, first the least turned ones, and ever farther out.
constexpr int c_angles = 12;
constexpr int c_distances = 24;

struct Rect {
    Triad::Position middle;
    float halfWidth;
    float halfHeight;

    float distanceTo(float x, float y) const
    {
        return std::hypot(std::max(std::abs(x - middle.x) - halfWidth, 0.0f),
                          std::max(std::abs(y - middle.y) - halfHeight, 0.0f));
    }

    bool touches(const Rect& other) const
    {
        return std::abs(middle.x - other.middle.x) < halfWidth + other.halfWidth &&
               std::abs(middle.y - other.middle.y) < halfHeight + other.halfHeight;
    }

    /// Whether a line from the origin comes closer than a distance. The line is taken at points that are less than half
    /// of that apart.
    bool touchesLine(float x, float y, float distance) const
    {
        const int steps = 1 + static_cast<int>(2.0f * std::hypot(x, y) / std::max(distance, 0.5f));
        for (int i = 0; i <= steps; ++i) {
            const float part = static_cast<float>(i) / static_cast<float>(steps);
            if (distanceTo(part * x, part * y) < distance) {
                return true;
            }
        }
        return false;
    }
};

} // namespace

Triad::Triad(const vxgraphics3d::ICameraTransforms& camera, const Sizes& ofArrows)
    : sizes(ofArrows),
      directions{camera.getRotationTransform() * Vector3f(1.0f, 0.0f, 0.0f),
                 camera.getRotationTransform() * Vector3f(0.0f, 1.0f, 0.0f),
                 camera.getRotationTransform() * Vector3f(0.0f, 0.0f, 1.0f)}
{}

std::vector<Solid> Triad::solids(const std::array<Color, 3>& colors) const
{
    std::array<std::size_t, 3> order = {0, 1, 2};
    std::ranges::stable_sort(order, {}, [&](std::size_t axis) { return directions[axis].z; });
    std::vector<Solid> solids;
    const Vector3f origin(0.0f, 0.0f, 0.0f);
    const Solid ball = {Solid::Shape::ball, origin, origin, 1.4f * sizes.shaftRadius, c_ballColor};
    bool hasBall = false;
    for (const std::size_t axis : order) {
        const Vector3f& direction = directions[axis];
        const Vector3f neck = direction * (sizes.length - sizes.headLength);
        const Solid shaft = {Solid::Shape::cylinder, origin, neck, sizes.shaftRadius, colors[axis]};
        const Solid head = {Solid::Shape::cone, neck, direction * sizes.length, sizes.headRadius, colors[axis]};
        if (direction.z < 0.0f) {
            solids.insert(solids.end(), {head, shaft});
            continue;
        }
        if (!hasBall) {
            solids.push_back(ball);
            hasBall = true;
        }
        solids.insert(solids.end(), {shaft, head});
    }
    if (!hasBall) {
        solids.push_back(ball);
    }
    return solids;
}

std::array<Triad::Position, 3> Triad::placeLetters(const std::array<Letter, 3>& letters, float gap) const
{
    const auto reachOf = [&](std::size_t axis) { return std::hypot(directions[axis].x, directions[axis].y); };
    const auto tipOf = [&](std::size_t axis) {
        return Position{sizes.length * directions[axis].x, sizes.length * directions[axis].y};
    };
    // The longest axis first: its letter has to be at its tip, while others may move about the origin.
    std::array<std::size_t, 3> order = {0, 1, 2};
    std::ranges::stable_sort(order, std::ranges::greater(), reachOf);
    std::array<Position, 3> positions{};
    std::vector<Rect> taken;
    const auto isFree = [&](const Rect& rect) {
        return std::ranges::none_of(taken, [&](const Rect& other) { return rect.touches(other); }) &&
               std::ranges::none_of(order, [&](std::size_t axis) {
                   return rect.touchesLine(tipOf(axis).x, tipOf(axis).y, std::max(sizes.headRadius, gap));
               });
    };
    const auto place = [&](std::size_t axis) {
        const Letter& letter = letters[axis];
        const Position tip = tipOf(axis);
        const float reach = reachOf(axis);
        const float start =
            reach < c_shortest ? 0.25f * std::numbers::pi_v<float> : std::atan2(directions[axis].y, directions[axis].x);
        const float step = std::max(0.25f * std::min(letter.width, letter.height), 1.0f);
        for (int distance = 1; distance <= c_distances; ++distance) {
            for (int turn = 0; turn < 2 * c_angles; ++turn) {
                // 0, 1, -1, 2, -2, ...
                const auto turns = static_cast<float>(turn % 2 == 0 ? -turn / 2 : turn / 2 + 1);
                const float angle = start + turns * std::numbers::pi_v<float> / c_angles;
                const float out = gap + step * static_cast<float>(distance);
                const Rect rect = {{tip.x + out * std::cos(angle), tip.y + out * std::sin(angle)},
                                   0.5f * letter.width,
                                   0.5f * letter.height};
                if (isFree(rect)) {
                    taken.push_back(rect);
                    return rect.middle;
                }
            }
        }
        return tip;
    };
    for (const std::size_t axis : order) {
        positions[axis] = place(axis);
    }
    return positions;
}

} // namespace vxrenderer
