#include "renderer/upload/sheetnormals.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>
#include <vector>

namespace vxrenderer {
namespace {

using vxgraphics3d::VertexNormal;

bool operator==(const VertexNormal& a, const VertexNormal& b)
{
    return a.x == b.x && a.y == b.y && a.z == b.z && a.nx == b.nx && a.ny == b.ny && a.nz == b.nz;
}

TEST(SheetNormals, thoseOfAFlatSheetAreTheNormalOfItsPlane)
{
    std::vector<VertexNormal> square = {
        {0, 0, 1, 0, 0, 1}, {1, 0, 1, 0.7f, 0, 0.7f}, {1, 1, 1, 0.1f, 0, 1.0f}, {0, 1, 1, 0, 0, 0}};
    correctNormals(square, std::vector<std::uint32_t>{0, 1, 2, 0, 2, 3});
    for (std::size_t i = 0; i < 3; ++i) {
        EXPECT_TRUE((square[i].nx == 0.0f && square[i].ny == 0.0f && square[i].nz == 1.0f)) << i;
    }
    EXPECT_EQ(square[3].nz, 0.0f) << "an absent normal stays";
}

TEST(SheetNormals, aRoundSheetKeepsItsOwnHoweverCoarseItIs)
{
    // A quarter of a cylinder of two strips, whose normals are exact.
    std::vector<VertexNormal> round;
    for (int i = 0; i < 3; ++i) {
        const auto angle = static_cast<float>(i) * std::numbers::pi_v<float> / 4.0f;
        for (const float y : {0.0f, 1.0f}) {
            round.push_back({std::sin(angle), y, std::cos(angle), std::sin(angle), 0.0f, std::cos(angle)});
        }
    }
    const std::vector<std::uint32_t> triangles = {0, 2, 3, 0, 3, 1, 2, 4, 5, 2, 5, 3};
    const std::vector<VertexNormal> before = round;
    correctNormals(round, triangles);
    for (std::size_t i = 0; i < round.size(); ++i) {
        EXPECT_TRUE(round[i] == before[i]) << i;
    }
    // That of a cap at its end is not its own.
    round[1] = {0.0f, 1.0f, 1.0f, 0.0f, 1.0f, 0.0f};
    correctNormals(round, triangles);
    EXPECT_NEAR(round[1].nx, std::sin(std::numbers::pi_v<float> / 8.0f), 1e-5f);
    EXPECT_NEAR(round[1].ny, 0.0f, 1e-6f);
}

} // namespace
} // namespace vxrenderer
