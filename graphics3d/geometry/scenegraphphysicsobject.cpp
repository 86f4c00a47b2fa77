#include "graphics3d/geometry/scenegraphphysicsobject.h"

#include "datacarrier/rendergeom1d.h"
#include "datacarrier/rendergeom2d.h"
#include "datacarrier/rendergeom3d.h"
#include "datacarrier/rendermeshcollection.h"
#include "graphics3d/geometry/meshrecords.h"
#include "graphics3d/geometry/partfill.h"
#include "graphics3d/geometry/partmarking.h"
#include "graphics3d/geometry/partpicking.h"
#include "graphics3d/geometry/recordchecks.h"

#include <boost/make_shared.hpp>

#include <memory>

namespace vxgraphics3d {
namespace {

/// The material of every subdomain after a fill.
constexpr const char* c_firstMaterial = "P";

/// Labels the parts of a collection with their numbers, from 1.
template <class Parts>
void labelByNumber(Parts& parts)
{
    for (int i = 0; i < parts.getNumParts(); ++i) {
        parts.setPartLabel(i, std::to_string(i + 1));
    }
}

int widened(int include, MarkFlags mark, MarkFlags adjacentMark)
{
    return (include & static_cast<int>(mark)) != 0 ? include | static_cast<int>(adjacentMark) : include;
}

} // namespace

SceneGraphPhysicsObject::SceneGraphPhysicsObject(int id)
    : SceneGraphObject(ObjectPhysics),
      m_id(id),
      m_parts(PartSolid, std::make_unique<MeshableLineCollection>(), std::make_unique<MeshableSheetCollection>())
{}

boost::shared_ptr<SceneGraphPhysicsObject> SceneGraphPhysicsObject::create(int id)
{
    return own(new SceneGraphPhysicsObject(id));
}

bool SceneGraphPhysicsObject::isValid() const
{
    return m_parts.getNumParts(PartSheet) > 0 || m_parts.getNumParts(PartLine) > 0 ||
           m_parts.getNumParts(PartPoint) > 0;
}

const MeshableSheetCollection& SceneGraphPhysicsObject::getSheets() const
{
    return static_cast<const MeshableSheetCollection&>(m_parts.getSheets());
}

const MeshableLineCollection& SceneGraphPhysicsObject::getLines() const
{
    return static_cast<const MeshableLineCollection&>(m_parts.getLines());
}

MeshableSheetCollection& SceneGraphPhysicsObject::sheets()
{
    return static_cast<MeshableSheetCollection&>(m_parts.sheets());
}

MeshableLineCollection& SceneGraphPhysicsObject::lines()
{
    return static_cast<MeshableLineCollection&>(m_parts.lines());
}

void SceneGraphPhysicsObject::fillData(const vxdatacarrier::RenderGeom1D& record)
{
    fillParts(record);
    markChanged();
}

void SceneGraphPhysicsObject::fillData(const vxdatacarrier::RenderGeom2D& record)
{
    fillParts(record);
    markChanged();
}

void SceneGraphPhysicsObject::fillData(const vxdatacarrier::RenderGeom3D& record)
{
    fillParts(record);
    for (int i = 0; i < m_parts.getNumParts(PartSolid); ++i) {
        setMaterial(PartSolid, i, c_firstMaterial);
    }
    markChanged();
}

template <class Record>
void SceneGraphPhysicsObject::fillParts(const Record& record)
{
    m_parts.fill(record);
    labelByNumber(m_parts.sheets());
    labelByNumber(m_parts.lines());
    labelByNumber(m_parts.points());
    setBoundingBox(boxOf(record.m_box));
}

void SceneGraphPhysicsObject::resetObject()
{
    m_parts.reset();
    markChanged();
}

void SceneGraphPhysicsObject::addMeshCollection(const vxdatacarrier::RenderMeshCollection& meshes)
{
    checkMeshes(meshes, m_parts.getNumParts(PartLine), m_parts.getNumParts(PartSheet));
    MeshSetter setter(lines(), sheets());
    for (const auto& mesh : meshes.m_meshes) {
        withMesh(*mesh, setter);
    }
}

void SceneGraphPhysicsObject::deleteAllMeshes()
{
    sheets().clearAllMeshes();
    lines().clearAllMeshes();
}

void SceneGraphPhysicsObject::setMaterial(int level, int index, const std::string& name)
{
    if (level != PartSheet && level != PartSolid) {
        return;
    }
    m_parts.requirePart(level, index);
    const auto material = boost::make_shared<std::string>(name);
    if (level == PartSheet) {
        sheets().setPartMaterial(material, index);
        return;
    }
    for (const int sheet : m_parts.getAdjacents(PartSolid, PartSheet).of(index)) {
        sheets().setPartMaterial(material, sheet);
    }
}

void SceneGraphPhysicsObject::mark(ObjectPartType level, int index, MarkingType action, bool on)
{
    PartMarking(m_parts).mark(level, index, action, on);
    if (action == MarkingHidden) {
        markChanged();
    }
}

void SceneGraphPhysicsObject::unmarkAllSubdomains(MarkingType action)
{
    for (int i = 0; i < m_parts.getNumParts(PartSolid); ++i) {
        unmarkSubdomain(i, action);
    }
    markChanged();
}

void SceneGraphPhysicsObject::unmarkAll(ObjectPartType part, MarkingType action)
{
    PartMarking(m_parts).unmarkAll(part, action);
    if (action == MarkingHidden) {
        markChanged();
    }
}

void SceneGraphPhysicsObject::getSelection(const SelectionFrustrum& frustum, const CanvasPickSettings& settings,
                                           PickedObjectCollection& result, bool inside) const
{
    pickPhysicsObject(m_parts, m_id, frustum, settings, result, inside);
}

void SceneGraphPhysicsObject::getMarkedBoundingBox(BoundingBox& box, int include, int exclude) const
{
    include = widened(include, MarkPrimary, MarkPrimaryAdjacent);
    include = widened(include, MarkSecondary, MarkSecondaryAdjacent);
    m_parts.getMarkedBoundingBox(box, include, exclude);
}

} // namespace vxgraphics3d
