#include "renderer/objects/drawobjectpainter.h"

#include "graphics3d/geometry/scenegraphdrawobject.h"
#include "renderer/objects/partpainting.h"

namespace vxrenderer {

using namespace vxgraphics3d;

bool DrawObjectPainter::draws(SceneGraphObject::ObjectType type) const
{
    return type == SceneGraphObject::ObjectSolid || type == SceneGraphObject::ObjectFace ||
           type == SceneGraphObject::ObjectCurve || type == SceneGraphObject::ObjectPoint;
}

void DrawObjectPainter::draw(const ObjectItem& object, const PaintContext& context) const
{
    PartPainting(object, context).drawAll(static_cast<const SceneGraphDrawObject&>(*object).getParts());
}

} // namespace vxrenderer
