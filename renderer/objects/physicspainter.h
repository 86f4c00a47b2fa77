#pragma once

#include "renderer/objects/objectpainter.h"

namespace vxrenderer {

/// Draws the geometry of simulation models, with meshes, materials, markers and connectors.
class PhysicsPainter : public ObjectPainter {
public:
    bool draws(vxgraphics3d::SceneGraphObject::ObjectType type) const override;
    void draw(const ObjectItem& object, const PaintContext& context) const override;
};

} // namespace vxrenderer
