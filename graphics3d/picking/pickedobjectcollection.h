#pragma once

#include "base/export.h"
#include "graphics3d/picking/pickedobject.h"

#include <vector>

namespace vxgraphics3d {

/// The results of a pick in the order in which the traversal of the scene found them. Results are only appended: they
/// are not sorted, duplicates remain, and a second pick adds to the results of the first until the caller resets it.
class VX_API PickedObjectCollection {
public:
    int getNumberOfPickedObjects() const { return static_cast<int>(m_pickedObjects.size()); }
    /// @throws std::out_of_range if there is no result with that index
    const PickedObject& getPickedObject(int index) const;

    void add(const PickedObject& object) { m_pickedObjects.push_back(object); }
    /// Empties the collection.
    void reset() { m_pickedObjects.clear(); }

    // Whole objects.
    void addPickedPlot(int id) { addWhole(PickedObject::PickedPlot, id); }
    void addPickedObjectPoint(int id) { addWhole(PickedObject::PickedPoint, id); }
    void addPickedObjectCurve(int id) { addWhole(PickedObject::PickedCurve, id); }
    void addPickedObjectFace(int id) { addWhole(PickedObject::PickedFace, id); }
    void addPickedObjectSolid(int id) { addWhole(PickedObject::PickedSolid, id); }

    // Parts; `part` is the index of the part in its collection.
    void addPickedOverlay(int id, PartType type, int part) { add({PickedObject::PickedOverlay, id, type, part}); }
    void addPickedObjectPhysics(int id, PartType type, int part) { add({PickedObject::PickedPhysics, id, type, part}); }
    void addPickedObjectPointPart(int id, PartType type, int part) { add({PickedObject::PickedPoint, id, type, part}); }
    void addPickedObjectCurvePart(int id, PartType type, int part) { add({PickedObject::PickedCurve, id, type, part}); }
    void addPickedObjectFacePart(int id, PartType type, int part) { add({PickedObject::PickedFace, id, type, part}); }
    void addPickedObjectSolidPart(int id, PartType type, int part) { add({PickedObject::PickedSolid, id, type, part}); }

private:
    void addWhole(PickedObject::ObjectType type, int id) { add({type, id, PartTypeNone, -1}); }

    std::vector<PickedObject> m_pickedObjects;
};

} // namespace vxgraphics3d
