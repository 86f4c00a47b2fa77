#include "interaction/pickmarking.h"

#include "graphics3d/geometry/scenegraphdrawobject.h"
#include "graphics3d/geometry/scenegraphphysicsobject.h"
#include "graphics3d/picking/pickedobjectcollection.h"
#include "graphics3d/scene/scene.h"
#include "interaction/sceneobjects.h"

#include <unordered_map>

namespace vxinteraction {
namespace {

using namespace vxgraphics3d;

/// The type of a result that is a whole draw object.
PickedObject::ObjectType typeOf(const SceneGraphDrawObject& object)
{
    switch (object.getParts().getHighestLevel()) {
    case PartPoint:
        return PickedObject::PickedPoint;
    case PartLine:
        return PickedObject::PickedCurve;
    case PartSheet:
        return PickedObject::PickedFace;
    default:
        return PickedObject::PickedSolid;
    }
}

/// Whether there is the part of a result. The levels of parts have the same numbers there.
bool hasPart(const ObjectParts& parts, const PickedObject& picked)
{
    const int level = picked.getPartType();
    return parts.has(level) && picked.getPartId() >= 0 && picked.getPartId() < parts.getNumParts(level);
}

bool markIn(SceneGraphDrawObject& object, const PickedObject& picked, SceneGraphObject::MarkingType action, bool on)
{
    if (picked.getPartType() == PartTypeNone) {
        const bool isMeant = picked.getObjectType() == typeOf(object);
        if (isMeant) {
            object.mark(action, on);
        }
        return isMeant;
    }
    // Parts of all draw objects are those of a solid in results.
    if (picked.getObjectType() != PickedObject::PickedSolid || !hasPart(object.getParts(), picked)) {
        return false;
    }
    object.mark(static_cast<ObjectPartType>(picked.getPartType()), picked.getPartId(), action, on);
    return true;
}

bool markIn(SceneGraphPhysicsObject& object, const PickedObject& picked, SceneGraphObject::MarkingType action, bool on)
{
    const int index = picked.getPartId();
    if (picked.getObjectType() != PickedObject::PickedPhysics || !hasPart(object.getParts(), picked)) {
        return false;
    }
    switch (picked.getPartType()) {
    case PartTypePoint:
        on ? object.markPoint(index, action) : object.unmarkPoint(index, action);
        break;
    case PartTypeLine:
        on ? object.markEdge(index, action) : object.unmarkEdge(index, action);
        break;
    case PartTypeSheet:
        on ? object.markBoundary(index, action) : object.unmarkBoundary(index, action);
        break;
    default:
        on ? object.markSubdomain(index, action) : object.unmarkSubdomain(index, action);
        break;
    }
    return true;
}

} // namespace

int markPicked(const Scene& scene, const PickedObjectCollection& picked, SceneGraphObject::MarkingType action, bool on)
{
    std::unordered_multimap<int, SceneGraphDrawObject*> drawObjects;
    std::unordered_multimap<int, SceneGraphPhysicsObject*> physicsObjects;
    const auto enter = [](const SceneGraphGroup&) { return true; };
    forEachObject(*scene.getRoot(), enter, [&](SceneGraphObject& object) {
        if (auto* drawn = dynamic_cast<SceneGraphDrawObject*>(&object)) {
            drawObjects.emplace(drawn->getId(), drawn);
        } else if (auto* physics = dynamic_cast<SceneGraphPhysicsObject*>(&object)) {
            physicsObjects.emplace(physics->getId(), physics);
        }
    });
    int numFound = 0;
    for (int i = 0; i < picked.getNumberOfPickedObjects(); ++i) {
        const PickedObject& entry = picked.getPickedObject(i);
        bool isFound = false;
        const auto markAll = [&](const auto& objects) {
            for (auto [object, end] = objects.equal_range(entry.getObjectId()); object != end; ++object) {
                isFound = markIn(*object->second, entry, action, on) || isFound;
            }
        };
        markAll(drawObjects);
        markAll(physicsObjects);
        numFound += isFound ? 1 : 0;
    }
    return numFound;
}

} // namespace vxinteraction
