#include "renderer/upload/linejoints.h"

#include <gtest/gtest.h>

namespace vxrenderer {
namespace {

using vxgraphics3d::Vector3f;

Vector3f at(float x)
{
    return {x, 0.0f, 0.0f};
}

/// The far ends of the neighbours, as x coordinates.
std::vector<std::pair<float, float>> neighbours(const std::vector<JointedPiece>& pieces)
{
    std::vector<std::pair<float, float>> found;
    for (const JointedPiece& piece : pieces) {
        found.emplace_back(piece.before.x, piece.after.x);
    }
    return found;
}

using Neighbours = std::vector<std::pair<float, float>>;

TEST(LineJoints, runsAreJoinedInOrderAndClosed)
{
    const std::vector<LinePiece> open = {{at(0), at(1)}, {at(1), at(2)}, {at(5), at(6)}};
    EXPECT_EQ(neighbours(joinRuns(open)), (Neighbours{{0, 2}, {0, 2}, {5, 6}}));
    const std::vector<LinePiece> closed = {{at(9), at(0)}, {at(0), at(1)}, {at(1), at(2)}, {at(2), at(9)}};
    EXPECT_EQ(neighbours(joinRuns(closed)), (Neighbours{{2, 1}, {9, 2}, {0, 9}, {1, 0}}));
    // Other parts of an object, whose numbers are in the place of texture coordinates, are other lines.
    const std::vector<LinePiece> parts = {{at(0), at(1), 4, 4}, {at(1), at(2), 5, 5}};
    EXPECT_EQ(neighbours(joinRuns(parts)), (Neighbours{{0, 1}, {1, 2}}));
}

TEST(LineJoints, pairsAreJoinedByVertexOrPositionInAnyDirection)
{
    // 0-1, 2-1, and a piece with vertices of its own at 2.
    const std::vector<LinePiece> pieces = {{at(0), at(1)}, {at(2), at(1)}, {at(2), at(3)}};
    EXPECT_EQ(neighbours(joinPairs(pieces, std::vector{0, 1, 2, 1, 7, 8})), (Neighbours{{0, 2}, {3, 0}, {1, 3}}));
    // Where three meet, all have free ends.
    const std::vector<LinePiece> star = {{at(0), at(1)}, {at(1), at(2)}, {at(1), at(3)}};
    EXPECT_EQ(neighbours(joinPairs(star, std::vector{0, 1, 1, 2, 1, 3})), (Neighbours{{0, 1}, {1, 2}, {1, 3}}));
    EXPECT_EQ(neighbours(joinPairs(star, std::vector{0, 1, 4, 2, 5, 3})), (Neighbours{{0, 1}, {1, 2}, {1, 3}}));
    EXPECT_TRUE(joinPairs({}, {}).empty());
}

} // namespace
} // namespace vxrenderer
