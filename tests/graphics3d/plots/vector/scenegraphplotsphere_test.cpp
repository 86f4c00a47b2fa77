#include "graphics3d/plots/vector/scenegraphplotsphere2d.h"
#include "graphics3d/plots/vector/scenegraphplotsphere3d.h"
#include "tests/support/failingallocation.h"
#include "tests/support/fillrefusal.h"
#include "tests/support/postrecord.h"
#include "tests/support/randomnumbers.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <map>
#include <vector>

namespace vxgraphics3d {
namespace {

using Record = vxdatacarrier::PostDataObject;
using Doubles = std::vector<double>;
using Sphere = std::vector<float>;
using Spheres = std::vector<Sphere>;

constexpr double c_nan = std::numeric_limits<double>::quiet_NaN();
constexpr double c_infinity = std::numeric_limits<double>::infinity();

Spheres spheresOf(const SceneGraphPlotSphere2d& plot)
{
    Spheres spheres;
    for (const auto& s : plot.getSpheres()) {
        spheres.push_back({s.x, s.y, s.u, s.radius});
    }
    return spheres;
}

Spheres spheresOf(const SceneGraphPlotSphere3d& plot)
{
    Spheres spheres;
    for (const auto& s : plot.getSpheres()) {
        spheres.push_back({s.x, s.y, s.z, s.u, s.radius});
    }
    return spheres;
}

/// Four points, of which the second has no position; colours in array 0 within 10 to 50, radii in array 1.
PostRecord fourPoints()
{
    return PostRecord()
        .bounds({{0, 1}, {0, 1}, {0, 1}})
        .group({{0, c_nan, 1, -2}, {3, 0, 4, 5}, {6, 0, 7, -8}}, {}, {{10, 20, 30, 50}, {0.5, 99, -3, 2}});
}

TEST(UnitSphere, resolutionTwoIsAnOctahedronOfRings)
{
    const UnitSphere sphere(2);
    ASSERT_EQ(sphere.getVertices().getNumberOfVertices(), 6);
    const float expected[6][3] = {{0, 0, 1}, {1, 0, 0}, {0, 1, 0}, {-1, 0, 0}, {0, -1, 0}, {0, 0, -1}};
    for (int i = 0; i < 6; ++i) {
        const Vector3f point(expected[i][0], expected[i][1], expected[i][2]);
        EXPECT_LT((sphere.getVertices().getCoord(i) - point).length(), 1e-6f) << i;
    }
    std::vector<std::vector<int>> triangles;
    for (int i = 0; i < sphere.getTriangles().getNumElements(0); ++i) {
        std::vector<int> corners(3);
        sphere.getTriangles().getTriangle(i, corners[0], corners[1], corners[2]);
        triangles.push_back(corners);
    }
    EXPECT_EQ(triangles, (std::vector<std::vector<int>>{
                             {0, 1, 2}, {0, 2, 3}, {0, 3, 4}, {0, 4, 1}, {5, 2, 1}, {5, 3, 2}, {5, 4, 3}, {5, 1, 4}}));
    EXPECT_THROW(UnitSphere(0), std::invalid_argument);
    EXPECT_EQ(UnitSphere(1).getVertices().getNumberOfVertices(), 2);
    EXPECT_EQ(UnitSphere(1).getTriangles().getNumElements(0), 0);
}

TEST(UnitSphere, isClosedAndTurnedOutwardAndItsNormalsAreItsPositions)
{
    const UnitSphere sphere;
    EXPECT_EQ(sphere.getResolution(), 6);
    EXPECT_EQ(sphere.getVertices().getNumberOfVertices(), 62);
    EXPECT_EQ(sphere.getTriangles().getNumElements(0), 120);
    for (int i = 0; i < 62; ++i) {
        const VertexNormalTex& v = sphere.getVertices().vertices()[i];
        EXPECT_EQ(Vector3f(v.nx, v.ny, v.nz), Vector3f(v.x, v.y, v.z));
        EXPECT_NEAR(Vector3f(v.x, v.y, v.z).length(), 1.0f, 1e-6f);
        EXPECT_EQ(v.u, 0.0f);
    }
    std::map<std::pair<int, int>, int> edges;
    for (int i = 0; i < 120; ++i) {
        int c[3];
        sphere.getTriangles().getTriangle(i, c[0], c[1], c[2]);
        const auto at = [&](int corner) { return sphere.getVertices().getCoord(corner); };
        EXPECT_GT((at(c[1]) - at(c[0])).cross(at(c[2]) - at(c[0])).dot(at(c[0])), 0.0f) << i;
        for (int k = 0; k < 3; ++k) {
            ++edges[{c[k], c[(k + 1) % 3]}];
        }
    }
    for (const auto& [edge, count] : edges) {
        EXPECT_EQ(count, 1);
        EXPECT_TRUE(edges.contains({edge.second, edge.first}));
    }
}

TEST(SpherePlots, aFillTakesColourAndRadiusOfEachPointWithAPosition)
{
    PostRecord record = fourPoints();
    record.role(Record::ColorData, 0).role(Record::RadiusData, 1);
    SceneGraphPlotSphere3d spatial(1);
    spatial.fillPlot(record);
    EXPECT_EQ(spheresOf(spatial), (Spheres{{0, 3, 6, 0, 0.5f}, {1, 4, 7, 0.5f, 0}, {-2, 5, -8, 1, 2}}));
    EXPECT_EQ(spatial.getBoundingBox(), BoundingBox(-2.0f, 1.0f, 3.0f, 5.0f, -8.0f, 7.0f));
    EXPECT_TRUE(spatial.isValid());
    SceneGraphPlotSphere2d flat(2);
    flat.fillPlot(record);
    EXPECT_EQ(spheresOf(flat), (Spheres{{0, 3, 0, 0.5f}, {1, 4, 0.5f, 0}, {-2, 5, 1, 2}}));
    EXPECT_EQ(flat.getBoundingBox(), BoundingBox(-2.0f, 1.0f, 3.0f, 5.0f, 0.0f, 0.0f));

    spatial.fillPlot(record.limits(0, 0, 30.0, 30.0)); // constant data
    EXPECT_EQ(spheresOf(spatial)[2], (Sphere{-2, 5, -8, 0, 2}));
    EXPECT_EQ(spatial.getGeometryChangeId(), 3);
}

TEST(SpherePlots, withoutDataSpheresAreInTheMiddleOfTheTableAndOfRadiusOne)
{
    SceneGraphPlotSphere3d spatial(1);
    spatial.fillPlot(fourPoints());
    EXPECT_EQ(spheresOf(spatial), (Spheres{{0, 3, 6, 0.5f, 1}, {1, 4, 7, 0.5f, 1}, {-2, 5, -8, 0.5f, 1}}));
    SceneGraphPlotSphere2d flat(2);
    flat.fillPlot(PostRecord().bounds({{0, 1}}).group({{1, 2, 3}, {c_infinity, -1, c_nan}}, {}));
    EXPECT_EQ(spheresOf(flat), (Spheres{{2, -1, 0.5f, 1}}));
}

TEST(SpherePlots, emptyPlotsHaveTheUnitBox)
{
    SceneGraphPlotSphere3d spatial(1);
    SceneGraphPlotSphere2d flat(2);
    EXPECT_FALSE(flat.getBoundingBox().isValid());
    flat.setRadiusScaleFactor(2.0f); // computes the box
    EXPECT_EQ(flat.getBoundingBox(), BoundingBox(0.0f, 1.0f, 0.0f, 1.0f, 0.0f, 0.0f));
    spatial.fillPlot(PostRecord().bounds({{0, 1}}).group({{c_nan}, {0}, {0}}, {}));
    EXPECT_EQ(spatial.getBoundingBox(), BoundingBox(0.0f, 1.0f, 0.0f, 1.0f, 0.0f, 1.0f));
    EXPECT_FALSE(spatial.isValid());
}

TEST(SpherePlots, anotherRadiusScaleChangesTheGeometryNumberOnlyAndResetNothing)
{
    SceneGraphPlotSphere3d plot(1);
    plot.fillPlot(fourPoints());
    const Spheres spheres = spheresOf(plot);
    const BoundingBox box = plot.getBoundingBox();
    plot.setRadiusScaleFactor(1.0f);
    EXPECT_EQ(plot.getGeometryChangeId(), 2);
    plot.setRadiusScaleFactor(3.0f);
    EXPECT_EQ(plot.getGeometryChangeId(), 3);
    EXPECT_EQ(plot.getRadiusScaleFactor(), 3.0f);
    EXPECT_EQ(plot.getBoundingBox(), box);
    plot.resetPlotData();
    EXPECT_EQ(spheresOf(plot), spheres);
    EXPECT_EQ(plot.getGeometryChangeId(), 3);
    EXPECT_TRUE(plot.isValid());
}

TEST(SpherePlots, aPoorRecordIsRefusedAndChangesNothing)
{
    SceneGraphPlotSphere3d spatial(1);
    SceneGraphPlotSphere2d flat(2);
    spatial.fillPlot(fourPoints());
    const Spheres before = spheresOf(spatial);
    EXPECT_NE(refusalOf(spatial, PostRecord().group({{1}, {2}}, {})).find("SceneGraphPlotSphere3d: coordinates"),
              std::string::npos);
    EXPECT_NE(refusalOf(flat, PostRecord().group({{1}}, {})).find("SceneGraphPlotSphere2d: coordinates"),
              std::string::npos);
    EXPECT_NE(refusalOf(spatial, fourPoints().role(Record::RadiusData, 2)).find("DataRole.RADIUS (role 5)"),
              std::string::npos);
    EXPECT_NE(refusalOf(spatial, PostRecord().role(Record::ColorData, 0).group({{1, 2}, {1, 2}, {1, 2}}, {}, {{1}}))
                  .find("1 values for 2 points"),
              std::string::npos);
    EXPECT_EQ(spheresOf(spatial), before);
}

TEST(SpherePlots, aFillThatRunsOutOfMemoryLeavesNoSpheresAndCanBeRepeated)
{
    SceneGraphPlotSphere3d plot(1);
    PostRecord record = fourPoints();
    plot.fillPlot(record);
    int geometry = plot.getGeometryChangeId();
    const long failures = failEachAllocation([&] { plot.fillPlot(record); },
                                             [&] {
                                                 EXPECT_EQ(plot.isValid(), plot.getGeometryChangeId() == geometry);
                                                 plot.fillPlot(record);
                                                 EXPECT_EQ(spheresOf(plot).size(), 3u);
                                                 geometry = plot.getGeometryChangeId();
                                             });
    EXPECT_GE(failures, 1);
}

TEST(SpherePlots, aFillMatchesPlainLoopsOnRandomRecords)
{
    RandomNumbers random(3);
    for (int run = 0; run < 20; ++run) {
        const int count = random.integer(0, 60);
        Record::DoubleArrays axes(3), data(2);
        for (int i = 0; i < count; ++i) {
            for (Doubles& axis : axes) {
                axis.push_back(random.integer(0, 9) == 0 ? c_nan : static_cast<double>(random.uniform(-5.0f, 5.0f)));
            }
            data[0].push_back(static_cast<double>(random.uniform(-1.0f, 1.0f)));
            data[1].push_back(static_cast<double>(random.uniform(-1.0f, 3.0f)));
        }
        PostRecord record = PostRecord().bounds({{0, 1}}).group(axes, {}, data);
        const bool hasColor = random.integer(0, 1) == 1;
        const bool hasRadius = random.integer(0, 1) == 1;
        record.role(Record::ColorData, hasColor ? 0 : -1).role(Record::RadiusData, hasRadius ? 1 : -1);
        Spheres expected;
        const double min = record.record().m_dataMin[0]->at(0);
        const double range = record.record().m_dataMax[0]->at(0) - min;
        for (std::size_t i = 0; i < static_cast<std::size_t>(count); ++i) {
            if (std::isfinite(axes[0][i] + axes[1][i] + axes[2][i])) {
                const double s = range > 0.0 ? 1.0 / range : 0.0;
                expected.push_back({static_cast<float>(axes[0][i]), static_cast<float>(axes[1][i]),
                                    static_cast<float>(axes[2][i]),
                                    hasColor ? static_cast<float>((data[0][i] - min) * s) : 0.5f,
                                    hasRadius ? static_cast<float>(std::max(data[1][i], 0.0)) : 1.0f});
            }
        }
        SceneGraphPlotSphere3d plot(1);
        plot.fillPlot(record);
        ASSERT_EQ(spheresOf(plot), expected) << run;
    }
}

} // namespace
} // namespace vxgraphics3d
