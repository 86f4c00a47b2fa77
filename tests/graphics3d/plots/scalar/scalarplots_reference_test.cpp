// The scalar field plots of random records, compared with plain loops that are written from the formulas.

#include "graphics3d/plots/scalar/scenegraphplotcontour.h"
#include "graphics3d/plots/scalar/scenegraphplotisosurface3d.h"
#include "graphics3d/plots/scalar/scenegraphplotmesh3d.h"
#include "graphics3d/plots/scalar/scenegraphplotslice3d.h"
#include "graphics3d/readers/triangleoutline.h"
#include "tests/support/linesof.h"
#include "tests/support/plotbuffers.h"
#include "tests/support/postrecord.h"
#include "tests/support/randomnumbers.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <map>
#include <vector>

namespace vxgraphics3d {
namespace {

using Record = vxdatacarrier::PostDataObject;
using Doubles = std::vector<double>;
using Ints = std::vector<int>;

constexpr int c_numRecords = 300;

/// Up to 6 groups of up to 20 points, with colours as data array 0, levels as array 1, and all other fields.
PostRecord randomRecord(RandomNumbers& random, int kind, bool hasColors, int numCorners)
{
    const auto real = [&] { return static_cast<double>(random.uniform(-10.0f, 10.0f)); };
    PostRecord record = PostRecord().kind(kind).role(Record::IsoLevelData, 1);
    if (hasColors) {
        record.role(Record::ColorData, 0);
    }
    Record::DoubleArrays bounds(3, Doubles{-8.0, 8.0});
    record.bounds(bounds);
    const int numGroups = random.integer(1, 6);
    for (int group = 0; group < numGroups; ++group) {
        const auto numPoints = static_cast<std::size_t>(random.integer(0, 20));
        const int numElements = numPoints == 0 ? 0 : random.integer(0, 30);
        Record::DoubleArrays points(3, Doubles(numPoints));
        Record::FloatArrays normals(3, std::vector<float>(numPoints));
        Record::DoubleArrays data(2, Doubles(numPoints));
        for (std::size_t i = 0; i < numPoints; ++i) {
            for (std::size_t axis = 0; axis < 3; ++axis) {
                points[axis][i] = real();
                normals[axis][i] = random.uniform(-1.0f, 1.0f);
            }
            data[0][i] = real();
            data[1][i] = real();
        }
        Record::IntArrays elements(static_cast<std::size_t>(numCorners == 0 ? random.integer(2, 3) : numCorners));
        for (Ints& corners : elements) {
            for (int i = 0; i < numElements; ++i) {
                corners.push_back(random.integer(0, static_cast<int>(numPoints) - 1));
            }
        }
        record.group(std::move(points), elements, std::move(data), std::move(normals));
        record.outline({elements[0], elements[1]});
    }
    return record;
}

/// The smallest and the largest limit of a data array over all groups.
struct Scale {
    Scale(const Record& record, std::size_t array)
    {
        for (std::size_t group = 0; group < record.m_data.size(); ++group) {
            low = group == 0 ? (*record.m_dataMin[0])[array] : std::min(low, (*record.m_dataMin[group])[array]);
            high = group == 0 ? (*record.m_dataMax[0])[array] : std::max(high, (*record.m_dataMax[group])[array]);
        }
    }
    float operator()(double value) const
    {
        const double s = high - low > 0.0 ? 1.0 / (high - low) : 0.0;
        return static_cast<float>((value - low) * s);
    }
    double low = 0.0;
    double high = 0.0;
};

/// One group of a record, with vertices and elements as a plot should have them.
struct Expected {
    Expected(const Record& record, std::size_t group)
        : points(*record.m_coordinates[group]), corners(*record.m_elements[group]), data(*record.m_data[group])
    {
        if (group < record.m_normals.size()) {
            normals = *record.m_normals[group];
        }
    }
    std::size_t numPoints() const { return points[0].size(); }
    template <class Normal, class Texture>
    Vertices vertices(bool isSpatial, Normal normal, Texture u) const
    {
        Vertices result;
        for (std::size_t i = 0; i < numPoints(); ++i) {
            const Vector3f n = normal(i);
            result.push_back({static_cast<float>(points[0][i]), static_cast<float>(points[1][i]),
                              isSpatial ? static_cast<float>(points[2][i]) : 0.0f, n.x, n.y, n.z, u(i), 0.0f});
        }
        return result;
    }
    Vector3f normal(std::size_t i) const { return {normals[0][i], normals[1][i], normals[2][i]}; }
    Triangles triangles() const
    {
        Triangles result;
        for (std::size_t i = 0; i < corners[0].size(); ++i) {
            result.push_back({corners[0][i], corners[1][i], corners[2][i]});
        }
        return result;
    }
    Lines lines() const
    {
        Lines result;
        for (std::size_t i = 0; i < corners[0].size(); ++i) {
            result.emplace_back(corners[0][i], corners[1][i]);
        }
        return result;
    }

