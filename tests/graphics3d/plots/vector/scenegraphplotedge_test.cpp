#include "graphics3d/plots/vector/scenegraphplotedge2d.h"
#include "graphics3d/plots/vector/scenegraphplotedge3d.h"
#include "tests/support/failingallocation.h"
#include "tests/support/fillrefusal.h"
#include "tests/support/linesof.h"
#include "tests/support/postrecord.h"
#include "tests/support/randomnumbers.h"

#include <gtest/gtest.h>

#include <vector>

namespace vxgraphics3d {
namespace {

using Record = vxdatacarrier::PostDataObject;
using Vertex = std::vector<float>;

std::vector<Vertex> verticesOf(const SceneGraphPlotEdge& plot)
{
    std::vector<Vertex> vertices;
    for (int i = 0; i < plot.getVertices().getNumberOfVertices(); ++i) {
        const VertexTex& v = plot.getVertices().vertices()[i];
        vertices.push_back({v.x, v.y, v.z, v.u, v.v});
    }
    return vertices;
}

/// Four points in space, within the unit cube; data array 0 rises from 0 to 3, array 1 from -1 to 2.
PostRecord fourPoints(Record::IntArrays elements)
{
    return PostRecord()
        .bounds({{0, 4}, {0, 2}, {0, 1}})
        .group({{0, 4, 0, 0}, {0, 0, 2, 0}, {0, 0, 0, 1}}, std::move(elements), {{0, 1, 2, 3}, {-1, 0, 1, 2}});
}

TEST(EdgePlots, everyPairOfCornersIsALine)
{
    struct Case {
        Record::IntArrays elements;
        Lines lines;
    };
    for (const Case& c : {Case{{{0}, {1}, {2}, {3}}, {{0, 1}, {0, 2}, {0, 3}, {1, 2}, {1, 3}, {2, 3}}},
                          Case{{{0, 1}, {1, 2}, {2, 3}}, {{0, 1}, {0, 2}, {1, 2}, {1, 2}, {1, 3}, {2, 3}}},
                          Case{{{3, 0}, {1, 2}}, {{3, 1}, {0, 2}}}, Case{{{0, 1, 2}}, {}}, Case{{{}, {}}, {}}}) {
        SceneGraphPlotEdge3d plot(1);
        plot.fillPlot(fourPoints(c.elements));
        EXPECT_EQ(linesOf(plot.getLines()), c.lines);
        EXPECT_EQ(plot.isValid(), !c.lines.empty());
        EXPECT_EQ(plot.getVertices().getNumberOfVertices(), 4);
    }
}

TEST(EdgePlots, verticesArePointsWithTheirPositionInTheRangeOfTheirData)
{
    PostRecord record = fourPoints({{0}, {1}});
    record.role(Record::ColorData, 0).limits(0, 0, 0.0, 4.0);
    SceneGraphPlotEdge3d plot(1);
    plot.fillPlot(record);
    EXPECT_EQ(verticesOf(plot),
              (std::vector<Vertex>{{0, 0, 0, 0, 0}, {4, 0, 0, 0.25f, 0}, {0, 2, 0, 0.5f, 0}, {0, 0, 1, 0.75f, 0}}));
    EXPECT_EQ(plot.getBoundingBox(), BoundingBox(0.0f, 4.0f, 0.0f, 2.0f, 0.0f, 1.0f));
    plot.fillPlot(PostRecord().bounds({{1, 2}}).group({{1, 2}}, {{0}, {1}})); // one axis, no data
    EXPECT_EQ(verticesOf(plot), (std::vector<Vertex>{{1, 0, 0, 0, 0}, {2, 0, 0, 0, 0}}));
    EXPECT_EQ(plot.getBoundingBox(), BoundingBox(1.0f, 2.0f, 0.0f, 0.0f, 0.0f, 0.0f));
}

TEST(SceneGraphPlotEdge2d, heightsAreScaledToTheMeanWidthAndForgottenByAFlatFill)
{
    PostRecord raised = fourPoints({{0, 1, 2}, {1, 2, 0}});
    raised.role(Record::ColorData, 0).role(Record::HeightData, 1);
    SceneGraphPlotEdge2d plot(1);
    plot.fillPlot(raised); // -1 to 2 over a mean width of 3: not scaled
    EXPECT_TRUE(plot.hasHeightData());
    EXPECT_EQ(verticesOf(plot)[3], (Vertex{0, 0, 2, 1, 0}));
    EXPECT_EQ(plot.getBoundingBox(), BoundingBox(0.0f, 4.0f, 0.0f, 2.0f, -1.0f, 2.0f));
    plot.fillPlot(raised.limits(0, 1, 1.0, 2.0).role(Record::ColorData, -1)); // 0 to 2 becomes 0 to 3
    EXPECT_EQ(verticesOf(plot)[3], (Vertex{0, 0, 3, 0, 0}));
    EXPECT_EQ(plot.getBoundingBox(), BoundingBox(0.0f, 4.0f, 0.0f, 2.0f, 1.5f, 3.0f));

    plot.fillPlot(PostRecord().bounds({{0, 1}, {0, 1}}).group({{0, 1}, {0, 1}}, {{0}, {1}}));
    EXPECT_FALSE(plot.hasHeightData());
    EXPECT_EQ(verticesOf(plot)[1], (Vertex{1, 1, 0, 0, 0}));
    EXPECT_EQ(plot.getBoundingBox(), BoundingBox(0.0f, 1.0f, 0.0f, 1.0f, 0.0f, 0.0f));
}

TEST(EdgePlots, widthAndResetCountAsChangesOfGeometry)
{
    SceneGraphPlotEdge3d plot(1);
    EXPECT_EQ(plot.getLineWidth(), 0.25f);
    plot.setLineWidth(2.0f);
    plot.setLineWidth(2.0f);
    EXPECT_EQ(plot.getLineWidth(), 2.0f);
    EXPECT_EQ(plot.getGeometryChangeId(), 3);
    plot.fillPlot(fourPoints({{0}, {1}}));
    plot.resetPlotData();
    EXPECT_EQ(plot.getGeometryChangeId(), 5);
    EXPECT_FALSE(plot.isValid());
    EXPECT_EQ(plot.getVertices().getCapacity(), -1);
}

TEST(EdgePlots, aPoorRecordIsRefusedAndChangesNothing)
{
    SceneGraphPlotEdge2d flat(1);
    SceneGraphPlotEdge3d spatial(2);
    spatial.fillPlot(fourPoints({{0}, {1}}));
    const auto before = verticesOf(spatial);
    EXPECT_NE(refusalOf(spatial, fourPoints({{0}, {1}, {2}, {3}, {0}})).find("5 arrays, more than 4"),
              std::string::npos);
    EXPECT_NE(refusalOf(spatial, fourPoints({})).find("SceneGraphPlotEdge3d: elements"), std::string::npos);
    EXPECT_NE(refusalOf(spatial, fourPoints({{0, 1}, {1}})).find("different length"), std::string::npos);
    EXPECT_NE(refusalOf(spatial, fourPoints({{0}, {1}}).role(Record::ColorData, 2)).find("role 0"), std::string::npos);
    EXPECT_NE(refusalOf(spatial, PostRecord().group({{1}}, {{0}, {0}})).find("bounds"), std::string::npos);
    EXPECT_NE(refusalOf(flat, fourPoints({{0}, {1}}).role(Record::HeightData, 2)).find("role 4"), std::string::npos);
    EXPECT_NE(refusalOf(flat, PostRecord().bounds({{0, 1}}).role(Record::HeightData, 0).group({{1}}, {{0}, {0}}, {{1}}))
                  .find("coordinates"),
              std::string::npos);
    EXPECT_EQ(verticesOf(spatial), before);
    EXPECT_EQ(linesOf(spatial.getLines()), (Lines{{0, 1}}));
}

TEST(EdgePlots, aFillThatRunsOutOfMemoryLeavesNoBuffersAndCanBeRepeated)
{
    SceneGraphPlotEdge3d plot(1);
    PostRecord record = fourPoints({{0}, {1}, {2}});
    plot.fillPlot(record);
    int geometry = plot.getGeometryChangeId();
    const long failures = failEachAllocation([&] { plot.fillPlot(record); },
                                             [&] {
                                                 EXPECT_EQ(plot.isValid(), plot.getGeometryChangeId() == geometry);
                                                 plot.fillPlot(record);
                                                 EXPECT_EQ(linesOf(plot.getLines()).size(), 3u);
                                                 geometry = plot.getGeometryChangeId();
                                             });
    EXPECT_GE(failures, 3); // vertices, indices, segments
}

TEST(EdgePlots, aFillMatchesPlainLoopsOnRandomElements)
{
    RandomNumbers random(11);
    for (const std::size_t numCorners : {2u, 3u, 4u}) {
        for (const int numPoints : {70, 70000}) { // indices of 16 and 32 bits
            Record::IntArrays elements(numCorners);
            Lines expected;
            for (int i = 0; i < 500; ++i) {
                for (std::vector<int>& corner : elements) {
                    corner.push_back(random.integer(0, numPoints - 1));
                }
                for (std::size_t a = 0; a < numCorners; ++a) {
                    for (std::size_t b = a + 1; b < numCorners; ++b) {
                        expected.emplace_back(elements[a].back(), elements[b].back());
                    }
                }
            }
            const std::vector<double> zeros(static_cast<std::size_t>(numPoints));
            SceneGraphPlotEdge2d plot(1);
            plot.fillPlot(PostRecord().bounds({{0, 1}}).group({zeros, zeros}, elements));
            EXPECT_EQ(linesOf(plot.getLines()), expected);
            EXPECT_EQ(plot.getLines().uses32BitIndices(), numPoints == 70000);
        }
    }
}

} // namespace
} // namespace vxgraphics3d
