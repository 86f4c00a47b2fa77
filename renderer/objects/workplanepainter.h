#pragma once

#include "renderer/objects/objectpainter.h"
#include "renderer/paint/scenelabel.h"

namespace vxgraphics3d {
class SceneGraphFeatureObject;
}

namespace vxrenderer {

/// Passes on the names of the axes of a work plane that is shown.
void visitLabels(const vxgraphics3d::SceneGraphFeatureObject& feature, const TakeLabel& take);

/// Draws work planes: the grid with its border, arrows along the axes, and the symbol of the operation. An extrusion is
/// a disc with an arrow to each height, a revolution its dashed axis with an arrow around it.
class WorkPlanePainter : public ObjectPainter {
public:
    bool draws(vxgraphics3d::SceneGraphObject::ObjectType type) const override;
    void draw(const ObjectItem& object, const PaintContext& context) const override;
};

} // namespace vxrenderer
