#include "renderer/scene/view.h"

#include "graphics3d/foundation/boundingbox.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>

namespace vxrenderer {
namespace {

using vxgraphics3d::BoundingBox;
using vxgraphics3d::Vector3f;

constexpr PixelArea c_area = {10, 20, 400, 300};

/// Limits of the corners of a box in the area, -1 to 1.
struct Extent {
    Vector3f min{1e30f, 1e30f, 1e30f};
    Vector3f max{-1e30f, -1e30f, -1e30f};

    Extent(const View& view, const BoundingBox& box)
    {
        for (int i = 0; i < 8; ++i) {
            const Vector3f place = view.projection * (view.view * box.getVertex(i));
            min = {std::min(min.x, place.x), std::min(min.y, place.y), std::min(min.z, place.z)};
            max = {std::max(max.x, place.x), std::max(max.y, place.y), std::max(max.z, place.z)};
        }
    }
};

TEST(FitView, showsAllOfTheBoxInTheMiddleAsLargeAsItFits)
{
    const BoundingBox boxes[] = {{0.0f, 1.0f, 0.0f, 1.0f, 0.0f, 1.0f},
                                 {-5.0f, 45.0f, 1000.0f, 1002.0f, -3.0f, 7.0f},
                                 {0.0f, 0.0f, 0.0f, 0.0f, 0.0f, 2.0f},
                                 {1.0f, 1.001f, 1.0f, 1.002f, 1.0f, 1.003f}};
    for (const BoundingBox& box : boxes) {
        for (double elevation = -90.0; elevation <= 90.0; elevation += 30.0) {
            for (double azimuth = 0.0; azimuth < 360.0; azimuth += 50.0) {
                const View view = fitView(box, c_area, {azimuth, elevation});
                const Extent extent(view, box);
                EXPECT_GE(std::min(extent.min.x, extent.min.y), -0.96f);
                EXPECT_LE(std::max(extent.max.x, extent.max.y), 0.96f);
                EXPECT_GE(extent.min.z, -1.0f);
                EXPECT_LE(extent.max.z, 1.0f);
                if (box.getHalfSizeX() > 0.0f) {
                    EXPECT_NEAR(extent.min.x, -extent.max.x, 0.02);
                    EXPECT_NEAR(extent.min.y, -extent.max.y, 0.02);
                    EXPECT_GE(std::max(extent.max.x, extent.max.y), 0.92f);
                }
            }
        }
    }
}

TEST(FitView, looksStraightDownOnFlatBoxesAndKeepsTheirShape)
{
    const BoundingBox box(2.0f, 6.0f, -1.0f, 0.0f, 5.0f, 5.0f);
    const View view = fitView(box, c_area, {});
    EXPECT_TRUE(view.isFlat);
    const Extent extent(view, box);
    EXPECT_NEAR(extent.max.x, 0.94f, 1e-4);
    EXPECT_NEAR(extent.min.x, -0.94f, 1e-4);
    // A quarter as high as wide, in pixels.
    EXPECT_NEAR(extent.max.y * 300.0f, 0.25f * extent.max.x * 400.0f, 1e-2);
    EXPECT_FALSE(fitView({0.0f, 1.0f, 0.0f, 1.0f, 0.0f, 0.1f}, c_area, {}).isFlat);
}

TEST(FitView, turnsWithAzimuthAndElevation)
{
    const BoundingBox box(-1.0f, 1.0f, -1.0f, 1.0f, -1.0f, 1.0f);
    const auto towardsEye = [&](double azimuth, double elevation) {
        const View view = fitView(box, c_area, {azimuth, elevation});
        return Vector3f(view.view.get(3, 1), view.view.get(3, 2), view.view.get(3, 3));
    };
    EXPECT_NEAR((towardsEye(0.0, 0.0) - Vector3f(1.0f, 0.0f, 0.0f)).length(), 0.0f, 1e-6);
    EXPECT_NEAR((towardsEye(90.0, 0.0) - Vector3f(0.0f, 1.0f, 0.0f)).length(), 0.0f, 1e-6);
    EXPECT_NEAR((towardsEye(30.0, 90.0) - Vector3f(0.0f, 0.0f, 1.0f)).length(), 0.0f, 1e-6);
}

TEST(FitView, ofNothingIsEmpty)
{
    const float nan = std::numeric_limits<float>::quiet_NaN();
    EXPECT_TRUE(fitView({}, c_area, {}).isEmpty());
    EXPECT_TRUE(fitView({0.0f, nan, 0.0f, 1.0f, 0.0f, 1.0f}, c_area, {}).isEmpty());
    EXPECT_TRUE(fitView({0.0f, 1.0f, 0.0f, 1.0f, 0.0f, 1.0f}, {0, 0, 0, 10}, {}).isEmpty());
    EXPECT_FALSE(fitView({1.0f, 1.0f, 2.0f, 2.0f, 0.0f, 0.0f}, c_area, {}).isEmpty()) << "a single point";
}

} // namespace
} // namespace vxrenderer
