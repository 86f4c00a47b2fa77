#include "graphics3d/parts/adjacentparts.h"
#include "graphics3d/parts/meshablelinecollection.h"
#include "graphics3d/parts/meshablesheetcollection.h"
#include "graphics3d/parts/subdomaincollection.h"
#include "tests/support/failingallocation.h"

#include <gtest/gtest.h>

#include <boost/make_shared.hpp>

#include <limits>
#include <map>
#include <stdexcept>
#include <string>
#include <vector>

namespace vxgraphics3d {
namespace {

using vxdatacarrier::Quad;
using vxdatacarrier::Triangle;

/// One sheet of the given triangles.
template <class Sheets>
void addSheet(Sheets& sheets, const std::vector<Vector3f>& points, const std::vector<Triangle>& triangles)
{
    const int index = sheets.addPart(static_cast<int>(points.size()), static_cast<int>(triangles.size()));
    for (const Vector3f& point : points) {
        sheets.appendPartVertex(index, point, {0.0f, 0.0f, 1.0f});
    }
    sheets.appendPartTriangles(index, triangles);
}

TEST(AdjacentParts, rowsAreEmptyUntilTheyAreSet)
{
    AdjacentParts parts;
    EXPECT_EQ(parts.getAdjacents(5), nullptr);
    EXPECT_EQ(parts.getNumberOfAdjacents(5), 0);
    parts.allocate(3, 4);
    const int values[] = {4, 8, 6, 7};
    parts.setConnection(2, values, 3);
    parts.setConnection(0, values + 3, 1);
    EXPECT_EQ(parts.getAdjacents(1), nullptr);
    EXPECT_EQ(parts.getNumberOfAdjacents(1), 0);
    EXPECT_EQ(std::vector(parts.of(2).begin(), parts.of(2).end()), (std::vector{4, 8, 6}));
    EXPECT_EQ(parts.getAdjacents(0)[0], 7);
    EXPECT_THROW(parts.setConnection(1, values, 1), std::out_of_range);
    parts.deallocate();
    EXPECT_EQ(parts.getAdjacents(2), nullptr);
}

TEST(Line, pointsAlongItAreMeasuredByLength)
{
    LineCollection lines;
    lines.allocateParts(3);
    const Vector3f points[] = {
        {0.0f, 0.0f, 0.0f}, {0.0f, 0.0f, 0.0f}, {3.0f, 0.0f, 0.0f}, {3.0f, 4.0f, 0.0f}, {3.0f, 4.0f, 1.0f}};
    lines.addPart(4);
    lines.appendPartPolyline(0, points, 5);
    const Line& line = lines.getPart(0);
    EXPECT_EQ(line.getLength(), 8.0f);
    EXPECT_EQ(lines.getNumVertices(), 8);
    struct Case {
        float fraction;
        Vector3f position, normal, direction;
    };
    for (const Case& c : {Case{0.0f, {0.0f, 0.0f, 0.0f}, {0.0f, 0.0f, 0.0f}, {0.0f, 0.0f, 0.0f}},
                          Case{0.25f, {2.0f, 0.0f, 0.0f}, {0.0f, 1.0f, 0.0f}, {3.0f, 0.0f, 0.0f}},
                          Case{0.5f, {3.0f, 1.0f, 0.0f}, {-1.0f, 0.0f, 0.0f}, {0.0f, 4.0f, 0.0f}},
                          Case{1.0f, {3.0f, 4.0f, 1.0f}, {0.0f, 0.0f, 0.0f}, {0.0f, 0.0f, 1.0f}}}) {
        Vector3f position, normal, direction;
        ASSERT_TRUE(line.pointAlongLine(c.fraction, position, normal, direction));
        EXPECT_EQ(position, c.position) << c.fraction;
        EXPECT_EQ(normal, c.normal) << c.fraction;
        EXPECT_EQ(direction, c.direction) << c.fraction;
    }
    Vector3f position(9.0f, 9.0f, 9.0f), normal, direction;
    EXPECT_TRUE(line.pointAlongLine(1.5f, position, normal, direction));
    EXPECT_EQ(position, Vector3f(9.0f, 9.0f, 9.0f)) << "beyond the end";

    lines.addPart(2);
    lines.appendPartSegment(1, points[2], points[2]);
    lines.appendPartSegment(1, points[3], points[3]);
    EXPECT_TRUE(lines.getPart(1).pointAlongLine(0.1f, position, normal, direction));
    EXPECT_EQ(position, points[3]) << "the middle vertex of a line without length";
    EXPECT_EQ(direction, Vector3f(0.0f, 1.0f, 0.0f));
    EXPECT_FALSE(lines.getPart(1).getDirectionMarker());

    lines.addPart(0);
    lines.appendPartPolyline(2, points, 1);
    EXPECT_EQ(lines.getNumVertices(), 12);
    EXPECT_FALSE(lines.getPart(2).pointAlongLine(0.5f, position, normal, direction));
    EXPECT_FALSE(lines.setPartLabel(2, "nowhere"));
    EXPECT_TRUE(lines.setPartLabel(0, "a"));
    EXPECT_EQ(lines.getNumLabels(), 1);
}

TEST(Sheet, theLabelIsOnTheSheetUnderItsCentre)
{
    SheetCollection sheets;
    sheets.allocateParts(5);
    // An angle of two unequal wings: its centre of area is outside of the surface.
    const std::vector<Vector3f> angle = {{0.0f, 0.0f, 0.0f}, {0.0f, 1.0f, 0.0f}, {4.0f, 0.0f, 0.0f},
                                         {4.0f, 1.0f, 0.0f}, {0.0f, 0.0f, 2.0f}, {0.0f, 1.0f, 2.0f}};
    addSheet(sheets, angle, {{0, 2, 1}, {1, 2, 3}, {0, 1, 4}, {1, 5, 4}});
    addSheet(sheets, {{0.0f, 0.0f, 0.0f}, {3.0f, 0.0f, 0.0f}, {0.0f, 3.0f, 0.0f}}, {{0, 1, 2}});
    // A closed surface: the mean normal is zero.
    addSheet(sheets, {{0.0f, 0.0f, 0.0f}, {1.0f, 0.0f, 0.0f}, {0.0f, 1.0f, 0.0f}, {0.0f, 0.0f, 1.0f}},
             {{0, 2, 1}, {0, 1, 3}, {0, 3, 2}, {1, 2, 3}});
    // Without area.
    addSheet(sheets, {{1.0f, 1.0f, 1.0f}, {2.0f, 2.0f, 2.0f}, {3.0f, 3.0f, 3.0f}}, {{0, 1, 2}});
    sheets.addPart(3, 0);

    Vector3f position, normal;
    ASSERT_TRUE(sheets.getPart(0).computeLabelPosition(position, normal));
    // Areas 4 and 2: centre (4/3, 1/2, 1/3), mean normal (1, 0, 2): it meets the floor at 7/6.
    EXPECT_NEAR(position.x, 7.0f / 6.0f, 1e-6f);
    EXPECT_NEAR(position.y, 0.5f, 1e-6f);
    EXPECT_NEAR(position.z, 0.0f, 1e-6f);
    EXPECT_EQ(normal, Vector3f(0.0f, 0.0f, 1.0f));
    EXPECT_FLOAT_EQ(sheets.getPart(0).getArea(), 6.0f);
    ASSERT_TRUE(sheets.getPart(1).computeLabelPosition(position));
    EXPECT_EQ(position, Vector3f(1.0f, 1.0f, 0.0f));
    ASSERT_TRUE(sheets.getPart(2).computeLabelPosition(position));
    EXPECT_EQ(position, Vector3f(1.0f / 3.0f, 1.0f / 3.0f, 1.0f / 3.0f)) << "the largest triangle";
    ASSERT_TRUE(sheets.getPart(3).computeLabelPosition(position, normal));
    EXPECT_EQ(position, Vector3f(2.0f, 2.0f, 2.0f));
    EXPECT_EQ(normal, Vector3f());
    EXPECT_FALSE(sheets.getPart(4).computeLabelPosition(position));
    EXPECT_FALSE(sheets.setPartLabel(4, "nowhere"));
    EXPECT_EQ(sheets.getPart(4).getLabelChangeId(), 2);
}

TEST(SheetCollection, materialsAreCountedByName)
{
    SheetCollection sheets;
    sheets.allocateParts(2);
    sheets.addPart(0, 0);
    sheets.addPart(0, 0);
    const auto steel = boost::make_shared<std::string>("steel");
    const auto bronze = boost::make_shared<std::string>("bronze");
    sheets.setPartMaterial(steel, 0);
    sheets.setPartMaterial(steel, 0);
    sheets.setPartMaterial(steel, 1);
    EXPECT_EQ(sheets.getMaterials(), (std::map<std::string, int>{{"steel", 2}}));
    EXPECT_EQ(sheets.getMaterialChangeId(), 4);
    sheets.setPartMaterial(bronze, 0);
    sheets.setPartMaterial(bronze, 1);
    EXPECT_EQ(sheets.getMaterials(), (std::map<std::string, int>{{"bronze", 2}}));
    sheets.allocateParts(1);
    sheets.addPart(0, 0);
    sheets.setPartMaterial(bronze, 0);
    EXPECT_EQ(sheets.getMaterials().at("bronze"), 3) << "sheets that were replaced stay counted";
}

TEST(MeshableSheet, everyElementOfAMeshIsFlat)
{
    MeshableSheetCollection sheets;
    sheets.allocateParts(1);
    addSheet(sheets, {{0.0f, 0.0f, 0.0f}, {1.0f, 0.0f, 0.0f}, {0.0f, 1.0f, 0.0f}}, {{0, 1, 2}});
    const Vector3f points[] = {
        {0.0f, 0.0f, 0.0f}, {2.0f, 0.0f, 0.0f}, {2.0f, 2.0f, 0.0f}, {0.0f, 2.0f, 0.0f}, {0.0f, 0.0f, 1.0f}};
    const Triangle triangle[] = {{0, 1, 4}};
    const Quad quad[] = {{0, 1, 2, 3}};
    sheets.setPartMesh(0, points, {}, {});
    EXPECT_EQ(sheets.getMeshablePart(0).getMeshChangeId(), 1) << "nothing to remove";
    sheets.setPartMesh(0, points, triangle, quad);
    const MeshableSheet& sheet = sheets.getMeshablePart(0);
    ASSERT_EQ(sheet.getMeshVertices().getNumberOfVertices(), 7);
    const VertexNormal* vertices = sheet.getMeshVertices().vertices();
    EXPECT_EQ((std::vector{vertices[2].z, vertices[2].nx, vertices[2].ny}), (std::vector{1.0f, 0.0f, -1.0f}));
    EXPECT_EQ((std::vector{vertices[6].y, vertices[6].ny, vertices[6].nz}), (std::vector{2.0f, 0.0f, 1.0f}));
    int a, b, c;
    ASSERT_EQ(sheet.getMeshTriangles().getNumElements(0), 3);
    sheet.getMeshTriangles().getTriangle(2, a, b, c);
    EXPECT_EQ((std::vector{a, b, c}), (std::vector{3, 5, 6}));
    ASSERT_EQ(sheet.getMeshLines().getNumElements(0), 7);
    sheet.getMeshLines().getLine(6, a, b);
    EXPECT_EQ((std::vector{a, b}), (std::vector{6, 3}));
    EXPECT_EQ(sheets.getMarkFlags(0), MarkMeshed);
    EXPECT_EQ(sheets.getNumMarked(), 1);

    failEachAllocation([&] { sheets.setPartMesh(0, points, triangle, quad); },
                       [&] { EXPECT_EQ(sheets.getMarkFlags(0), 0) << "no mesh, no mark"; });
    EXPECT_EQ(sheets.getMarkFlags(0), MarkMeshed);
    const int changes = sheet.getMeshChangeId();
    sheets.clearAllMeshes();
    sheets.clearAllMeshes();
    EXPECT_EQ(sheet.getMeshChangeId(), changes + 1);
    EXPECT_EQ(sheets.getNumMarked(), 0);
}

TEST(MeshableLine, aMeshIsTakenAndRemoved)
{
    MeshableLineCollection lines;
    lines.allocateParts(1);
    lines.addPart(0);
    const Vector3f points[] = {{0.0f, 0.0f, 0.0f}, {1.0f, 0.0f, 0.0f}};
    lines.setHiddenMark(true, 0);
    lines.setPartMesh(0, points, 2);
    EXPECT_EQ(lines.getMeshablePart(0).getMeshVertices().getCoord(1), points[1]);
    EXPECT_EQ(lines.getNumMarked(), 1);
    lines.setPartMesh(0, points, 0);
    EXPECT_EQ(lines.getMarkFlags(0), MarkHidden);
    EXPECT_EQ(lines.getNumMarked(), 1);
    EXPECT_EQ(lines.getMeshablePart(0).getMeshVertices().getCapacity(), -1);
}

TEST(SubdomainCollection, onlyASubdomainWithABoxHasALabel)
{
    SubdomainCollection subdomains;
    subdomains.allocateParts(2);
    subdomains.addPart();
    EXPECT_EQ(subdomains.addPart(), 1);
    EXPECT_THROW(subdomains.addPart(), std::out_of_range);
    subdomains.setPartBoundingBox(0, BoundingBox());
    subdomains.setPartBoundingBox(1, BoundingBox(0.0f, 1.0f, 0.0f, 1.0f, 0.0f, 1.0f));
    EXPECT_FALSE(subdomains.setPartLabel(0, "a", {}));
    EXPECT_TRUE(subdomains.setPartLabel(1, "b", {1.0f, 2.0f, 3.0f}));
    EXPECT_FALSE(subdomains.setPartLabel(1, "c", {}));
    EXPECT_EQ(subdomains.getPart(1).getLabel()->getPosition(), Vector3f(1.0f, 2.0f, 3.0f));
    subdomains.setPrimaryMark(true, 1);
    subdomains.setUnpickableMark(true, 0);
    EXPECT_EQ((std::vector{subdomains.getNumLabels(), subdomains.getNumMarked(), subdomains.getNumPrimary()}),
              (std::vector{1, 1, 1}));
    subdomains.removePartLabel(1);
    subdomains.allocateParts(1);
    subdomains.addPart();
    EXPECT_FALSE(subdomains.getPart(0).hasGeometry());
    EXPECT_EQ((std::vector{subdomains.getNumLabels(), subdomains.getNumMarked(), subdomains.getNumPrimary()}),
              (std::vector{0, 0, 0}));
}

TEST(VertexExtent, isUnknownWithoutVerticesOrWithOneThatIsNotFinite)
{
    VertexExtent extent;
    EXPECT_FALSE(extent.isKnown());
    extent.include({-1.0f, 2.0f, 3.0f});
    extent.include({1.0f, -2.0f, 3.5f});
    EXPECT_TRUE(extent.isKnown());
    EXPECT_EQ(extent.getMin(), Vector3f(-1.0f, -2.0f, 3.0f));
    EXPECT_EQ(extent.getMax(), Vector3f(1.0f, 2.0f, 3.5f));
    for (const float bad : {std::numeric_limits<float>::infinity(), std::numeric_limits<float>::quiet_NaN()}) {
        VertexExtent spoilt = extent;
        spoilt.include({0.0f, bad, 0.0f});
        EXPECT_FALSE(spoilt.isKnown());
    }
}

} // namespace
} // namespace vxgraphics3d
