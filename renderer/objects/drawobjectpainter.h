#pragma once

#include "renderer/objects/objectpainter.h"

namespace vxrenderer {

/// Draws solids, faces, curves and points of drawing geometry.
class DrawObjectPainter : public ObjectPainter {
public:
    bool draws(vxgraphics3d::SceneGraphObject::ObjectType type) const override;
    void draw(const ObjectItem& object, const PaintContext& context) const override;
};

} // namespace vxrenderer
