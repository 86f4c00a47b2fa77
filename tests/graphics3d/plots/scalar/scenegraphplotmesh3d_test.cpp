#include "graphics3d/plots/scalar/scenegraphplotmesh3d.h"

#include "graphics3d/plots/colour/colortable.h"
#include "tests/support/failingallocation.h"
#include "tests/support/linesof.h"
#include "tests/support/plotbuffers.h"
#include "tests/support/postrecord.h"
#include "tests/support/recordflaws.h"

#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <memory>
#include <set>
#include <vector>

namespace vxgraphics3d {
namespace {

using Record = vxdatacarrier::PostDataObject;

const std::vector<std::vector<double>> c_points = {{0, 4, 0}, {0, 0, 2}, {1, 1, 2}};
const std::vector<std::vector<double>> c_values = {{0, 1, 4}};
const std::vector<std::vector<float>> c_normals = {{0, 0, 0}, {1, 1, 1}, {0, 0, 0}};
const float c_third = Vector3f(1.0f, 1.0f, 1.0f).normalized().x;

PostRecord mesh(int kind = Record::Mesh3d)
{
    return PostRecord().kind(kind).role(Record::ColorData, 0).bounds({{0, 4}, {0, 2}, {1, 2}});
}

PostRecord& faces(PostRecord& record)
{
    return record.group(c_points, {{0}, {1}, {2}}, c_values, c_normals);
}

PostRecord& edges(PostRecord& record)
{
    return record.group(c_points, {{0, 1}, {1, 2}}, c_values, c_normals);
}

TEST(SceneGraphPlotMesh3d, aGroupAfterFacesIsTheirWireframe)
{
    PostRecord record = mesh();
    edges(faces(edges(record)));
    faces(faces(record)); // a pair of equal groups: the second is read as lines
    SceneGraphPlotMesh3d plot(1, 3);
    plot.fillPlot(record);
    EXPECT_TRUE(plot.isValid());
    ASSERT_EQ(plot.getNumberOfGroups(), 5);
    EXPECT_EQ(linesOf(plot.getLineBuffer(0)), (Lines{{0, 1}, {1, 2}}));
    EXPECT_EQ(verticesOf(plot.getVertexBuffer(0))[1], (Vertex{4, 0, 1, c_third, c_third, c_third, 0.25f, 0}));
    EXPECT_EQ(trianglesOf(plot.getTriangleBuffer(1)), (Triangles{{0, 1, 2}}));
    EXPECT_EQ(verticesOf(plot.getVertexBuffer(1)),
              (Vertices{{0, 0, 1, 0, 1, 0, 0.0f, 0}, {4, 0, 1, 0, 1, 0, 0.25f, 0}, {0, 2, 2, 0, 1, 0, 1.0f, 0}}));
    EXPECT_EQ(linesOf(plot.getWireframeBuffer(2)), (Lines{{0, 1}, {1, 2}}));
    EXPECT_EQ(verticesOf(plot.getVertexBuffer(2))[2], (Vertex{0, 2, 2, c_third, c_third, c_third, 0.0f, 0}));
    EXPECT_EQ(plot.getLineBuffer(2).getNumIndices(), 0);
    EXPECT_EQ(plot.getWireframeBuffer(0).getNumIndices(), 0);
    EXPECT_EQ(trianglesOf(plot.getTriangleBuffer(3)), (Triangles{{0, 1, 2}}));
    EXPECT_EQ(linesOf(plot.getWireframeBuffer(4)), (Lines{{0, 1}}));
    EXPECT_EQ(limitsOf(plot.getBoundingBox()), (std::vector<float>{0, 4, 0, 2, 1, 2}));
    EXPECT_EQ(plot.getTextureHandles().size(), 4u);
}

TEST(SceneGraphPlotMesh3d, otherKindsAreDrawnInThePlane)
{
    PostRecord record = mesh(11);
    edges(faces(record));
    SceneGraphPlotMesh3d plot(1, 2);
    EXPECT_EQ(plot.getType(), PlotType::mesh2d);
    EXPECT_EQ(SceneGraphPlotMesh3d(1, 7).getType(), PlotType::mesh3d);
    plot.fillPlot(record);
    EXPECT_EQ(verticesOf(plot.getVertexBuffer(0))[2], (Vertex{0, 2, 0, 0, 0, 1, 1.0f, 0}));
    EXPECT_EQ(verticesOf(plot.getVertexBuffer(1))[2], (Vertex{0, 2, 0, c_third, c_third, c_third, 0.0f, 0}));
}

TEST(SceneGraphPlotMesh3d, pointsAreCubesThatTurnOutward)
{
    PostRecord record = mesh().bounds({{0, 10}, {0, 2}, {0, 2}});
    record.group({{3, 9}, {1, 0}, {1, 0}}, {{0}}, {{2, 5}});
    SceneGraphPlotMesh3d plot(1, 3);
    plot.fillPlot(record);
    EXPECT_TRUE(plot.isPoints(0));
    const Vertices vertices = verticesOf(plot.getVertexBuffer(0));
    const Triangles triangles = trianglesOf(plot.getTriangleBuffer(0));
    ASSERT_EQ(vertices.size(), 48u);
    ASSERT_EQ(triangles.size(), 24u);
    // The first face, and the one opposite.
    const float h = 0.02f;
    EXPECT_EQ(Vertices(vertices.begin(), vertices.begin() + 4), (Vertices{{3 - h, 1 - h, 1 - h, -1, 0, 0, 0, 0},
                                                                          {3 - h, 1 + h, 1 - h, -1, 0, 0, 0, 0},
                                                                          {3 - h, 1 - h, 1 + h, -1, 0, 0, 0, 0},
                                                                          {3 - h, 1 + h, 1 + h, -1, 0, 0, 0, 0}}));
    EXPECT_EQ(vertices[4], (Vertex{3 + h, 1 - h, 1 - h, 1, 0, 0, 0, 0}));
    EXPECT_EQ(Triangles(triangles.begin(), triangles.begin() + 4),
              (Triangles{{0, 3, 1}, {0, 2, 3}, {4, 5, 7}, {4, 7, 6}}));
    EXPECT_EQ(vertices[24][6], 1.0f);

    const auto pointOf = [&](int i) {
        const Vertex& v = vertices[static_cast<std::size_t>(i)];
        return Vector3f(v[0], v[1], v[2]);
    };
    std::set<std::vector<float>> normals;
    for (std::size_t i = 0; i < triangles.size(); ++i) {
        const Vector3f a = pointOf(triangles[i][0]);
        const Vector3f cross = (pointOf(triangles[i][1]) - a).cross(pointOf(triangles[i][2]) - a).normalized();
        const Vector3f center = i < 12 ? Vector3f(3.0f, 1.0f, 1.0f) : Vector3f(9.0f, 0.0f, 0.0f);
        EXPECT_GT(cross.dot(a - center), 0.0f);
        for (const int corner : triangles[i]) {
            const Vertex& v = vertices[static_cast<std::size_t>(corner)];
            EXPECT_NEAR(cross.dot(Vector3f(v[3], v[4], v[5])), 1.0f, 1e-5f);
            normals.insert({v[3] + 0.0f, v[4] + 0.0f, v[5] + 0.0f});
        }
    }
    EXPECT_EQ(normals.size(), 6u);

    plot.setActive(false); // has an empty box, which gives cubes without a size
    plot.fillPlot(record);
    EXPECT_EQ(verticesOf(plot.getVertexBuffer(0))[0], (Vertex{3, 1, 1, 0, 0, 0, 0, 0}));
}

TEST(SceneGraphPlotMesh3d, groupsOfOtherElementsStayEmptyAndMakeThePlotInvalid)
{
    SceneGraphPlotMesh3d plot(1, 3);
    EXPECT_TRUE(plot.isValid());
    for (const std::vector<std::vector<int>>& elements :
         {std::vector<std::vector<int>>{}, {{0}, {1}, {2}, {0}}, {{}, {}}}) {
        PostRecord record = mesh();
        faces(record);
        edges(record);
        plot.fillPlot(record);
        EXPECT_TRUE(plot.isValid());
        record.group(c_points, elements, c_values);
        plot.fillPlot(record);
        EXPECT_FALSE(plot.isValid());
        EXPECT_EQ(plot.getTriangleBuffer(2).getNumIndices() + plot.getLineBuffer(2).getNumIndices(), 0);
    }
    PostRecord pair = mesh();
    plot.fillPlot(edges(faces(pair)));
    plot.resetPlotData();
    EXPECT_FALSE(plot.isValid());
    EXPECT_EQ(plot.getNumberOfGroups(), 2);
    EXPECT_EQ(plot.getVertexBuffer(1).getCapacity(), -1);
}

TEST(SceneGraphPlotMesh3d, switchesMoveTheirCountersAndHidingFacesDropsTheColorTable)
{
    SceneGraphPlotMesh3d plot(1, 3);
    PostRecord record = mesh();
    edges(faces(record));
    struct Step {
        int geometry;
        int color;
        std::function<void()> act;
    };
    const std::vector<Step> steps = {
        {1, 1, [&] { plot.fillPlot(record); }},
        {0, 0, [&] { plot.resetPlotData(); }},
        {0, 1,
         [&] {
             plot.setColorTable("mesh", {{1, 0, 0}}, false);
         }},
        {0, 0, [&] { plot.setDisplayInterior(true); }},
        {1, 1, [&] { plot.setDisplayInterior(false); }},
        {1, 0, [&] { plot.setDisplayInterior(true); }},
        {1, 0, [&] { plot.setDisplayWireframe(false); }},
        {0, 0, [&] { plot.setDisplayWireframe(false); }},
        {0, 0, [&] { plot.setWireframeColor(Color()); }},
        {0, 1, [&] { plot.setWireframeColor(Color::fromRgb(0xff)); }},
    };
    for (std::size_t i = 0; i < steps.size(); ++i) {
        const int geometry = plot.getGeometryChangeId();
        const int color = plot.getColorChangeId();
        steps[i].act();
        EXPECT_EQ(plot.getGeometryChangeId(), geometry + steps[i].geometry) << "step " << i;
        EXPECT_EQ(plot.getColorChangeId(), color + steps[i].color) << "step " << i;
        EXPECT_EQ(plot.hasColorTable(), i == 2 || i == 3) << "step " << i;
    }
}

TEST(SceneGraphPlotMesh3d, fillRefusesARecordThatLacksSomethingAndNamesIt)
{
    PostRecord record = mesh();
    edges(faces(record));
    expectRefusals([] { return std::make_unique<SceneGraphPlotMesh3d>(1, 3); }, record, "SceneGraphPlotMesh3d",
                   {{"role 0", [](Record& r) { r.m_dataIndex[Record::ColorData] = -1; }},
                    {"role 0", [](Record& r) { (*r.m_data[0])[0].pop_back(); }},
                    {"data minima of group 1", [](Record& r) { r.m_dataMin.pop_back(); }},
                    {"normals of group 0", [](Record& r) { r.m_normals.clear(); }},
                    {"coordinates of group 1", [](Record& r) { r.m_coordinates[1]->pop_back(); }},
                    {"elements of group 1", [](Record& r) { r.m_elements[1]->pop_back(); }}},
                   [](const SceneGraphPlotMesh3d& plot) { return verticesOf(plot.getVertexBuffer(1)); });
}

TEST(SceneGraphPlotMesh3d, fillThatRunsOutOfMemoryLeavesEmptyGroupsAndCanBeRepeated)
{
    PostRecord record = mesh();
    edges(faces(record)).group(c_points, {{0}}, c_values);
    SceneGraphPlotMesh3d plot(1, 3);
    plot.fillPlot(record);
    int geometry = plot.getGeometryChangeId();
    const long failures = failEachAllocation([&] { plot.fillPlot(record); },
                                             [&] {
                                                 EXPECT_EQ(plot.isValid(), plot.getGeometryChangeId() == geometry);
                                                 plot.fillPlot(record);
                                                 EXPECT_TRUE(plot.isValid());
                                                 geometry = plot.getGeometryChangeId();
                                             });
    EXPECT_GE(failures, 3 * 4);
}

} // namespace
} // namespace vxgraphics3d
