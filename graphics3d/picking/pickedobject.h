#pragma once

#include "base/export.h"

namespace vxgraphics3d {

/// Kind of a part in a pick result. The numbers 4 to 6 belong to parts that renderers add.
enum PartType : int { PartTypePoint = 0, PartTypeLine = 1, PartTypeSheet = 2, PartTypeSubdomain = 3, PartTypeNone = 7 };

/// One result of a pick: an object, or a part of one.
class VX_API PickedObject {
public:
    /// Kind of hit.
    enum ObjectType : int {
        PickedNone = 0,
        PickedPlot = 1,
        PickedSolid = 2,
        PickedFace = 3,
        PickedCurve = 4,
        PickedPoint = 5,
        PickedPhysics = 6,
        PickedOverlay = 7
    };

    PickedObject() = default;
    PickedObject(ObjectType type, int id, PartType partType, int partId)
        : m_objectType(type), m_objectId(id), m_partType(partType), m_partId(partId)
    {}

    // Whole objects.
    void setPickedPlot(int id) { setWhole(PickedPlot, id); }
    void setPickedObjectSolid(int id) { setWhole(PickedSolid, id); }
    void setPickedObjectFace(int id) { setWhole(PickedFace, id); }
    void setPickedObjectCurve(int id) { setWhole(PickedCurve, id); }
    void setPickedObjectPoint(int id) { setWhole(PickedPoint, id); }

    // Parts; `partId` is the index of the part in its collection.
    void setPickedObjectSolidPart(int id, PartType type, int partId) { *this = {PickedSolid, id, type, partId}; }
    void setPickedObjectFacePart(int id, PartType type, int partId) { *this = {PickedFace, id, type, partId}; }
    void setPickedObjectCurvePart(int id, PartType type, int partId) { *this = {PickedCurve, id, type, partId}; }
    void setPickedObjectPointPart(int id, PartType type, int partId) { *this = {PickedPoint, id, type, partId}; }
    void setPickedObjectPhysics(int id, PartType type, int partId) { *this = {PickedPhysics, id, type, partId}; }
    void setPickedObjectOverlay(int id, PartType type, int partId) { *this = {PickedOverlay, id, type, partId}; }

    ObjectType getObjectType() const { return m_objectType; }
    /// Id of the object, -1 if there is none.
    int getObjectId() const { return m_objectId; }
    /// Kind of part, `PartTypeNone` for a whole object.
    PartType getPartType() const { return m_partType; }
    /// Index of the part in its collection, -1 for a whole object.
    int getPartId() const { return m_partId; }

    friend bool operator==(const PickedObject&, const PickedObject&) = default;

private:
    void setWhole(ObjectType type, int id) { *this = {type, id, PartTypeNone, -1}; }

    ObjectType m_objectType = PickedNone;
    int m_objectId = -1;
    PartType m_partType = PartTypeNone;
    int m_partId = -1;
};

} // namespace vxgraphics3d
