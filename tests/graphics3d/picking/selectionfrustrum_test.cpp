#include "graphics3d/picking/selectionfrustrum.h"

#include "graphics3d/foundation/boundingbox.h"

#include <gtest/gtest.h>

#include <random>

namespace vxgraphics3d {
namespace {

/// The prism over a rectangle that a view down the z axis sees: near end at z = 1, far end at z = -1.
SelectionFrustrum prism(float x0, float y0, float x1, float y1)
{
    return {{x0, y0, 1.0f},  {x0, y1, 1.0f},  {x1, y1, 1.0f},  {x1, y0, 1.0f},
            {x0, y0, -1.0f}, {x0, y1, -1.0f}, {x1, y1, -1.0f}, {x1, y0, -1.0f}};
}

TEST(SelectionFrustrum, holdsWhatLiesStrictlyWithinItsSides)
{
    const SelectionFrustrum frustrum = prism(0.0f, 2.0f, 4.0f, 0.0f);
    EXPECT_TRUE(frustrum.isInside(1.0f, 1.0f, 0.0f));
    EXPECT_TRUE(frustrum.isInside(1.0f, 1.0f, 100.0f)) << "there is no near end";
    EXPECT_TRUE(frustrum.isInside(1.0f, 1.0f, -100.0f)) << "there is no far end";
    for (const Vector3f& outside : {Vector3f(-1.0f, 1.0f, 0.0f), Vector3f(5.0f, 1.0f, 0.0f),
                                    Vector3f(1.0f, -1.0f, 0.0f), Vector3f(1.0f, 3.0f, 0.0f)}) {
        EXPECT_FALSE(frustrum.isInside(outside)) << outside;
    }
    for (const Vector3f& onPlane : {Vector3f(0.0f, 1.0f, 0.0f), Vector3f(4.0f, 1.0f, 0.0f), Vector3f(1.0f, 0.0f, 0.0f),
                                    Vector3f(1.0f, 2.0f, 0.0f)}) {
        EXPECT_FALSE(frustrum.isInside(onPlane)) << onPlane;
    }
}

TEST(SelectionFrustrum, facesOutwardWithOnePairOfCornersSwapped)
{
    const Vector3f middle(1.0f, 1.0f, 0.0f);
    EXPECT_TRUE(prism(4.0f, 0.0f, 0.0f, 2.0f).isInside(middle)) << "both pairs swapped";
    EXPECT_FALSE(prism(0.0f, 0.0f, 4.0f, 2.0f).isInside(middle));
    EXPECT_FALSE(prism(4.0f, 2.0f, 0.0f, 0.0f).isInside(middle));
    EXPECT_FALSE(prism(1.0f, 2.0f, 1.0f, 0.0f).isInside(middle)) << "no width";
}

TEST(SelectionFrustrum, tellsHowABoxLies)
{
    const SelectionFrustrum frustrum = prism(0.0f, 2.0f, 4.0f, 0.0f);
    const auto lies = [&](float x0, float x1, float y0, float y1) {
        return frustrum.enclosesBoundingBox(BoundingBox(x0, x1, y0, y1, -5.0f, 5.0f));
    };
    EXPECT_EQ(lies(1, 2, 0.5f, 1.5f), SelectionFrustrum::Inside);
    EXPECT_EQ(lies(0, 2, 0.5f, 1.5f), SelectionFrustrum::PartlyInside) << "corners on a plane are not inside";
    EXPECT_EQ(lies(-1, 2, 0.5f, 1.5f), SelectionFrustrum::PartlyInside);
    EXPECT_EQ(lies(-2, -1, 0.5f, 1.5f), SelectionFrustrum::Outside);
    EXPECT_EQ(lies(-9, 9, -9, 9), SelectionFrustrum::PartlyInside) << "the frustum lies in the box";
    EXPECT_EQ(frustrum.enclosesBoundingBox(BoundingBox()), SelectionFrustrum::Outside);
}

TEST(SelectionFrustrum, encloseAnswersNeverContradictThePointsOfABox)
{
    std::mt19937 random(7);
    std::uniform_real_distribution<float> place(-3.0f, 3.0f);
    // A view that opens toward the far end, so that the planes are not parallel.
    const SelectionFrustrum frustrum({-1.0f, 1.0f, 1.0f}, {-1.0f, -1.0f, 1.0f}, {1.0f, -1.0f, 1.0f}, {1.0f, 1.0f, 1.0f},
                                     {-2.0f, 2.0f, -1.0f}, {-2.0f, -2.0f, -1.0f}, {2.0f, -2.0f, -1.0f},
                                     {2.0f, 2.0f, -1.0f});
    std::array<int, 3> seen{};
    for (int i = 0; i < 2000; ++i) {
        const float x = place(random);
        const float y = place(random);
        const float z = place(random) / 3.0f;
        const BoundingBox box(x, x + 0.7f, y, y + 0.7f, z, z + 0.2f);
        int inside = 0;
        for (int corner = 0; corner < 8; ++corner) {
            inside += frustrum.isInside(box.getVertex(corner)) ? 1 : 0;
        }
        const int answer = frustrum.enclosesBoundingBox(box);
        ++seen[static_cast<std::size_t>(answer)];
        EXPECT_EQ(answer == SelectionFrustrum::Inside, inside == 8);
        if (inside > 0) {
            EXPECT_NE(answer, SelectionFrustrum::Outside);
        }
    }
    for (const int count : seen) {
        EXPECT_GT(count, 50);
    }
}

} // namespace
} // namespace vxgraphics3d
