#include "renderer/upload/creases.h"

#include "graphics3d/buffers/vertexbuffernormal.h"
#include "graphics3d/buffers/vertexlayout.h"
#include "renderer/upload/checkedindices.h"
#include "renderer/upload/vertexrecords.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <numbers>
#include <set>
#include <vector>

namespace vxrenderer {
namespace {

using vxgraphics3d::Vector3f;
using vxgraphics3d::VertexBufferNormal;

constexpr float c_angle = 35.0f * std::numbers::pi_v<float> / 180.0f;

struct Surface {
    VertexBufferNormal vertices;
    std::vector<std::uint32_t> indices;

    Surface(const std::vector<Vector3f>& points, std::vector<std::uint32_t> corners) : indices(std::move(corners))
    {
        vertices.allocate(static_cast<int>(points.size()));
        for (const Vector3f& point : points) {
            vertices.appendVertex(point, point.normalized());
        }
    }

    Creases creases(float angle = c_angle)
    {
        const VertexRecords records(vertices, requireLayout(vertices));
        return {records, static_cast<std::uint32_t>(vertices.getNumberOfVertices()), indices, angle};
    }
};

const std::vector<Vector3f> c_cube = {{-1.0f, -1.0f, -1.0f}, {1.0f, -1.0f, -1.0f}, {1.0f, 1.0f, -1.0f},
                                      {-1.0f, 1.0f, -1.0f},  {-1.0f, -1.0f, 1.0f}, {1.0f, -1.0f, 1.0f},
                                      {1.0f, 1.0f, 1.0f},    {-1.0f, 1.0f, 1.0f}};
const std::vector<std::uint32_t> c_cubeTriangles = {0, 2, 1, 0, 3, 2, 4, 5, 6, 4, 6, 7, 0, 1, 5, 0, 5, 4,
                                                    2, 3, 7, 2, 7, 6, 1, 2, 6, 1, 6, 5, 0, 4, 7, 0, 7, 3};

/// A globe of rows of latitude, with one seam of longitude at which vertices are double.
Surface globe(int numRows, int numColumns)
{
    std::vector<Vector3f> points;
    std::vector<std::uint32_t> corners;
    for (int row = 0; row <= numRows; ++row) {
        for (int column = 0; column <= numColumns; ++column) {
            const float theta = std::numbers::pi_v<float> * static_cast<float>(row) / static_cast<float>(numRows);
            const float phi = 2.0f * std::numbers::pi_v<float> * static_cast<float>(column % numColumns) /
                              static_cast<float>(numColumns);
            const float ring = row % numRows == 0 ? 0.0f : std::sin(theta);
            points.emplace_back(ring * std::cos(phi), ring * std::sin(phi), std::cos(theta));
        }
    }
    for (int row = 0; row < numRows; ++row) {
        for (int column = 0; column < numColumns; ++column) {
            const auto a = static_cast<std::uint32_t>(row * (numColumns + 1) + column);
            const auto b = a + static_cast<std::uint32_t>(numColumns) + 1;
            if (row > 0) {
                corners.insert(corners.end(), {a, b, a + 1});
            }
            if (row + 1 < numRows) {
                corners.insert(corners.end(), {a + 1, b, b + 1});
            }
        }
    }
    return {points, corners};
}

TEST(Creases, aCubeOfEightVerticesGetsOneNormalPerFaceAndItsTwelveEdges)
{
    Surface cube(c_cube, c_cubeTriangles);
    const Creases creases = cube.creases();
    EXPECT_EQ(creases.getVertices().size(), 24u);
    EXPECT_EQ(creases.getEdges().size(), 12u);
    for (const Creases::Edge& edge : creases.getEdges()) {
        EXPECT_EQ((c_cube[edge.second] - c_cube[edge.first]).length(), 2.0f) << "no diagonals";
    }
    for (std::size_t i = 0; i < cube.indices.size(); i += 3) {
        const Vector3f a = c_cube[c_cubeTriangles[i]];
        const Vector3f b = c_cube[c_cubeTriangles[i + 1]];
        const Vector3f c = c_cube[c_cubeTriangles[i + 2]];
        for (std::size_t k = 0; k < 3; ++k) {
            ASSERT_GE(cube.indices[i + k], 8u);
            const Creases::Vertex& vertex = creases.getVertices()[cube.indices[i + k] - 8];
            EXPECT_EQ(vertex.source, c_cubeTriangles[i + k]);
            EXPECT_EQ(vertex.normal, (b - a).cross(c - a).normalized());
        }
    }
}

TEST(Creases, aGlobeHasNoneNotEvenAtItsSeam)
{
    Surface surface = globe(12, 24);
    const std::vector<std::uint32_t> before = surface.indices;
    const Creases creases = surface.creases();
    EXPECT_EQ(surface.indices, before);
    EXPECT_TRUE(creases.getVertices().empty());
    EXPECT_TRUE(creases.getEdges().empty());
}

TEST(Creases, aVertexBelongsToAsManyFansAsSmoothPiecesMeetThere)
{
    // A roof of two slopes, which meet at 40 degrees.
    const float down = -std::tan(20.0f * std::numbers::pi_v<float> / 180.0f);
    Surface roof({{0.0f, 0.0f, 0.0f},
                  {0.0f, 1.0f, 0.0f},
                  {1.0f, 0.0f, down},
                  {1.0f, 1.0f, down},
                  {-1.0f, 0.0f, down},
                  {-1.0f, 1.0f, down}},
                 {0, 2, 3, 0, 3, 1, 0, 1, 5, 0, 5, 4});
    const Creases creases = roof.creases();
    EXPECT_EQ(creases.getVertices().size(), 4u) << "two at each end of the ridge";
    EXPECT_EQ(creases.getEdges().size(), 7u) << "the ridge and six borders";
    EXPECT_EQ(roof.indices[1], 2u);
    const Vector3f slope = creases.getVertices()[roof.indices[0] - 6].normal;
    EXPECT_NEAR(std::acos(slope.z), 20.0f * std::numbers::pi_v<float> / 180.0f, 1e-5f);
    EXPECT_GT(slope.x, 0.0f);
}

TEST(Creases, aRidgeThatEndsOnASurfaceHasTwoSidesButNoLine)
{
    // It starts at a border, falls off at 1 and ends in a plane at 2. Its sides meet at 44 and 41 degrees.
    Surface tail({{0.0f, 0.0f, 10.4f},
                  {1.0f, 0.0f, 10.4f},
                  {2.0f, 0.0f, 10.0f},
                  {0.0f, 1.0f, 10.0f},
                  {1.0f, 1.0f, 10.0f},
                  {3.0f, 1.0f, 10.0f},
                  {0.0f, -1.0f, 10.0f},
                  {1.0f, -1.0f, 10.0f},
                  {3.0f, -1.0f, 10.0f}},
                 {0, 1, 4, 0, 4, 3, 1, 2, 4, 2, 5, 4, 2, 8, 5, 2, 7, 8, 1, 7, 2, 0, 6, 7, 0, 7, 1});
    const Creases creases = tail.creases();
    EXPECT_EQ(creases.getEdges().size(), 7u) << "the borders";
    std::vector<std::uint32_t> split;
    for (const Creases::Vertex& vertex : creases.getVertices()) {
        split.push_back(vertex.source);
    }
    EXPECT_EQ(split, (std::vector<std::uint32_t>{0, 0, 1, 1}));
}

TEST(Creases, withTheWidestAngleOnlyBordersAreLeft)
{
    Surface folded({{0.0f, 0.0f, 0.0f}, {0.3f, 1.0f, 0.7f}, {1.0f, 0.2f, 0.1f}, {0.9f, 0.3f, 0.1f}},
                   {0, 2, 1, 0, 1, 3});
    const Creases creases = folded.creases(std::numbers::pi_v<float>);
    EXPECT_TRUE(creases.getVertices().empty());
    EXPECT_EQ(creases.getEdges().size(), 4u);
    EXPECT_FALSE(folded.creases().getVertices().empty());
}

TEST(Creases, trianglesWithVerticesOfTheirOwnStillMeetAtTheirEdgesAndHaveTheNormalsOfTheirSides)
{
    // A cube and a globe without any shared vertex.
    for (const bool isCube : {true, false}) {
        const Surface joined = isCube ? Surface(c_cube, c_cubeTriangles) : globe(12, 24);
        std::vector<Vector3f> points;
        std::vector<std::uint32_t> corners;
        for (const std::uint32_t index : joined.indices) {
            corners.push_back(static_cast<std::uint32_t>(points.size()));
            points.push_back(joined.vertices.getCoord(static_cast<int>(index)));
        }
        Surface surface(points, corners);
        const Creases creases = surface.creases();
        EXPECT_EQ(creases.getVertices().size(), isCube ? 36u : 0u) << "the normals of corners are of no side";
        EXPECT_EQ(creases.getEdges().size(), isCube ? 12u : 0u);
    }
}

TEST(Creases, threeSheetsAtOneEdgeMakeALine)
{
    Surface fins({{0.0f, 0.0f, 0.0f}, {0.0f, 0.0f, 1.0f}, {1.0f, 0.0f, 0.0f}, {-1.0f, 0.0f, 0.0f}, {0.0f, 1.0f, 0.0f}},
                 {0, 2, 1, 0, 1, 3, 0, 1, 4});
    const Creases creases = fins.creases();
    EXPECT_EQ(std::ranges::count(creases.getEdges(), Creases::Edge(0, 1)), 1);
    EXPECT_EQ(creases.getEdges().size(), 7u);
}

} // namespace
} // namespace vxrenderer
