#include "graphics3d/construction/workplane.h"

#include "tests/support/failingallocation.h"
#include "tests/support/randomnumbers.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <stdexcept>
#include <vector>

namespace vxgraphics3d {
namespace {

/// A plane at x = 1 whose axes are the y and z axis of space, with a rectangle of 9 by 9.
///
/// The rectangle can be another one.
std::vector<float> planeData(float x0 = -4.0f, float x1 = 5.0f, float y0 = 0.0f, float y1 = 9.0f)
{
    return {1, 2, 3, 1, 4, 3, 1, 5, 7, x0, x1, y0, y1};
}

WorkPlane planeOf(const std::vector<float>& data)
{
    return WorkPlane(data.data());
}

void expectNoGrid(const WorkPlane& plane)
{
    EXPECT_EQ(plane.getNumGridLines(), 0);
    EXPECT_EQ(plane.getNumGridVertices(), 0);
    EXPECT_EQ(plane.getGridVertices().getNumberOfVertices(), 0);
    EXPECT_EQ(plane.getGridLines().getNumElements(0), 0);
}

TEST(WorkPlane, hasAxesCornersAndTriadOfItsPlane)
{
    const WorkPlane plane = planeOf(planeData());
    EXPECT_EQ(plane.getXAxis(), Vector3f(0.0f, 1.0f, 0.0f));
    EXPECT_EQ(plane.getYAxis(), Vector3f(0.0f, 0.0f, 1.0f));
    EXPECT_EQ(plane.getZAxis(), Vector3f(1.0f, 0.0f, 0.0f));
    EXPECT_EQ(plane.getCorners()[0], Vector3f(1.0f, -2.0f, 3.0f));
    EXPECT_EQ(plane.getCorners()[1], Vector3f(1.0f, 7.0f, 3.0f));
    EXPECT_EQ(plane.getCorners()[2], Vector3f(1.0f, -2.0f, 12.0f));
    EXPECT_EQ(plane.getCorners()[3], Vector3f(1.0f, 7.0f, 12.0f));
    EXPECT_EQ(plane.getPlaneCorners()[2], std::pair(-4.0f, 9.0f));
    EXPECT_EQ(plane.getBox(), BoundingBox(1.0f, 1.0f, -2.0f, 7.0f, 3.0f, 12.0f));
    EXPECT_EQ(plane.getSize(), 9.0f);
    EXPECT_EQ(plane.getSymbolScale(), 0.0075f);
    const float mark = 0.2f * 9.0f;
    EXPECT_EQ(plane.getTriad()[0], Vector3f(1.0f, 2.0f, 3.0f));
    EXPECT_EQ(plane.getTriad()[1], Vector3f(1.0f, 2.0f + mark, 3.0f));
    EXPECT_EQ(plane.getTriad()[2], Vector3f(1.0f, 2.0f, 3.0f + mark));
    EXPECT_EQ(plane.getTriad()[3], Vector3f(1.0f + mark, 2.0f, 3.0f));
}

TEST(WorkPlane, gridOfASquareHasNineByNineCells)
{
    const WorkPlane plane = planeOf(planeData());
    ASSERT_EQ(plane.getNumGridLines(), 20);
    ASSERT_EQ(plane.getNumGridVertices(), 40);
    const IndexBufferLines& lines = plane.getGridLines();
    ASSERT_EQ(lines.getNumElements(0), 20);
    for (int i = 0; i < 10; ++i) {
        const auto t = static_cast<float>(i);
        // Columns go from the first corner to the third, rows back from the second to the first.
        EXPECT_EQ(lines.getVertex(0, 2 * i), Vector3f(1.0f, -2.0f + t, 3.0f));
        EXPECT_EQ(lines.getVertex(0, 2 * i + 1), Vector3f(1.0f, -2.0f + t, 12.0f));
        EXPECT_EQ(lines.getVertex(0, 20 + 2 * i), Vector3f(1.0f, 7.0f, 3.0f + t));
        EXPECT_EQ(lines.getVertex(0, 21 + 2 * i), Vector3f(1.0f, -2.0f, 3.0f + t));
        EXPECT_EQ(lines.getVertexIndex(0, 20 + 2 * i), 21 + 2 * i);
    }
}

TEST(WorkPlane, gridFollowsTheShapeOfTheRectangleWhateverItsSize)
{
    WorkPlane plane = planeOf(planeData(0.0f, 81.0f, 0.0f, 4.0f));
    EXPECT_EQ(plane.getSize(), 18.0f);
    EXPECT_EQ(plane.getNumGridLines(), 41 + 2 + 2);
    EXPECT_EQ(plane.getGridVertices().getNumberOfVertices(), 90);

    RandomNumbers random(7);
    for (int i = 0; i < 1000; ++i) {
        const float side = std::ldexp(random.uniform(1.0f, 2.0f), i % 60 - 30);
        plane.setup(planeData(0.0f, side, 0.0f, side).data());
        ASSERT_EQ(plane.getNumGridLines(), 20) << side;
    }
}

TEST(WorkPlane, rectanglesWithoutAreaHaveNoGridAndTooNarrowOnesAreRefused)
{
    constexpr float inf = std::numeric_limits<float>::infinity();
    constexpr float nan = std::numeric_limits<float>::quiet_NaN();
    for (const std::vector<float>& data :
         {planeData(0, 0, 0, 9), planeData(0, 9, 4, 4), planeData(0, 0, 0, 0), planeData(5, -4, 0, 9),
          planeData(5, -4, 9, 0), planeData(0, nan, 0, 1), planeData(-inf, inf, 0, 1), planeData(0, 3e38f, 0, 3e38f)}) {
        WorkPlane plane = planeOf(planeData());
        plane.setup(data.data());
        expectNoGrid(plane);
    }
    WorkPlane plane = planeOf(planeData());
    EXPECT_THROW(plane.setup(planeData(0.0f, 1e8f, 0.0f, 1e-8f).data()), std::invalid_argument);
    EXPECT_EQ(plane.getNumGridLines(), 20);
    EXPECT_EQ(plane.getSize(), 9.0f);
}

TEST(WorkPlane, extrusionHasAnOffsetPerHeightAndADisc)
{
    WorkPlane plane = planeOf(planeData());
    const float values[] = {2.0f, 3.0f, -1.0f};
    plane.setExtrude(values, 3);
    EXPECT_EQ(plane.getOperation(), WorkPlane::OperationExtrude);
    ASSERT_EQ(plane.getOffsets().size(), 3u);
    EXPECT_EQ(plane.getOffsets()[0], Vector3f(6.0f, 3.0f, 9.0f));
    EXPECT_EQ(plane.getOffsets()[1], Vector3f(6.0f, 0.0f, 0.0f));
    EXPECT_EQ(plane.getOffsets()[2], Vector3f(-2.0f, 0.0f, 0.0f));
    EXPECT_EQ(plane.getBox(), BoundingBox(-1.0f, 7.0f, -2.0f, 7.0f, 3.0f, 12.0f));

    const VertexBufferNormal& vertices = plane.getSymbolVertices();
    ASSERT_EQ(vertices.getNumberOfVertices(), 22);
    const float radius = 3.0f * 0.03f;
    EXPECT_EQ(vertices.getCoord(0), Vector3f(1.0f, 2.0f, 3.0f + radius));
    // The step rounds, so that the disc closes within a few bits.
    const Vector3f opposite = vertices.getCoord(11);
    EXPECT_NEAR(opposite.y, 2.0f, 1e-6f);
    EXPECT_NEAR(opposite.z, 3.0f - radius, 1e-6f);
    EXPECT_GT(vertices.getCoord(5).y, 2.08f);
    for (int i = 0; i < 22; ++i) {
        EXPECT_NEAR((vertices.getCoord(i) - plane.getOrigin()).length(), radius, 1e-6f);
        EXPECT_EQ(vertices.vertices()[i].nx, 1.0f);
    }
    const IndexBufferTriangles& triangles = plane.getSymbolTriangles();
    ASSERT_EQ(triangles.getNumElements(0), 20);
    for (int i = 0; i < 20; ++i) {
        int a = 0;
        int b = 0;
        int c = 0;
        triangles.getTriangle(i, a, b, c);
        EXPECT_EQ(std::vector({a, b, c}), std::vector({0, i + 1, i + 2}));
    }
}

TEST(WorkPlane, discStopsGrowingAtAPartOfThePlane)
{
    WorkPlane plane = planeOf(planeData());
    const float high[] = {3.0f, 1000.0f};
    plane.setExtrude(high, 2);
    EXPECT_EQ(plane.getOffsets()[0], Vector3f(3000.0f, 0.05f * 9.0f / 0.0075f, 9.0f));
    plane.setExtrude(high, 1);
    EXPECT_EQ(plane.getOffsets()[0], Vector3f(0.0f, 0.0f, 9.0f));
    EXPECT_EQ(plane.getSymbolVertices().getCoord(7), plane.getOrigin());
    plane.setExtrude(high, 0);
    EXPECT_EQ(plane.getOffsets().size(), 1u);
}

TEST(WorkPlane, revolutionHasTheAxisAcrossTheRectangleWithFourDashes)
{
    WorkPlane plane = planeOf(planeData());
    const float alongX[] = {0.5f, 4.5f, 2.0f, 0.0f};
    plane.setRevolve(alongX);
    EXPECT_EQ(plane.getOperation(), WorkPlane::OperationRevolve);
    const std::vector<Vector3f> expected = {{0.0f, 1.0f, 0.0f},       {0.0f, 0.0f, -1.0f},      {1.0f, 0.0f, 0.0f},
                                            {1.0f, -2.0f, 7.5f},      {1.6875f, 1.6875f, 0.0f}, {4.125f, 1.6875f, 0.0f},
                                            {6.5625f, 1.6875f, 0.0f}, {9.0f, 1.6875f, 0.0f}};
    EXPECT_EQ(std::vector(plane.getOffsets().begin(), plane.getOffsets().end()), expected);
    EXPECT_EQ(plane.getBox(), BoundingBox(1.0f, 1.0f, -2.0f, 7.0f, 3.0f, 12.0f));

    // A diagonal axis through a corner reaches over the rectangle.
    const float diagonal[] = {5.0f, 0.0f, 1.0f, 1.0f};
    plane.setRevolve(diagonal);
    EXPECT_EQ(plane.getOffsets()[3], Vector3f(1.0f, 2.5f, -1.5f));
    EXPECT_FLOAT_EQ(plane.getOffsets()[7].x, 9.0f * std::sqrt(2.0f));
    EXPECT_EQ(plane.getBox(), BoundingBox(1.0f, 1.0f, -2.0f, 11.5f, -1.5f, 12.0f));
}

TEST(WorkPlane, refusesAnAxisWithoutDirection)
{
    WorkPlane plane = planeOf(planeData());
    const float values[] = {1.0f, 2.0f};
    plane.setExtrude(values, 2);
    // The last direction is lost beside the position of the axis.
    for (const std::vector<float>& data : {std::vector{1.0f, 2.0f, 0.0f, 0.0f}, std::vector{1e9f, 1e9f, 1.0f, 1.0f},
                                           std::vector{1.0f, 2.0f, std::nanf(""), 0.0f}}) {
        EXPECT_THROW(plane.setRevolve(data.data()), std::invalid_argument);
    }
    EXPECT_EQ(plane.getOperation(), WorkPlane::OperationExtrude);
    EXPECT_EQ(plane.getOffsets().size(), 2u);
}

TEST(WorkPlane, aNewPlaneHasItsOwnBoxAndGridAndKeepsTheOperation)
{
    WorkPlane plane = planeOf(planeData());
    const float values[] = {1.0f, 40.0f};
    plane.setExtrude(values, 2);
    plane.setup(planeData(0.0f, 1.0f, 0.0f, 2.0f).data());
    EXPECT_EQ(plane.getBox(), BoundingBox(1.0f, 1.0f, 2.0f, 3.0f, 3.0f, 5.0f));
    EXPECT_EQ(plane.getNumGridLines(), 7 + 13 + 2);
    EXPECT_EQ(plane.getOperation(), WorkPlane::OperationExtrude);
    EXPECT_EQ(plane.getOffsets()[1], Vector3f(40.0f, 0.0f, 0.0f));
}

TEST(WorkPlane, canBeSetUpAgainAfterEachFailureOfMemory)
{
    WorkPlane plane = planeOf(planeData());
    const float heights[] = {1.0f, 2.0f};
    const float axis[] = {0.0f, 0.0f, 1.0f, 0.0f};
    const std::vector<float> data = planeData(0.0f, 1.0f, 0.0f, 1.0f);
    EXPECT_GT(failEachAllocation([&] { plane.setup(data.data()); },
                                 [&] {
                                     expectNoGrid(plane);
                                     EXPECT_EQ(plane.getSize(), 9.0f);
                                 }),
              0);
    EXPECT_GT(failEachAllocation([&] { plane.setExtrude(heights, 2); },
                                 [&] { EXPECT_EQ(plane.getOperation(), WorkPlane::OperationNone); }),
              0);
    EXPECT_GT(failEachAllocation([&] { plane.setRevolve(axis); }, [&] { EXPECT_EQ(plane.getOffsets().size(), 2u); }),
              0);
    EXPECT_EQ(plane.getGridLines().getNumElements(0), 20);
    EXPECT_EQ(plane.getOffsets().size(), 8u);
}

} // namespace
} // namespace vxgraphics3d
