#pragma once

#include "renderer/objects/objectpainter.h"

namespace vxrenderer {

/// Draws probes: the point, and the dashed line with its ends and the mark at its fraction.
class ProbePainter : public ObjectPainter {
public:
    bool draws(vxgraphics3d::SceneGraphObject::ObjectType type) const override;
    void draw(const ObjectItem& object, const PaintContext& context) const override;
};

} // namespace vxrenderer
