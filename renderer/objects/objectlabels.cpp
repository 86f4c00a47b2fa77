#include "renderer/objects/objectlabels.h"

#include "graphics3d/construction/scenegraphfeatureobject.h"
#include "graphics3d/geometry/scenegraphdrawobject.h"
#include "graphics3d/geometry/scenegraphphysicsobject.h"
#include "renderer/objects/partpainting.h"
#include "renderer/objects/workplanepainter.h"

namespace vxrenderer {

using namespace vxgraphics3d;

void visitObjectLabels(const SceneGraphObject& object, const MarkingModeSetup& markings, const TakeLabel& take)
{
    switch (object.getObjectType()) {
    case SceneGraphObject::ObjectSolid:
    case SceneGraphObject::ObjectFace:
    case SceneGraphObject::ObjectCurve:
    case SceneGraphObject::ObjectPoint:
        visitLabels(static_cast<const SceneGraphDrawObject&>(object).getParts(), markings, take);
        break;
    case SceneGraphObject::ObjectPhysics:
        visitLabels(static_cast<const SceneGraphPhysicsObject&>(object).getParts(), markings, take);
        break;
    case SceneGraphObject::ObjectFeature:
        visitLabels(static_cast<const SceneGraphFeatureObject&>(object), take);
        break;
    default:
        break;
    }
}

} // namespace vxrenderer
