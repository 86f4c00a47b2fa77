#include "graphics3d/plots/scalar/scenegraphplotslice3d.h"

#include "graphics3d/readers/sceneplotfilereader.h"
#include "tests/support/capturederror.h"
#include "tests/support/failingallocation.h"
#include "tests/support/linesof.h"
#include "tests/support/plotbuffers.h"
#include "tests/support/postrecord.h"
#include "tests/support/recordflaws.h"
#include "tests/support/temporaryfile.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

namespace vxgraphics3d {
namespace {

using Record = vxdatacarrier::PostDataObject;

/// A triangle at x = 0 with values 0 to 1, one at x = 1 with 1 to 3, each with a part of its outline.
PostRecord slices()
{
    PostRecord record = PostRecord().role(Record::ColorData, 1).bounds({{0, 1}, {0, 2}, {0, 3}});
    record.group({{0, 0, 0}, {0, 2, 0}, {0, 0, 3}}, {{0}, {1}, {2}}, {{9, 9, 9}, {0, 1, 1}},
                 {{1, 1, 1}, {0, 0, 0}, {0, 0, 0}});
    record.outline({{0, 1}, {1, 2}});
    record.group({{1, 1, 1}, {0, 2, 0}, {0, 0, 3}}, {{2}, {1}, {0}}, {{9, 9, 9}, {1, 3, 2}},
                 {{-1, -1, -1}, {0, 0, 0}, {0, 0, 0}});
    record.outline({{2}, {0}});
    return record;
}

Vertices verticesOf(const SceneGraphPlotSlice3d& plot, int slice)
{
    return vxgraphics3d::verticesOf(plot.getSlice(slice)->m_vertices);
}

TEST(SceneGraphPlotSlice3d, slicesShareOneScaleAndHaveTheOutlinesOfTheRecord)
{
    SceneGraphPlotSlice3d plot(1);
    EXPECT_EQ(plot.getType(), PlotType::slice3d);
    EXPECT_EQ(plot.getSliceMode(), 1);
    EXPECT_FALSE(plot.isValid());
    plot.fillPlot(slices());
    EXPECT_TRUE(plot.isValid());
    ASSERT_EQ(plot.getNumberOfSlices(), 2);
    const float third = static_cast<float>(1.0 * (1.0 / 3.0));
    EXPECT_EQ(verticesOf(plot, 0),
              (Vertices{{0, 0, 0, 1, 0, 0, 0.0f, 0}, {0, 2, 0, 1, 0, 0, third, 0}, {0, 0, 3, 1, 0, 0, third, 0}}));
    EXPECT_EQ(verticesOf(plot, 1)[0], (Vertex{1, 0, 0, -1, 0, 0, third, 0}));
    EXPECT_EQ(verticesOf(plot, 1)[1], (Vertex{1, 2, 0, -1, 0, 0, 1.0f, 0}));
    EXPECT_EQ(trianglesOf(plot.getSlice(1)->m_triangles), (Triangles{{2, 1, 0}}));
    EXPECT_EQ(linesOf(plot.getSlice(0)->m_lines), (Lines{{0, 1}, {1, 2}}));
    EXPECT_EQ(linesOf(plot.getSlice(1)->m_lines), (Lines{{2, 0}}));
    EXPECT_EQ(limitsOf(plot.getBoundingBox()), (std::vector<float>{0, 1, 0, 2, 0, 3}));
    EXPECT_EQ(plot.getGeometryChangeId(), 2);

    plot.fillPlot(slices().limits(0, 1, 1, 1).limits(1, 1, 1, 1));
    EXPECT_EQ(verticesOf(plot, 1)[1][6], 0.0f) << "constant data";
    plot.resetPlotData();
    EXPECT_EQ(plot.getGeometryChangeId(), 4);
    EXPECT_EQ(plot.getNumberOfSlices(), 0);
}

TEST(SceneGraphPlotSlice3d, aSliceOfPointsAloneHasVerticesAndEmptyIndexBuffers)
{
    PostRecord record = PostRecord().role(Record::ColorData, 0).bounds({{0, 1}, {0, 1}, {0, 1}});
    record.group({{0}, {0}, {0}}, {{}, {}, {}}, {{1}}, {{0}, {0}, {1}}).outline({{}, {}});
    record.group({{0}, {0}, {0}}, {}, {{1}}, {{0}, {0}, {1}}).outline({{}, {}});
    SceneGraphPlotSlice3d plot(1);
    plot.fillPlot(record);
    EXPECT_TRUE(plot.isValid());
    for (const int slice : {0, 1}) {
        EXPECT_EQ(plot.getSlice(slice)->m_vertices.getNumberOfVertices(), 1);
        EXPECT_EQ(plot.getSlice(slice)->m_triangles.getNumElements(0), 0);
        EXPECT_EQ(plot.getSlice(slice)->m_lines.getNumElements(0), 0);
    }
}

TEST(SceneGraphPlotSlice3d, fillRefusesARecordThatLacksSomethingAndNamesIt)
{
    expectRefusals([] { return std::make_unique<SceneGraphPlotSlice3d>(1); }, slices(), "SceneGraphPlotSlice3d",
                   {{"role 0", [](Record& r) { r.m_dataIndex[Record::ColorData] = -1; }},
                    {"role 0", [](Record& r) { (*r.m_data[1])[1].pop_back(); }},
                    {"coordinates of group 1", [](Record& r) { r.m_coordinates[1]->pop_back(); }},
                    {"normals of group 1", [](Record& r) { r.m_normals.pop_back(); }},
                    {"line elements of group 0", [](Record& r) { r.m_lineElements.clear(); }},
                    {"line elements of group 1", [](Record& r) { r.m_lineElements[1]->pop_back(); }},
                    {"elements of group 1", [](Record& r) { (*r.m_elements[1])[2].clear(); }}},
                   [](const SceneGraphPlotSlice3d& plot) { return verticesOf(plot, 1); });
}

TEST(SceneGraphPlotSlice3d, fillThatRunsOutOfMemoryLeavesNoSlicesAndCanBeRepeated)
{
    SceneGraphPlotSlice3d plot(1);
    plot.fillPlot(slices());
    const Vertices expected = verticesOf(plot, 1);
    int geometry = plot.getGeometryChangeId();
    const long failures = failEachAllocation([&] { plot.fillPlot(slices()); },
                                             [&] {
                                                 if (plot.getGeometryChangeId() != geometry) {
                                                     EXPECT_FALSE(plot.isValid());
                                                 }
                                                 plot.fillPlot(slices());
                                                 EXPECT_EQ(verticesOf(plot, 1), expected);
                                                 geometry = plot.getGeometryChangeId();
                                             });
    EXPECT_GE(failures, 2 * 5);
}

const std::string c_points = "% Coordinates\n0 0 0\n0 1 0\n0 1 1\n0 0 1\n2 0 0\n2 1 0\n2 0 1\n";
const std::string c_data = "% Data\n1\n2\n3\n4\n5\n5\n5\n";

TEST(SceneGraphPlotSlice3d, isReadFromAFileWithASliceForEachX)
{
    const TemporaryFile file(c_points + "% Elements (triangular)\n1 2 3\n1 3 4\n5 7 6\n" + c_data);
    SceneGraphPlotSlice3d plot(1);
    ASSERT_TRUE(ScenePlotFileReader::readSlicePlot3d(plot, file.path()));
    ASSERT_EQ(plot.getNumberOfSlices(), 2);
    EXPECT_EQ(verticesOf(plot, 0), (Vertices{{0, 0, 0, 1, 0, 0, 0.0f, 0},
                                             {0, 1, 0, 1, 0, 0, 0.25f, 0},
                                             {0, 1, 1, 1, 0, 0, 0.5f, 0},
                                             {0, 0, 1, 1, 0, 0, 0.75f, 0}}));
    EXPECT_EQ(trianglesOf(plot.getSlice(0)->m_triangles), (Triangles{{0, 1, 2}, {0, 2, 3}}));
    EXPECT_EQ(linesOf(plot.getSlice(0)->m_lines), (Lines{{0, 1}, {0, 3}, {1, 2}, {2, 3}}));
    EXPECT_EQ(verticesOf(plot, 1)[0], (Vertex{2, 0, 0, -1, 0, 0, 1.0f, 0}));
    EXPECT_EQ(trianglesOf(plot.getSlice(1)->m_triangles), (Triangles{{0, 2, 1}}));
    EXPECT_EQ(linesOf(plot.getSlice(1)->m_lines), (Lines{{0, 2}, {0, 1}, {1, 2}}));
    EXPECT_EQ(limitsOf(plot.getBoundingBox()), (std::vector<float>{0, 2, 0, 1, 0, 1}));
    EXPECT_EQ(plot.getGeometryChangeId(), 2);
    EXPECT_EQ(plot.getTextureChangeId(), 1);
}

TEST(SceneGraphPlotSlice3d, isUnchangedByAFileThatIsRefusedAndKeepsTheSlicesBeforeAFaultyElement)
{
    CapturedError error;
    SceneGraphPlotSlice3d plot(1);
    plot.fillPlot(slices());
    const Vertices before = verticesOf(plot, 1);
    for (const std::string& text : {c_points + c_data, c_points + "% Elements (triangular)\n1 2 5\n" + c_data}) {
        const TemporaryFile file(text);
        EXPECT_FALSE(ScenePlotFileReader::readSlicePlot3d(plot, file.path()));
        EXPECT_EQ(verticesOf(plot, 1), before);
        EXPECT_EQ(plot.getGeometryChangeId(), 2);
    }
    EXPECT_FALSE(ScenePlotFileReader::readSlicePlot3d(plot, "/no/such/file"));
    EXPECT_EQ(plot.getGeometryChangeId(), 2);

    // An empty row is passed by the scan, and is a fault where elements are read.
    const TemporaryFile file(c_points + "% Elements (triangular)\n1 2 3\n\n5 7 6\n" + c_data);
    EXPECT_FALSE(ScenePlotFileReader::readSlicePlot3d(plot, file.path()));
    ASSERT_EQ(plot.getNumberOfSlices(), 2);
    EXPECT_EQ(verticesOf(plot, 0).size(), 4u);
    EXPECT_EQ(plot.getSlice(1)->m_vertices.getCapacity(), -1);
    EXPECT_EQ(plot.getSlice(1)->m_triangles.getNumIndices(), 0);
    EXPECT_EQ(limitsOf(plot.getBoundingBox()), (std::vector<float>{0, 1, 0, 2, 0, 3}));
    EXPECT_EQ(plot.getGeometryChangeId(), 3) << "the slices of the fill are gone";
}

TEST(SceneGraphPlotSlice3d, isUnchangedOrEmptyWhenAReadRunsOutOfMemory)
{
    const TemporaryFile file(c_points + "% Elements (triangular)\n1 2 3\n1 3 4\n5 7 6\n" + c_data);
    SceneGraphPlotSlice3d plot(1);
    plot.fillPlot(slices());
    int geometry = plot.getGeometryChangeId();
    failEachAllocation([&] { ScenePlotFileReader::readSlicePlot3d(plot, file.path()); },
                       [&] {
                           EXPECT_EQ(plot.getNumberOfSlices(), plot.getGeometryChangeId() == geometry ? 2 : 0);
                           plot.fillPlot(slices());
                           geometry = plot.getGeometryChangeId();
                       });
    EXPECT_EQ(linesOf(plot.getSlice(0)->m_lines).size(), 4u);
}

} // namespace
} // namespace vxgraphics3d
