#include "graphics3d/plots/vector/scenegraphplotribbon3d.h"
#include "graphics3d/plots/vector/scenegraphplottube2d.h"
#include "graphics3d/plots/vector/scenegraphplottube3d.h"
#include "tests/graphics3d/plots/vector/vectorplots.h"
#include "tests/support/failingallocation.h"
#include "tests/support/randomnumbers.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <map>
#include <set>

namespace vxgraphics3d {
namespace {

using Ints = std::vector<int>;
using Vertex = std::array<float, 8>;
using Triangle = std::array<int, 3>;
using Tube = SceneGraphPlotTube::Tube;

std::vector<Vertex> verticesOf(const VertexBufferNormalTex& buffer)
{
    std::vector<Vertex> result;
    for (int i = 0; i < buffer.getNumberOfVertices(); ++i) {
        const VertexNormalTex& v = buffer.vertices()[i];
        result.push_back({v.x, v.y, v.z, v.nx, v.ny, v.nz, v.u, v.v});
    }
    return result;
}

std::vector<Triangle> trianglesOf(const IndexBufferTriangles& buffer)
{
    std::vector<Triangle> result;
    for (int i = 0; i < buffer.getNumElements(0); ++i) {
        Triangle corners{};
        buffer.getTriangle(i, corners[0], corners[1], corners[2]);
        result.push_back(corners);
    }
    return result;
}

std::string textOf(const SceneGraphPlotTube& plot)
{
    std::string text;
    for (const auto& tube : plot.getTubes()) {
        for (const Vertex& vertex : verticesOf(tube->m_tubeVertices)) {
            text += std::to_string(vertex[0]) + " " + std::to_string(vertex[2]) + " ";
        }
    }
    return text;
}

/// Lines through points with radii; colours 0 to 1 from the first to the last point.
PostRecord lines(Record::DoubleArrays points, Doubles radii, const std::vector<std::pair<int, int>>& segments)
{
    Record::IntArrays ends(2);
    for (const auto& [from, to] : segments) {
        ends[0].push_back(from);
        ends[1].push_back(to);
    }
    Doubles colors(radii.size());
    for (std::size_t i = 0; i < colors.size(); ++i) {
        colors[i] = static_cast<double>(i) / static_cast<double>(std::max<std::size_t>(colors.size() - 1, 1));
    }
    return PostRecord()
        .kind(Record::Lines3d)
        .role(Record::ColorData, 0)
        .role(Record::RadiusData, 1)
        .bounds({{0, 10}, {0, 10}, {0, 10}})
        .group(std::move(points), ends, {colors, std::move(radii)});
}

/// One line along z.
PostRecord oneLine(double radius)
{
    return lines({{0, 0}, {0, 0}, {0, 2}}, {radius, radius}, {{0, 1}});
}

/// A chain through points in space, one per radius; closed if the last segment leads back to the first point.
PostRecord zigzag(const Doubles& radii, bool closed = false)
{
    Record::DoubleArrays points(3);
    std::vector<std::pair<int, int>> segments;
    for (std::size_t i = 0; i < radii.size(); ++i) {
        points[0].push_back(static_cast<double>(i));
        points[1].push_back(i % 2 == 0 ? 0.0 : 1.0);
        points[2].push_back(0.25 * static_cast<double>(i % 3));
        if (i > 0) {
            segments.emplace_back(i - 1, i);
        }
    }
    if (closed) {
        segments.emplace_back(radii.size() - 1, 0);
    }
    return lines(points, radii, segments);
}

void expectExactCounts(const Tube& tube)
{
    EXPECT_EQ(tube.m_tubeVertices.getNumberOfVertices(), tube.m_tubeVertices.getCapacity());
    EXPECT_EQ(tube.m_tubeTriangles.getNumElements(0), tube.m_tubeTriangles.getNumElements());
    EXPECT_EQ(tube.m_tubeTriangles.getNumSegments(), 1);
}

/// The number of edges that a tube in space has on its boundary: those with a triangle on one side only. The two ends
/// of a ring count as one vertex, as do all vertices of the ring at the pole of a cap. An index outside, or an edge
/// that two triangles run through in the same direction, counts as -1.
int openEdgesOf(const Tube& tube, int resolution)
{
    const std::vector<Vertex> vertices = verticesOf(tube.m_tubeVertices);
    const int row = resolution + 1;
    const int numRings = static_cast<int>(vertices.size()) / row;
    const auto isPole = [&](int ring) {
        const Vertex& a = vertices[static_cast<std::size_t>(ring * row)];
        const Vertex& b = vertices[static_cast<std::size_t>(ring * row + resolution / 2)];
        return std::hypot(a[0] - b[0], a[1] - b[1], a[2] - b[2]) < 1e-6f;
    };
    const std::set<int> poles = [&] {
        std::set<int> result;
        for (int ring = 0; ring < numRings; ++ring) {
            if (isPole(ring)) {
                result.insert(ring);
            }
        }
        return result;
    }();
    const auto welded = [&](int index) {
        const int ring = index / row;
        return poles.count(ring) != 0 ? ring * row : ring * row + index % row % resolution;
    };
    std::set<std::pair<int, int>> edges;
    for (const Triangle& triangle : trianglesOf(tube.m_tubeTriangles)) {
        for (std::size_t i = 0; i < 3; ++i) {
            if (triangle[i] < 0 || triangle[i] >= static_cast<int>(vertices.size())) {
                return -1;
            }
        }
        const Triangle c{welded(triangle[0]), welded(triangle[1]), welded(triangle[2])};
        if (c[0] == c[1] || c[1] == c[2] || c[2] == c[0]) {
            continue;
        }
        for (std::size_t i = 0; i < 3; ++i) {
            if (!edges.emplace(c[i], c[(i + 1) % 3]).second) {
                return -1;
            }
        }
    }
    return static_cast<int>(std::count_if(edges.begin(), edges.end(), [&](const auto& edge) {
        return edges.count({edge.second, edge.first}) == 0;
    }));
}

TEST(SceneGraphPlotTube3d, aLineIsACylinderWithTwoHemispheres)
{
    SceneGraphPlotTube3d plot(1);
    EXPECT_FALSE(plot.isValid());
    plot.fillPlot(oneLine(1.0));
    ASSERT_EQ(plot.getTubes().size(), 1u);
    const Tube& tube = *plot.getTubes()[0];
    EXPECT_EQ(plot.getResolution(), 24);
    expectExactCounts(tube);
    const std::vector<Vertex> vertices = verticesOf(tube.m_tubeVertices);
    ASSERT_EQ(vertices.size(), 27u * 25); // 12 rings for each end and 3 for the line
    EXPECT_EQ(vertices[0], (Vertex{0, 0, -1, 0, 1, 0, 0, 0}));
    EXPECT_EQ(vertices[12 * 25], (Vertex{0, 1, 0, 0, 1, 0, 0, 0}));
    EXPECT_EQ(vertices[13 * 25], (Vertex{0, 1, 1, 0, 1, 0, 0.5f, 0}));
    EXPECT_EQ(vertices[14 * 25], (Vertex{0, 1, 2, 0, 1, 0, 1, 0}));
    EXPECT_NEAR(vertices[12 * 25 + 6][0], 1.0f, 1e-6f); // a quarter further, towards x
    EXPECT_NEAR(vertices[20 * 25][2], 2.5f, 1e-6f);     // half of the cap: at half of its radius
    EXPECT_NEAR(vertices[20 * 25][1], std::sqrt(0.75f), 1e-6f);
    EXPECT_EQ(vertices[26 * 25][2], 3.0f);
    const std::vector<Triangle> triangles = trianglesOf(tube.m_tubeTriangles);
    ASSERT_EQ(triangles.size(), 2u * 26 * 24);
    EXPECT_EQ(triangles[0], (Triangle{0, 25, 26}));
    EXPECT_EQ(triangles[1], (Triangle{0, 26, 1}));
    EXPECT_EQ(triangles[48], (Triangle{25, 50, 51}));
    EXPECT_EQ(limitsOf(plot.getBoundingBox()), (std::vector<float>{0, 10, 0, 10, 0, 10})); // that of the record
}

TEST(SceneGraphPlotTube3d, outsideOfTrianglesIsWhereNormalsPoint)
{
    SceneGraphPlotTube3d plot(1);
    plot.fillPlot(zigzag({0.2, 0.3, 0.2, 0.1}));
    const std::vector<Vertex> vertices = verticesOf(plot.getTubes()[0]->m_tubeVertices);
    const auto position = [&](int i) {
        const Vertex& v = vertices[static_cast<std::size_t>(i)];
        return Vector3f(v[0], v[1], v[2]);
    };
    for (const Triangle& t : trianglesOf(plot.getTubes()[0]->m_tubeTriangles)) {
        const Vector3f face = (position(t[1]) - position(t[0])).cross(position(t[2]) - position(t[0]));
        const Vertex& corner = vertices[static_cast<std::size_t>(t[0])];
        EXPECT_GE(face.dot({corner[3], corner[4], corner[5]}), -1e-6f);
    }
}

TEST(SceneGraphPlotTube3d, resolutionFallsWithTheNumberOfLines)
{
    for (const auto& [count, resolution] : {std::pair(9999, 24), {10000, 24}, {55000, 16}, {100000, 8}, {100001, 8}}) {
        // All lines run to and fro between two points: one chain without much of a tube.
        Record::IntArrays ends(2);
        for (int i = 0; i < count; ++i) {
            ends[0].push_back(i % 2);
            ends[1].push_back(1 - i % 2);
        }
        PostRecord record = oneLine(0.0);
        record.record().m_elements[0] = boost::make_shared<Record::IntArrays>(ends);
        SceneGraphPlotTube3d plot(1);
        plot.fillPlot(record);
        EXPECT_EQ(plot.getResolution(), resolution) << count;
        expectExactCounts(*plot.getTubes()[0]);
    }
}

TEST(SceneGraphPlotTube3d, chainsShareCapsAndClosedOnesHaveNone)
{
    struct Case {
        const char* name;
        PostRecord record;
        std::vector<int> numRings;
    };
    const int cap = 12;
    PostRecord fork = lines({{0, 1, 2, 1}, {0, 0, 0, 1}, {0, 0, 0, 0}}, {1, 1, 1, 1}, {{0, 1}, {1, 2}, {1, 3}, {2, 3}});
    const Case cases[] = {
        {"closed", zigzag({1, 1, 1, 1}, true), {6}},
        {"sharp start", zigzag({0, 1, 1}), {4 + cap}},
        {"negative radius", zigzag({-1, 1, 0}), {4}},
        // The second chain starts in the middle of the first and gets a cap; the third ends in its capped end.
        {"fork", fork, {4 + 2 * cap, 3 + 2 * cap, 3}},
    };
    for (const Case& test : cases) {
        SceneGraphPlotTube3d plot(1);
        plot.fillPlot(test.record);
        std::vector<int> numRings;
        for (const auto& tube : plot.getTubes()) {
            expectExactCounts(*tube);
            numRings.push_back(tube->m_tubeVertices.getNumberOfVertices() / 25);
        }
        EXPECT_EQ(numRings, test.numRings) << test.name;
    }
}

TEST(SceneGraphPlotTube3d, ringsStayRoundInSharpTurnsAndFiniteAtLinesOfNoLength)
{
    SceneGraphPlotTube3d plot(1);
    // The middle of the second line is right above that of the first, along the vector across: the direction before the
    // turn takes its place, or its opposite for a turn down.
    for (const double z : {2.0, -2.0}) {
        plot.fillPlot(lines({{0, 1, 0}, {0, 0, 0}, {0, 0, z}}, {1, 1, 1}, {{0, 1}, {1, 2}}));
        const std::vector<Vertex> vertices = verticesOf(plot.getTubes()[0]->m_tubeVertices);
        const Vertex& turned = vertices[(12 + 2) * 25];
        EXPECT_EQ((std::array{turned[3], turned[4], turned[5]}), (std::array{z > 0 ? 1.0f : -1.0f, 0.0f, 0.0f}));
        for (const Vertex& vertex : vertices) {
            EXPECT_NEAR(std::hypot(vertex[3], vertex[4], vertex[5]), 1.0f, 1e-5f);
        }
    }
    // A line of no length makes flat rings, but nothing that is not finite.
    plot.fillPlot(lines({{0, 1, 1, 2}, {0, 0, 0, 0}, {0, 0, 0, 0}}, {1, 1, 1, 1}, {{0, 1}, {1, 2}, {2, 3}}));
    expectExactCounts(*plot.getTubes()[0]);
    for (const Vertex& vertex : verticesOf(plot.getTubes()[0]->m_tubeVertices)) {
        EXPECT_TRUE(std::all_of(vertex.begin(), vertex.end(), [](float number) { return std::isfinite(number); }));
    }
}

TEST(SceneGraphPlotTube2d, aLineIsABandWithRoundEnds)
{
    SceneGraphPlotTube2d plot(1);
    PostRecord record = lines({{0, 4}, {0, 0}}, {1, 0.5}, {{0, 1}});
    plot.fillPlot(record.kind(0));
    const Tube& tube = *plot.getTubes()[0];
    expectExactCounts(tube);
    const std::vector<Vertex> vertices = verticesOf(tube.m_tubeVertices);
    const std::vector<Triangle> triangles = trianglesOf(tube.m_tubeTriangles);
    ASSERT_EQ(vertices.size(), 36u);
    ASSERT_EQ(triangles.size(), 34u);
    EXPECT_EQ(vertices[0], (Vertex{0, 0, 0, 0, 0, 1, 0, 0}));
    EXPECT_EQ(vertices[1], (Vertex{0, 1, 0, 0, 0, 1, 0, 0}));
    EXPECT_NEAR(vertices[9][0], -1.0f, 1e-5f); // around the back
    EXPECT_NEAR(vertices[17][1], -1.0f, 1e-5f);
    EXPECT_EQ(vertices[18], (Vertex{4, 0, 0, 0, 0, 1, 1, 0}));
    EXPECT_EQ(vertices[19], (Vertex{4, 0.5f, 0, 0, 0, 1, 1, 0}));
    EXPECT_NEAR(vertices[27][0], 4.5f, 1e-5f);
    EXPECT_EQ(triangles[0], (Triangle{0, 1, 2}));
    EXPECT_EQ(triangles[16], (Triangle{18, 19, 20}));
    EXPECT_EQ(triangles[32], (Triangle{1, 17, 35}));
    EXPECT_EQ(triangles[33], (Triangle{1, 35, 19}));
}

TEST(SceneGraphPlotTube2d, jointsAreMitredAndSharpEndsAreSinglePoints)
{
    SceneGraphPlotTube2d plot(1);
    // A right angle; the third axis counts for nothing in the plane.
    plot.fillPlot(lines({{0, 2, 2}, {0, 0, 2}, {5, 6, 7}}, {0, 1, -3}, {{0, 1}, {1, 2}}));
    const Tube& tube = *plot.getTubes()[0];
    const float half = std::sqrt(0.5f);
    const std::vector<Vertex> vertices = verticesOf(tube.m_tubeVertices);
    const std::vector<Vertex> expected{{0, 0, 0, 0, 0, 1, 0, 0},
                                       {2 - half, half, 0, 0, 0, 1, 0.5f, 0},
                                       {2 + half, -half, 0, 0, 0, 1, 0.5f, 0},
                                       {2, 2, 0, 0, 0, 1, 1, 0}};
    ASSERT_EQ(vertices.size(), expected.size());
    for (std::size_t i = 0; i < expected.size(); ++i) {
        EXPECT_NEAR(vertices[i][0], expected[i][0], 1e-6f);
        EXPECT_NEAR(vertices[i][1], expected[i][1], 1e-6f);
        EXPECT_EQ(vertices[i][2], 0.0f);
        EXPECT_EQ(vertices[i][6], expected[i][6]);
    }
    EXPECT_EQ(trianglesOf(tube.m_tubeTriangles), (std::vector<Triangle>{{0, 0, 2}, {0, 2, 1}, {1, 2, 3}}));
    EXPECT_EQ(tube.m_tubeTriangles.getNumElements(), 4); // one more than a sharp end needs
    EXPECT_EQ(plot.getResolution(), 0);
}

TEST(SceneGraphPlotTube2d, heightDataRaiseItIntoSpace)
{
    SceneGraphPlotTube2d plot(1);
    PostRecord record = lines({{0, 4}, {0, 0}}, {1, 1}, {{0, 1}});
    record.record().m_data[0]->push_back({-2, 6});
    record.record().m_dataMin[0]->push_back(-2);
    record.record().m_dataMax[0]->push_back(6);
    plot.fillPlot(record.kind(0).role(Record::HeightData, 2).bounds({{0, 4}, {0, 12}}));
    EXPECT_EQ(plot.getTubes()[0]->m_tubeVertices.getNumberOfVertices(), 27 * 25);
    EXPECT_EQ(plot.getPoints()[1].z, 6.0f); // heights have a range of 8, the mean extent
    EXPECT_EQ(limitsOf(plot.getBoundingBox()), (std::vector<float>{0, 4, 0, 12, -2, 6}));
    plot.fillPlot(oneLine(1.0)); // once raised, it stays in space
    EXPECT_EQ(plot.getTubes()[0]->m_tubeVertices.getNumberOfVertices(), 27 * 25);
}

TEST(TubePlots, radiusScaleRebuildsTubesWithoutARecord)
{
    SceneGraphPlotTube3d plot(1);
    plot.fillPlot(oneLine(1.0));
    const int geometry = plot.getGeometryChangeId();
    plot.setRadiusScaleFactor(1.0f);
    EXPECT_EQ(plot.getGeometryChangeId(), geometry);
    plot.setRadiusScaleFactor(3.0f);
    EXPECT_EQ(plot.getGeometryChangeId(), geometry + 1);
    EXPECT_EQ(verticesOf(plot.getTubes()[0]->m_tubeVertices)[12 * 25][1], 3.0f);
    EXPECT_EQ(verticesOf(plot.getTubes()[0]->m_tubeVertices)[0][2], -3.0f);
    plot.setRadiusScaleFactor(-1.0f); // caps stay, without extent
    EXPECT_EQ(verticesOf(plot.getTubes()[0]->m_tubeVertices).size(), 27u * 25);
    EXPECT_EQ(verticesOf(plot.getTubes()[0]->m_tubeVertices)[0], (Vertex{0, 0, 0, 0, 1, 0, 0, 0}));
    plot.resetPlotData();
    EXPECT_TRUE(plot.isValid());
    EXPECT_EQ(plot.getTubes().size(), 1u);

    SceneGraphPlotTube2d flat(1);
    flat.fillPlot(lines({{0, 4}, {0, 0}}, {1, 1}, {{0, 1}}).kind(0));
    flat.setRadiusScaleFactor(-2.0f);
    EXPECT_EQ(verticesOf(flat.getTubes()[0]->m_tubeVertices)[1][1], -2.0f);
}

/// Random points, and segments that often continue each other.
PostRecord randomLines(RandomNumbers& random, int numPoints, int numSegments)
{
    Record::DoubleArrays points(3);
    Doubles radii;
    for (int i = 0; i < numPoints; ++i) {
        const Vector3f p = random.vector(10.0f);
        points[0].push_back(static_cast<double>(p.x));
        points[1].push_back(static_cast<double>(p.y));
        points[2].push_back(static_cast<double>(p.z));
        radii.push_back(random.integer(0, 3) == 0 ? 0.0 : static_cast<double>(random.uniform(0.1f, 1.0f)));
    }
    std::vector<std::pair<int, int>> segments;
    for (int i = 0; i < numSegments; ++i) {
        const int from = i > 0 && random.integer(0, 5) != 0 ? segments.back().second : random.integer(0, numPoints - 1);
        const int to = random.integer(0, numPoints - 2);
        segments.emplace_back(from, to < from ? to : to + 1);
    }
    return lines(points, radii, segments);
}

/// A chain by its first and last segment, and whether its ends have caps.
struct Chain {
    std::size_t first;
    std::size_t last;
    bool startCap = false;
    bool endCap = false;
    /// Ends that are open: those with a radius but without a cap.
    int numOpenEnds = 0;
};

std::vector<Chain> chainsOf(const Record& record)
{
    const Record::IntArrays& ends = *record.m_elements[0];
    const Doubles& radii = (*record.m_data[0])[1];
    std::vector<Chain> chains;
    for (std::size_t i = 0; i < ends[0].size(); ++i) {
        if (i > 0 && ends[0][i] == ends[1][i - 1]) {
            chains.back().last = i;
        } else {
            chains.push_back({i, i});
        }
    }
    std::set<int> capped;
    for (Chain& chain : chains) {
        const int from = ends[0][chain.first];
        const int to = ends[1][chain.last];
        const bool startIsThick = radii[static_cast<std::size_t>(from)] != 0.0;
        const bool endIsThick = radii[static_cast<std::size_t>(to)] != 0.0;
        chain.startCap = from != to && startIsThick && capped.insert(from).second;
        chain.endCap = from != to && endIsThick && capped.insert(to).second;
        chain.numOpenEnds = (startIsThick && !chain.startCap ? 1 : 0) + (endIsThick && !chain.endCap ? 1 : 0);
    }
    return chains;
}

TEST(SceneGraphPlotTube3d, randomTubesAreClosedExceptAtEndsWithoutCap)
{
    RandomNumbers random(11);
    for (int round = 0; round < 20; ++round) {
        PostRecord record = randomLines(random, 12, 30);
        SceneGraphPlotTube3d plot(1);
        plot.fillPlot(record);
        const std::vector<Chain> chains = chainsOf(record);
        ASSERT_EQ(plot.getTubes().size(), chains.size());
        for (std::size_t i = 0; i < chains.size(); ++i) {
            expectExactCounts(*plot.getTubes()[i]);
            // A ring without a radius is a point, which closes the tube as well.
            EXPECT_EQ(openEdgesOf(*plot.getTubes()[i], 24), 24 * chains[i].numOpenEnds) << round << " " << i;
        }
    }
}

/// The rings of a tube without caps, by the formulas, in plain arrays: centre, radius and texture coordinate follow the
/// points and the middles of segments, and the first vector across is carried along by removing its part along the
/// tube.
std::vector<Vertex> referenceRings(const Record& record, const Chain& chain, int resolution)
{
    using Triple = std::array<double, 3>;
    const Record::DoubleArrays& points = *record.m_coordinates[0];
    const Record::DoubleArrays& data = *record.m_data[0];
    const Record::IntArrays& ends = *record.m_elements[0];
    const auto unit = [](Triple a) {
        const double length = std::sqrt(a[0] * a[0] + a[1] * a[1] + a[2] * a[2]);
        return length > 0.0 ? Triple{a[0] / length, a[1] / length, a[2] / length} : Triple{};
    };
    const auto cross = [](const Triple& a, const Triple& b) {
        return Triple{a[1] * b[2] - a[2] * b[1], a[2] * b[0] - a[0] * b[2], a[0] * b[1] - a[1] * b[0]};
    };
    struct Station {
        Triple centre;
        double radius, u;
    };
    const auto stationAt = [&](int a, int b) {
        const auto i = static_cast<std::size_t>(a);
        const auto j = static_cast<std::size_t>(b);
        return Station{
            {(points[0][i] + points[0][j]) / 2, (points[1][i] + points[1][j]) / 2, (points[2][i] + points[2][j]) / 2},
            (data[1][i] + data[1][j]) / 2,
            (data[0][i] + data[0][j]) / 2};
    };
    std::vector<Station> stations{stationAt(ends[0][chain.first], ends[0][chain.first])};
    for (std::size_t s = chain.first; s <= chain.last; ++s) {
        stations.push_back(stationAt(ends[0][s], ends[1][s]));
    }
    stations.push_back(stationAt(ends[1][chain.last], ends[1][chain.last]));

    std::vector<Vertex> result;
    Triple across{};
    for (std::size_t j = 0; j < stations.size(); ++j) {
        const Triple& to = stations[j == 0 ? 1 : j].centre;
        const Triple& from = stations[j == 0 ? 0 : j - 1].centre;
        const Triple along = unit({to[0] - from[0], to[1] - from[1], to[2] - from[2]});
        if (j == 0) {
            double longest = -1.0;
            for (const Triple& axis : {Triple{1, 0, 0}, Triple{0, 1, 0}, Triple{0, 0, 1}}) {
                const Triple c = cross(along, axis);
                const double length = c[0] * c[0] + c[1] * c[1] + c[2] * c[2];
                if (length > longest) {
                    longest = length;
                    across = unit(c);
                }
            }
        } else {
            const double p = across[0] * along[0] + across[1] * along[1] + across[2] * along[2];
            across = unit({across[0] - p * along[0], across[1] - p * along[1], across[2] - p * along[2]});
        }
        const Triple other = unit(cross(across, along));
        for (int i = 0; i <= resolution; ++i) {
            const double angle = 2 * i * 3.14159265358979 / resolution;
            Vertex vertex{};
            for (std::size_t axis = 0; axis < 3; ++axis) {
                const double n = across[axis] * std::cos(angle) + other[axis] * std::sin(angle);
                vertex[axis] = static_cast<float>(stations[j].centre[axis] + n * stations[j].radius);
                vertex[axis + 3] = static_cast<float>(n);
            }
            vertex[6] = static_cast<float>(stations[j].u);
            result.push_back(vertex);
        }
    }
    return result;
}

TEST(SceneGraphPlotTube3d, randomTubesMatchPlainFormulas)
{
    RandomNumbers random(29);
    std::size_t numCompared = 0;
    for (int round = 0; round < 10; ++round) {
        PostRecord record = randomLines(random, 15, 25);
        SceneGraphPlotTube3d plot(1);
        plot.fillPlot(record);
        const std::vector<Chain> chains = chainsOf(record);
        for (std::size_t i = 0; i < chains.size(); ++i) {
            const std::vector<Vertex> expected = referenceRings(record, chains[i], 24);
            const std::vector<Vertex> vertices = verticesOf(plot.getTubes()[i]->m_tubeVertices);
            const std::size_t skipped = chains[i].startCap ? 12 * 25 : 0;
            ASSERT_LE(expected.size() + skipped, vertices.size());
            for (std::size_t v = 0; v < expected.size(); ++v) {
                for (std::size_t part = 0; part < 8; ++part) {
                    ASSERT_NEAR(vertices[skipped + v][part], expected[v][part], 2e-3f) << i << " " << v << " " << part;
                }
            }
            numCompared += expected.size();
        }
    }
    EXPECT_GT(numCompared, 5000u);
}

TEST(SceneGraphPlotTube2d, randomBandsIndexOnlyTheirOwnVertices)
{
    RandomNumbers random(17);
    for (int round = 0; round < 20; ++round) {
        PostRecord record = randomLines(random, 12, 30);
        const Record::IntArrays& ends = *record.record().m_elements[0];
        const Doubles& radii = (*record.record().m_data[0])[1];
        SceneGraphPlotTube2d plot(1);
        plot.fillPlot(record);
        const std::vector<Chain> chains = chainsOf(record);
        ASSERT_EQ(plot.getTubes().size(), chains.size());
        for (std::size_t i = 0; i < chains.size(); ++i) {
            const Tube& tube = *plot.getTubes()[i];
            const int count = tube.m_tubeVertices.getNumberOfVertices();
            EXPECT_EQ(count, tube.m_tubeVertices.getCapacity());
            const bool sharpEnd = radii[static_cast<std::size_t>(ends[1][chains[i].last])] == 0.0;
            EXPECT_EQ(tube.m_tubeTriangles.getNumElements(0),
                      tube.m_tubeTriangles.getNumElements() - (sharpEnd ? 1 : 0));
            for (const Triangle& triangle : trianglesOf(tube.m_tubeTriangles)) {
                EXPECT_LT(*std::max_element(triangle.begin(), triangle.end()), count);
            }
        }
    }
}

/// Two lines in space and one apart, with directions and widths.
PostRecord ribbonRecord()
{
    PostRecord record =
        lines({{0, 1, 2, 0, 1}, {0, 0, 0, 5, 5}, {0, 0, 0, 0, 0}}, {1, 0, -2, 0.5, 0.5}, {{0, 1}, {1, 2}, {3, 4}});
    for (int i = 0; i < 6; ++i) {
        record.role(Record::FirstDirectionX + i, 2 + i);
        const double value = i == 1 ? 2.0 : i == 5 ? 1.0 : 0.0; // across along y, of length 2; normal along z
        record.record().m_data[0]->push_back(Doubles(5, value));
        record.record().m_dataMin[0]->push_back(value);
        record.record().m_dataMax[0]->push_back(value);
    }
    return record;
}

TEST(SceneGraphPlotRibbon3d, eachPointIsARowOfThreeVerticesAcrossTheLine)
{
    SceneGraphPlotRibbon3d plot(1);
    EXPECT_FALSE(plot.isValid());
    plot.setWidthScaleFactor(0.5f);
    plot.fillPlot(ribbonRecord());
    ASSERT_EQ(plot.getRibbons().size(), 2u);
    const SceneGraphPlotRibbon3d::Ribbon& ribbon = *plot.getRibbons()[0];
    EXPECT_EQ(verticesOf(ribbon.m_ribbonVertices), (std::vector<Vertex>{{0, -1, 0, 0, 0, 1, 0, 0},
                                                                        {0, 0, 0, 0, 0, 1, 0, 0},
                                                                        {0, 1, 0, 0, 0, 1, 0, 0},
                                                                        {1, 0, 0, 0, 0, 1, 0.25f, 0},
                                                                        {1, 0, 0, 0, 0, 1, 0.25f, 0},
                                                                        {1, 0, 0, 0, 0, 1, 0.25f, 0},
                                                                        {2, 0, 0, 0, 0, 1, 0.5f, 0},
                                                                        {2, 0, 0, 0, 0, 1, 0.5f, 0},
                                                                        {2, 0, 0, 0, 0, 1, 0.5f, 0}}));
    EXPECT_EQ(trianglesOf(ribbon.m_ribbonTriangles),
              (std::vector<Triangle>{
                  {0, 3, 4}, {0, 4, 1}, {1, 4, 5}, {1, 5, 2}, {3, 6, 7}, {3, 7, 4}, {4, 7, 8}, {4, 8, 5}}));
    EXPECT_EQ(verticesOf(plot.getRibbons()[1]->m_ribbonVertices)[2][1], 5.5f);
    const int geometry = plot.getGeometryChangeId();
    plot.setWidthScaleFactor(0.5f);
    EXPECT_EQ(plot.getGeometryChangeId(), geometry);
    plot.setWidthScaleFactor(2.0f);
    EXPECT_EQ(plot.getGeometryChangeId(), geometry + 1);
    EXPECT_EQ(verticesOf(plot.getRibbons()[1]->m_ribbonVertices)[2][1], 7.0f);
    plot.resetPlotData();
    EXPECT_TRUE(plot.isValid());
}

TEST(SceneGraphPlotRibbon3d, randomRibbonsMatchPlainFormulas)
{
    RandomNumbers random(7);
    PostRecord record = randomLines(random, 40, 60);
    for (int i = 0; i < 6; ++i) {
        record.role(Record::FirstDirectionX + i, 2 + i);
        Doubles values;
        for (int point = 0; point < 40; ++point) {
            values.push_back(static_cast<double>(random.uniform(-1.0f, 1.0f)));
        }
        record.record().m_data[0]->push_back(values);
        record.record().m_dataMin[0]->push_back(-1);
        record.record().m_dataMax[0]->push_back(1);
    }
    SceneGraphPlotRibbon3d plot(1);
    plot.setWidthScaleFactor(1.5f);
    plot.fillPlot(record);
    const Record::DoubleArrays& points = *record.record().m_coordinates[0];
    const Record::DoubleArrays& data = *record.record().m_data[0];
    const Record::IntArrays& ends = *record.record().m_elements[0];
    const std::vector<Chain> chains = chainsOf(record);
    ASSERT_EQ(plot.getRibbons().size(), chains.size());
    for (std::size_t i = 0; i < chains.size(); ++i) {
        const std::size_t first = chains[i].first;
        const std::size_t last = chains[i].last;
        const SceneGraphPlotRibbon3d::Ribbon& ribbon = *plot.getRibbons()[i];
        const std::vector<Vertex> vertices = verticesOf(ribbon.m_ribbonVertices);
        ASSERT_EQ(vertices.size(), 3 * (last - first + 2));
        EXPECT_EQ(ribbon.m_ribbonTriangles.getNumElements(0), static_cast<int>(4 * (last - first + 1)));
        for (std::size_t v = 0; v < vertices.size(); ++v) {
            const std::size_t row = v / 3;
            const int at = first + row <= last ? ends[0][first + row] : ends[1][last];
            const auto point = static_cast<std::size_t>(at);
            const double side = static_cast<double>(v % 3) - 1.0;
            for (std::size_t axis = 0; axis < 3; ++axis) {
                EXPECT_NEAR(static_cast<double>(vertices[v][axis]),
                            points[axis][point] + side * 1.5 * data[1][point] * data[2 + axis][point], 1e-5);
                EXPECT_EQ(vertices[v][3 + axis], static_cast<float>(data[5 + axis][point]));
            }
            EXPECT_NEAR(static_cast<double>(vertices[v][6]), data[0][point], 1e-6);
        }
    }
}

TEST(LinePlots, fillRefusesARecordThatLacksSomethingAndNamesIt)
{
    SceneGraphPlotTube3d tubes(1);
    EXPECT_EQ(acceptedFault(tubes, oneLine(1.0), {0, 5}, true, [&] { return textOf(tubes); }), "");
    SceneGraphPlotTube2d flat(1);
    PostRecord inPlane = lines({{0, 4}, {0, 0}}, {1, 1}, {{0, 1}});
    EXPECT_EQ(acceptedFault(flat, inPlane.kind(0), {0, 5}, true, [&] { return textOf(flat); }), "");
    SceneGraphPlotRibbon3d ribbons(1);
    EXPECT_EQ(acceptedFault(ribbons, ribbonRecord(), {0, 5, 10, 11, 12, 13, 14, 15}, true,
                            [&] { return std::to_string(ribbons.getRibbons().size()); }),
              "");
}

TEST(LinePlots, withoutLinesTheyAreNotValid)
{
    SceneGraphPlotTube3d tubes(1);
    tubes.fillPlot(oneLine(1.0));
    tubes.fillPlot(lines({{0}, {0}, {0}}, {1}, {}));
    EXPECT_FALSE(tubes.isValid());
    EXPECT_TRUE(tubes.getTubes().empty());
}

template <class Plot, class SetScale, class Count>
void expectToSurviveFailures(Plot& plot, const PostRecord& record, SetScale setScale, Count count)
{
    plot.fillPlot(record);
    const std::size_t whole = count();
    EXPECT_GE(failEachAllocation([&] { plot.fillPlot(record); },
                                 [&] {
                                     EXPECT_EQ(plot.isValid(), count() == whole);
                                     plot.fillPlot(record);
                                     EXPECT_EQ(count(), whole);
                                 }),
              5);
    EXPECT_GE(failEachAllocation([&] { setScale(2.0f); },
                                 [&] {
                                     EXPECT_EQ(count(), 0u);
                                     setScale(3.0f); // another factor than the one that stayed
                                     EXPECT_EQ(count(), whole);
                                     setScale(1.0f);
                                 }),
              3);
    EXPECT_EQ(count(), whole);
}

TEST(LinePlots, aFailedRebuildLeavesNothingAndCanBeRepeated)
{
    SceneGraphPlotTube3d tubes(1);
    expectToSurviveFailures(
        tubes, oneLine(1.0), [&](float factor) { tubes.setRadiusScaleFactor(factor); },
        [&] { return tubes.getTubes().size(); });
    SceneGraphPlotTube2d flat(1);
    expectToSurviveFailures(
        flat, oneLine(1.0), [&](float factor) { flat.setRadiusScaleFactor(factor); },
        [&] { return flat.getTubes().size(); });
    SceneGraphPlotRibbon3d ribbons(1);
    expectToSurviveFailures(
        ribbons, ribbonRecord(), [&](float factor) { ribbons.setWidthScaleFactor(factor); },
        [&] { return ribbons.getRibbons().size(); });
}

} // namespace
} // namespace vxgraphics3d
