#pragma once

#include "renderer/objects/objectpainter.h"

namespace vxrenderer {

/// Draws projected geometry: the first class as parts with a primary mark, the second as parts with a secondary mark.
class ProjectionPainter : public ObjectPainter {
public:
    bool draws(vxgraphics3d::SceneGraphObject::ObjectType type) const override;
    void draw(const ObjectItem& object, const PaintContext& context) const override;
};

} // namespace vxrenderer
