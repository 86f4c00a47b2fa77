#include "graphics3d/plots/plotfill.h"

#include "graphics3d/buffers/indexbufferlines.h"
#include "graphics3d/buffers/vertexbuffertex.h"
#include "tests/support/postrecord.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <stdexcept>
#include <vector>

namespace vxgraphics3d {
namespace {

using vxdatacarrier::c_colorData;
using vxdatacarrier::PostDataView;
using Record = vxdatacarrier::PostDataObject;
using Floats = std::vector<float>;

Floats limitsOf(const BoundingBox& box)
{
    const Vector3f min = box.getMin();
    const Vector3f max = box.getMax();
    return {min.x, max.x, min.y, max.y, min.z, max.z};
}

/// Two groups; the second has two points in space with normals, and 10 and 30 as colour data within 10 to 90.
PostRecord twoGroups()
{
    PostRecord record = PostRecord().role(Record::ColorData, 1);
    record.group({{9.0}}, {{}, {}}, {{0.0}, {0.0}}, {{0.0f}, {0.0f}, {1.0f}});
    record.group({{1.0, 2.0}, {3.0, 4.0}, {5.0, 6.0}}, {{0, 1}, {1, 0}}, {{0.0, 0.0}, {10.0, 30.0}},
                 {{0.1f, 0.2f}, {0.3f, 0.4f}, {0.5f, 0.6f}});
    return record.limits(1, 1, 10.0, 90.0);
}

TEST(PlotFill, appendPointsCombinesPositionsNormalsAndColoursOfOneGroup)
{
    const PostRecord record = twoGroups();
    const PostDataView view(record, "Plot");
    const PointPositions inPlane(view, 1, 2);
    const PointPositions inSpace(view, 1, 3);
    const PointNormals own(view, 1);
    const PointNormals constant(Vector3f(0.0f, 1.0f, 0.0f));
    const PointColors data(view, 1, c_colorData, ValueScale::ofGroup(view, 1, c_colorData));
    const PointColors overAll(view, 1, c_colorData, ValueScale::ofRecord(view, c_colorData)); // 0 to 90
    struct Case {
        const PointPositions& positions;
        const PointNormals& normals;
        const PointColors& colors;
        Floats last;
    };
    for (const Case& c : {Case{inSpace, own, data, {2, 4, 6, 0.2f, 0.4f, 0.6f, 0.25f, 0}},
                          Case{inSpace, own, PointColors(0.75f), {2, 4, 6, 0.2f, 0.4f, 0.6f, 0.75f, 0}},
                          Case{inSpace, constant, overAll, {2, 4, 6, 0, 1, 0, static_cast<float>(30.0 / 90.0), 0}},
                          Case{inPlane, constant, data, {2, 4, 0, 0, 1, 0, 0.25f, 0}},
                          Case{inPlane, constant, PointColors(0.0f), {2, 4, 0, 0, 1, 0, 0, 0}}}) {
        VertexBufferNormalTex vertices;
        vertices.allocate(2);
        appendPoints(vertices, c.positions, c.normals, c.colors);
        ASSERT_EQ(vertices.getNumberOfVertices(), 2);
        const VertexNormalTex& v = vertices.vertices()[1];
        EXPECT_EQ((Floats{v.x, v.y, v.z, v.nx, v.ny, v.nz, v.u, v.v}), c.last);
    }
}

TEST(PlotFill, allocateVerticesTakesMissingAxesAsZero)
{
    for (const auto& [coordinates, position] : {std::pair{Record::DoubleArrays{{1.0}}, Vector3f(1.0f, 0.0f, 0.0f)},
                                                {{{1.0}, {2.0}}, Vector3f(1.0f, 2.0f, 0.0f)},
                                                {{{1.0}, {2.0}, {3.0}}, Vector3f(1.0f, 2.0f, 3.0f)}}) {
        const PostRecord record = PostRecord().role(Record::ColorData, 0).group(coordinates, {}, {{7.0}});
        const PostDataView view(record, "Plot");
        VertexBufferTex vertices;
        allocateVertices(vertices, PointPositions::ofAnyAxes(view, 0),
                         PointColors(view, 0, c_colorData, ValueScale::ofGroup(view, 0, c_colorData)));
        EXPECT_EQ(vertices.getCoord(0), position);
        EXPECT_EQ(vertices.vertices()[0].u, 0.0f); // one value is constant data
    }
}

TEST(PlotFill, fillLinesTakesTheEndsOfElementsOrBoundaries)
{
    PostRecord record = twoGroups();
    record.record().m_lineElements = {nullptr, boost::make_shared<Record::IntArrays>(Record::IntArrays{{1}, {1}})};
    const PostDataView view(record, "Plot");
    VertexBufferNormalTex vertices;
    vertices.allocate(2);
    IndexBufferLines lines(vertices);
    fillLines(lines, LineEnds::ofElements(view, 1));
    EXPECT_EQ(lines.getSegmentStarts(), (std::vector<int>{0, 4}));
    int from = -1;
    int to = -1;
    lines.getLine(1, from, to);
    EXPECT_EQ((std::vector<int>{from, to}), (std::vector<int>{1, 0}));
    fillLines(lines, LineEnds::ofBoundary(view, 1));
    EXPECT_EQ(lines.getNumElements(0), 1);
    fillLines(lines, LineEnds::ofElements(view, 0));
    EXPECT_EQ(lines.getNumElements(0), 0);
    EXPECT_THROW(LineEnds::ofBoundary(view, 0), std::invalid_argument);
}

TEST(HeightMap, givesHeightsTheMeanWidthOfThePlot)
{
    struct Case {
        double min, max;
        Record::DoubleArrays bounds;
        double scale;
        Floats box;
    };
    for (const Case& c : {Case{2.0, 4.0, {{0.0, 8.0}}, 2.0, {0, 8, 0, 0, 4, 8}},                 // 8 over 0 to 4
                          Case{-4.0, -2.0, {{0.0, 8.0}, {0.0, 4.0}}, 1.5, {0, 8, 0, 4, -6, -3}}, // 6 over -4 to 0
                          Case{-1.0, 1.0, {{0.0, 8.0}, {0.0, 4.0}, {0.0, 99.0}}, 3.0, {0, 8, 0, 4, -3, 3}},
                          Case{0.0, 0.0, {{0.0, 8.0}}, 1.0, {0, 8, 0, 0, 0, 0}}}) {
        const PostRecord record = PostRecord()
                                      .role(Record::HeightData, 0)
                                      .bounds(c.bounds)
                                      .group({{0.0}}, {}, {{5.0}})
                                      .limits(0, 0, c.min, c.max);
        const HeightMap heights(PostDataView(record, "Plot"));
        EXPECT_EQ(heights.scale, c.scale);
        EXPECT_EQ(heights(0), 5.0 * c.scale);
        EXPECT_EQ(limitsOf(heights.box), c.box);
    }
}

TEST(PlotInput, boxOfTakesTheFirstAxesAndFillsOthersWithZero)
{
    EXPECT_EQ(limitsOf(boxOf({{1.0, 2.0}}, 3)), (Floats{1, 2, 0, 0, 0, 0}));
    EXPECT_EQ(limitsOf(boxOf({{1.0, 2.0}, {3.0, 5.0}, {-4.0, 8.0}}, 2)), (Floats{1, 2, 3, 5, 0, 0}));
    EXPECT_EQ(limitsOf(boxOf({{1.0, 2.0}, {3.0, 5.0}, {-4.0, 8.0}}, 3)), (Floats{1, 2, 3, 5, -4, 8}));
}

} // namespace
} // namespace vxgraphics3d
