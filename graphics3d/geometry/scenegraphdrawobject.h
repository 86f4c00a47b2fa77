#pragma once

#include "base/ustring.h"
#include "graphics3d/foundation/errorlog.h"
#include "graphics3d/geometry/objectparts.h"
#include "graphics3d/geometry/recordchecks.h"
#include "graphics3d/scenegraph/scenegraphobject.h"

#include <new>
#include <string>
#include <vector>

namespace vxgraphics3d {

/// A leaf of the scene tree that shows one piece of drawing geometry: a solid, a face, a curve or a point. A fill
/// replaces its parts, and every mark with them, by those of a record; the largest part shows its name.
///
///     const auto solid = SceneGraphDrawObjectSolid::create(7);
///     solid->fillData(record);
///     solid->mark(PartSheet, 3, SceneGraphObject::MarkingPrimary, true);
///
/// The classes differ by the levels of parts that they have, and by the records that they are filled from.
class VX_API SceneGraphDrawObject : public SceneGraphObject {
public:
    /// The object's id, by which a pick reports it.
    int getId() const { return m_id; }
    /// Whether there is a part of the kind that the object is of; of a solid, whether there is a sheet.
    virtual bool isValid() const;

    /// Deletes all parts. No change number of the node changes.
    void resetObject();

    /// Marks or unmarks the whole object: all parts of the highest level, and of a solid also all sheets.
    virtual void mark(MarkingType action, bool on);
    /// Marks or unmarks a part. A kind of part that the object does not have, and `PartAll`, do nothing.
    /// @throws std::out_of_range if the object has the kind, but not that part
    virtual void mark(ObjectPartType part, int index, MarkingType action, bool on);
    void markPoint(int index, MarkingType action, bool on) { mark(PartPoint, index, action, on); }
    void markLine(int index, MarkingType action, bool on) { mark(PartLine, index, action, on); }
    void markSheet(int index, MarkingType action, bool on) { mark(PartSheet, index, action, on); }
    void markSolid(int index, MarkingType action, bool on) { mark(PartSolid, index, action, on); }
    /// Removes the marks of all parts of one kind, or of all kinds.
    virtual void unmarkAll(ObjectPartType part, MarkingType action);

    const ObjectParts& getParts() const { return m_parts; }
    /// Index of the part that shows the object's name, -1 if none does. It is a part of the highest level.
    int getLabelledPart() const { return m_labelledPart; }
    /// The marks of the whole object: a solid that is hidden or unpickable as a whole has that mark.
    const SelectablePart& getObjectPart() const { return m_objectPart; }

    void getSelection(const SelectionFrustrum& frustum, const CanvasPickSettings& settings,
                      PickedObjectCollection& result, bool inside) const override;
    void getMarkedBoundingBox(BoundingBox& box, int include, int exclude) const override;

protected:
    /// @param highest the level of the highest parts
    SceneGraphDrawObject(ObjectType type, int id, ObjectPartType highest);

    // The steps of a fill.

    /// Replaces all parts by those of a record, and logs `mismatch` if it is for an object of another id.
    template <class Record>
    void fillParts(const Record& record, vxbase::LogText<> mismatch);
    /// Replaces the snap vertices by those of a record of geometry on the x axis or in the plane.
    void fillSnapVertices(const vxdatacarrier::Geometry1D& record);
    void fillSnapVertices(const vxdatacarrier::Geometry2D& record);
    /// Labels the largest part of the highest level.
    void setLabel(const std::string& name);

private:
    /// The parts have been replaced: there is no label, and the object as a whole has no marks.
    void forgetParts();
    void setSnapVertices(const std::vector<double>& x, const std::vector<double>* y);
    bool setSubdomainLabel(int subdomain, const vxbase::UString& text);
    bool isSolid() const { return m_parts.has(PartSolid); }
    void setObjectMark(MarkingType action, bool on);

    int m_id;
    SelectablePart m_objectPart{3};
    int m_labelledPart = -1;
    ObjectParts m_parts;
};

template <class Record>
void SceneGraphDrawObject::fillParts(const Record& record, vxbase::LogText<> mismatch)
{
    if (record.m_id != m_id) {
        logError(mismatch);
    }
    checkSnapCoordinates(record);
    try {
        m_parts.fill(record);
    } catch (const std::bad_alloc&) {
        forgetParts();
        throw;
    }
    // The parts have no labels yet, even if one of the following steps fails.
    forgetParts();
}

} // namespace vxgraphics3d
