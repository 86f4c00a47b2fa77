#include "graphics3d/plots/scalar/scenegraphplotiso.h"

#include "graphics3d/plots/scalar/scenegraphplotcontour.h"
#include "graphics3d/plots/scalar/scenegraphplotisosurface3d.h"
#include "tests/support/failingallocation.h"
#include "tests/support/linesof.h"
#include "tests/support/plotbuffers.h"
#include "tests/support/postrecord.h"
#include "tests/support/recordflaws.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <functional>
#include <memory>
#include <vector>

namespace vxgraphics3d {
namespace {

using Record = vxdatacarrier::PostDataObject;

constexpr int c_color = Record::ColorData;
constexpr int c_level = Record::IsoLevelData;

/// Three levels of one triangle each: data array 0 has the level of the group, array 1 colours 0 to 8.
PostRecord surfaces(double low, double middle, double high)
{
    PostRecord record = PostRecord().kind(6).role(c_level, 0).bounds({{0, 1}, {0, 2}, {0, 3}});
    double z = 0.0;
    for (const double level : {low, middle, high}) {
        record.group({{0, 1, 0}, {0, 0, 2}, {z, z, z}}, {{0}, {1}, {2}}, {{level, level, level}, {z, 2 * z, 4 * z}},
                     {{0, 0, 0}, {0, 0, 0}, {1, 1, 1}});
        z += 1.0;
    }
    return record;
}

/// A line between two points for each level; both have the level as their value.
PostRecord lines(std::vector<double> levels)
{
    PostRecord record = PostRecord().kind(17).role(c_level, 0).bounds({{0, 100}, {0, 100}});
    for (const double level : levels) {
        record.group({{10, 50}, {20, 60}}, {{0}, {1}}, {{level, level}});
    }
    return record;
}

Vertices verticesOf(const SceneGraphPlotIso& plot, int level)
{
    return vxgraphics3d::verticesOf(plot.getSurface(level)->m_vertices);
}

/// The texture coordinate that all vertices of a level have.
float textureOf(const SceneGraphPlotIso& plot, int level)
{
    const Vertices vertices = verticesOf(plot, level);
    for (const Vertex& vertex : vertices) {
        EXPECT_EQ(vertex[6], vertices[0][6]);
    }
    return vertices.at(0)[6];
}

TEST(SceneGraphPlotIsoSurface3d, surfacesAreColoredByTheirLevels)
{
    SceneGraphPlotIsoSurface3d plot(1);
    EXPECT_EQ(plot.getType(), PlotType::isoSurface3d);
    EXPECT_FALSE(plot.isValid());
    plot.fillPlot(surfaces(0.0, 5.0, 10.0));
    EXPECT_TRUE(plot.isValid());
    EXPECT_EQ(plot.getNumberOfLevels(), 3);
    EXPECT_EQ(verticesOf(plot, 1),
              (Vertices{{0, 0, 1, 0, 0, 1, 0.5f, 0}, {1, 0, 1, 0, 0, 1, 0.5f, 0}, {0, 2, 1, 0, 0, 1, 0.5f, 0}}));
    EXPECT_EQ(trianglesOf(plot.getSurface(1)->m_triangles), (Triangles{{0, 1, 2}}));
    EXPECT_EQ(textureOf(plot, 0), 0.0f);
    EXPECT_EQ(textureOf(plot, 2), 1.0f);
    EXPECT_EQ(plot.getSurface(2)->m_levelData, (std::vector<double>{10, 10, 10}));
    EXPECT_EQ(limitsOf(plot.getBoundingBox()), (std::vector<float>{0, 1, 0, 2, 0, 3}));
    EXPECT_FALSE(plot.hasColorData());

    plot.fillPlot(surfaces(7.0, 7.0, 7.0));
    EXPECT_EQ(textureOf(plot, 2), 0.0f);
}

TEST(SceneGraphPlotIsoSurface3d, colorDataUseOneScaleForAllLevels)
{
    SceneGraphPlotIsoSurface3d plot(1);
    plot.fillPlot(surfaces(3.0, 4.0, 5.0).role(c_color, 1));
    EXPECT_TRUE(plot.hasColorData());
    for (int level = 0; level < 3; ++level) {
        for (int point = 0; point < 3; ++point) {
            EXPECT_EQ(verticesOf(plot, level)[static_cast<std::size_t>(point)][6],
                      static_cast<float>(level * (1 << point)) / 8.0f);
        }
    }
    plot.setLegendLevels({0.0, 20.0});
    EXPECT_EQ(plot.getNumberOfLegendStripes(), 2);
    EXPECT_EQ(verticesOf(plot, 2)[2][6], 1.0f);
    EXPECT_EQ(plot.getLevelChangeId(), 1);
}

TEST(SceneGraphPlotIsoSurface3d, aLevelWithoutTrianglesNeedsNeitherNormalsNorBuffers)
{
    PostRecord record = surfaces(0.0, 5.0, 10.0);
    record.group({{1, 2}, {3, 4}, {5, 6}}, {{}, {}, {}}, {{20, 20}, {}});
    record.group({{}, {}, {}}, {}, {{}, {}}).limits(4, 0, 0, 0); // as of a producer that adds no elements
    SceneGraphPlotIsoSurface3d plot(1);
    plot.fillPlot(record);
    EXPECT_EQ(plot.getNumberOfLevels(), 5);
    EXPECT_EQ(textureOf(plot, 1), 0.25f);
    for (const int level : {3, 4}) {
        EXPECT_EQ(plot.getSurface(level)->m_vertices.getCapacity(), -1);
        EXPECT_EQ(plot.getSurface(level)->m_triangles.getNumIndices(), 0);
    }
    plot.setLegendLevels({1.0, 2.0}); // walks vertices, of which these levels have none
}

TEST(SceneGraphPlotIso, legendLevelsColorLevelsAgainWithoutAFill)
{
    SceneGraphPlotIsoSurface3d plot(1);
    plot.setLegendLevels({0.0, 20.0});
    PostRecord record = surfaces(0.0, 5.0, 10.0);
    (*record.record().m_data[1])[0].resize(1); // one value for the whole group
    plot.fillPlot(record);
    EXPECT_EQ(textureOf(plot, 1), 0.5f) << "levels set before a fill do not affect it";
    EXPECT_EQ(plot.getTextureOf(5.0), 0.5f);

    const int geometry = plot.getGeometryChangeId();
    const int color = plot.getColorChangeId();
    const int texture = plot.getTextureChangeId();
    const int levels = plot.getLevelChangeId();
    plot.setLegendLevels({20.0, 0.0, 10.0});
    EXPECT_EQ(textureOf(plot, 0), 0.0f);
    EXPECT_EQ(textureOf(plot, 1), 0.25f);
    EXPECT_EQ(textureOf(plot, 2), 0.5f);
    EXPECT_EQ(plot.getTextureOf(5.0), 0.25f);
    std::vector<double> stripes{1.0};
    plot.getLegendStripeValues(stripes);
    EXPECT_EQ(stripes, (std::vector<double>{20.0, 0.0, 10.0}));
    EXPECT_NE(plot.getLevelChangeId(), levels);

    plot.setLegendLevels({});
    EXPECT_EQ(textureOf(plot, 1), 0.25f);
    plot.setLegendLevels({3.0});
    EXPECT_EQ(textureOf(plot, 2), 0.0f);
    EXPECT_EQ(plot.getGeometryChangeId(), geometry);
    EXPECT_EQ(plot.getColorChangeId(), color);
    EXPECT_EQ(plot.getTextureChangeId(), texture);
}

TEST(SceneGraphPlotIso, countersMoveForLabelsAndFillsAndNotForHiddenLevels)
{
    SceneGraphPlotContour plot(1);
    const std::vector<std::pair<int, std::function<void()>>> steps = {
        {2,
         [&] {
             plot.fillPlot(lines({1, 2, 3}));
         }},
        {0, [&] { plot.setSurfaceShown(1, false); }},
        {0, [&] { plot.setSurfaceShownForAll(false); }},
        {1,
         [&] {
             plot.setLabels({"a", "b"});
         }},
        {0,
         [&] {
             plot.setLabels({"a", "b"});
         }},
        {1, [&] { plot.setShowLabels(false); }},
        {0, [&] { plot.setShowLabels(false); }},
        {1, [&] { plot.setLabelColor(Color::fromRgb(0xff)); }},
        {0, [&] { plot.setLabelColor(Color::fromRgb(0xff)); }},
        {1, [&] { plot.resetPlotData(); }},
        {1, [&] { plot.allocate(2); }},
    };
    for (std::size_t i = 0; i < steps.size(); ++i) {
        const int before = plot.getGeometryChangeId();
        steps[i].second();
        EXPECT_EQ(plot.getGeometryChangeId(), before + steps[i].first) << "step " << i;
    }
}

TEST(SceneGraphPlotIso, aFillShowsAllLevelsAndKeepsLabelsAndLegend)
{
    SceneGraphPlotContour plot(1);
    plot.setLabels({"one"});
    plot.setLegendLevels({4.0});
    plot.fillPlot(lines({1, 2, 3}));
    plot.setSurfaceShown(1, false);
    EXPECT_TRUE(plot.isSurfaceShown(0));
    EXPECT_FALSE(plot.isSurfaceShown(1));
    plot.fillPlot(lines({1, 2}));
    EXPECT_TRUE(plot.isSurfaceShown(1));
    EXPECT_EQ(plot.getLabels(), (std::vector<std::string>{"one"}));
    EXPECT_EQ(plot.getNumberOfLegendStripes(), 1);
    plot.resetPlotData();
    EXPECT_FALSE(plot.isValid());
    EXPECT_EQ(plot.getNumberOfLevels(), 0);
    EXPECT_GE(plot.getNumberOfAllocatedLevels(), 3);
}

TEST(SceneGraphPlotContour, elementsDecideBetweenBandsAndLines)
{
    PostRecord record = PostRecord().kind(17).role(c_level, 0).bounds({{0, 10}, {0, 20}});
    const std::vector<std::vector<double>> square = {{0, 10, 10, 0}, {0, 0, 20, 20}};
    record.group(square, {{0}, {1}, {2}}, {{0, 1, 2, 4}});
    record.group(square, {{0, 2}, {3, 1}}, {{1, 9, 9, 9}}).limits(1, 0, 1, 1);
    record.group(square, {{0, 2}}, {{2}}); // no lines
    record.group(square, {}, {{3}});
    record.group(square, {{0}, {1}, {2}, {3}}, {{4}}); // more corners are ignored
    record.group(square, {{0}, {1}, {2}}, {{2}});      // a band of one level
    SceneGraphPlotContour plot(1);
    plot.fillPlot(record);
    EXPECT_EQ(verticesOf(plot, 0), (Vertices{{0, 0, 0, 0, 0, 1, 0.0f, 0},
                                             {10, 0, 0, 0, 0, 1, 0.25f, 0},
                                             {10, 20, 0, 0, 0, 1, 0.5f, 0},
                                             {0, 20, 0, 0, 0, 1, 1.0f, 0}}));
    EXPECT_EQ(trianglesOf(plot.getSurface(0)->m_triangles), (Triangles{{0, 1, 2}}));
    EXPECT_EQ(plot.getSurface(0)->m_labelPosition, Vector3f());
    EXPECT_EQ(textureOf(plot, 1), 0.25f) << "lines have the first level of their group";
    EXPECT_EQ(linesOf(plot.getSurface(1)->m_lines), (Lines{{0, 3}, {2, 1}}));
    EXPECT_EQ(plot.getSurface(1)->m_triangles.getNumIndices(), 0);
    EXPECT_EQ(textureOf(plot, 2), 0.5f);
    EXPECT_TRUE(linesOf(plot.getSurface(2)->m_lines).empty());
    EXPECT_TRUE(linesOf(plot.getSurface(3)->m_lines).empty());
    EXPECT_EQ(linesOf(plot.getSurface(4)->m_lines), (Lines{{0, 1}}));
    EXPECT_EQ(textureOf(plot, 5), 0.5f);
    EXPECT_EQ(limitsOf(plot.getBoundingBox()), (std::vector<float>{0, 10, 0, 20, 0, 0}));
}

TEST(SceneGraphPlotContour, onlyItsOwnKindIsDrawnInSpaceAndOnlyBandsTakeNormals)
{
    PostRecord record = PostRecord().kind(18).role(c_level, 0).bounds({{0, 1}, {0, 1}, {5, 6}});
    const std::vector<std::vector<double>> points = {{0, 1, 0}, {0, 0, 1}, {5, 5, 6}};
    record.group(points, {{0}, {1}, {2}}, {{0, 1, 2}}, {{1, 1, 1}, {0, 0, 0}, {0, 0, 0}});
    record.group(points, {{0}, {1}}, {{1, 1, 1}});
    SceneGraphPlotContour plot(1);
    plot.fillPlot(record);
    EXPECT_EQ(verticesOf(plot, 0)[2], (Vertex{0, 1, 6, 1, 0, 0, 1.0f, 0}));
    EXPECT_EQ(verticesOf(plot, 1)[2], (Vertex{0, 1, 6, 0, 0, 1, 0.5f, 0}));
    EXPECT_EQ(limitsOf(plot.getBoundingBox()), (std::vector<float>{0, 1, 0, 1, 5, 6}));
    plot.fillPlot(record.kind(0).role(c_color, 0));
    EXPECT_EQ(verticesOf(plot, 0)[2], (Vertex{0, 1, 0, 0, 0, 1, 1.0f, 0}));
    EXPECT_EQ(limitsOf(plot.getBoundingBox()), (std::vector<float>{0, 1, 0, 1, 0, 0}));
}

TEST(SceneGraphPlotContour, labelsKeepInsideTheMarginsOfAContourInThePlane)
{
    // A level of one point has no choice: the point wins unless it is outside on both axes.
    const auto labelAt = [](int kind, double x, double y) {
        PostRecord record = PostRecord().kind(kind).role(c_level, 0).bounds({{0, 1}, {-50, 50}, {0, 0}});
        record.group({{x}, {y}, {0}}, {{}, {}}, {{1}});
        SceneGraphPlotContour plot(1);
        plot.fillPlot(record);
        return plot.getSurface(0)->m_labelPosition;
    };
    EXPECT_EQ(labelAt(17, 0.01, -49.0), Vector3f(0.01, -49.0, 0.0));
    EXPECT_EQ(labelAt(17, 0.95, 48.0), Vector3f(0.95, 48.0, 0.0));
    EXPECT_EQ(labelAt(17, 0.005, 0.0), Vector3f(0.005, 0.0, 0.0));
    EXPECT_EQ(labelAt(17, 0.005, -49.5), Vector3f());
    EXPECT_EQ(labelAt(17, 0.96, 48.5), Vector3f());
    EXPECT_EQ(labelAt(18, 0.005, -49.5), Vector3f(0.005, -49.5, 0.0));

    // Of a point inside and one outside the margins the one inside wins, wherever it is in the list.
    for (const bool first : {true, false}) {
        PostRecord record = PostRecord().kind(17).role(c_level, 0).bounds({{0, 100}, {0, 100}});
        record.group({{first ? 50.0 : 99.0, first ? 99.0 : 50.0}, {50, 50}}, {{0}, {1}}, {{1, 1}});
        SceneGraphPlotContour plot(1);
        plot.fillPlot(record);
        EXPECT_EQ(plot.getSurface(0)->m_labelPosition, Vector3f(50.0f, 50.0f, 0.0f));
    }
}

TEST(SceneGraphPlotContour, fillDoesNotDisturbTheRandomNumbersOfTheProcess)
{
    std::srand(5);
    const int expected = std::rand();
    std::srand(5);
    SceneGraphPlotContour plot(1);
    plot.fillPlot(lines({1, 2, 3}));
    EXPECT_EQ(std::rand(), expected);
}

TEST(SceneGraphPlotIso, fillRefusesARecordThatLacksSomethingAndNamesIt)
{
    const std::vector<RecordFlaw> common = {
        {"role 19", [](Record& r) { r.m_dataIndex[c_level] = -1; }},
        {"role 19", [](Record& r) { r.m_data[1]->clear(); }},
        {"role 0", [](Record& r) { (*r.m_data[2])[0].pop_back(); }},
        {"coordinates of group 1", [](Record& r) { r.m_coordinates[1]->resize(1); }},
        {"elements of group 2", [](Record& r) { r.m_elements.pop_back(); }},
        {"bounds", [](Record& r) { r.m_bounds->pop_back(); }},
    };
    std::vector<RecordFlaw> spatial = common;
    spatial.push_back({"normals of group 0", [](Record& r) { r.m_normals.clear(); }});
    spatial.push_back({"elements of group 1", [](Record& r) { r.m_elements[1]->pop_back(); }});
    const auto firstLevel = [](const SceneGraphPlotIso& plot) { return verticesOf(plot, 0); };
    expectRefusals([] { return std::make_unique<SceneGraphPlotIsoSurface3d>(1); }, surfaces(1, 2, 3).role(c_color, 0),
                   "SceneGraphPlotIsoSurface3d", spatial, firstLevel);
    expectRefusals([] { return std::make_unique<SceneGraphPlotContour>(1); }, lines({1, 2, 3}).role(c_color, 0),
                   "SceneGraphPlotContour", common, firstLevel);
}

template <class Plot>
void expectToSurviveFailures(const PostRecord& record)
{
    Plot plot(1);
    plot.fillPlot(record);
    const Vertices expected = verticesOf(plot, 1);
    int geometry = plot.getGeometryChangeId();
    const long failures = failEachAllocation([&] { plot.fillPlot(record); },
                                             [&] {
                                                 if (plot.getGeometryChangeId() == geometry) {
                                                     EXPECT_EQ(verticesOf(plot, 1), expected);
                                                 } else {
                                                     EXPECT_FALSE(plot.isValid());
                                                     EXPECT_EQ(plot.getNumberOfLevels(), 0);
                                                 }
                                                 plot.fillPlot(record);
                                                 EXPECT_EQ(verticesOf(plot, 1), expected);
                                                 geometry = plot.getGeometryChangeId();
                                             });
    EXPECT_GE(failures, 3 * 4); // for each level: its data, vertices, indices and segments
}

TEST(SceneGraphPlotIso, fillThatRunsOutOfMemoryLeavesNoLevelsAndCanBeRepeated)
{
    expectToSurviveFailures<SceneGraphPlotIsoSurface3d>(surfaces(1, 2, 3));
    expectToSurviveFailures<SceneGraphPlotContour>(lines({1, 2, 3}));
}

} // namespace
} // namespace vxgraphics3d
