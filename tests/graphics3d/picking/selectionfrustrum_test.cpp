#include "graphics3d/picking/selectionfrustrum.h"

#include "graphics3d/cameras/camera2d.h"
#include "graphics3d/cameras/camera3d.h"
#include "graphics3d/foundation/boundingbox.h"
#include "tests/support/testcameras.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <random>
#include <string>
#include <utility>

namespace vxgraphics3d {
namespace {

/// The prism over a rectangle as seen along the z axis: near end at z = 1, far end at z = -1.
SelectionFrustrum prism(float x0, float y0, float x1, float y1)
{
    return {{x0, y0, 1.0f},  {x0, y1, 1.0f},  {x1, y1, 1.0f},  {x1, y0, 1.0f},
            {x0, y0, -1.0f}, {x0, y1, -1.0f}, {x1, y1, -1.0f}, {x1, y0, -1.0f}};
}

TEST(SelectionFrustrum, containsPointsStrictlyWithinItsSides)
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

TEST(SelectionFrustrum, classifiesBoxes)
{
    const SelectionFrustrum frustrum = prism(0.0f, 2.0f, 4.0f, 0.0f);
    const auto classify = [&](float x0, float x1, float y0, float y1) {
        return frustrum.enclosesBoundingBox(BoundingBox(x0, x1, y0, y1, -5.0f, 5.0f));
    };
    EXPECT_EQ(classify(1, 2, 0.5f, 1.5f), SelectionFrustrum::Inside);
    EXPECT_EQ(classify(0, 2, 0.5f, 1.5f), SelectionFrustrum::PartlyInside) << "corners on a plane are not inside";
    EXPECT_EQ(classify(-1, 2, 0.5f, 1.5f), SelectionFrustrum::PartlyInside);
    EXPECT_EQ(classify(-2, -1, 0.5f, 1.5f), SelectionFrustrum::Outside);
    EXPECT_EQ(classify(-9, 9, -9, 9), SelectionFrustrum::PartlyInside) << "the frustum is inside the box";
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

/// The points inside a frustum of a camera's rectangle are those whose picture is in the rectangle and that are in
/// front of the camera. Points closer to the border than the float precision are left out.
/// @param origin the origin of the camera's `worldToScreenRH`
/// @param inFront whether a point is in front of the camera
template <class InFront>
void expectFrustrumsHoldWhatTheyShow(const ICameraTransforms& camera, const Vector3f& origin, InFront inFront)
{
    constexpr float rim = 0.05f;
    std::mt19937 random(11);
    std::uniform_int_distribution<int> pixelX(10, 409);
    std::uniform_int_distribution<int> pixelY(20, 219);
    std::uniform_real_distribution<float> place(-3.0f, 3.0f);
    int held = 0;
    int left = 0;
    for (int rectangle = 0; rectangle < 50; ++rectangle) {
        const auto [x0, x1] = std::minmax({pixelX(random), pixelX(random)});
        const auto [y0, y1] = std::minmax({pixelY(random), pixelY(random)});
        if (x1 - x0 < 2 || y1 - y0 < 2) {
            continue;
        }
        const SelectionFrustrum frustrum(camera, x0, y1, x1, y0);
        const SelectionFrustrum swapped(camera, x1, y0, x0, y1);
        const SelectionFrustrum turnedOut(camera, x0, y0, x1, y1);
        for (const SelectionFrustrum::FrustrumPlane& plane : frustrum.getPlanes()) {
            EXPECT_NEAR(plane.normal.length(), 1.0f, 1e-6f);
        }
        for (int i = 0; i < 200; ++i) {
            const Vector3f point(place(random), place(random), place(random));
            const Vector3f pixel = camera.worldToScreenRH(point) + origin;
            // How far the picture of the point is inside the rectangle, negative outside.
            const float depth = std::min({pixel.x - static_cast<float>(x0), static_cast<float>(x1) - pixel.x,
                                          pixel.y - static_cast<float>(y0), static_cast<float>(y1) - pixel.y});
            if (std::fabs(depth) < rim) {
                continue;
            }
            const bool shown = depth > 0.0f && inFront(point);
            ASSERT_EQ(frustrum.isInside(point), shown) << point << " at " << pixel;
            ASSERT_EQ(swapped.isInside(point), shown) << "both pairs swapped";
            ASSERT_FALSE(turnedOut.isInside(point) && inFront(point)) << "one pair swapped";
            ++(shown ? held : left);
        }
    }
    EXPECT_GT(held, 200);
    EXPECT_GT(left, 200);
}

TEST(SelectionFrustrum, ofA3dCameraContainsWhatTheRectangleShows)
{
    const BoundingBox scene(-3.0f, 3.0f, -3.0f, 3.0f, -3.0f, 3.0f);
    for (const auto type : {Camera3d::ProjectionPerspective, Camera3d::ProjectionOrthographic}) {
        for (const bool amongThePoints : {false, true}) {
            Camera3d camera;
            camera.setRenderArea(500, 300, 10, 20, 400, 200);
            const Vector3f eye = amongThePoints ? Vector3f(0.5f, 0.3f, -0.2f) : Vector3f(6.0f, 5.0f, 4.0f);
            const Vector3f direction(-6.0f, -5.0f, -4.0f);
            camera.lookAt(eye, direction, {0.0f, 0.0f, 1.0f});
            camera.setProjectionType(type);
            camera.setOrthographicSize(6.0f);
            camera.setFOV(40.0f);
            camera.setRelativeViewOffset(0.125f, -0.0625f);
            camera.setBoundingBox(scene);
            SCOPED_TRACE(std::to_string(type) + (amongThePoints ? " among the points" : ""));
            expectFrustrumsHoldWhatTheyShow(camera, {10.0f, 20.0f, 0.0f}, [&](const Vector3f& point) {
                return type == Camera3d::ProjectionOrthographic || (point - eye).dot(direction) > 0.0f;
            });
        }
    }
}

TEST(SelectionFrustrum, ofA2dCameraContainsWhatTheRectangleShowsAtAnyDepth)
{
    Camera2d camera;
    camera.setRenderArea(500, 300, 10, 20, 400, 200);
    ASSERT_TRUE(camera.setViewLimits(-2.0f, 2.5f, -1.0f, 1.5f, false));
    expectFrustrumsHoldWhatTheyShow(camera, {}, [](const Vector3f&) { return true; });
    EXPECT_FALSE(SelectionFrustrum(camera, 50, 100, 50, 60).isInside(camera.screenToWorld(50, 80, 0.0f))) << "no width";
}

TEST(SelectionFrustrum, ofAnyCameraContainsWhatTheRectangleShows)
{
    int held = 0;
    forRandomCameras([&](const Camera3d& camera, RandomCameras& random) {
        const int left = camera.getRenderAreaLeft();
        const int bottom = camera.getRenderAreaBottom();
        const int x0 = random.integer(0, camera.getRenderAreaWidth() - 10);
        const int y0 = random.integer(0, camera.getRenderAreaHeight() - 10);
        const int x1 = random.integer(x0 + 10, camera.getRenderAreaWidth());
        const int y1 = random.integer(y0 + 10, camera.getRenderAreaHeight());
        const SelectionFrustrum frustrum(camera, left + x0, bottom + y1, left + x1, bottom + y0);
        for (int i = 0; i < 50; ++i) {
            // Between the clipping planes, so in front of the eye.
            const Vector3f point = camera.getRotationPoint() + random.vector(4.0f);
            const Vector3f pixel = camera.worldToScreenRH(point);
            const float depth = std::min({pixel.x - static_cast<float>(x0), static_cast<float>(x1) - pixel.x,
                                          pixel.y - static_cast<float>(y0), static_cast<float>(y1) - pixel.y});
            if (std::fabs(depth) > 0.1f && std::fabs(pixel.z) < 1.0f) {
                EXPECT_EQ(frustrum.isInside(point), depth > 0.0f) << point << " at " << pixel;
                held += depth > 0.0f ? 1 : 0;
            }
        }
    });
    EXPECT_GT(held, 500);
}

/// Positions of world points in a pixel, as fractions of its side from the lower left corner: clearly inside or
/// outside.
struct Place {
    float x;
    float y;
    bool inside;
};

constexpr Place c_places[] = {{0.5f, 0.5f, true},  {0.1f, 0.9f, true},   {0.9f, 0.1f, true},  {-0.1f, 0.5f, false},
                              {1.1f, 0.5f, false}, {0.5f, -0.1f, false}, {0.5f, 1.1f, false}, {1.5f, 1.5f, false}};

/// Picks with rectangles of one pixel among points between the world points of their corners.
void expectPixelsHoldTheirPoints(const ICameraTransforms& camera)
{
    const int left = camera.getRenderAreaLeft();
    const int bottom = camera.getRenderAreaBottom();
    const int right = left + camera.getRenderAreaWidth() - 1;
    const int top = bottom + camera.getRenderAreaHeight() - 1;
    const int pixels[][2] = {{left, bottom}, {right, bottom}, {left, top}, {right, top}, {(left + right) / 2, bottom}};
    for (const auto& [x, y] : pixels) {
        const SelectionFrustrum frustrum(camera, x, y + 1, x + 1, y);
        for (const float depth : {-0.9f, 0.25f, 0.9f}) {
            const Vector3f origin = camera.screenToWorld(x, y, depth);
            const Vector3f toRight = camera.screenToWorld(x + 1, y, depth) - origin;
            const Vector3f upwards = camera.screenToWorld(x, y + 1, depth) - origin;
            for (const Place& place : c_places) {
                EXPECT_EQ(frustrum.isInside(origin + toRight * place.x + upwards * place.y), place.inside)
                    << "pixel " << x << ' ' << y << ", depth " << depth << ", at " << place.x << ' ' << place.y;
            }
        }
    }
}

TEST(SelectionFrustrum, ofOnePixelContainsWhatThatPixelShowsEvenInAnAreaOfOnePixel)
{
    for (const auto& [width, height] : {std::pair(400, 200), std::pair(1, 1), std::pair(1, 300)}) {
        SCOPED_TRACE(std::to_string(width) + " by " + std::to_string(height));
        for (const auto type : {Camera3d::ProjectionPerspective, Camera3d::ProjectionOrthographic}) {
            Camera3d camera;
            camera.setRenderArea(500, 300, 10, 20, width, height);
            camera.lookAt({6.0f, 5.0f, 4.0f}, {-6.0f, -5.0f, -4.0f}, {0.0f, 0.0f, 1.0f});
            camera.setProjectionType(type);
            camera.setBoundingBox(BoundingBox(-3.0f, 3.0f, -3.0f, 3.0f, -3.0f, 3.0f));
            expectPixelsHoldTheirPoints(camera);
        }
        Camera2d flat;
        flat.setRenderArea(500, 300, 10, 20, width, height);
        ASSERT_TRUE(flat.setViewLimits(-2.0f, 2.5f, -1.0f, 1.5f, false));
        expectPixelsHoldTheirPoints(flat);
    }
}

} // namespace
} // namespace vxgraphics3d
