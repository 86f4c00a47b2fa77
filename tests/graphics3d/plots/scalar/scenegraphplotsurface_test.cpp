#include "graphics3d/plots/scalar/scenegraphplotsurface.h"

#include "graphics3d/plots/scalar/scenegraphplotdomain3d.h"
#include "graphics3d/plots/scalar/scenegraphplotsurface2d.h"
#include "graphics3d/plots/scalar/scenegraphplotsurface3d.h"
#include "tests/support/failingallocation.h"
#include "tests/support/plotbuffers.h"
#include "tests/support/postrecord.h"
#include "tests/support/recordflaws.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstddef>
#include <memory>
#include <random>
#include <vector>

namespace vxgraphics3d {
namespace {

using Record = vxdatacarrier::PostDataObject;
using Doubles = std::vector<double>;

constexpr int c_color = Record::ColorData;
constexpr int c_height = Record::HeightData;

template <class Plot>
Vertices verticesOf(const Plot& plot)
{
    return vxgraphics3d::verticesOf(plot.getVertices());
}

template <class Plot>
Triangles trianglesOf(const Plot& plot)
{
    return vxgraphics3d::trianglesOf(plot.getTriangles());
}

/// A triangle in the plane, counter-clockwise from above, with values 0, 5 and 10 as data array 0.
PostRecord flatTriangle()
{
    return PostRecord()
        .role(c_color, 0)
        .bounds({{0.0, 4.0}, {0.0, 2.0}})
        .group({{0.0, 4.0, 0.0}, {0.0, 0.0, 2.0}}, {{0}, {1}, {2}}, {{0.0, 5.0, 10.0}});
}

/// The same with heights as data array 1.
PostRecord raisedTriangle(Doubles heights)
{
    return PostRecord()
        .role(c_color, 0)
        .role(c_height, 1)
        .bounds({{0.0, 4.0}, {0.0, 2.0}})
        .group({{0.0, 4.0, 0.0}, {0.0, 0.0, 2.0}}, {{0}, {1}, {2}}, {{0.0, 5.0, 10.0}, std::move(heights)});
}

/// Two triangles in space over four points.
PostRecord spatialSquare()
{
    return PostRecord()
        .kind(9)
        .role(c_color, 1)
        .bounds({{0.0, 1.0}, {0.0, 2.0}, {3.0, 4.0}})
        .group({{0.0, 1.0, 1.0, 0.0}, {0.0, 0.0, 2.0, 2.0}, {3.0, 3.0, 4.0, 4.0}}, {{0, 2}, {1, 3}, {2, 0}},
               {{9.0, 9.0, 9.0, 9.0}, {-1.0, 0.0, 1.0, 3.0}},
               {{0.1f, 0.2f, 0.3f, 0.4f}, {0.5f, 0.6f, 0.7f, 0.8f}, {1.0f, 1.1f, 1.2f, 1.3f}});
}

TEST(SceneGraphPlotSurface2d, fillIsFlatWithTextureCoordinatesFromZeroToOne)
{
    SceneGraphPlotSurface2d plot(1);
    EXPECT_FALSE(plot.isValid());
    plot.fillPlot(flatTriangle());
    EXPECT_EQ(verticesOf(plot),
              (Vertices{{0, 0, 0, 0, 0, 1, 0.0f, 0}, {4, 0, 0, 0, 0, 1, 0.5f, 0}, {0, 2, 0, 0, 0, 1, 1.0f, 0}}));
    EXPECT_EQ(trianglesOf(plot), (Triangles{{0, 1, 2}}));
    EXPECT_EQ(plot.getTriangles().getSegmentStarts(), (std::vector<int>{0, 3}));
    EXPECT_EQ(limitsOf(plot.getBoundingBox()), (std::vector<float>{0, 4, 0, 2, 0, 0}));
    EXPECT_FALSE(plot.hasHeightData());
    EXPECT_TRUE(plot.isValid());
}

TEST(SceneGraphPlotSurface2d, fillUsesTheLimitsOfGroupZeroAndMapsConstantDataToZero)
{
    PostRecord record = flatTriangle();
    record.group({{0.0}, {0.0}}, {}, {{1000.0}}); // widens the range of the plot, not the texture coordinates
    SceneGraphPlotSurface2d plot(1);
    plot.fillPlot(record);
    EXPECT_EQ(plot.getValueMax(), 1000.0);
    EXPECT_EQ(verticesOf(plot)[2][6], 1.0f);
    EXPECT_EQ(plot.getVertices().getNumberOfVertices(), 3);

    plot.fillPlot(record.limits(0, 0, 5.0, 5.0));
    for (const Vertex& vertex : verticesOf(plot)) {
        EXPECT_EQ(vertex[6], 0.0f);
    }
}

TEST(SceneGraphPlotSurface2d, raisedFillScalesHeightsToTheMeanWidth)
{
    SceneGraphPlotSurface2d plot(1);
    plot.fillPlot(raisedTriangle({1.0, 1.0, 1.0})); // heights 0 to 1 become 0 to 3, the mean of 4 and 2
    for (const Vertex& vertex : verticesOf(plot)) {
        EXPECT_EQ((Vertex{vertex.begin() + 2, vertex.begin() + 6}), (Vertex{3, 0, 0, 1}));
    }
    EXPECT_EQ(limitsOf(plot.getBoundingBox()), (std::vector<float>{0, 4, 0, 2, 3, 3}));
    EXPECT_TRUE(plot.hasHeightData());

    plot.fillPlot(raisedTriangle({0.0, 0.0, 0.0})); // no range, so no scale
    EXPECT_EQ(verticesOf(plot)[1], (Vertex{4, 0, 0, 0, 0, 1, 0.5f, 0}));

    plot.setHeightScale(2.0f);
    plot.fillPlot(raisedTriangle({0.0, -2.0, 0.0}));
    EXPECT_EQ(verticesOf(plot)[1][2], -3.0f); // the renderer applies the plot's own factor
    EXPECT_EQ(limitsOf(plot.getBoundingBox()), (std::vector<float>{0, 4, 0, 2, -3, 0}));
}

TEST(SceneGraphPlotSurface2d, heightDataIsStillReportedAfterAFlatFill)
{
    SceneGraphPlotSurface2d plot(1);
    plot.fillPlot(raisedTriangle({1.0, 2.0, 3.0}));
    plot.fillPlot(flatTriangle());
    EXPECT_TRUE(plot.hasHeightData());
    EXPECT_EQ(verticesOf(plot)[2][2], 0.0f);
}

TEST(SceneGraphPlotSurface2d, raisedFillWeightsNormalsByTheAreaOfTriangles)
{
    // A roof over the y axis: a flat triangle on the left, a slope of 45 degrees and twice the area on the right, and
    // a point that no triangle uses. The scale of heights is 1: bounds of 2 by 2, heights from -2 to 0.
    const PostRecord record = PostRecord()
                                  .role(c_color, 0)
                                  .role(c_height, 0)
                                  .bounds({{-1.0, 1.0}, {0.0, 2.0}})
                                  .group({{0.0, 0.0, -1.0, 2.0, 9.0}, {0.0, 2.0, 0.0, 0.0, 9.0}},
                                         {{0, 0}, {1, 3}, {2, 1}}, {{0.0, 0.0, 0.0, -2.0, 0.0}});
    SceneGraphPlotSurface2d plot(1);
    plot.fillPlot(record);
    // Left: (0,0,2), right: (4,0,4), so the ridge has (4,0,6) normalised.
    const Vector3f ridge = Vector3f(4.0f, 0.0f, 6.0f).normalized();
    const Vector3f slope = Vector3f(4.0f, 0.0f, 4.0f).normalized();
    const std::vector<Vector3f> expected{ridge, ridge, {0.0f, 0.0f, 1.0f}, slope, {0.0f, 0.0f, 0.0f}};
    const Vertices vertices = verticesOf(plot);
    for (std::size_t i = 0; i < expected.size(); ++i) {
        EXPECT_EQ(Vector3f(vertices[i][3], vertices[i][4], vertices[i][5]), expected[i]) << "point " << i;
    }
}

TEST(SceneGraphPlotSurface2d, raisedFillComputesDifferencesInDouble)
{
    // Far from the origin a float computation finds no triangle at all.
    const double far = 1.0e9;
    const PostRecord record =
        PostRecord()
            .role(c_color, 0)
            .role(c_height, 0)
            .bounds({{far, far + 1.0}, {far, far + 1.0}})
            .group({{far, far + 1.0, far}, {far, far, far + 1.0}}, {{0}, {1}, {2}}, {{1.0, 1.0, 1.0}});
    SceneGraphPlotSurface2d plot(1);
    plot.fillPlot(record);
    EXPECT_EQ(verticesOf(plot)[0][5], 1.0f);
}

TEST(SceneGraphPlotSurface3d, fillTakesPositionsNormalsAndColoursOfTheRecord)
{
    SceneGraphPlotSurface3d plot(1);
    plot.fillPlot(spatialSquare());
    EXPECT_EQ(verticesOf(plot), (Vertices{{0, 0, 3, 0.1f, 0.5f, 1.0f, 0.0f, 0},
                                          {1, 0, 3, 0.2f, 0.6f, 1.1f, 0.25f, 0},
                                          {1, 2, 4, 0.3f, 0.7f, 1.2f, 0.5f, 0},
                                          {0, 2, 4, 0.4f, 0.8f, 1.3f, 1.0f, 0}}));
    EXPECT_EQ(trianglesOf(plot), (Triangles{{0, 1, 2}, {2, 3, 0}}));
    EXPECT_EQ(limitsOf(plot.getBoundingBox()), (std::vector<float>{0, 1, 0, 2, 3, 4}));
}

TEST(SceneGraphPlotSurface3d, fillDrawsTwoDimensionalDataFlatWithoutNormals)
{
    SceneGraphPlotSurface3d plot(1);
    PostRecord record = spatialSquare().kind(Record::Surface2d);
    record.record().m_normals.clear();
    record.record().m_coordinates[0]->pop_back();
    record.record().m_dataIndex[c_height] = 0; // this plot ignores heights
    plot.fillPlot(record);
    EXPECT_EQ(verticesOf(plot)[2], (Vertex{1, 2, 0, 0, 0, 1, 0.5f, 0}));
    EXPECT_EQ(trianglesOf(plot).size(), 2u);
    EXPECT_FALSE(plot.hasHeightData());
}

TEST(SceneGraphPlotDomain3d, fillEqualsThatOfASurfaceInSpaceForEveryKind)
{
    SceneGraphPlotSurface3d surface(1);
    surface.fillPlot(spatialSquare());
    SceneGraphPlotDomain3d domain(2);
    domain.fillPlot(spatialSquare().kind(Record::Surface2d));
    EXPECT_EQ(verticesOf(domain), verticesOf(surface));
    EXPECT_EQ(trianglesOf(domain), trianglesOf(surface));
    EXPECT_EQ(limitsOf(domain.getBoundingBox()), limitsOf(surface.getBoundingBox()));
}

TEST(SurfacePlots, fillChoosesTheWidthOfIndicesByTheNumberOfPoints)
{
    for (const std::size_t count : {std::size_t{65535}, std::size_t{65536}}) {
        const Doubles zeros(count, 0.0);
        const int last = static_cast<int>(count) - 1;
        const PostRecord record =
            PostRecord().role(c_color, 0).bounds({{0.0, 1.0}}).group({zeros, zeros}, {{0}, {1}, {last}}, {zeros});
        SceneGraphPlotSurface2d plot(1);
        plot.fillPlot(record);
        EXPECT_EQ(plot.getTriangles().uses32BitIndices(), count == 65536);
        EXPECT_EQ(trianglesOf(plot), (Triangles{{0, 1, last}}));
    }
}

TEST(SurfacePlots, countersChangeByKind)
{
    SceneGraphPlotSurface2d flat(1);
    SceneGraphPlotSurface3d surface(2);
    SceneGraphPlotDomain3d domain(3);
    const std::vector<std::pair<SceneGraphPlot*, int>> plots{{&flat, 1}, {&surface, 1}, {&domain, 0}};
    for (const auto& [plot, atReset] : plots) {
        const PostRecord record = plot == &flat ? flatTriangle() : spatialSquare();
        plot->fillPlot(record);
        EXPECT_EQ(plot->getGeometryChangeId(), 2);
        EXPECT_EQ(plot->getColorChangeId(), 2);
        EXPECT_EQ(plot->getTextureChangeId(), 3);
        plot->resetPlotData();
        EXPECT_EQ(plot->getGeometryChangeId(), 2 + atReset);
    }
}

TEST(SurfacePlots, resetPlotDataFreesBuffersAndKeepsRangeAndLegend)
{
    SceneGraphPlotSurface3d plot(1);
    plot.fillPlot(spatialSquare());
    plot.setLegendLimits(-7.0, 7.0);
    plot.resetPlotData();
    EXPECT_FALSE(plot.isValid());
    EXPECT_EQ(plot.getVertices().getCapacity(), -1);
    EXPECT_EQ(plot.getTriangles().getNumIndices(), 0);
    EXPECT_EQ(plot.getValueMin(), -1.0);
    EXPECT_EQ(plot.getLegendMax(), 7.0);
    plot.fillPlot(spatialSquare());
    EXPECT_TRUE(plot.isValid());
}

TEST(SurfacePlots, withoutTrianglesOrPointsTheyAreNotValid)
{
    SceneGraphPlotSurface2d plot(1);
    plot.fillPlot(flatTriangle());
    plot.fillPlot(PostRecord().role(c_color, 0).bounds({{0, 1}}).group({{1.0}, {2.0}}, {{}, {}, {}}, {{3.0}}));
    EXPECT_EQ(plot.getVertices().getNumberOfVertices(), 1);
    EXPECT_FALSE(plot.isValid());
    for (const int heightRole : {-1, 0}) {
        plot.fillPlot(PostRecord()
                          .role(c_color, 0)
                          .role(c_height, heightRole)
                          .bounds({{0, 1}})
                          .group({{}, {}}, {{}, {}, {}}, {{}}));
        EXPECT_EQ(plot.getVertices().getCapacity(), 0);
        EXPECT_FALSE(plot.isValid());
    }
}

template <class Plot>
void expectToSurviveFailures(const PostRecord& first, const PostRecord& second)
{
    Plot plot(1);
    plot.fillPlot(first);
    const Vertices expected = verticesOf(plot);
    int geometry = plot.getGeometryChangeId();
    const auto fill = [&] { plot.fillPlot(second); };
    const long failures = failEachAllocation(fill, [&] {
        if (plot.getGeometryChangeId() == geometry) {
            EXPECT_EQ(verticesOf(plot), expected); // refused before anything changed
        } else {
            EXPECT_FALSE(plot.isValid());
            EXPECT_EQ(plot.getVertices().getCapacity(), -1);
            EXPECT_EQ(plot.getTriangles().getNumIndices(), 0);
            EXPECT_FALSE(plot.hasValueRestrictions());
        }
        plot.resetPlotData();
        plot.fillPlot(first);
        EXPECT_EQ(verticesOf(plot), expected);
        EXPECT_EQ(trianglesOf(plot).size(), 1u);
        geometry = plot.getGeometryChangeId();
    });
    EXPECT_GE(failures, 3); // vertices, indices, segments
}

TEST(SurfacePlots, fillThatRunsOutOfMemoryLeavesNoBuffersAndCanBeRepeated)
{
    PostRecord triangleInSpace = spatialSquare();
    triangleInSpace.record().m_elements[0] = boost::make_shared<Record::IntArrays>(Record::IntArrays{{0}, {1}, {2}});
    expectToSurviveFailures<SceneGraphPlotSurface2d>(flatTriangle(), raisedTriangle({1.0, 2.0, 3.0}));
    expectToSurviveFailures<SceneGraphPlotSurface2d>(raisedTriangle({1.0, 2.0, 3.0}), flatTriangle());
    expectToSurviveFailures<SceneGraphPlotSurface3d>(triangleInSpace, spatialSquare());
    expectToSurviveFailures<SceneGraphPlotDomain3d>(triangleInSpace, spatialSquare());
}

template <class Plot>
void expectRefusals(const PostRecord& good, const char* name, const std::vector<RecordFlaw>& flaws)
{
    vxgraphics3d::expectRefusals([] { return std::make_unique<Plot>(1); }, good, name, flaws, verticesOf<Plot>);
}

const std::vector<RecordFlaw> c_commonFlaws{
    {"no group", [](Record& r) { r.m_coordinates.clear(); }},
    {"role 0", [](Record& r) { r.m_dataIndex[c_color] = -1; }},
    {"role 0", [](Record& r) { r.m_dataIndex[c_color] = 7; }},
    {"role 0", [](Record& r) { (*r.m_data[0])[static_cast<std::size_t>(r.m_dataIndex[c_color])].pop_back(); }},
    {"coordinates", [](Record& r) { r.m_coordinates[0]->resize(1); }},
    {"coordinates", [](Record& r) { r.m_coordinates[0]->back().pop_back(); }},
    {"elements", [](Record& r) { r.m_elements.clear(); }},
    {"elements", [](Record& r) { r.m_elements[0]->resize(2); }},
    {"elements", [](Record& r) { r.m_elements[0]->back().clear(); }},
    {"bounds", [](Record& r) { r.m_bounds.reset(); }},
};

TEST(SurfacePlots, fillRefusesARecordThatLacksSomethingAndNamesIt)
{
    expectRefusals<SceneGraphPlotSurface2d>(flatTriangle(), "SceneGraphPlotSurface2d", c_commonFlaws);
    expectRefusals<SceneGraphPlotSurface2d>(raisedTriangle({1.0, 2.0, 3.0}), "SceneGraphPlotSurface2d",
                                            {{"role 4", [](Record& r) { r.m_dataIndex[c_height] = 2; }},
                                             {"role 4", [](Record& r) { (*r.m_data[0])[1].pop_back(); }}});

    std::vector<RecordFlaw> spatial = c_commonFlaws;
    spatial.push_back({"coordinates", [](Record& r) { r.m_coordinates[0]->pop_back(); }});
    spatial.push_back({"normals", [](Record& r) { r.m_normals.clear(); }});
    spatial.push_back({"normals", [](Record& r) { r.m_normals[0]->pop_back(); }});
    expectRefusals<SceneGraphPlotSurface3d>(spatialSquare(), "SceneGraphPlotSurface3d", spatial);
    spatial.push_back({"bounds", [](Record& r) {
                           r.m_bounds = boost::make_shared<Record::DoubleArrays>(Record::DoubleArrays{{0.0, 1.0}});
                       }});
    expectRefusals<SceneGraphPlotDomain3d>(spatialSquare(), "SceneGraphPlotDomain3d", spatial);
}

TEST(SurfacePlots, raisedFillMatchesAPlainComputationOnARandomSurface)
{
    constexpr int c_side = 300; // 90000 points: indices of 32 bits
    std::mt19937 random(5);
    std::uniform_real_distribution<double> real(-1.0, 1.0);
    Doubles x, y, height, value;
    for (int i = 0; i < c_side * c_side; ++i) {
        x.push_back(i % c_side + 0.3 * real(random));
        y.push_back(i / c_side + 0.3 * real(random));
        height.push_back(real(random));
        value.push_back(real(random));
    }
    std::vector<std::vector<int>> corners(3);
    for (int i = 0; i < c_side * c_side; ++i) {
        if (i % c_side + 1 < c_side && i / c_side + 1 < c_side) {
            for (const std::vector<int>& t :
                 {std::vector<int>{i, i + 1, i + c_side}, {i + 1, i + c_side + 1, i + c_side}}) {
                corners[0].push_back(t[0]);
                corners[1].push_back(t[1]);
                corners[2].push_back(t[2]);
            }
        }
    }
    const PostRecord record = PostRecord()
                                  .role(c_color, 1)
                                  .role(c_height, 0)
                                  .bounds({{0.0, c_side}, {0.0, c_side}})
                                  .group({x, y}, corners, {height, value});
    SceneGraphPlotSurface2d plot(1);
    plot.fillPlot(record);

    const Record& r = record;
    const double low = (*r.m_dataMin[0])[0];
    const double high = (*r.m_dataMax[0])[0];
    const double scale = c_side / (high - low);
    std::vector<Vector3f> sums(x.size());
    for (std::size_t t = 0; t < corners[0].size(); ++t) {
        std::size_t c[3];
        for (std::size_t k = 0; k < 3; ++k) {
            c[k] = static_cast<std::size_t>(corners[k][t]);
        }
        const auto edge = [&](std::size_t to) {
            return Vector3f(x[to] - x[c[1]], y[to] - y[c[1]], height[to] * scale - height[c[1]] * scale);
        };
        const Vector3f normal = edge(c[2]).cross(edge(c[0]));
        for (const std::size_t k : c) {
            sums[k] += normal;
        }
    }
    Vertices expected;
    const double valueMin = (*r.m_dataMin[0])[1];
    const double valueScale = 1.0 / ((*r.m_dataMax[0])[1] - valueMin);
    for (std::size_t i = 0; i < x.size(); ++i) {
        const Vector3f normal = sums[i].normalized();
        expected.push_back({static_cast<float>(x[i]), static_cast<float>(y[i]), static_cast<float>(height[i] * scale),
                            normal.x, normal.y, normal.z, static_cast<float>((value[i] - valueMin) * valueScale), 0});
    }
    EXPECT_TRUE(verticesOf(plot) == expected);
    EXPECT_EQ(plot.getTriangles().getNumElements(0), 2 * (c_side - 1) * (c_side - 1));
    EXPECT_TRUE(plot.getTriangles().uses32BitIndices());
}

} // namespace
} // namespace vxgraphics3d
