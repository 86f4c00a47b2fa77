#include "renderer/objects/ballboxshape.h"

#include "graphics3d/construction/scenegraphballbox.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace vxrenderer {

using vxgraphics3d::BoundingBox;
using vxgraphics3d::Vector3f;

namespace {

std::optional<Vector3f> pointOf(const std::vector<double>& coordinates)
{
    if (coordinates.size() < 3) {
        return std::nullopt;
    }
    const Vector3f point(coordinates[0], coordinates[1], coordinates[2]);
    return std::isfinite(point.lengthSquared()) ? std::optional(point) : std::nullopt;
}

} // namespace

BallBoxShape::BallBoxShape(const vxgraphics3d::SceneGraphBallBox& object)
{
    const auto radius = static_cast<float>(object.getRadius());
    const std::optional<Vector3f> center = pointOf(object.getBallCenter());
    if (center && radius > 0.0f && std::isfinite(radius)) {
        ball = {*center, radius};
    }
    const std::optional<Vector3f> a = pointOf(object.getBoxMin());
    const std::optional<Vector3f> b = pointOf(object.getBoxMax());
    if (a && b) {
        box = BoundingBox(std::min(a->x, b->x), std::max(a->x, b->x), std::min(a->y, b->y), std::max(a->y, b->y),
                          std::min(a->z, b->z), std::max(a->z, b->z));
    }
}

} // namespace vxrenderer
