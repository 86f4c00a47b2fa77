#include "renderer/objects/objectbox.h"

#include "graphics3d/construction/scenegraphballbox.h"
#include "graphics3d/construction/scenegraphprobeobject.h"
#include "renderer/objects/ballboxshape.h"

namespace vxrenderer {

using namespace vxgraphics3d;

namespace {

void mergePoints(BoundingBox& box, const PointCollection& points)
{
    for (int i = 0; i < points.getNumParts(); ++i) {
        box.merge(points.getPart(i).getBoundingBox());
    }
}

} // namespace

BoundingBox boxOf(const SceneGraphObject& object)
{
    BoundingBox box;
    if (object.getObjectType() == SceneGraphObject::ObjectBallBox) {
        const BallBoxShape shape(static_cast<const SceneGraphBallBox&>(object));
        if (shape.ball) {
            const auto& [center, radius] = *shape.ball;
            box.init(center.x - radius, center.x + radius, center.y - radius, center.y + radius, center.z - radius,
                     center.z + radius);
        }
        if (shape.box) {
            box.merge(*shape.box);
        }
    } else if (object.getObjectType() == SceneGraphObject::ObjectProbe) {
        const auto& probe = static_cast<const SceneGraphProbeObject&>(object);
        mergePoints(box, probe.getProbePoints());
        mergePoints(box, probe.getEndPoints());
    } else {
        box = object.getBoundingBox();
    }
    return box;
}

} // namespace vxrenderer
