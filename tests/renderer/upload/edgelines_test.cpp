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

Edges edgesOf(const Edges& clear, const Edges& sharp, const Edges& blunt, float leastLength = 0.0f)
{
    return EdgeLines({clear, sharp, blunt}, 60, onGrid, leastLength).getEdges();
}

TEST(EdgeLines, closesGapsStraightAheadOnly)
{
    const Edges line = {{0, 1}, {3, 4}};
    EXPECT_EQ(edgesOf(line, {}, {{1, 2}, {2, 3}}), (Edges{{0, 1}, {3, 4}, {1, 2}, {2, 3}}));
    EXPECT_EQ(edgesOf(line, {}, {{1, 2}}), line) << "which leads nowhere";
    EXPECT_EQ(edgesOf(line, {}, {{1, 11}, {3, 13}, {11, 12}, {12, 13}}), line) << "around corners";
    // From a corner of a closed line no other edge is followed.
    const Edges square = {{0, 1}, {1, 11}, {10, 11}, {0, 10}};
    EXPECT_EQ(edgesOf(square, {}, {{1, 2}, {2, 3}}), square);
}

TEST(EdgeLines, leavesOutSharpEdgesUpToAnotherLineWhereTheyEndOnASurface)
{
    const Edges square = {{0, 1}, {1, 11}, {10, 11}, {0, 10}};
    const Edges branch = {{11, 12}, {12, 13}, {12, 22}};
    Edges both = square;
    both.insert(both.end(), branch.begin(), branch.end());
    EXPECT_EQ(edgesOf({}, both, {}), square);
    EXPECT_EQ(edgesOf(square, branch, {}), square);
    EXPECT_EQ(edgesOf(branch, square, {}), (Edges{{11, 12}, {12, 13}, {12, 22}, {0, 1}, {1, 11}, {10, 11}, {0, 10}}))
        << "clear edges stay";
    EXPECT_EQ(edgesOf({{13, 14}}, {{11, 12}, {12, 13}}, {}), (Edges{{13, 14}})) << "up to a clear edge";
    EXPECT_EQ(edgesOf({{11, 12}, {14, 15}}, {{12, 13}}, {{13, 14}}), (Edges{{11, 12}, {14, 15}, {12, 13}, {13, 14}}))
        << "a gap that is closed is no end";
    EXPECT_EQ(edgesOf({}, {{0, 1}, {1, 2}, {2, 3}}, {}), Edges()) << "a line with two ends";
}

TEST(EdgeLines, leavesOutShortLinesUnlessTheyAreClosedAndClear)
{
    const Edges square = {{40, 41}, {41, 51}, {50, 51}, {40, 50}};
    Edges clear = {{0, 1}, {1, 2}, {20, 21}};
    clear.insert(clear.end(), square.begin(), square.end());
    EXPECT_EQ(edgesOf(clear, {}, {}, 1.5f), (Edges{{0, 1}, {1, 2}, {40, 41}, {41, 51}, {50, 51}, {40, 50}}));
    EXPECT_EQ(edgesOf(clear, {}, {}, 9.0f), square);
    EXPECT_EQ(edgesOf({square[0]}, {square[1], square[2], square[3]}, {}, 9.0f), square) << "one clear edge";
    EXPECT_EQ(edgesOf({}, square, {}, 3.9f), square);
    EXPECT_EQ(edgesOf({}, square, {}, 4.1f), Edges());
}

} // namespace
} // namespace vxrenderer
