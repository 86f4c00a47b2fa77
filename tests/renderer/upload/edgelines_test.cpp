#include "renderer/upload/edgelines.h"

#include <gtest/gtest.h>

#include <vector>

namespace vxrenderer {
namespace {

using vxgraphics3d::Vector3f;
using Edges = std::vector<EdgeLines::Edge>;

/// Vertex 10 y + x is at (x, y).
Vector3f onGrid(std::uint32_t vertex)
{
    return {static_cast<float>(vertex % 10), static_cast<float>(vertex / 10), 0.0f};
}

Edges edgesOf(const Edges& sharp, const Edges& blunt, float leastLength = 0.0f)
{
    return EdgeLines(sharp, blunt, onGrid, leastLength).getEdges();
}

TEST(EdgeLines, closesGapsStraightAheadOnly)
{
    const Edges line = {{0, 1}, {3, 4}};
    EXPECT_EQ(edgesOf(line, {{1, 2}, {2, 3}}), (Edges{{0, 1}, {3, 4}, {1, 2}, {2, 3}}));
    EXPECT_EQ(edgesOf(line, {{1, 2}}), line) << "which leads nowhere";
    EXPECT_EQ(edgesOf(line, {{1, 11}, {3, 13}, {11, 12}, {12, 13}}), line) << "around corners";
    // From a corner of a closed line no other edge is followed.
    const Edges square = {{0, 1}, {1, 11}, {10, 11}, {0, 10}};
    EXPECT_EQ(edgesOf(square, {{1, 2}, {2, 3}}), square);
}

TEST(EdgeLines, leavesOutShortLinesWithEndsAndKeepsClosedOnes)
{
    const Edges edges = {{0, 1}, {1, 2}, {20, 21}, {40, 41}, {41, 51}, {50, 51}, {40, 50}};
    EXPECT_EQ(edgesOf(edges, {}, 1.5f), (Edges{{0, 1}, {1, 2}, {40, 41}, {41, 51}, {50, 51}, {40, 50}}));
    EXPECT_EQ(edgesOf(edges, {}, 9.0f), (Edges{{40, 41}, {41, 51}, {50, 51}, {40, 50}}));
}

} // namespace
} // namespace vxrenderer
