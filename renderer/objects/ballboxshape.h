#pragma once

#include "graphics3d/foundation/boundingbox.h"

#include <optional>

namespace vxgraphics3d {
class SceneGraphBallBox;
}

namespace vxrenderer {

/// What a ball and box object shows: a ball or box that is incomplete, not finite or has no size is left out.
struct BallBoxShape {
    struct Ball {
        vxgraphics3d::Vector3f center;
        float radius;
    };

    explicit BallBoxShape(const vxgraphics3d::SceneGraphBallBox& object);

    std::optional<Ball> ball;
    std::optional<vxgraphics3d::BoundingBox> box;
};

} // namespace vxrenderer
