#include "interaction/pickmarking.h"

#include "graphics3d/geometry/scenegraphdrawobject.h"
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

bool markIn(SceneGraphDrawObject& object, const PickedObject& picked, SceneGraphObject::MarkingType action, bool on)
{
    if (picked.getPartType() == PartTypeNone) {
        const bool isMeant = picked.getObjectType() == typeOf(object);
        if (isMeant) {
            object.mark(action, on);
        }
        return isMeant;
    }
    // The levels of parts have the same numbers in results. Parts of all draw objects are those of a solid there.
    const int level = picked.getPartType();
    const ObjectParts& parts = object.getParts();
    if (picked.getObjectType() != PickedObject::PickedSolid || !parts.has(level) || picked.getPartId() < 0 ||
        picked.getPartId() >= parts.getNumParts(level)) {
        return false;
    }
    object.mark(static_cast<ObjectPartType>(level), picked.getPartId(), action, on);
    return true;
}

} // namespace

int markPicked(const Scene& scene, const PickedObjectCollection& picked, SceneGraphObject::MarkingType action, bool on)
{
    std::unordered_multimap<int, SceneGraphDrawObject*> objects;
    const auto enter = [](const SceneGraphGroup&) { return true; };
    forEachObject(*scene.getRoot(), enter, [&](SceneGraphObject& object) {
        if (auto* drawn = dynamic_cast<SceneGraphDrawObject*>(&object)) {
            objects.emplace(drawn->getId(), drawn);
        }
    });
    int numFound = 0;
    for (int i = 0; i < picked.getNumberOfPickedObjects(); ++i) {
        const PickedObject& entry = picked.getPickedObject(i);
        bool isFound = false;
        for (auto [object, end] = objects.equal_range(entry.getObjectId()); object != end; ++object) {
            isFound = markIn(*object->second, entry, action, on) || isFound;
        }
        numFound += isFound ? 1 : 0;
    }
    return numFound;
}

} // namespace vxinteraction