    Record::DoubleArrays points;
    Record::IntArrays corners;
    Record::DoubleArrays data;
    Record::FloatArrays normals;
};

TEST(ScalarPlots, isoSurfacesMatchPlainLoops)
{
    RandomNumbers random(1);
    for (int i = 0; i < c_numRecords; ++i) {
        const bool hasColors = random.integer(0, 1) == 1;
        const PostRecord record = randomRecord(random, 6, hasColors, 3);
        SceneGraphPlotIsoSurface3d plot(1);
        plot.fillPlot(record);
        const Scale scale(record, hasColors ? 0 : 1);
        ASSERT_EQ(plot.getNumberOfLevels(), static_cast<int>(record.record().m_data.size()));
        for (int group = 0; group < plot.getNumberOfLevels(); ++group) {
            const Expected expected(record, static_cast<std::size_t>(group));
            const SceneGraphPlotIso::IsoData& level = *plot.getSurface(group);
            EXPECT_EQ(level.m_levelData, expected.data[1]);
            EXPECT_EQ(trianglesOf(level.m_triangles), expected.triangles());
            if (!expected.corners[0].empty()) {
                EXPECT_EQ(
                    verticesOf(level.m_vertices),
                    expected.vertices(
                        true, [&](std::size_t p) { return expected.normal(p); },
                        [&](std::size_t p) { return scale(hasColors ? expected.data[0][p] : expected.data[1][0]); }));
            }
        }
    }
}

/// The labels of contour lines, by the rules that they are specified by and the generator of the process.
std::vector<Vector3f> expectedLabels(const Record& record)
{
    std::srand(0);
    const int d = record.m_plotKind == 18 ? 3 : 2;
    std::vector<Vector3f> labels;
    for (std::size_t group = 0; group < record.m_coordinates.size(); ++group) {
        const Expected expected(record, group);
        Vector3f best;
        int bestPenalty = -1;
        double bestDistance = -1.0;
        for (int i = 0; i < 10 && expected.numPoints() > 0 && expected.corners.size() != 3; ++i) {
            const auto p = static_cast<std::size_t>(std::rand()) % expected.numPoints();
            int penalty = 0;
            const double margins[2][2] = {{0.01, 0.05}, {0.01, 0.02}};
            for (std::size_t axis = 0; axis < 2 && record.m_plotKind == 17; ++axis) {
                const double low = (*record.m_bounds)[axis][0];
                const double high = (*record.m_bounds)[axis][1];
                const double x = expected.points[axis][p];
                if (x < low + margins[axis][0] * (high - low) || x > high - (high - low) * margins[axis][1]) {
                    penalty -= 1;
                }
            }
            const Vector3f point(expected.points[0][p], expected.points[1][p], d == 3 ? expected.points[2][p] : 0.0);
            double distance = 0.0;
            for (std::size_t other = 0; other < labels.size(); ++other) {
                Vector3f difference = point - labels[other];
                difference.y *= d == 2 ? 2.0f : 1.0f;
                const double length = static_cast<double>(difference.length());
                distance = other == 0 ? length : std::min(distance, length);
            }
            if (penalty > bestPenalty || (penalty == bestPenalty && distance > bestDistance)) {
                best = point;
                bestPenalty = penalty;
                bestDistance = distance;
            }
        }
        labels.push_back(best);
    }
    return labels;
}

TEST(ScalarPlots, contoursMatchPlainLoops)
{
    RandomNumbers random(2);
    for (int i = 0; i < c_numRecords; ++i) {
        const bool hasColors = random.integer(0, 1) == 1;
        const int kind = random.integer(16, 18);
        const PostRecord record = randomRecord(random, kind, hasColors, 0);
        SceneGraphPlotContour plot(1);
        plot.fillPlot(record);
        const Scale scale(record, hasColors ? 0 : 1);
        const std::vector<Vector3f> labels = expectedLabels(record);
        for (int group = 0; group < plot.getNumberOfLevels(); ++group) {
            const Expected expected(record, static_cast<std::size_t>(group));
            const SceneGraphPlotIso::IsoData& level = *plot.getSurface(group);
            const bool isBand = expected.corners.size() == 3;
            EXPECT_EQ(trianglesOf(level.m_triangles), isBand ? expected.triangles() : Triangles());
            EXPECT_EQ(linesOf(level.m_lines), isBand ? Lines() : expected.lines());
            EXPECT_EQ(verticesOf(level.m_vertices),
                      expected.vertices(
                          kind == 18,
                          [&](std::size_t p) {
                              return isBand && kind == 18 ? expected.normal(p) : Vector3f(0.0f, 0.0f, 1.0f);
                          },
                          [&](std::size_t p) {
                              return scale(hasColors ? expected.data[0][p] : expected.data[1][isBand ? p : 0]);
                          }));
            EXPECT_EQ(level.m_labelPosition, labels[static_cast<std::size_t>(group)]) << "group " << group;
        }
    }
}

TEST(ScalarPlots, slicesMatchPlainLoops)
{
    RandomNumbers random(3);
    for (int i = 0; i < c_numRecords; ++i) {
        const PostRecord record = randomRecord(random, 0, true, 3);
        SceneGraphPlotSlice3d plot(1);
        plot.fillPlot(record);
        const Scale scale(record, 0);
        ASSERT_EQ(plot.getNumberOfSlices(), static_cast<int>(record.record().m_data.size()));
        for (int group = 0; group < plot.getNumberOfSlices(); ++group) {
            const Expected expected(record, static_cast<std::size_t>(group));
            const SceneGraphPlotSlice3d::Slice& slice = *plot.getSlice(group);
            EXPECT_EQ(verticesOf(slice.m_vertices), expected.vertices(
                                                        true, [&](std::size_t p) { return expected.normal(p); },
                                                        [&](std::size_t p) { return scale(expected.data[0][p]); }));
            EXPECT_EQ(trianglesOf(slice.m_triangles), expected.triangles());
            EXPECT_EQ(linesOf(slice.m_lines), expected.lines());
        }
    }
}

TEST(ScalarPlots, meshesMatchPlainLoops)
{
    RandomNumbers random(4);
    for (int i = 0; i < c_numRecords; ++i) {
        const int kind = random.integer(11, 12);
        const PostRecord record = randomRecord(random, kind, true, 0);
        SceneGraphPlotMesh3d plot(1, kind - 9);
        plot.fillPlot(record);
        const Scale scale(record, 0);
        bool afterFaces = false;
        for (int group = 0; group < plot.getNumberOfGroups(); ++group) {
            const Expected expected(record, static_cast<std::size_t>(group));
            const bool isWireframe = afterFaces;
            const bool isFaces = !isWireframe && expected.corners.size() == 3;
            afterFaces = isFaces;
            EXPECT_EQ(trianglesOf(plot.getTriangleBuffer(group)), isFaces ? expected.triangles() : Triangles());
            EXPECT_EQ(linesOf(plot.getWireframeBuffer(group)), isWireframe ? expected.lines() : Lines());
            EXPECT_EQ(linesOf(plot.getLineBuffer(group)), isFaces || isWireframe ? Lines() : expected.lines());
            EXPECT_EQ(verticesOf(plot.getVertexBuffer(group)),
                      expected.vertices(
                          kind == 12,
                          [&](std::size_t p) {
                              return !isFaces     ? Vector3f(1.0f, 1.0f, 1.0f).normalized()
                                     : kind == 12 ? expected.normal(p)
                                                  : Vector3f(0.0f, 0.0f, 1.0f);
                          },
                          [&](std::size_t p) { return isWireframe ? 0.0f : scale(expected.data[0][p]); }));
        }
    }
}

TEST(ScalarPlots, theOutlineOfASurfaceIsTheEdgesOfOneTriangle)
{
    RandomNumbers random(5);
    for (int i = 0; i < c_numRecords; ++i) {
        // A grid with holes, whose cells are cut along either diagonal: no point has more than ten neighbours.
        const int side = random.integer(2, 8);
        TriangleOutline outline(side * side);
        std::map<std::pair<int, int>, int> uses;
        const auto add = [&](int a, int b, int c) {
            outline.addTriangle(a, b, c);
            for (const auto& edge : {std::minmax(a, b), std::minmax(b, c), std::minmax(c, a)}) {
                ++uses[edge];
            }
        };
        for (int cell = 0; cell < side * side; ++cell) {
            if (cell % side + 1 == side || cell / side + 1 == side || random.integer(0, 4) == 0) {
                continue;
            }
            if (random.integer(0, 1) == 0) {
                add(cell, cell + 1, cell + side);
                add(cell + 1, cell + side + 1, cell + side);
            } else {
                add(cell, cell + 1, cell + side + 1);
                add(cell, cell + side + 1, cell + side);
            }
        }
        Lines expected;
        for (const auto& [edge, count] : uses) {
            if (count == 1) {
                expected.push_back(edge);
            }
        }
        VertexBufferNormalTex vertices;
        vertices.allocate(side * side);
        IndexBufferLines buffer(vertices);
        outline.writeTo(buffer);
        Lines lines = linesOf(buffer);
        std::sort(lines.begin(), lines.end());
        EXPECT_EQ(lines, expected);
    }
}

} // namespace
} // namespace vxgraphics3d
