#include "renderer/decoration/triad.h"

#include "graphics3d/foundation/matrixf.h"
#include "graphics3d/viewing/icameratransforms.h"

#include <algorithm>
#include <cmath>

namespace vxrenderer {
namespace {

using vxgraphics3d::Vector3f;

/// Length and half width of an arrow head, as parts of the length of an axis.
constexpr float c_headLength = 0.22f;
constexpr float c_headWidth = 0.09f;

} // namespace

Triad Triad::of(const vxgraphics3d::ICameraTransforms& camera, float originX, float originY, float length,
                float letterGap)
{
    const std::array<Vector3f, 3> units = {Vector3f(1.0f, 0.0f, 0.0f), Vector3f(0.0f, 1.0f, 0.0f),
                                           Vector3f(0.0f, 0.0f, 1.0f)};
    std::array<Vector3f, 3> turned;
    std::array<std::size_t, 3> order = {0, 1, 2};
    std::transform(units.begin(), units.end(), turned.begin(),
                   [&](const Vector3f& unit) { return camera.getRotationTransform() * unit; });
    std::stable_sort(order.begin(), order.end(),
                     [&](std::size_t a, std::size_t b) { return turned[a].z < turned[b].z; });

    Triad triad;
    for (std::size_t place = 0; place < order.size(); ++place) {
        Axis& axis = triad.axes[place];
        axis.index = order[place];
        const Vector3f& direction = turned[axis.index];
        const Vector3f origin(originX, originY, 0.0f);
        const auto at = [&](float along, float aside) {
            // Aside at right angles to the axis within the screen.
            return origin + Vector3f(length * (direction.x * along - direction.y * aside),
                                     -length * (direction.y * along + direction.x * aside), 0.0f);
        };
        const Vector3f tip = at(1.0f, 0.0f);
        axis.lines = {
            {origin, tip}, {at(1.0f - c_headLength, c_headWidth), tip}, {at(1.0f - c_headLength, -c_headWidth), tip}};
        const float reach = std::hypot(direction.x, direction.y);
        // An axis that points at the eye has its letter at the origin's upper right.
        const Vector3f aside =
            reach < 0.05f ? Vector3f(0.7f, -0.7f, 0.0f) : Vector3f(direction.x / reach, -direction.y / reach, 0.0f);
        axis.letterX = tip.x + letterGap * aside.x;
        axis.letterY = tip.y + letterGap * aside.y;
    }
    return triad;
}

} // namespace vxrenderer
