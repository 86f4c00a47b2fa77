#pragma once

#include "renderer/objects/objectpainter.h"

namespace vxrenderer {

/// Draws balls and boxes, which are seen through, with the edges of the box and three circles around the ball.
class BallBoxPainter : public ObjectPainter {
public:
    bool draws(vxgraphics3d::SceneGraphObject::ObjectType type) const override;
    bool isTranslucent() const override { return true; }
    void draw(const ObjectItem& object, const PaintContext& context) const override;
};

} // namespace vxrenderer
