#include "datacarrier/renderdraw1d.h"
#include "graphics3d/geometry/scenegraphdrawobjectcurve.h"
#include "graphics3d/geometry/scenegraphdrawobjectface.h"
#include "graphics3d/geometry/scenegraphdrawobjectpoint.h"
#include "graphics3d/geometry/scenegraphdrawobjectsolid.h"
#include "tests/support/capturedlog.h"
#include "tests/support/failingallocation.h"
#include "tests/support/geometryrecords.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>
#include <vector>

namespace vxgraphics3d {
namespace {

using namespace vxdatacarrier;

constexpr auto c_primary = SceneGraphObject::MarkingPrimary;
constexpr auto c_secondary = SceneGraphObject::MarkingSecondary;
constexpr auto c_hidden = SceneGraphObject::MarkingHidden;
constexpr auto c_unpickable = SceneGraphObject::MarkingUnpickable;

template <class Object>
boost::shared_ptr<Object> filled(int id = 7)
{
    const auto object = Object::create(id);
    object->fillData(twoRectangles(id));
    return object;
}

/// The display flags of all parts of a level.
std::vector<int> flagsOf(const SceneGraphDrawObject& object, int level)
{
    const ObjectParts& parts = object.getParts();
    const IPartCollection* collections[] = {&parts.getPoints(), &parts.getLines(), &parts.getSheets(),
                                            &parts.getSubdomains()};
    std::vector<int> flags;
    for (int i = 0; i < parts.getNumParts(level); ++i) {
        flags.push_back(collections[level]->getMarkFlags(i));
    }
    return flags;
}

Curve2D curveInPlane(const std::vector<Coords2D>& vertices)
{
    Curve2D curve;
    curve.m_isValid = true;
    curve.m_vertices = arrayOf(vertices);
    curve.m_numVertices = static_cast<int>(vertices.size());
    return curve;
}

TEST(SceneGraphDrawObjectFace, takesItsLevelsOfTheRecord)
{
    const auto face = filled<SceneGraphDrawObjectFace>();
    const ObjectParts& parts = face->getParts();
    EXPECT_TRUE(face->isValid());
    EXPECT_EQ(parts.getSubdomains().getNumParts(), 0);
    EXPECT_EQ(parts.getSheets().getNumVertices(), 8);
    EXPECT_EQ(parts.getSheets().getNumTriangles(), 4);
    EXPECT_EQ(parts.getLines().getNumVertices(), 14);
    EXPECT_EQ(parts.getSheets().getPart(1).getVertices().getCoord(2), Vector3f(3.0f, 1.0f, 0.0f));
    EXPECT_EQ(parts.getSheets().getPart(1).getBoundingBox(), BoundingBox(1.0f, 3.0f, 0.0f, 1.0f, 0.0f, 0.0f));
    EXPECT_EQ(parts.getLines().getPart(4).getLength(), 2.0f);
    EXPECT_EQ(face->getBoundingBox(), BoundingBox(0.0f, 3.0f, 0.0f, 1.0f, 0.0f, 0.0f));

    // The shared line is under two sheets; subdomains do not count, since a face has none.
    EXPECT_EQ(parts.getLines().getPart(1).getControlLevel(), 2);
    EXPECT_EQ(parts.getLines().getPart(1).getControlCount(), 2);
    EXPECT_EQ(parts.getPoints().getPart(4).getControlCount(), 3);
    EXPECT_EQ(parts.getSheets().getPart(0).getControlLevel(), SelectablePart::c_noControl);

    EXPECT_EQ(face->getLabelledPart(), 1) << "the larger one";
    EXPECT_EQ(parts.getSheets().getPart(1).getLabel()->getText(), vxbase::UString("rectangles"));
    EXPECT_EQ(parts.getSheets().getPart(1).getLabel()->getPosition(), Vector3f(2.0f, 0.5f, 0.0f));
}

TEST(SceneGraphDrawObjectFace, everyFillReplacesPartsMarksAndLabel)
{
    const auto face = filled<SceneGraphDrawObjectFace>();
    face->mark(PartSheet, 0, c_primary, true);
    RenderDraw3D record = twoRectangles(8);
    record.m_name = "other";
    record.m_sheets[1].m_isValid = false;
    record.m_sheets[0].m_box.m_xMax = 9.0f;
    CapturedLog log(ErrorLog::Level::error);
    face->fillData(record);
    EXPECT_EQ(log.messages(), std::vector<std::string>{"Id do not match for Face3dObject"});
    const SheetCollection& sheets = face->getParts().getSheets();
    EXPECT_EQ(flagsOf(*face, 2), (std::vector{0, 0}));
    EXPECT_EQ(sheets.getNumLabels(), 1);
    EXPECT_EQ(face->getLabelledPart(), 0);
    EXPECT_EQ(sheets.getPart(0).getLabel()->getText(), vxbase::UString("other"));
    EXPECT_FALSE(sheets.getPart(1).hasGeometry());
    EXPECT_EQ(sheets.getPart(1).getBoundingBox(), BoundingBox(1.0f, 3.0f, 0.0f, 1.0f, 0.0f, 0.0f));
    EXPECT_EQ(face->getParts().getAdjacents(PartSheet, PartLine).getNumberOfAdjacents(1), 4);

    const int changes = face->getChangeId();
    face->resetObject();
    EXPECT_FALSE(face->isValid());
    EXPECT_EQ(face->getLabelledPart(), -1);
    EXPECT_EQ(face->getChangeId(), changes);
    EXPECT_EQ(face->getParts().getAdjacents(PartSheet, PartLine).getNumberOfAdjacents(1), 0);
}

TEST(SceneGraphDrawObjectFace, takesAreasOfThePlane)
{
    RenderDraw2D record;
    record.m_box.m_xMax = 2.0f;
    record.m_sheets = std::make_unique<Sheet2D[]>(2);
    record.m_numSheets = 2;
    for (int i = 0; i < 2; ++i) {
        Sheet2D& sheet = record.m_sheets[static_cast<std::size_t>(i)];
        sheet.m_isValid = true;
        sheet.m_vertices = arrayOf(std::vector<Coords2D>{{0, 0}, {2, 0}, {0, 3}});
        sheet.m_numVertices = 3;
        sheet.m_triangles = arrayOf(std::vector<Triangle>{{0, 1, 2}});
        sheet.m_numTriangles = i;
    }
    record.m_snapX = {0.5, 1.0 / 3.0};
    record.m_snapY = {0.25, 2.0};
    const auto face = SceneGraphDrawObjectFace::create(0);
    face->fillData(record);
    EXPECT_FALSE(face->getParts().getSheets().getPart(0).hasGeometry()) << "an area without triangles has no vertices";
    const VertexNormal& vertex = face->getParts().getSheets().getPart(1).getVertices().vertices()[2];
    EXPECT_EQ((std::vector{vertex.x, vertex.y, vertex.z, vertex.nx, vertex.ny, vertex.nz}),
              (std::vector{0.0f, 3.0f, 0.0f, 0.0f, 0.0f, 1.0f}));
    const std::vector<SnapVertex>& snap = face->getSnapVertices();
    ASSERT_EQ(snap.size(), 2u);
    EXPECT_EQ(snap[1].x, 1.0 / 3.0);
    EXPECT_EQ(snap[1].y, 2.0);
    EXPECT_EQ(snap[1].nodeId, face->getNodeId());
    EXPECT_EQ(snap[1].index, 1);
    face->fillData(record);
    EXPECT_EQ(face->getSnapVertices().size(), 2u);
}

TEST(SceneGraphDrawObjectCurve, hasItsNameOnTheLongestLine)
{
    RenderDraw2D record;
    record.m_box.m_xMax = 4.0f;
    record.m_name = "curve";
    record.m_curves = std::make_unique<Curve2D[]>(3);
    record.m_numCurves = 3;
    record.m_curves[0] = curveInPlane({{0, 0}, {1, 0}});
    record.m_curves[1] = curveInPlane({{0, 0}, {2, 0}, {2, 1}});
    record.m_curves[2] = curveInPlane({{0, 0}, {3, 0}});
    const auto curve = SceneGraphDrawObjectCurve::create(0);
    curve->fillData(record);
    EXPECT_EQ(curve->getLabelledPart(), 1) << "the first of the two of length 3";
    const Line& line = curve->getParts().getLines().getPart(1);
    EXPECT_EQ(line.getVertices().getNumberOfVertices(), 4);
    EXPECT_EQ(line.getLabel()->getPosition(), Vector3f(1.5f, 0.0f, 0.0f));
    EXPECT_NEAR(line.getDirectionMarker()->first.x, 1.8f, 1e-6f);
    EXPECT_EQ(line.getDirectionMarker()->second, Vector3f(2.0f, 0.0f, 0.0f));
    EXPECT_EQ(curve->getBoundingBox(), BoundingBox(0.0f, 4.0f, 0.0f, 0.0f, -1.0f, 1.0f));

    RenderDraw1D axis;
    axis.m_id = 5;
    axis.m_box.m_xMax = 1.0f;
    axis.m_curves = std::make_unique<Curve1D[]>(1);
    axis.m_numCurves = 1;
    axis.m_curves[0].m_isValid = true;
    axis.m_curves[0].m_vertices = arrayOf(std::vector{1.0f});
    axis.m_curves[0].m_numVertices = 1;
    axis.m_snapX = {1.0};
    CapturedLog log(ErrorLog::Level::error);
    curve->fillData(axis);
    EXPECT_EQ(log.messages(), std::vector<std::string>{"Id do not match for Curve2dObject"});
    EXPECT_TRUE(curve->isValid());
    EXPECT_EQ(curve->getLabelledPart(), -1) << "a line without length has no name";
    EXPECT_EQ(curve->getBoundingBox(), BoundingBox(0.0f, 1.0f, 0.0f, 0.0f, 0.0f, 0.0f));
    EXPECT_EQ(curve->getSnapVertices().size(), 1u);
}

TEST(SceneGraphDrawObjectPoint, labelsItsFirstPoint)
{
    const auto point = filled<SceneGraphDrawObjectPoint>();
    EXPECT_EQ(point->getLabelledPart(), 0);
    EXPECT_EQ(point->getParts().getPoints().getNumParts(), 6);
    EXPECT_EQ(point->getParts().getLines().getNumParts(), 0);
    EXPECT_EQ(point->getParts().getPoints().getPart(1).getControlLevel(), SelectablePart::c_noControl);
    RenderDraw1D record;
    point->fillData(record);
    EXPECT_FALSE(point->isValid());
    EXPECT_EQ(point->getLabelledPart(), -1);
}

TEST(SceneGraphDrawObjectSolid, labelsItsLargestSubdomainOnTheLargestSheet)
{
    const auto solid = filled<SceneGraphDrawObjectSolid>();
    EXPECT_EQ(solid->getLabelledPart(), 1);
    const SubdomainCollection& subdomains = solid->getParts().getSubdomains();
    EXPECT_EQ(subdomains.getPart(1).getLabel()->getPosition(), Vector3f(2.0f, 0.5f, 0.0f));
    EXPECT_TRUE(subdomains.getPart(0).hasGeometry());
    EXPECT_EQ(solid->getParts().getSheets().getPart(0).getControlLevel(), 3);

    RenderDraw3D record = twoRectangles(7);
    record.m_subdomainToSheet = {};
    solid->fillData(record);
    EXPECT_EQ(solid->getLabelledPart(), -1) << "no sheet to put it on";
    record.m_numSubdomains = 0;
    for (AdjacencyRecord* relation : {&record.m_subdomainToLine, &record.m_subdomainToPoint, &record.m_lineToSubdomain,
                                      &record.m_pointToSubdomain, &record.m_sheetToSubdomain}) {
        *relation = {};
    }
    solid->fillData(record);
    EXPECT_EQ(solid->getLabelledPart(), -1);
    EXPECT_TRUE(solid->isValid());

    solid->mark(c_hidden, true);
    solid->fillData(record);
    EXPECT_EQ(solid->getObjectPart().getMarkFlags(), 0u) << "what is shown again can be picked again";
}

TEST(SceneGraphDrawObject, refusesAnInconsistentRecordAndKeepsWhatItHas)
{
    struct Flaw {
        const char* message;
        void (*apply)(RenderDraw3D& record);
    };
    const Flaw flaws[] = {
        {"triangle of sheet 1 refers to vertex 4 of 4", [](auto& r) { r.m_sheets[1].m_triangles[0].c = 4; }},
        {"triangle of sheet 0 refers to vertex -1", [](auto& r) { r.m_sheets[0].m_triangles[1].a = -1; }},
        {"-3 vertices of sheet 1", [](auto& r) { r.m_sheets[1].m_numVertices = -3; }},
        {"vertices of line 2, but no array", [](auto& r) { r.m_curves[2].m_vertices.reset(); }},
        {"6 points, but no array", [](auto& r) { r.m_points.reset(); }},
        {"sheet to line has 1 rows for 2 parts", [](auto& r) { r.m_sheetToLine = relationOf({{0}}); }},
        {"sheet to line: row 1 refers to line 7 of 7",
         [](auto& r) {
             r.m_sheetToLine = relationOf({{0}, {7}});
         }},
        {"line to point: row 3 is outside", [](auto& r) { r.m_lineToPoint.m_rows[3].start = 13; }},
        {"line to point: row 1 is outside", [](auto& r) { r.m_lineToPoint.m_rows[1].count = -2; }},
        {"overlaps", [](auto& r) { r.m_lineToPoint.m_rows[0].count = 4; }},
    };
    for (const Flaw& flaw : flaws) {
        const auto solid = filled<SceneGraphDrawObjectSolid>();
        solid->mark(PartSheet, 1, c_primary, true);
        RenderDraw3D record = twoRectangles(7);
        flaw.apply(record);
        try {
            solid->fillData(record);
            ADD_FAILURE() << "took a record with this flaw: " << flaw.message;
        } catch (const std::logic_error& e) {
            EXPECT_NE(std::string(e.what()).find(flaw.message), std::string::npos) << e.what();
        }
        EXPECT_EQ(flagsOf(*solid, 2), (std::vector<int>{0, MarkPrimary})) << flaw.message;
        EXPECT_EQ(solid->getLabelledPart(), 1) << flaw.message;
    }
}

TEST(SceneGraphDrawObject, aFillWithoutMemoryLeavesAnObjectWithoutParts)
{
    const auto solid = filled<SceneGraphDrawObjectSolid>();
    const RenderDraw3D record = twoRectangles(7);
    const long failures = failEachAllocation([&] { solid->fillData(record); },
                                             [&] {
                                                 if (!solid->isValid()) {
                                                     EXPECT_EQ(solid->getLabelledPart(), -1);
                                                     EXPECT_EQ(solid->getParts().getNumParts(PartPoint), 0);
                                                 }
                                                 solid->mark(c_hidden, true);
                                             });
    EXPECT_GT(failures, 20);
    EXPECT_EQ(flagsOf(*solid, 2), (std::vector{0, 0}));
    EXPECT_EQ(solid->getLabelledPart(), 1);
}

TEST(DrawObjectMarks, aMarkedSheetMarksItsBorderOnce)
{
    const auto face = filled<SceneGraphDrawObjectFace>();
    const int changes = face->getChangeId();
    face->mark(PartSheet, 0, c_primary, true);
    face->mark(PartSheet, 0, c_primary, true);
    const int near = MarkPrimaryAdjacent;
    EXPECT_EQ(flagsOf(*face, 2), (std::vector<int>{MarkPrimary, 0}));
    EXPECT_EQ(flagsOf(*face, 1), (std::vector<int>{near, near, near, near, 0, 0, 0}));
    EXPECT_EQ(flagsOf(*face, 0), (std::vector<int>{near, near, 0, near, near, 0}));
    EXPECT_EQ(face->getParts().getLines().getNumMarked(), 4);
    face->mark(PartSheet, 1, c_primary, true);
    face->mark(PartSheet, 0, c_primary, false);
    EXPECT_EQ(flagsOf(*face, 1), (std::vector<int>{0, near, 0, 0, near, near, near}));
    face->unmarkAll(PartSheet, c_primary);
    EXPECT_EQ(flagsOf(*face, 1), std::vector<int>(7, 0));
    EXPECT_EQ(face->getParts().getLines().getNumMarked(), 0);

    face->mark(PartPoint, 2, c_secondary, true);
    face->mark(PartSheet, 1, c_secondary, true);
    face->unmarkAll(PartPoint, c_secondary);
    EXPECT_EQ(flagsOf(*face, 0)[2], MarkSecondaryAdjacent);
    face->mark(PartSolid, 5, c_primary, true); // a face has none
    face->mark(PartAll, 0, c_primary, true);
    EXPECT_EQ(face->getChangeId(), changes);
    EXPECT_THROW(face->mark(PartSheet, 2, c_primary, true), std::out_of_range);
    EXPECT_THROW(face->mark(PartLine, -1, c_hidden, true), std::out_of_range);
    EXPECT_EQ(face->getChangeId(), changes);
}

TEST(DrawObjectMarks, anEdgeIsHiddenWithTheLastSheetAroundIt)
{
    const auto face = filled<SceneGraphDrawObjectFace>();
    const int changes = face->getChangeId();
    const int gone = MarkHiddenAdjacent;
    face->mark(PartSheet, 0, c_hidden, true);
    EXPECT_EQ(flagsOf(*face, 1), (std::vector<int>{gone, 0, gone, gone, 0, 0, 0}));
    EXPECT_EQ(flagsOf(*face, 0), (std::vector<int>{gone, 0, 0, gone, 0, 0})) << "the corners of three lines stay";
    face->mark(PartSheet, 1, c_hidden, true);
    EXPECT_EQ(flagsOf(*face, 1), std::vector<int>(7, gone));
    EXPECT_EQ(flagsOf(*face, 0), std::vector<int>(6, gone));
    face->mark(PartSheet, 0, c_hidden, false);
    EXPECT_EQ(flagsOf(*face, 1), (std::vector<int>{0, 0, 0, 0, gone, gone, gone}));
    EXPECT_EQ(flagsOf(*face, 0), (std::vector<int>{0, 0, gone, 0, 0, gone}));
    face->mark(PartSheet, 0, c_hidden, false);
    EXPECT_EQ(face->getChangeId(), changes + 4) << "also for a mark that was gone already";
    face->unmarkAll(PartPoint, c_hidden);
    EXPECT_EQ(face->getChangeId(), changes + 5);
    EXPECT_EQ(flagsOf(*face, 2)[1], MarkHidden);
}

TEST(DrawObjectMarks, aSolidIsMarkedWithAllItsSubdomainsAndSheets)
{
    const auto solid = filled<SceneGraphDrawObjectSolid>();
    solid->mark(c_primary, true);
    EXPECT_EQ(flagsOf(*solid, 3), std::vector<int>(2, MarkPrimary));
    EXPECT_EQ(flagsOf(*solid, 2), std::vector<int>(2, MarkPrimary | MarkPrimaryAdjacent));
    EXPECT_EQ(flagsOf(*solid, 1), std::vector<int>(7, MarkPrimaryAdjacent));
    EXPECT_EQ(solid->getParts().getLines().getPart(1).getAdjacentMarks().primary, 4) << "two of each kind above it";

    solid->mark(c_hidden, true);
    solid->mark(c_unpickable, true);
    EXPECT_EQ(solid->getObjectPart().getMarkFlags(), MarkHidden | MarkUnpickable);
    EXPECT_TRUE(solid->getParts().getPoints().getPart(4).isMarked(MarkUnpickableAdjacent));
    solid->mark(c_unpickable, false);
    solid->unmarkAll(PartLine, c_hidden);
    EXPECT_EQ(solid->getObjectPart().getMarkFlags(), 0u) << "whatever kind of part was named";
    EXPECT_TRUE(solid->getParts().getSheets().isHiddenMarked(0));
    solid->unmarkAll(PartAll, c_hidden);
    solid->mark(c_primary, false);
    for (int level = 0; level < 4; ++level) {
        for (const int flags : flagsOf(*solid, level)) {
            EXPECT_EQ(flags, 0);
        }
    }
    EXPECT_EQ(solid->getParts().getSheets().getPart(0).getAdjacentCount(3), 1) << "as after the fill";
    EXPECT_EQ(solid->getParts().getLines().getPart(1).getAdjacentCount(2), 2);
}

TEST(DrawObjectMarks, theMarkedBoxOfASolidIncludesWhatAMarkTouches)
{
    const auto solid = filled<SceneGraphDrawObjectSolid>();
    const auto face = filled<SceneGraphDrawObjectFace>();
    const auto boxOf = [](const SceneGraphObject& object, int include, int exclude) {
        BoundingBox box;
        object.getMarkedBoundingBox(box, include, exclude);
        return box;
    };
    EXPECT_EQ(boxOf(*solid, 0, 0), BoundingBox(0.0f, 3.0f, 0.0f, 1.0f, 0.0f, 0.0f));
    EXPECT_FALSE(boxOf(*solid, MarkPrimary, 0).isValid());
    solid->mark(PartLine, 4, c_primary, true);
    face->mark(PartLine, 4, c_primary, true);
    EXPECT_EQ(boxOf(*face, MarkPrimary, 0), BoundingBox(1.0f, 3.0f, 0.0f, 0.0f, 0.0f, 0.0f));
    solid->mark(PartSolid, 0, c_primary, true);
    EXPECT_EQ(boxOf(*solid, MarkPrimary, 0), BoundingBox(0.0f, 3.0f, 0.0f, 1.0f, 0.0f, 0.0f));
    EXPECT_EQ(boxOf(*solid, MarkPrimary, MarkPrimaryAdjacent), BoundingBox(1.0f, 3.0f, 0.0f, 0.0f, 0.0f, 0.0f));
    face->mark(PartSheet, 0, c_primary, true);
    EXPECT_EQ(boxOf(*face, MarkPrimary, 0), BoundingBox(0.0f, 3.0f, 0.0f, 1.0f, 0.0f, 0.0f));
    EXPECT_EQ(boxOf(*face, 0, MarkPrimary | MarkPrimaryAdjacent), BoundingBox(1.0f, 3.0f, 0.0f, 1.0f, 0.0f, 0.0f));
}

} // namespace
} // namespace vxgraphics3d
