#include "producer/geometrybuilding.h"

#include "datacarrier/renderdraw1d.h"
#include "datacarrier/renderdraw2d.h"
#include "datacarrier/renderdraw3d.h"
#include "datacarrier/rendermesh.h"
#include "producer/geometrycompletion.h"
#include "producer/meshbuilding.h"
#include "producer/projectionbuilding.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstddef>
#include <functional>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

namespace vxproducer {
namespace {

using namespace vxdatacarrier;
using Rows = std::vector<std::vector<int>>;

Rows rowsOf(const AdjacencyRecord& relation)
{
    Rows rows(static_cast<std::size_t>(relation.m_numRows));
    for (std::size_t i = 0; i < rows.size(); ++i) {
        const auto [start, count] = relation.m_rows[i];
        for (int value = start; start >= 0 && value < start + count; ++value) {
            rows[i].push_back(relation.m_values[static_cast<std::size_t>(value)]);
            EXPECT_EQ(relation.m_extra[static_cast<std::size_t>(value)], 0);
        }
    }
    EXPECT_EQ(relation.m_numUsed, relation.m_numValues);
    return rows;
}

std::vector<float> valuesOf(const BoundingBox2D& box)
{
    return {box.m_xMin, box.m_xMax, box.m_yMin, box.m_yMax};
}

std::vector<float> valuesOf(const BoundingBox3D& box)
{
    return {box.m_xMin, box.m_xMax, box.m_yMin, box.m_yMax, box.m_zMin, box.m_zMax};
}

/// Two tetrahedra, domains 0 and 1, that share a sheet: the one in the plane x + y + z = 1, sheet 3. The far corner of
/// the second is (2, 2, 2). Sheets are turned away from domain 0 or, without one, from domain 1.
GeometryParts twoTetrahedra()
{
    constexpr double corners[5][3] = {{0, 0, 0}, {1, 0, 0}, {0, 1, 0}, {0, 0, 1}, {2, 2, 2}};
    GeometryParts parts = {.id = 7, .name = "Two"};
    const auto axes = [&](const std::vector<std::size_t>& points) {
        GeometryParts::DoubleArrays result(3);
        for (const std::size_t point : points) {
            for (std::size_t axis = 0; axis < 3; ++axis) {
                result[axis].push_back(corners[point][axis]);
            }
        }
        return result;
    };
    parts.points = axes({0, 1, 2, 3, 4});
    parts.curves = {axes({0, 1}), axes({0, 2}), axes({0, 3}), axes({1, 2}), axes({2, 3}),
                    axes({3, 1}), axes({1, 4}), axes({2, 4}), axes({3, 4})};
    const auto sheet = [&](std::size_t a, std::size_t b, std::size_t c, int up, int down) {
        return GeometryParts::Sheet{
            .coordinates = axes({a, b, c}), .triangles = {{0}, {1}, {2}}, .upDomain = up, .downDomain = down};
    };
    parts.sheets = {sheet(0, 2, 1, -1, 0), sheet(0, 1, 3, -1, 0), sheet(0, 3, 2, -1, 0), sheet(1, 2, 3, 1, 0),
                    sheet(1, 2, 4, -1, 1), sheet(2, 3, 4, -1, 1), sheet(3, 1, 4, -1, 1)};
    parts.sheetToLine = {{1, 3, 0}, {0, 5, 2}, {2, 4, 1}, {3, 4, 5}, {3, 7, 6}, {4, 8, 7}, {5, 6, 8}};
    return parts;
}

TEST(GeometryBuilding, derivesBoxesNormalsAndAllRelationsOfASolid)
{
    const auto solid = buildGeometry<RenderDraw3D>(twoTetrahedra());
    EXPECT_TRUE(solid.m_isValid);
    EXPECT_EQ(solid.m_id, 7);
    EXPECT_EQ(solid.m_name, "Two");
    EXPECT_EQ(valuesOf(solid.m_box), (std::vector<float>{0, 2, 0, 2, 0, 2}));
    EXPECT_EQ(valuesOf(solid.m_sheets[0].m_box), (std::vector<float>{0, 1, 0, 1, 0, 0}));
    EXPECT_EQ(valuesOf(solid.m_curves[7].m_box), (std::vector<float>{0, 2, 1, 2, 0, 2}));
    EXPECT_EQ(solid.m_sheets[0].m_vertices[1].nz, -1);
    EXPECT_FLOAT_EQ(solid.m_sheets[3].m_vertices[0].nx, std::sqrt(1.0f / 3.0f));

    EXPECT_EQ(rowsOf(solid.m_lineToPoint),
              (Rows{{0, 1}, {0, 2}, {0, 3}, {1, 2}, {2, 3}, {3, 1}, {1, 4}, {2, 4}, {3, 4}}));
    EXPECT_EQ(rowsOf(solid.m_pointToLine), (Rows{{0, 1, 2}, {0, 3, 5, 6}, {1, 3, 4, 7}, {2, 4, 5, 8}, {6, 7, 8}}));
    EXPECT_EQ(rowsOf(solid.m_sheetToPoint),
              (Rows{{0, 2, 1}, {0, 1, 3}, {0, 3, 2}, {1, 2, 3}, {1, 2, 4}, {2, 3, 4}, {3, 1, 4}}));
    EXPECT_EQ(rowsOf(solid.m_lineToSheet)[3], (std::vector<int>{0, 3, 4}));
    EXPECT_EQ(rowsOf(solid.m_pointToSheet)[4], (std::vector<int>{4, 5, 6}));

    EXPECT_EQ(rowsOf(solid.m_sheetToSubdomain), (Rows{{0}, {0}, {0}, {1, 0}, {1}, {1}, {1}}));
    EXPECT_EQ(rowsOf(solid.m_subdomainToSheet), (Rows{{0, 1, 2, 3}, {3, 4, 5, 6}}));
    EXPECT_EQ(rowsOf(solid.m_subdomainToLine), (Rows{{1, 3, 0, 5, 2, 4}, {3, 4, 5, 7, 6, 8}}));
    EXPECT_EQ(rowsOf(solid.m_subdomainToPoint), (Rows{{0, 2, 1, 3}, {1, 2, 3, 4}}));
    EXPECT_EQ(rowsOf(solid.m_lineToSubdomain)[3], (std::vector<int>{0, 1}));
    EXPECT_EQ(rowsOf(solid.m_pointToSubdomain), (Rows{{0}, {0, 1}, {0, 1}, {0, 1}, {1}}));
    ASSERT_EQ(solid.m_numSubdomains, 2);
    EXPECT_EQ(valuesOf(solid.m_subdomains[0]), (std::vector<float>{0, 1, 0, 1, 0, 1}));
    EXPECT_EQ(valuesOf(solid.m_subdomains[1]), (std::vector<float>{0, 2, 0, 2, 0, 2}));
}

TEST(GeometryBuilding, takesGivenRelationsInsteadOfDerivingThem)
{
    GeometryParts parts = twoTetrahedra();
    parts.lineToPoint = Rows(9);
    parts.lineToPoint->at(8) = {0};
    parts.sheetToPoint = {{4}, {}, {}, {}, {}, {}, {}};
    parts.subdomainToSheet = {{6}, {}, {0, 1}};
    const auto solid = buildGeometry<RenderDraw3D>(parts);
    EXPECT_EQ(rowsOf(solid.m_pointToLine), (Rows{{8}, {}, {}, {}, {}}));
    EXPECT_EQ(rowsOf(solid.m_pointToSheet), (Rows{{}, {}, {}, {}, {0}}));
    EXPECT_EQ(rowsOf(solid.m_sheetToSubdomain), (Rows{{2}, {2}, {}, {}, {}, {}, {0}}));
    EXPECT_EQ(rowsOf(solid.m_subdomainToPoint), (Rows{{}, {}, {4}}));
    EXPECT_EQ(valuesOf(solid.m_subdomains[1]), std::vector<float>(6));
}

TEST(GeometryBuilding, buildsAPlaneWithPartsWithoutGeometry)
{
    constexpr double third = 1.0 / 3.0;
    const auto face = buildGeometry<RenderDraw2D>(
        {.points = {{third, 2}, {-1, 5}},
         .curves = {{{third, 1, third}, {-1, 0, -1}}, {}, {{0, 2}, {0, 5}}},
         .sheets = {{}, {.coordinates = {{0, 1, 0}, {0, 0, 1}}, .triangles = {{0}, {1}, {2}}}},
         .sheetToLine = {{{1}, {0, 2}}}});
    EXPECT_EQ(face.m_snapX, (std::vector<double>{third, 2}));
    EXPECT_EQ(face.m_snapY, (std::vector<double>{-1, 5}));
    EXPECT_EQ(valuesOf(face.m_box), (std::vector<float>{0, 2, -1, 5}));
    EXPECT_FALSE(face.m_curves[1].m_isValid);
    EXPECT_FALSE(face.m_sheets[0].m_isValid);
    // A closed curve has one point, and so has one whose other end is nowhere.
    EXPECT_EQ(rowsOf(face.m_lineToPoint), (Rows{{0}, {}, {1}}));
    EXPECT_EQ(rowsOf(face.m_sheetToPoint), (Rows{{}, {0, 1}}));

    const auto bare = buildGeometry<RenderDraw1D>({.points = {{4}}});
    EXPECT_EQ(bare.m_box.m_xMin, 4);
    EXPECT_EQ(bare.m_snapX, (std::vector<double>{4}));
}

TEST(GeometryBuilding, namesWhatDoesNotFitTogether)
{
    const auto changed = [](const std::function<void(GeometryParts&)>& change) {
        GeometryParts parts = twoTetrahedra();
        change(parts);
        return parts;
    };
    using P = GeometryParts;
    const std::pair<std::string, GeometryParts> cases[] = {
        {"points: 2 arrays, not 3", changed([](P& p) { p.points.pop_back(); })},
        {"curve 2: coordinates[1] has 3 entries, curve 2: coordinates[0] has 2",
         changed([](P& p) { p.curves[2][1].push_back(0); })},
        {"curve 1 has no vertices", changed([](P& p) { p.curves[1] = P::DoubleArrays(3); })},
        {"points[1][4] is not finite in single precision", changed([](P& p) { p.points[1][4] = std::nan(""); })},
        {"curve 0: coordinates[0][1] is not finite in single precision",
         changed([](P& p) { p.curves[0][0][1] = 1e39; })},
        {"sheet 4: triangles[2][0] is vertex 3, but there are 3",
         changed([](P& p) { p.sheets[4].triangles[2][0] = 3; })},
        {"sheet 4: triangles: 2 arrays, not 3", changed([](P& p) { p.sheets[4].triangles.pop_back(); })},
        {"sheet 5: normals have 1 entries for 3 vertices",
         changed([](P& p) { p.sheets[5].normals = P::FloatArrays(3, std::vector<float>(1)); })},
        {"sheet 0 has no coordinates", changed([](P& p) { p.sheets[0].coordinates.clear(); })},
        {"sheetToLine has 6 rows for 7 sheets", changed([](P& p) { p.sheetToLine->pop_back(); })},
        {"sheetToLine[2][1] is curve 9, but there are 9", changed([](P& p) { (*p.sheetToLine)[2][1] = 9; })},
        {"subdomainToPoint[0][0] is point -1, but there are 5", changed([](P& p) { p.subdomainToPoint = {{{-1}}}; })},
        {"sheet 3: upDomain is 14, but 7 sheets bound at most 14 domains",
         changed([](P& p) { p.sheets[3].upDomain = 14; })},
        {"sheet 6: downDomain is -2, but 7 sheets bound at most 14 domains",
         changed([](P& p) { p.sheets[6].downDomain = -2; })},
        {"sheet 3: upDomain is 1; number of subdomains: 1", changed([](P& p) { p.subdomainToLine = Rows(1); })},
    };
    for (const auto& [message, parts] : cases) {
        try {
            buildGeometry<RenderDraw3D>(parts);
            ADD_FAILURE() << message;
        } catch (const std::exception& caught) {
            EXPECT_EQ(caught.what(), message);
        }
    }
    EXPECT_THROW(buildGeometry<RenderDraw2D>({.sheets = {{.upDomain = 0}}}), std::invalid_argument);
    EXPECT_THROW(buildGeometry<RenderDraw1D>({.sheets = {{}}}), std::invalid_argument);
}

TEST(GeometryBuilding, makesAModelOfASolidAndItsDomains)
{
    GeometryParts parts = twoTetrahedra();
    const auto expected = buildGeometry<RenderGeom3D>(parts);
    std::vector<int> up;
    std::vector<int> down;
    for (GeometryParts::Sheet& sheet : parts.sheets) {
        up.push_back(std::exchange(sheet.upDomain, -1));
        down.push_back(std::exchange(sheet.downDomain, -1));
    }
    auto solid = buildGeometry<RenderDraw3D>(parts);
    ASSERT_EQ(solid.m_numSubdomains, 0);
    solid.m_sheets[2].m_box = {}; // as a reader leaves it
    solid.m_sheetToPoint = {};
    const RenderGeom3D model = buildModel(solid, up, down);
    for (const auto relation :
         {&RenderGeom3D::m_subdomainToSheet, &RenderGeom3D::m_subdomainToLine, &RenderGeom3D::m_sheetToSubdomain,
          &RenderGeom3D::m_pointToSubdomain, &RenderGeom3D::m_sheetToPoint, &RenderGeom3D::m_pointToLine}) {
        EXPECT_EQ(rowsOf(model.*relation), rowsOf(expected.*relation));
    }
    EXPECT_EQ(valuesOf(model.m_sheets[2].m_box), valuesOf(expected.m_sheets[2].m_box));
    EXPECT_EQ(valuesOf(model.m_subdomains[1]), valuesOf(expected.m_subdomains[1]));
    EXPECT_EQ(model.m_sheets[3].m_upDomain, 1);
    EXPECT_EQ(model.m_sheets[3].m_triangles[0].c, 2);
    up.pop_back();
    EXPECT_THROW(buildModel(solid, up, down), std::invalid_argument);
}

TEST(GeometryCompletion, derivesARelationFromItsInverse)
{
    RenderDraw3D record = buildGeometry<RenderDraw3D>(twoTetrahedra());
    const Rows expected = rowsOf(record.m_pointToSheet);
    record.m_sheetToPoint.allocate(7, 0); // as a reader leaves it
    complete(record);
    EXPECT_EQ(rowsOf(record.m_pointToSheet), expected);
    EXPECT_EQ(rowsOf(record.m_sheetToPoint)[0], (std::vector<int>{0, 1, 2}));
    record.m_sheetToLine.m_values[2] = 9;
    EXPECT_THROW(complete(record), std::out_of_range);
}

TEST(ProjectionBuilding, takesOneKindPerPart)
{
    ProjectionParts parts = {
        .points = {{0.1}, {3}}, .pointKinds = {1}, .curves = {{{1, 2}, {5, 5}}}, .curveKinds = {4}};
    const RenderDrawProj2D record = buildProjection(parts);
    EXPECT_EQ(record.m_snapX, (std::vector<double>{0.1}));
    EXPECT_EQ(valuesOf(record.m_box), (std::vector<float>{0.1f, 2, 3, 5}));
    EXPECT_EQ(record.m_pointKinds[0], RenderDrawProj2D::c_primary);
    EXPECT_EQ(record.m_curveKinds[0], 4);
    parts.curveKinds.clear();
    EXPECT_THROW(buildProjection(parts), std::invalid_argument);
}

TEST(MeshBuilding, buildsTheMeshOfEachKindOfPart)
{
    const auto sheet = buildMesh({.type = RenderMesh::Boundary3D,
                                  .partIndex = 3,
                                  .coordinates = {{0, 1, 1, 0}, {0, 0, 1, 1}, {2, 2, 2, 2}},
                                  .triangles = {{0}, {1}, {2}},
                                  .quads = {{0}, {1}, {2}, {3}}});
    const auto& boundary = dynamic_cast<const RenderMeshBoundary3D&>(*sheet);
    EXPECT_EQ(boundary.m_partIndex, 3);
    EXPECT_EQ(boundary.m_numCoordinates, 4);
    EXPECT_EQ(boundary.m_coordinates[2].y, 1);
    EXPECT_EQ(boundary.m_numTriangles, 1);
    EXPECT_EQ(boundary.m_quads[0].d, 3);
    for (const auto& [type, numAxes] : {std::pair(0, 3), {2, 1}, {3, 2}, {4, 2}}) {
        const auto mesh = buildMesh({.type = type, .coordinates = {static_cast<std::size_t>(numAxes), {1.0}}});
        EXPECT_EQ(mesh->m_meshType, type);
        EXPECT_THROW(buildMesh({.type = type, .coordinates = {4, {1.0}}}), std::invalid_argument);
    }
    EXPECT_THROW(buildMesh({.type = 5}), std::invalid_argument);
    EXPECT_THROW(buildMesh({.type = 0, .coordinates = {3, {1.0}}, .triangles = {{0}, {0}, {0}}}),
                 std::invalid_argument);
    EXPECT_THROW(buildMesh({.type = 3, .coordinates = {2, {1.0}}, .quads = {{0}, {0}, {0}, {1}}}), std::out_of_range);
}

} // namespace
} // namespace vxproducer
