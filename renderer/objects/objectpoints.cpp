#include "renderer/objects/objectpoints.h"

#include "graphics3d/construction/scenegraphballbox.h"
#include "graphics3d/construction/scenegraphfeatureobject.h"
#include "graphics3d/geometry/scenegraphdrawobject.h"
#include "graphics3d/geometry/scenegraphphysicsobject.h"
#include "graphics3d/parts/markingmodesetup.h"
#include "renderer/objects/ballboxshape.h"
#include "renderer/objects/objectbox.h"

#include <array>
#include <cstddef>

namespace vxrenderer {
namespace {

using namespace vxgraphics3d;

void takePoint(const Vector3f& point, const TakePoints& take)
{
    take({.first = &point.x, .count = 1});
}

void takeBox(const BoundingBox& box, const TakePoints& take)
{
    for (int corner = 0; corner < 8 && box.isValid(); ++corner) {
        takePoint(box.getVertex(corner), take);
    }
}

void takeVertices(const VertexBuffer& buffer, const TakePoints& take)
{
    if (buffer.getNumberOfVertices() > 0) {
        take({.first = static_cast<const float*>(buffer.vertexPointer()),
              .stride = static_cast<std::size_t>(buffer.getVertexSize()) / sizeof(float),
              .count = static_cast<std::size_t>(buffer.getNumberOfVertices())});
    }
}

void takeParts(const ObjectParts& parts, const MarkingModeSetup& markings, const TakePoints& take)
{
    const auto isVisible = [&](const SelectablePart& part) {
        return markings.getMarking(MarkingModeSetup::getMarkingType(part.getDisplayFlags())).isVisible();
    };
    const auto takeEach = [&](const auto& collection, const auto& takePart) {
        for (int i = 0; i < collection.getNumParts(); ++i) {
            if (isVisible(collection.getPart(i))) {
                takePart(collection.getPart(i));
            }
        }
    };
    takeEach(parts.getSheets(), [&](const Sheet& sheet) { takeVertices(sheet.getVertices(), take); });
    takeEach(parts.getLines(), [&](const Line& line) { takeVertices(line.getVertices(), take); });
    takeEach(parts.getPoints(), [&](const Point& point) { takePoint(point.getPosition(), take); });
}

void takePlane(const WorkPlane& plane, const TakePoints& take)
{
    for (const std::array<Vector3f, 4>* points : {&plane.getCorners(), &plane.getTriad()}) {
        for (const Vector3f& point : *points) {
            takePoint(point, take);
        }
    }
    if (plane.getOperation() == WorkPlane::OperationExtrude) {
        takeVertices(plane.getSymbolVertices(), take);
        for (const Vector3f& offset : plane.getOffsets().subspan(1)) {
            takePoint(plane.getOrigin() + offset, take);
        }
    } else if (plane.getOperation() == WorkPlane::OperationRevolve) {
        const auto offsets = plane.getOffsets();
        takePoint(offsets[3], take);
        takePoint(offsets[3] + offsets[0] * offsets.back().x, take);
    }
}

} // namespace

void visitObjectPoints(const SceneGraphObject& object, const MarkingModeSetup& markings, const TakePoints& take)
{
    switch (object.getObjectType()) {
    case SceneGraphObject::ObjectSolid:
    case SceneGraphObject::ObjectFace:
    case SceneGraphObject::ObjectCurve:
    case SceneGraphObject::ObjectPoint:
        takeParts(static_cast<const SceneGraphDrawObject&>(object).getParts(), markings, take);
        break;
    case SceneGraphObject::ObjectPhysics:
        takeParts(static_cast<const SceneGraphPhysicsObject&>(object).getParts(), markings, take);
        break;
    case SceneGraphObject::ObjectBallBox: {
        const BallBoxShape shape(static_cast<const SceneGraphBallBox&>(object));
        if (shape.ball) {
            take({.first = &shape.ball->center.x, .count = 1, .radius = &shape.ball->radius});
        }
        if (shape.box) {
            takeBox(*shape.box, take);
        }
        break;
    }
    case SceneGraphObject::ObjectFeature: {
        const auto& feature = static_cast<const SceneGraphFeatureObject&>(object);
        if (feature.isVisible() && feature.getPlane().isSetUp()) {
            takePlane(feature.getPlane(), take);
        }
        break;
    }
    default:
        takeBox(boxOf(object), take);
        break;
    }
}

} // namespace vxrenderer
