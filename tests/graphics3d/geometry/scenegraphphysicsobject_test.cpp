#include "graphics3d/geometry/scenegraphphysicsobject.h"

#include "datacarrier/rendergeom1d.h"
#include "datacarrier/rendergeom2d.h"
#include "datacarrier/rendergeom3d.h"
#include "datacarrier/rendermeshcollection.h"
#include "graphics3d/foundation/image.h"
#include "tests/support/capturedlog.h"
#include "tests/support/failingallocation.h"
#include "tests/support/geometryrecords.h"

#include <gtest/gtest.h>

#include <boost/make_shared.hpp>

#include <map>
#include <stdexcept>
#include <string>
#include <typeinfo>
#include <vector>

namespace vxgraphics3d {
namespace {

using namespace vxdatacarrier;

constexpr auto c_primary = SceneGraphObject::MarkingPrimary;
constexpr auto c_secondary = SceneGraphObject::MarkingSecondary;
constexpr auto c_hidden = SceneGraphObject::MarkingHidden;

const Vector3f c_x{1.0f, 0.0f, 0.0f};
const Vector3f c_y{0.0f, 1.0f, 0.0f};
const Vector3f c_z{0.0f, 0.0f, 1.0f};

boost::shared_ptr<SceneGraphPhysicsObject> rectangles()
{
    const auto object = SceneGraphPhysicsObject::create(7);
    object->fillData(twoRectangles<RenderGeom3D>(7));
    return object;
}

/// The two rectangles as a model in the plane.
RenderGeom2D rectanglesInPlane()
{
    RenderGeom3D space = twoRectangles<RenderGeom3D>(7);
    RenderGeom2D record;
    record.m_box.m_xMax = 3.0f;
    record.m_box.m_yMax = 1.0f;
    record.m_numPoints = space.m_numPoints;
    record.m_points = std::make_unique<Coords2D[]>(6);
    for (std::size_t i = 0; i < 6; ++i) {
        record.m_points[i] = {space.m_points[i].x, space.m_points[i].y};
    }
    record.m_numCurves = space.m_numCurves;
    record.m_curves = std::make_unique<Curve2D[]>(7);
    for (std::size_t i = 0; i < 7; ++i) {
        const Coords3D* ends = space.m_curves[i].m_vertices.get();
        record.m_curves[i].m_isValid = true;
        record.m_curves[i].m_vertices = arrayOf(std::vector<Coords2D>{{ends[0].x, ends[0].y}, {ends[1].x, ends[1].y}});
        record.m_curves[i].m_numVertices = 2;
    }
    record.m_numSheets = space.m_numSheets;
    record.m_sheets = std::make_unique<Sheet2D[]>(2);
    for (std::size_t i = 0; i < 2; ++i) {
        const Sheet3D& sheet = space.m_sheets[i];
        record.m_sheets[i].m_isValid = true;
        record.m_sheets[i].m_vertices = std::make_unique<Coords2D[]>(4);
        for (std::size_t k = 0; k < 4; ++k) {
            record.m_sheets[i].m_vertices[k] = {sheet.m_vertices[k].x, sheet.m_vertices[k].y};
        }
        record.m_sheets[i].m_numVertices = 4;
        record.m_sheets[i].m_triangles = arrayOf(std::vector<Triangle>{{0, 1, 2}, {0, 2, 3}});
        record.m_sheets[i].m_numTriangles = 2;
    }
    record.m_sheetToLine = std::move(space.m_sheetToLine);
    record.m_sheetToPoint = std::move(space.m_sheetToPoint);
    record.m_lineToPoint = std::move(space.m_lineToPoint);
    record.m_pointToLine = std::move(space.m_pointToLine);
    record.m_pointToSheet = std::move(space.m_pointToSheet);
    record.m_lineToSheet = std::move(space.m_lineToSheet);
    return record;
}

/// Two intervals, from 0 to 1 and to 3.
RenderGeom1D intervals()
{
    RenderGeom1D record;
    record.m_box.m_xMax = 3.0f;
    record.m_points = arrayOf(std::vector<float>{0, 1, 3});
    record.m_numPoints = 3;
    record.m_curves = std::make_unique<Curve1D[]>(2);
    record.m_numCurves = 2;
    for (std::size_t i = 0; i < 2; ++i) {
        record.m_curves[i].m_isValid = true;
        record.m_curves[i].m_vertices = arrayOf(std::vector<float>{record.m_points[i], record.m_points[i + 1]});
        record.m_curves[i].m_numVertices = 2;
    }
    record.m_lineToPoint = relationOf({{0, 1}, {1, 2}});
    record.m_pointToLine = relationOf({{0}, {0, 1}, {1}});
    return record;
}

std::vector<int> countsOf(const SceneGraphPhysicsObject& object)
{
    std::vector<int> counts;
    for (int level = PartPoint; level <= PartSolid; ++level) {
        counts.push_back(object.getParts().getNumParts(level));
    }
    return counts;
}

template <class Parts>
std::vector<std::string> labelsOf(const Parts& parts)
{
    std::vector<std::string> labels;
    for (int i = 0; i < parts.getNumParts(); ++i) {
        const auto& label = parts.getPart(i).getLabel();
        labels.push_back(label ? label->getText().toUtf8() : "none");
    }
    return labels;
}

std::string iconNamesOf(const SceneGraphPhysicsObject& object)
{
    std::string names;
    for (const auto& [name, image] : object.getImages()) {
        names += name + (image ? " " : "? ");
    }
    return names;
}

/// The change numbers of the markers of levels 0 to 3, of none, and of connectors.
std::vector<int> markerChangesOf(const SceneGraphPhysicsObject& object)
{
    std::vector<int> numbers;
    for (int level = 0; level <= 4; ++level) {
        numbers.push_back(object.getMarkerChangeId(level));
    }
    numbers.push_back(object.getConnectorChangeId());
    return numbers;
}

// --- filling ---------------------------------------------------------------------------------------------------------

TEST(SceneGraphPhysicsObject, numbersItsPartsFromOne)
{
    const auto object = SceneGraphPhysicsObject::create(7);
    EXPECT_FALSE(object->isValid());
    const int changes = object->getChangeId();
    RenderGeom3D record = twoRectangles<RenderGeom3D>(99);
    record.m_sheets[0].m_isValid = false;
    object->fillData(record);
    EXPECT_GT(object->getChangeId(), changes);
    EXPECT_TRUE(object->isValid());
    EXPECT_EQ(object->getBoundingBox(), BoundingBox(0.0f, 3.0f, 0.0f, 1.0f, 0.0f, 0.0f));
    EXPECT_EQ(labelsOf(object->getSheets()), (std::vector<std::string>{"none", "2"})) << "a sheet without geometry";
    EXPECT_EQ(labelsOf(object->getLines()), (std::vector<std::string>{"1", "2", "3", "4", "5", "6", "7"}));
    EXPECT_EQ(labelsOf(object->getParts().getPoints()).back(), "6");
    EXPECT_EQ(labelsOf(object->getParts().getSubdomains()), (std::vector<std::string>{"none", "none"}));
    EXPECT_EQ(object->getSheets().getNumLabels(), 1);
}

TEST(SceneGraphPhysicsObject, aFillOfAnotherDimensionLeavesNothingOfTheFormerOne)
{
    const auto object = rectangles();
    EXPECT_EQ(countsOf(*object), (std::vector{6, 7, 2, 2}));
    object->markSubdomain(1, c_primary);

    object->fillData(rectanglesInPlane());
    EXPECT_EQ(countsOf(*object), (std::vector{6, 7, 2, 0}));
    EXPECT_EQ(object->getSheets().getNumPrimary() + object->getSheets().getNumMarked(), 0);
    EXPECT_TRUE(object->getParts().getAdjacents(PartSheet, PartSolid).of(0).empty());
    EXPECT_TRUE(object->getParts().getAdjacents(PartSolid, PartSheet).of(0).empty());
    EXPECT_EQ(object->getSheets().getPart(0).getControlLevel(), SelectablePart::c_noControl);
    EXPECT_EQ(object->getSheets().getPart(1).getLabel()->getPosition(), Vector3f(2.0f, 0.5f, 0.0f));
    EXPECT_EQ(object->getBoundingBox(), BoundingBox(0.0f, 3.0f, 0.0f, 1.0f, 0.0f, 0.0f));

    object->fillData(intervals());
    EXPECT_EQ(countsOf(*object), (std::vector{3, 2, 0, 0}));
    EXPECT_TRUE(object->getParts().getAdjacents(PartPoint, PartSheet).of(0).empty());
    EXPECT_EQ(object->getParts().getPoints().getPart(1).getControlCount(), 2);
    EXPECT_EQ(object->getLines().getPart(1).getLength(), 2.0f);
    EXPECT_EQ(object->getBoundingBox(), BoundingBox(0.0f, 3.0f, 0.0f, 0.0f, 0.0f, 0.0f));
    EXPECT_EQ(labelsOf(object->getLines()), (std::vector<std::string>{"1", "2"}));

    const int changes = object->getChangeId();
    object->resetObject();
    EXPECT_NE(object->getChangeId(), changes);
    EXPECT_FALSE(object->isValid());
    object->fillData(twoRectangles<RenderGeom3D>(7));
    EXPECT_EQ(countsOf(*object), (std::vector{6, 7, 2, 2}));
}

TEST(SceneGraphPhysicsObject, readsNoSnapCoordinates)
{
    RenderGeom2D record = rectanglesInPlane();
    record.m_snapX = {1.0, 2.0};
    const auto object = SceneGraphPhysicsObject::create(7);
    EXPECT_NO_THROW(object->fillData(record));
    EXPECT_TRUE(object->getSnapVertices().empty());
}

TEST(SceneGraphPhysicsObject, aFillWithoutMemoryLeavesAnObjectThatCanBeFilled)
{
    const RenderGeom3D record = twoRectangles<RenderGeom3D>(7);
    const auto object = rectangles();
    const long failures =
        failEachAllocation([&] { object->fillData(record); }, [&] { object->unmarkAll(PartAll, c_primary); });
    EXPECT_GT(failures, 50);
    EXPECT_EQ(labelsOf(object->getSheets()), (std::vector<std::string>{"1", "2"}));
    EXPECT_EQ(object->getSheets().getPart(1).getMaterial()->c_str(), std::string("P"));
}

TEST(SceneGraphPhysicsObject, givesMaterialsToSheets)
{
    using Materials = std::map<std::string, int>;
    RenderGeom3D record = twoRectangles<RenderGeom3D>(7);
    record.m_subdomainToSheet = relationOf({{0, 1}, {1}});
    const auto object = SceneGraphPhysicsObject::create(7);
    object->fillData(record);
    EXPECT_EQ(object->getSheets().getMaterials(), (Materials{{"P", 2}})) << "one sheet is set twice";
    EXPECT_EQ(object->getSheets().getMaterialChangeId(), 4);

    object->setMaterial(PartSheet, 1, "steel");
    EXPECT_EQ(object->getSheets().getMaterials(), (Materials{{"P", 1}, {"steel", 1}}));
    object->setMaterial(PartSolid, 0, "brass");
    EXPECT_EQ(object->getSheets().getMaterials(), (Materials{{"brass", 2}}));
    EXPECT_EQ(object->getSheets().getPart(0).getMaterial(), object->getSheets().getPart(1).getMaterial());
    const int changes = object->getSheets().getMaterialChangeId();
    object->setMaterial(PartLine, 0, "wood");
    object->setMaterial(PartPoint, 77, "wood");
    object->setMaterial(-1, 0, "wood");
    EXPECT_THROW(object->setMaterial(PartSolid, 2, "wood"), std::out_of_range);
    EXPECT_THROW(object->setMaterial(PartSheet, -1, "wood"), std::out_of_range);
    EXPECT_EQ(object->getSheets().getMaterialChangeId(), changes);

    object->fillData(record);
    EXPECT_EQ(object->getSheets().getMaterials(), (Materials{{"P", 2}, {"brass", 2}}))
        << "replaced sheets stay counted";
}

// --- meshes ----------------------------------------------------------------------------------------------------------

template <class Mesh, class Coords>
boost::shared_ptr<Mesh> meshOf(int part, const std::vector<Coords>& coordinates)
{
    const auto mesh = boost::make_shared<Mesh>();
    mesh->m_partIndex = part;
    mesh->m_coordinates = arrayOf(coordinates);
    mesh->m_numCoordinates = static_cast<int>(coordinates.size());
    return mesh;
}

template <class Mesh>
boost::shared_ptr<Mesh> withElements(boost::shared_ptr<Mesh> mesh, const std::vector<Triangle>& triangles,
                                     const std::vector<Quad>& quads)
{
    mesh->m_triangles = arrayOf(triangles);
    mesh->m_numTriangles = static_cast<int>(triangles.size());
    mesh->m_quads = arrayOf(quads);
    mesh->m_numQuads = static_cast<int>(quads.size());
    return mesh;
}

boost::shared_ptr<RenderMeshBoundary3D> faceMesh(int part)
{
    return withElements(meshOf<RenderMeshBoundary3D, Coords3D>(part, {{0, 0, 1}, {1, 0, 1}, {1, 1, 1}, {0, 1, 1}}),
                        {{1, 2, 0}}, {{0, 1, 2, 3}});
}

RenderMeshCollection collectionOf(const std::vector<boost::shared_ptr<RenderMesh>>& meshes)
{
    RenderMeshCollection collection;
    collection.m_meshes = meshes;
    return collection;
}

TEST(PhysicsObjectMeshes, everyKindOfMeshGoesToItsPart)
{
    const auto object = rectangles();
    const int changes = object->getChangeId();
    const auto unknown = boost::make_shared<RenderMeshEdge3D>();
    unknown->m_meshType = 5;
    unknown->m_partIndex = 99;
    object->addMeshCollection(collectionOf({
        meshOf<RenderMeshEdge3D, Coords3D>(2, {{0, 1, 2}, {3, 4, 5}}),
        faceMesh(1),
        unknown,
        meshOf<RenderMeshSubdomain1D, float>(3, {4, 5, 6}),
        withElements(meshOf<RenderMeshSubdomain2D, Coords2D>(0, {{0, 0}, {2, 0}, {0, 3}}), {{0, 1, 2}}, {}),
        meshOf<RenderMeshBoundary2D, Coords2D>(4, {{7, 8}}),
    }));
    const auto line = [&](int i) -> const MeshableLine& { return object->getLines().getMeshablePart(i); };
    EXPECT_EQ(line(2).getMeshVertices().getCoord(1), Vector3f(3.0f, 4.0f, 5.0f));
    EXPECT_EQ(line(3).getMeshVertices().getNumberOfVertices(), 3);
    EXPECT_EQ(line(3).getMeshVertices().getCoord(2), Vector3f(6.0f, 0.0f, 0.0f));
    EXPECT_EQ(line(4).getMeshVertices().getCoord(0), Vector3f(7.0f, 8.0f, 0.0f));
    EXPECT_EQ(line(0).getMeshVertices().getNumberOfVertices(), 0);
    const MeshableSheet& area = object->getSheets().getMeshablePart(0);
    EXPECT_EQ(area.getMeshVertices().getCoord(2), Vector3f(0.0f, 3.0f, 0.0f));
    EXPECT_EQ(area.getMeshVertices().vertices()[0].nz, 1.0f);
    const MeshableSheet& face = object->getSheets().getMeshablePart(1);
    EXPECT_EQ(face.getMeshVertices().getNumberOfVertices(), 7);
    EXPECT_EQ(face.getMeshVertices().getCoord(0), Vector3f(1.0f, 0.0f, 1.0f));
    EXPECT_EQ(face.getMeshTriangles().getNumElements(0), 3);
    EXPECT_EQ(face.getMeshLines().getNumElements(0), 7);
    EXPECT_EQ(object->getLines().getNumMarked(), 3);
    EXPECT_EQ(object->getSheets().getMarkFlags(1), int(MarkMeshed));
    EXPECT_EQ(object->getChangeId(), changes);

    const auto empty = boost::make_shared<RenderMeshBoundary3D>();
    empty->m_partIndex = 1;
    empty->m_numQuads = -3;
    object->addMeshCollection(collectionOf({empty, boost::make_shared<RenderMeshEdge3D>()}));
    EXPECT_EQ(object->getSheets().getMarkFlags(1), 0);
    EXPECT_EQ(object->getSheets().getNumMarked(), 1);
    EXPECT_EQ(line(0).getMeshChangeId(), 1) << "it had no mesh";
    object->deleteAllMeshes();
    EXPECT_EQ(object->getLines().getNumMarked() + object->getSheets().getNumMarked(), 0);
    EXPECT_EQ(line(2).getMeshChangeId(), 3);
    object->deleteAllMeshes();
    EXPECT_EQ(line(2).getMeshChangeId(), 3);
}

TEST(PhysicsObjectMeshes, anInconsistentMeshChangesNothing)
{
    const auto object = rectangles();
    const auto refused = [&](const boost::shared_ptr<RenderMesh>& mesh) -> std::string {
        std::string text = "accepted";
        try {
            object->addMeshCollection(collectionOf({faceMesh(0), mesh}));
        } catch (const std::exception& e) {
            text = e.what();
        }
        EXPECT_EQ(object->getSheets().getNumMarked() + object->getLines().getNumMarked(), 0);
        return text;
    };
    EXPECT_EQ(refused(faceMesh(2)), "There is a mesh for sheet 2 of 2.");
    EXPECT_EQ(refused(faceMesh(-1)), "There is a mesh for sheet -1 of 2.");
    EXPECT_EQ((refused(meshOf<RenderMeshBoundary2D, Coords2D>(7, {{0, 0}}))), "There is a mesh for line 7 of 7.");
    auto mesh = faceMesh(0);
    mesh->m_triangles[0].c = 4;
    EXPECT_EQ(refused(mesh), "A triangle in the mesh of sheet 0 refers to vertex 4 of 4.");
    mesh = faceMesh(0);
    mesh->m_quads[0].d = -1;
    EXPECT_EQ(refused(mesh), "A quadrilateral in the mesh of sheet 0 refers to vertex -1 of 4.");
    mesh = faceMesh(0);
    mesh->m_numCoordinates = -1;
    EXPECT_EQ(refused(mesh), "A triangle in the mesh of sheet 0 refers to vertex 2 of 0.");
    mesh->m_quads.reset();
    EXPECT_EQ(refused(mesh), "The record has 1 quadrilaterals in the mesh of sheet 0, but no array of them.");
    auto edge = meshOf<RenderMeshEdge3D, Coords3D>(1, {{0, 0, 0}});
    edge->m_coordinates.reset();
    EXPECT_EQ(refused(edge), "The record has 1 coordinates in the mesh of line 1, but no array of them.");
    EXPECT_EQ(refused(nullptr), "The collection contains a null mesh.");
    mesh = faceMesh(0);
    mesh->m_meshType = RenderMesh::Edge3D;
    EXPECT_THROW(object->addMeshCollection(collectionOf({faceMesh(0), mesh})), std::bad_cast);
    EXPECT_EQ(object->getSheets().getNumMarked(), 0);
}

// --- markers ---------------------------------------------------------------------------------------------------------

TEST(PhysicsMarker, buildsACoordinateSystemAroundTheNormal)
{
    const Line part(0);
    const float r = 0.6f;
    const struct {
        Vector3f normal;
        bool flip, normalLast;
        int dimension, axis;
        std::vector<Vector3f> expected;
    } rows[] = {
        {c_z, false, false, 3, 0, {c_x, c_y, c_z}},
        {c_z, false, true, 3, 1, {c_y, -c_x, c_z}},
        // The axis is parallel to the normal: z is followed by x, x by y, y by z.
        {c_z, false, true, 3, 2, {c_x, c_y, c_z}},
        {c_x, false, true, 3, 0, {c_y, c_z, c_x}},
        {c_y, false, true, 3, 1, {c_z, c_x, c_y}},
        {c_z, true, false, 3, 0, {c_x, -c_y, -c_z}},
        {c_z, false, true, 2, 0, {c_x, c_y, c_z}},
        {c_x, false, true, 2, 7, {c_z, -c_y, c_x}},
        {c_z, false, true, 2, 1, {-c_x, -c_y, c_z}},
        {c_x, false, false, 1, 2, {-c_y, c_x, c_z}},
        {c_z, false, false, 2, 0, {c_x, c_z, -c_y}},
        {c_z, false, false, 2, 1, {c_y, c_z, c_x}},
        // The tangent is the part of the axis at right angles to the normal.
        {{r, 0.8f, 0.0f}, false, true, 3, 0, {{0.8f, -r, 0.0f}, -c_z, {r, 0.8f, 0.0f}}},
        // A normal of another length is taken as it is.
        {{2.0f, 0.0f, 0.0f}, false, true, 3, 0, {-c_x, {}, {2.0f, 0.0f, 0.0f}}},
        {{}, false, true, 3, 1, {c_y, {}, {}}},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(&row - rows);
        const PhysicsMarker marker(part, c_y, nullptr, row.normal, row.flip, row.normalLast, row.dimension, row.axis);
        EXPECT_EQ(marker.getPosition(), c_y);
        ASSERT_EQ(marker.getDirections()->size(), 3u);
        for (std::size_t i = 0; i < 3; ++i) {
            EXPECT_LT(((*marker.getDirections())[i] - row.expected[i]).length(), 1e-6f) << i;
        }
    }
}

/// The one marker of a part.
const PhysicsMarker& markerOf(const SceneGraphPhysicsObject& object, int level, int index)
{
    const auto& markers = object.getMarkers(level);
    EXPECT_EQ(markers.count(index), 1u);
    return *markers.find(index)->second;
}

TEST(PhysicsObjectMarkers, areAtTheirPartsWithTheirDirections)
{
    const auto object = rectangles();
    const auto icon = boost::make_shared<Image>(1, 1, Image::Rgba, 1.0f);
    object->setImage(icon, "icon");
    object->setPhysicsMarker(PartPoint, 2, "icon");
    object->setPhysicsMarkerNormal(PartPoint, 3, "icon", true);
    object->setPhysicsMarker(PartLine, 4, "icon");
    object->setPhysicsMarkerNormal(PartLine, 1, "icon", false);
    object->setPhysicsMarkerSys(PartLine, 0, "icon", {c_x, c_z});
    object->setPhysicsMarkerBoundSys(PartLine, 2, "icon", false, false, 2, 0);
    object->setPhysicsMarkerNormal(PartSheet, 0, "other", true);
    object->setPhysicsMarkerBoundSys(PartSheet, 1, "icon", true, true, 3, 0);

    using Directions = std::vector<Vector3f>;
    const auto check = [&](int level, int index, const Vector3f& position, const Directions& directions) {
        SCOPED_TRACE(std::to_string(level) + " " + std::to_string(index));
        const PhysicsMarker& marker = markerOf(*object, level, index);
        EXPECT_EQ(marker.getPosition(), position);
        EXPECT_EQ(*marker.getDirections(), directions);
        EXPECT_EQ(marker.getPart(), &object->getParts().getPart(level, index));
    };
    check(PartPoint, 2, {3.0f, 0.0f, 0.0f}, {});
    check(PartPoint, 3, {0.0f, 1.0f, 0.0f}, {});
    check(PartLine, 4, {2.0f, 0.0f, 0.0f}, {});
    check(PartLine, 1, {1.0f, 0.5f, 0.0f}, {-c_x});
    check(PartLine, 0, {0.5f, 0.0f, 0.0f}, {c_x, c_z});
    // The line runs along -x, so its normal is -y: t = x, b = n x t = z, in the order t, n, -b.
    check(PartLine, 2, {0.5f, 1.0f, 0.0f}, {c_x, -c_y, -c_z});
    check(PartSheet, 0, {0.5f, 0.5f, 0.0f}, {-c_z});
    check(PartSheet, 1, {2.0f, 0.5f, 0.0f}, {c_x, -c_y, -c_z});
    EXPECT_EQ(markerOf(*object, PartPoint, 2).getImage(), icon);
    EXPECT_EQ(markerChangesOf(*object), (std::vector{3, 5, 3, 1, 1, 1}));

    // An image that comes later reaches only later markers.
    EXPECT_EQ(iconNamesOf(*object), "icon other? ");
    object->setImage(icon, "other");
    EXPECT_EQ(markerOf(*object, PartSheet, 0).getImage(), nullptr);
    object->setPhysicsMarker(PartSheet, 0, "other");
    ASSERT_EQ(object->getMarkers(PartSheet).count(0), 2u);
    EXPECT_EQ(std::next(object->getMarkers(PartSheet).find(0))->second->getImage(), icon);

    object->setShowPhysicsMarkers(false);
    EXPECT_FALSE(object->isShowPhysicsMarkers());
    EXPECT_EQ(markerChangesOf(*object), (std::vector{3, 5, 4, 1, 1, 1}));
    object->fillData(intervals());
    EXPECT_EQ(object->getMarkers(PartSheet).size(), 3u) << "a fill leaves them";
    object->clearPhysicsMarkers();
    object->clearPhysicsMarkers();
    EXPECT_TRUE(object->getMarkers(PartSheet).empty());
    EXPECT_EQ(markerChangesOf(*object), (std::vector{5, 7, 6, 3, 1, 3}));
}

TEST(PhysicsObjectMarkers, aPartWithoutAPositionGetsNone)
{
    RenderGeom3D record = twoRectangles<RenderGeom3D>(7);
    record.m_sheets[1].m_isValid = false;
    record.m_curves[3].m_isValid = false;
    const auto object = SceneGraphPhysicsObject::create(7);
    object->fillData(record);
    CapturedLog log(ErrorLog::Level::warning);
    object->setPhysicsMarkerBoundSys(PartSolid, 1, "a", true, true, 3, 1);
    object->setPhysicsMarkerNormal(PartSheet, 1, "a", false);
    object->setPhysicsMarkerSys(PartLine, 3, "a", {});
    EXPECT_EQ(log.messages(), (std::vector<std::string>{"There is no position for a marker at part 1 of level 3.",
                                                        "There is no position for a marker at part 1 of level 2.",
                                                        "There is no position for a marker at part 3 of level 1."}));
    object->setPhysicsMarker(5, 0, "a");
    object->setPhysicsMarkerNormal(-1, 0, "a", false);
    EXPECT_THROW(object->setPhysicsMarker(PartSolid, 2, "a"), std::out_of_range);
    EXPECT_THROW(object->setPhysicsMarkerNormal(PartSheet, 2, "a", false), std::out_of_range);
    EXPECT_THROW(object->setPhysicsMarkerSys(PartPoint, -1, "a", {}), std::out_of_range);
    EXPECT_EQ(log.messages().size(), 3u);
    EXPECT_EQ(iconNamesOf(*object), "");
    EXPECT_EQ(markerChangesOf(*object), std::vector<int>(6, 1));
}

TEST(PhysicsObjectConnectors, areAtTheCentreOfTheirParts)
{
    RenderGeom3D record = twoRectangles<RenderGeom3D>(7);
    record.m_curves[5].m_vertices[1] = record.m_curves[5].m_vertices[0];
    record.m_curves[3].m_isValid = false;
    const auto object = SceneGraphPhysicsObject::create(7);
    object->fillData(record);
    object->setPhysicsConnector(PartLine, {0, 5, 3, 4}, "a");
    object->setPhysicsConnector(PartSheet, {1, 0}, "a");
    object->setPhysicsConnector(PartLine, {0, 5, 3}, "b", c_z);
    object->setPhysicsConnector(PartSheet, {}, "c", c_y);
    object->setPhysicsConnector(PartSheet, {}, "d");
    object->setPhysicsConnector(PartLine, {5, 3}, "d");
    object->setPhysicsConnector(PartPoint, {99}, "d", c_z);
    object->setPhysicsConnector(PartSolid, {0}, "d");
    EXPECT_THROW(object->setPhysicsConnector(PartSheet, {0, 2}, "d"), std::out_of_range);
    EXPECT_THROW(object->setPhysicsConnector(PartLine, {-1}, "d", c_z), std::out_of_range);

    const auto& connectors = object->getConnectors();
    ASSERT_EQ(connectors.size(), 4u);
    using Points = std::vector<Vector3f>;
    // The middles of lines of length 1 and 2, and of areas 2 and 1.
    EXPECT_EQ(connectors[0]->getPosition(), Vector3f(1.5f, 0.0f, 0.0f));
    EXPECT_EQ(connectors[0]->getPoints(), (Points{{0.5f, 0.0f, 0.0f}, {2.0f, 0.0f, 0.0f}}));
    EXPECT_EQ(connectors[1]->getPosition(), Vector3f(1.5f, 0.5f, 0.0f));
    EXPECT_EQ(connectors[1]->getPoints(), (Points{{2.0f, 0.5f, 0.0f}, {0.5f, 0.5f, 0.0f}}));
    EXPECT_EQ(connectors[2]->getPosition(), c_z);
    EXPECT_EQ(connectors[2]->getPoints(), (Points{{0.5f, 0.0f, 0.0f}, {3.0f, 0.0f, 0.0f}})) << "a line without length";
    EXPECT_TRUE(connectors[3]->getPoints().empty());
    EXPECT_EQ(iconNamesOf(*object), "a? b? c? ");
    EXPECT_EQ(markerChangesOf(*object), (std::vector{1, 1, 1, 1, 1, 5}));
}

// --- marks -----------------------------------------------------------------------------------------------------------

TEST(PhysicsObjectMarks, countAChangeOfTheNodeForHiddenOnes)
{
    const auto object = rectangles();
    const auto changesOf = [&](auto operation) {
        const int changes = object->getChangeId();
        operation();
        return object->getChangeId() - changes;
    };
    EXPECT_EQ(changesOf([&] { object->markBoundary(0, c_primary); }), 0);
    EXPECT_EQ(changesOf([&] { object->markBoundary(0, c_hidden); }), 1);
    EXPECT_EQ(changesOf([&] { object->markBoundary(0, c_hidden); }), 1);
    EXPECT_EQ(changesOf([&] { object->unmarkPoint(0, c_hidden); }), 1);
    EXPECT_EQ(changesOf([&] { object->unmarkAll(PartAll, c_secondary); }), 0);
    EXPECT_EQ(changesOf([&] { object->unmarkAllBoundaries(c_hidden); }), 1);
    EXPECT_EQ(changesOf([&] { object->unmarkAllEdges(c_primary); }), 0);
    EXPECT_EQ(changesOf([&] { object->unmarkAllSubdomains(c_primary); }), 1);
    EXPECT_EQ(changesOf([&] { object->unmarkAllSubdomains(c_hidden); }), 3) << "two subdomains, and one more";
    EXPECT_EQ(object->getSheets().getMarkFlags(0), int(MarkPrimary));
    EXPECT_THROW(object->markEdge(7, c_hidden), std::out_of_range);
    EXPECT_THROW(object->unmarkSubdomain(-1, c_hidden), std::out_of_range);
}

TEST(PhysicsObjectMarks, theMarkedBoxIncludesWhatAMarkTouches)
{
    const auto object = rectangles();
    object->markSubdomain(1, c_primary);
    object->markPoint(0, c_secondary);
    const auto boxOf = [&](int include, int exclude) {
        BoundingBox box;
        object->getMarkedBoundingBox(box, include, exclude);
        return box;
    };
    EXPECT_EQ(boxOf(MarkPrimary, 0), BoundingBox(1.0f, 3.0f, 0.0f, 1.0f, 0.0f, 0.0f));
    EXPECT_EQ(boxOf(MarkSecondary, 0), BoundingBox(0.0f, 0.0f, 0.0f, 0.0f, 0.0f, 0.0f));
    object->markEdge(3, c_secondary);
    EXPECT_EQ(boxOf(MarkSecondary, 0), BoundingBox(0.0f, 0.0f, 0.0f, 1.0f, 0.0f, 0.0f));
    EXPECT_EQ(boxOf(MarkSecondary, MarkSecondary), BoundingBox(0.0f, 0.0f, 1.0f, 1.0f, 0.0f, 0.0f)) << "point 3 alone";
    EXPECT_EQ(boxOf(0, 0), BoundingBox(0.0f, 3.0f, 0.0f, 1.0f, 0.0f, 0.0f));
}

} // namespace
} // namespace vxgraphics3d
