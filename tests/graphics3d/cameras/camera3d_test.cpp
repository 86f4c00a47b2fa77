#include "graphics3d/cameras/camera3d.h"

#include "tests/support/capturedlog.h"
#include "tests/support/testcameras.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <functional>
#include <limits>
#include <string>
#include <vector>

namespace vxgraphics3d {
namespace {

using Resize = Canvas3dGlobalSettings;
using Strings = std::vector<std::string>;

constexpr float c_infinity = std::numeric_limits<float>::infinity();

TEST(Camera3d, aNewCameraHasItsDefaultsAndIdentityViews)
{
    const Camera3d camera;
    EXPECT_EQ(camera.getChangeId(), 1);
    EXPECT_TRUE(camera.isPerspectiveProjection());
    EXPECT_FALSE(camera.isOrthographicProjection());
    EXPECT_FALSE(camera.isOverrideResizeBehaviour());
    EXPECT_EQ(camera.getOwnResizeBehaviour(), 2);
    EXPECT_NEAR(camera.getHorizontalFOV(), 20.0f, 1e-5f);
    EXPECT_NEAR(camera.getVerticalFOV(), 20.0f, 1e-5f);
    EXPECT_EQ(camera.getOrthographicSize(), 10.0f);
    EXPECT_EQ(camera.getViewingScale(), 1.0f);
    EXPECT_EQ(camera.getRelativeViewOffsetX(), 0.0f);
    EXPECT_EQ(camera.getRelativeViewOffsetY(), 0.0f);
    EXPECT_EQ(camera.getNearClippingPlane(), 0.1f);
    EXPECT_EQ(camera.getFarClippingPlane(), 100.0f);
    EXPECT_EQ(camera.getRenderAreaWidth(), 100);
    EXPECT_EQ(camera.getRenderAreaHeight(), 100);
    EXPECT_EQ(camera.getRenderAreaLeft(), 0);
    EXPECT_EQ(camera.getRenderAreaBottom(), 0);
    EXPECT_FALSE(camera.getSceneBoundingBox().isValid());
    EXPECT_FALSE(camera.hasViewScaleTransform());
    for (const float scale : {camera.getAxisViewScaleX(), camera.getAxisViewScaleY(), camera.getAxisViewScaleZ()}) {
        EXPECT_EQ(scale, 1.0f);
    }
    for (const Vector3f& origin : {camera.getRotationPoint(), camera.getPosition(), camera.getActualPosition()}) {
        EXPECT_EQ(origin, Vector3f());
    }
    EXPECT_EQ(camera.getRight(), Vector3f(1.0f, 0.0f, 0.0f));
    EXPECT_EQ(camera.getUp(), Vector3f(0.0f, 1.0f, 0.0f));
    EXPECT_EQ(camera.getForward(), Vector3f(0.0f, 0.0f, 1.0f));
    EXPECT_EQ(camera.getLookAtLength(), 1.0f);
    EXPECT_EQ(camera.getDepthOrder(), (std::array{2, 0, 1}));
    EXPECT_EQ(camera.getDollySpeedScale(), 1.0f);
    const Matrixf identity(Matrixf::MatrixIdentity);
    for (const Matrixf* matrix : {&camera.getViewTransform(), &camera.getInvViewTransform(),
                                  &camera.getRotationTransform(), &camera.getInvRotationTransform(),
                                  &camera.getAxisViewScaleTransform(), &camera.getInvAxisViewScaleTransform()}) {
        EXPECT_EQ(*matrix, identity);
    }
    // 2 * 0.1 * tan(20 degrees); the projection is there from the start.
    EXPECT_NEAR(camera.getNearWidth(), 0.07279405f, 1e-8f);
    EXPECT_EQ(camera.getNearHeight(), camera.getNearWidth());
    EXPECT_NEAR(camera.getProjectionTransformRH().get(1, 1), 2.7474774f, 1e-6f);
    EXPECT_NEAR(camera.getActualHorizontalFOV(), 0.34906585f, 1e-7f);
}

TEST(Camera3d, lookAtComputesOrthonormalAxesAndStoresTheLength)
{
    Camera3d camera;
    camera.lookAt({1.0f, 2.0f, 3.0f}, {0.0f, 4.0f, 0.0f}, {0.0f, 5.0f, 2.0f});
    EXPECT_EQ(camera.getForward(), Vector3f(0.0f, 1.0f, 0.0f));
    EXPECT_EQ(camera.getRight(), Vector3f(1.0f, 0.0f, 0.0f));
    EXPECT_EQ(camera.getUp(), Vector3f(0.0f, 0.0f, 1.0f));
    EXPECT_EQ(camera.getLookAtLength(), 4.0f);
    EXPECT_EQ(camera.getPosition(), Vector3f(1.0f, 2.0f, 3.0f));
    EXPECT_EQ(camera.getActualPosition(), camera.getPosition());
    EXPECT_EQ(camera.getChangeId(), 2);
    camera.lookAt(camera.getForward(), camera.getRight(), camera.getUp());
    EXPECT_EQ(camera.getPosition(), Vector3f(0.0f, 1.0f, 0.0f)) << "the forward axis before the call";
    EXPECT_EQ(camera.getRight(), Vector3f(0.0f, -1.0f, 0.0f));
}

TEST(Camera3d, countsChangesAsDocumented)
{
    struct Case {
        const char* name;
        std::function<void(Camera3d&)> change;
        int count;
    };
    const Case cases[] = {
        {"setFOV", [](Camera3d& c) { c.setFOV(10.0f); }, 1},
        {"setHorizontalFOV", [](Camera3d& c) { c.setHorizontalFOV(10.0f); }, 1},
        {"setVerticalFOV", [](Camera3d& c) { c.setVerticalFOV(10.0f); }, 1},
        {"setOrthographicSize", [](Camera3d& c) { c.setOrthographicSize(1.0f); }, 1},
        {"setOrthographicWidth", [](Camera3d& c) { c.setOrthographicWidth(1.0f); }, 1},
        {"setOrthographicHeight", [](Camera3d& c) { c.setOrthographicHeight(1.0f); }, 1},
        {"setViewingScale", [](Camera3d& c) { c.setViewingScale(2.0f); }, 1},
        {"setRelativeViewOffset", [](Camera3d& c) { c.setRelativeViewOffset(0.0f, 0.0f); }, 1},
        {"setProjectionType, the same", [](Camera3d& c) { c.setProjectionType(Camera3d::ProjectionPerspective); }, 1},
        {"setRotationPoint",
         [](Camera3d& c) {
             c.setRotationPoint({1.0f, 1.0f, 1.0f});
         },
         0},
        {"setOverrideResizeBehaviour", [](Camera3d& c) { c.setOverrideResizeBehaviour(true, Resize::ResizeWidth); }, 0},
        {"setAxisViewScales", [](Camera3d& c) { c.setAxisViewScales(1.0f, 2.0f, 3.0f); }, 0},
        {"setAxisViewScalesAuto", [](Camera3d& c) { c.setAxisViewScalesAuto(); }, 0},
        {"resetAxisViewScales", [](Camera3d& c) { c.resetAxisViewScales(); }, 0},
        {"jitterPerspective", [](Camera3d& c) { c.jitterPerspective(0.5f, 0.5f); }, 0},
        {"setRenderArea, the same", [](Camera3d& c) { c.setRenderArea(100, 100, 0, 0, 100, 100); }, 0},
        {"setRenderArea, another canvas", [](Camera3d& c) { c.setRenderArea(101, 100, 0, 0, 100, 100); }, 1},
        {"setBoundingBox, empty", [](Camera3d& c) { c.setBoundingBox(BoundingBox()); }, 0},
        {"orbit by nothing", [](Camera3d& c) { c.setAdditionalSceneRotation(0.0f, 0.0f, 0.0f); }, 1},
        {"turn", [](Camera3d& c) { c.setAdditionalRotation(0.0f, 0.0f, 0.1f); }, 1},
        {"dolly", [](Camera3d& c) { c.setAdditionalSceneTranslation(0.0f, 0.0f, 1.0f); }, 1},
        {"move", [](Camera3d& c) { c.setAdditionalTranslation(1.0f, 0.0f, 0.0f); }, 1},
        {"zoom", [](Camera3d& c) { c.setAdditionalScale(0.5f, 0.5f, 0.5f); }, 1},
        {"zoom on two axes", [](Camera3d& c) { c.setAdditionalScale(0.5f, 0.5f, 0.5f, 0.6f); }, 1},
        {"pan", [](Camera3d& c) { c.setAdditionalRelativeViewOffset(0.1f, 0.1f); }, 1},
        {"merge", [](Camera3d& c) { c.mergeAdditionalTransformation(); }, 1},
        {"discard", [](Camera3d& c) { c.discardAdditionalTransformation(); }, 1},
        {"import", [](Camera3d& c) { c.import(Camera3d()); }, 2},
        {"import of itself", [](Camera3d& c) { c.import(c); }, 0},
    };
    for (const Case& row : cases) {
        Camera3d camera = frontCamera();
        camera.setRenderArea(100, 100, 0, 0, 100, 100);
        const int before = camera.getChangeId();
        row.change(camera);
        EXPECT_EQ(camera.getChangeId() - before, row.count) << row.name;
    }
}

TEST(Camera3d, aCopyIsTheSameViewWithItsOwnCount)
{
    Camera3d source = frontCamera();
    source.setAdditionalSceneRotation(0.25f, 0.5f, 0.0f);
    source.setAdditionalScale(0.25f, 0.5f, 0.5f);
    const Camera3d copy(source);
    EXPECT_EQ(copy.getChangeId(), 1);
    EXPECT_EQ(displayedMatrices(copy), displayedMatrices(source));
    EXPECT_EQ(copy.getActualPosition(), source.getActualPosition());
    EXPECT_EQ(copy.getSceneBoundingBox(), source.getSceneBoundingBox());
}

TEST(Camera3d, importKeepsTheTargetsAreaAndDollySpeed)
{
    Camera3d source = frontCamera();
    source.setRenderArea(300, 300, 5, 6, 70, 80);
    source.moveToBoundingBox(BoundingBox(0.0f, 2.0f, 0.0f, 2.0f, 0.0f, 2.0f),
                             BoundingBox(0.0f, 4.0f, 0.0f, 4.0f, 0.0f, 4.0f), 0.0f);
    source.setAdditionalRotation(0.0f, 0.25f, 0.0f);
    Camera3d target;
    target.setRenderArea(100, 100, 1, 2, 50, 25);
    target.import(source);
    EXPECT_EQ(target.getRenderAreaLeft(), 1);
    EXPECT_EQ(target.getRenderAreaBottom(), 2);
    EXPECT_EQ(target.getRenderAreaWidth(), 50);
    EXPECT_EQ(target.getRenderAreaHeight(), 25);
    EXPECT_EQ(target.getDollySpeedScale(), 1.0f);
    EXPECT_EQ(target.getViewTransform(), source.getViewTransform());
    EXPECT_EQ(target.getPosition(), source.getPosition());
    EXPECT_EQ(target.getHorizontalFOV(), source.getHorizontalFOV());
    // The projection is that of the target's own area.
    EXPECT_EQ(target.getNearHeight(), target.getNearWidth() * 0.5f);
}

TEST(Camera3d, eachResizeBehaviourGivesItsViewRectangle)
{
    struct Case {
        int behaviour;
        float width; ///< of the view of a base 8 by 2 in an area 200 by 100
        float height;
        float steepWidth; ///< of the view of a base 2 by 8
        float steepHeight;
        float size;      ///< what `getOrthographicSize` returns for the first
        float steepSize; ///< and of the second
    };
    const Case cases[] = {
        {0, 8.0f, 4.0f, 2.0f, 1.0f, 8.0f, 2.0f}, {1, 4.0f, 2.0f, 16.0f, 8.0f, 2.0f, 8.0f},
        {2, 4.0f, 2.0f, 2.0f, 1.0f, 2.0f, 2.0f}, {3, 8.0f, 4.0f, 16.0f, 8.0f, 8.0f, 8.0f},
        {4, 4.0f, 2.0f, 4.0f, 2.0f, 4.0f, 4.0f}, {5, 8.0f, 2.0f, 2.0f, 8.0f, 4.0f, 4.0f},
    };
    for (const Case& row : cases) {
        SCOPED_TRACE(row.behaviour);
        for (const bool steep : {false, true}) {
            Camera3d camera;
            camera.setProjectionType(Camera3d::ProjectionOrthographic);
            camera.setRenderArea(400, 400, 0, 0, steep ? 25 : 400, steep ? 100 : 100);
            camera.setOrthographicWidth(steep ? 2.0f : 8.0f);
            camera.setViewingScale(50.0f);
            camera.setOverrideResizeBehaviour(true, static_cast<Camera3d::ResizeBehaviour>(row.behaviour));
            camera.setRenderArea(400, 400, 0, 0, 200, 100);
            EXPECT_EQ(camera.getNearWidth(), steep ? row.steepWidth : row.width);
            EXPECT_EQ(camera.getNearHeight(), steep ? row.steepHeight : row.height);
            EXPECT_EQ(camera.getOrthographicSize(), steep ? row.steepSize : row.size);
            EXPECT_EQ(camera.getActualHorizontalFOV(), 0.0f);
        }
    }
}

TEST(Camera3d, eachResizeBehaviourHasItsAngleOfView)
{
    // A square area, angles of 30 and 45 degrees: the base view is higher than wide.
    constexpr float angles[] = {30.0f, 45.0f, 30.0f, 45.0f, 0.0f, 0.0f};
    for (int behaviour = 0; behaviour < 6; ++behaviour) {
        Camera3d camera;
        camera.setHorizontalFOV(30.0f);
        camera.setVerticalFOV(45.0f);
        camera.setOverrideResizeBehaviour(true, static_cast<Camera3d::ResizeBehaviour>(behaviour));
        camera.setRenderArea(100, 100, 0, 0, 50, 50);
        EXPECT_NEAR(camera.getFOV(), angles[behaviour], 1e-5f) << behaviour;
        if (behaviour < 4) {
            EXPECT_NEAR(camera.getNearWidth(), 0.2f * std::tan(angles[behaviour] * 3.14159265f / 180.0f), 1e-7f);
            EXPECT_NEAR(camera.getActualVerticalFOV(), angles[behaviour] * 3.14159265f / 180.0f, 1e-6f);
        }
    }
}

TEST(Camera3d, theGlobalBehaviourAppliesUntilItIsOverridden)
{
    Camera3d camera;
    camera.setProjectionType(Camera3d::ProjectionOrthographic);
    camera.setRenderArea(200, 200, 0, 0, 200, 100);
    camera.setOrthographicSize(8.0f);
    EXPECT_EQ(camera.getNearHeight(), 8.0f); // The global behaviour keeps the whole base view visible.
    camera.setOverrideResizeBehaviour(true, Resize::ResizeFill);
    EXPECT_EQ(camera.getNearHeight(), 8.0f);
    camera.setRenderArea(200, 200, 0, 0, 200, 100);
    EXPECT_EQ(camera.getNearHeight(), 4.0f);
}

TEST(Camera3d, valuesOfTheOtherProjectionDoNotChangeTheView)
{
    Camera3d camera = frontCamera();
    const std::vector<Matrixf> before = displayedMatrices(camera);
    camera.setOrthographicSize(3.0f);
    camera.setOrthographicWidth(5.0f);
    camera.setOrthographicHeight(7.0f);
    camera.setViewingScale(9.0f);
    EXPECT_EQ(displayedMatrices(camera), before);
    camera.setHorizontalFOV(7.0f);
    camera.setVerticalFOV(7.0f);
    EXPECT_NE(displayedMatrices(camera), before);
}

TEST(Camera3d, changingTheProjectionKeepsTheSizeAtTheRotationPoint)
{
    forRandomCameras([](Camera3d& camera, RandomCameras&) {
        // The view is computed from the base values in all behaviours except the one that keeps its size.
        if (camera.getOwnResizeBehaviour() == Resize::ResizeKeep) {
            return;
        }
        camera.setAdditionalTranslation(0.5f, -0.25f, 1.0f);
        const Vector3f point = camera.getRotationPoint();
        const Vector3f step =
            camera.getViewBoundingBox(BoundingBox(point.x, point.x, point.y, point.y, point.z, point.z)).getCenter() -
            camera.getActualPosition();
        const float distance = step.length();
        const auto size = [&] {
            return camera.isPerspectiveProjection() ? camera.getNearWidth() * distance / camera.getNearClippingPlane()
                                                    : camera.getNearWidth();
        };
        const float before = size();
        camera.setProjectionType(camera.isPerspectiveProjection() ? Camera3d::ProjectionOrthographic
                                                                  : Camera3d::ProjectionPerspective);
        EXPECT_NEAR(size() / before, 1.0f, 1e-5f);
    });
}

TEST(Camera3d, pixelsSurviveARoundTripThroughTheWorld)
{
    forRandomCameras([](Camera3d& camera, RandomCameras& random) {
        const int x = camera.getRenderAreaLeft() + random.integer(0, camera.getRenderAreaWidth());
        const int y = camera.getRenderAreaBottom() + random.integer(0, camera.getRenderAreaHeight());
        const float depth = random.uniform(-1.0f, 1.0f);
        const Vector3f screen = camera.worldToScreenRH(camera.screenToWorld(x, y, depth));
        const float pixels = static_cast<float>(std::max(camera.getRenderAreaWidth(), camera.getRenderAreaHeight()));
        EXPECT_NEAR(screen.x, static_cast<float>(x - camera.getRenderAreaLeft()), 1e-4f * pixels);
        EXPECT_NEAR(screen.y, static_cast<float>(y - camera.getRenderAreaBottom()), 1e-4f * pixels);
        if (camera.isPerspectiveProjection()) {
            EXPECT_NEAR(screen.z, depth, 1e-3f);
        } else {
            // The world point is closer to the viewer than the visible one, by the sum of near and far distance.
            const float n = camera.getNearClippingPlane();
            const float f = camera.getFarClippingPlane();
            EXPECT_NEAR(screen.z, depth - 2.0f * (n + f) / (f - n), 1e-3f);
        }
    });
}

TEST(Camera3d, worldToScreenAgreesWithTheFullMatrices)
{
    forRandomCameras([](Camera3d& camera, RandomCameras& random) {
        const Vector3f point = camera.getRotationPoint() + random.vector(2.0f);
        const Matrixf whole =
            camera.getProjectionTransformLH() * camera.getViewTransform() * camera.getAxisViewScaleTransform();
        const Vector3f device = whole * point;
        const Vector3f screen = camera.worldToScreenLH(point);
        const auto width = static_cast<float>(camera.getRenderAreaWidth());
        const auto height = static_cast<float>(camera.getRenderAreaHeight());
        EXPECT_NEAR(screen.x, (device.x + 1.0f) * 0.5f * width, 1e-4f * width);
        EXPECT_NEAR(screen.y, (device.y + 1.0f) * 0.5f * height, 1e-4f * height);
        EXPECT_NEAR(screen.z, device.z, 1e-4f);
        // The two depth ranges agree.
        EXPECT_NEAR(camera.worldToScreenRH(point).z, 2.0f * screen.z - 1.0f, 1e-3f);
        EXPECT_LT(relativeDifference(camera.getViewTransform() * camera.getInvViewTransform(),
                                     Matrixf(Matrixf::MatrixIdentity)),
                  1e-5f);
    });
}

TEST(Camera3d, worldToPixelScaleIsTheLengthOfADiagonalStepOfTheView)
{
    Camera3d camera = frontCamera();
    camera.setOverrideResizeBehaviour(true, Resize::ResizePixels);
    camera.setViewingScale(25.0f);
    // At the near plane a unit is 25 pixels wide and, as the area is twice as wide, also high; at 6 units a pixel is
    // 1.5 times as large.
    camera.setRenderArea(200, 200, 0, 0, 200, 100);
    EXPECT_NEAR(camera.worldToPixelScale({0.0f, 0.0f, 2.0f}), 25.0f * std::sqrt(2.0f), 1e-4f);
    EXPECT_NEAR(camera.worldToPixelScale({0.0f, 0.0f, 0.0f}), 25.0f / 1.5f * std::sqrt(2.0f), 1e-4f);
    camera.setAxisViewScales(3.0f, 4.0f, 1.0f);
    EXPECT_NEAR(camera.worldToPixelScale({0.0f, 0.0f, 2.0f}), 25.0f * 5.0f, 1e-4f);
}

TEST(Camera3d, renderAreaIsLoggedAndAJitterEndsWithIt)
{
    Camera3d camera = frontCamera();
    camera.setRelativeViewOffset(0.125f, -0.25f);
    CapturedLog log(ErrorLog::Level::info);
    camera.setRenderArea(300, 200, 0, 0, 200, 100);
    EXPECT_EQ(log.messages(), (Strings{"Setting renderarea to, w:200, h:100."}));
    for (const auto type : {Camera3d::ProjectionPerspective, Camera3d::ProjectionOrthographic}) {
        camera.setProjectionType(type);
        const std::vector<Matrixf> still = displayedMatrices(camera);
        const Vector3f point(0.25f, 0.5f, 1.0f);
        const Vector3f before = camera.worldToScreenRH(point);
        camera.jitterPerspective(0.25f, -0.5f);
        // A jitter moves the image by fractions of pixels, and its inverse as well.
        EXPECT_NEAR(camera.worldToScreenRH(point).x - before.x, 0.25f, 1e-3f);
        EXPECT_NEAR(camera.worldToScreenRH(point).y - before.y, -0.5f, 1e-3f);
        EXPECT_NEAR(camera.worldToScreenLH(point).x - before.x, 0.25f, 1e-3f);
        const Vector3f device(0.5f, 0.25f, 0.75f);
        const Vector3f back =
            device.transformed(camera.getInvProjectionTransformRH()).transformed(camera.getProjectionTransformRH());
        EXPECT_NEAR(back.x, device.x, 1e-6f);
        EXPECT_NEAR(back.y, device.y, 1e-6f);
        camera.jitterPerspective(0.0f, 0.0f);
        EXPECT_EQ(displayedMatrices(camera), still);
        camera.jitterPerspective(0.25f, -0.5f);
        camera.setRenderArea(300, 200, 0, 0, 200, 100);
        EXPECT_EQ(displayedMatrices(camera), still);
    }
    EXPECT_EQ(log.messages().size(), 1u);
}

TEST(Camera3d, theClippingPlanesEncloseTheSceneAndTheRotationPoint)
{
    Camera3d camera;
    camera.lookAt({0.0f, 0.0f, 20.0f}, {0.0f, 0.0f, -1.0f}, {0.0f, 1.0f, 0.0f});
    camera.setRotationPoint({0.0f, 0.0f, -8.0f});
    camera.setAxisViewScales(1.0f, 1.0f, 2.0f);
    CapturedLog log(ErrorLog::Level::info);
    // With the rotation point at z = -16 and the box at -8 to 8: a centre at -4, a radius of 12 times 1.5.
    camera.setBoundingBox(BoundingBox(0.0f, 0.0f, 0.0f, 0.0f, -4.0f, 4.0f));
    EXPECT_EQ(camera.getNearClippingPlane(), 6.0f);
    EXPECT_EQ(camera.getFarClippingPlane(), 42.0f);
    EXPECT_EQ(log.messages(), (Strings{"Setting clippingplanes near: 6.000000, far: 42.000000"}));
}

TEST(Camera3d, theClippingPlanesMoveOnlyByMoreThanATenth)
{
    // Eye at 6, planes 4 and 8, so the threshold is 0.4.
    const auto widen = [](float half) {
        Camera3d camera = frontCamera();
        const BoundingBox box(-half, half, 0.0f, 0.0f, 0.0f, 0.0f);
        camera.setBoundingBox(box);
        EXPECT_EQ(camera.getSceneBoundingBox(), box);
        return camera.getNearClippingPlane();
    };
    EXPECT_EQ(widen(2.39f / 1.5f), 4.0f);
    EXPECT_NEAR(widen(2.41f / 1.5f), 3.59f, 1e-5f);

    Camera3d camera = frontCamera();
    camera.setBoundingBox(BoundingBox());
    EXPECT_FALSE(camera.getSceneBoundingBox().isValid());
    EXPECT_EQ(camera.getNearClippingPlane(), 4.0f);
}

TEST(Camera3d, theNearPlaneKeepsAThousandthOfTheRadius)
{
    Camera3d camera;
    camera.lookAt({0.0f, 0.0f, 0.0f}, {0.0f, 0.0f, -1.0f}, {0.0f, 1.0f, 0.0f});
    camera.setBoundingBox(BoundingBox(-2e7f, 2e7f, 0.0f, 0.0f, 0.0f, 0.0f));
    EXPECT_FLOAT_EQ(camera.getNearClippingPlane(), 3e4f);
    EXPECT_EQ(camera.getFarClippingPlane(), 3e7f);
    // A single point at the rotation point counts as a sphere of radius 1.
    camera.setBoundingBox(BoundingBox(0.0f, 0.0f, 0.0f, 0.0f, 0.0f, 0.0f));
    EXPECT_EQ(camera.getNearClippingPlane(), 0.001f);
    EXPECT_EQ(camera.getFarClippingPlane(), 1.0f);
}

TEST(Camera3d, aSceneBeyondTheRangeOfFloatsLeavesThePlanesUnchanged)
{
    Camera3d camera = frontCamera();
    const float half = 1.6e38f;
    camera.setBoundingBox(BoundingBox(-half, half, -half, half, -half, half));
    EXPECT_EQ(camera.getNearClippingPlane(), 4.0f);
    EXPECT_EQ(camera.getFarClippingPlane(), 8.0f);
}

TEST(Camera3d, axisScalesStretchTheSceneToACube)
{
    Camera3d camera;
    camera.setAxisViewScalesAuto();
    EXPECT_FALSE(camera.hasViewScaleTransform());
    camera.setRotationPoint({1.0f, 1.0f, 1.0f});
    camera.setBoundingBox(BoundingBox(0.0f, 8.0f, 0.0f, 2.0f, 3.0f, 3.0f));
    camera.setAxisViewScalesAuto();
    EXPECT_EQ(camera.getAxisViewScaleX(), 1.0f);
    EXPECT_EQ(camera.getAxisViewScaleY(), 4.0f);
    EXPECT_EQ(camera.getAxisViewScaleZ(), 1.0f);
    EXPECT_TRUE(camera.hasViewScaleTransform());
    EXPECT_EQ(camera.getAxisViewScaleTransform() * Vector3f(1.0f, 1.0f, 1.0f), Vector3f(1.0f, 4.0f, 1.0f));
    EXPECT_EQ(camera.getInvAxisViewScaleTransform() * Vector3f(1.0f, 1.0f, 1.0f), Vector3f(1.0f, 0.25f, 1.0f));
    EXPECT_EQ(camera.getRotationPoint(), Vector3f(1.0f, 1.0f, 1.0f));
    // The camera rotates about the scaled point (1, 4, 1).
    camera.lookAt({1.0f, 4.0f, 9.0f}, {0.0f, 0.0f, -1.0f}, {0.0f, 1.0f, 0.0f});
    camera.setAdditionalSceneTranslation(0.0f, 0.0f, 8.0f);
    EXPECT_EQ(camera.getActualPosition(), Vector3f(1.0f, 4.0f, 1.0f));

    camera.setAxisViewScales(1.0f, 1.0f, 1.0f);
    EXPECT_FALSE(camera.hasViewScaleTransform());
    EXPECT_EQ(camera.getAxisViewScaleTransform(), Matrixf(Matrixf::MatrixIdentity));
    EXPECT_FALSE(camera.getViewBoundingBox(BoundingBox()).isValid());
}

TEST(Camera3d, depthOrderPutsTheFarthestAxisFirstAndKeepsEqualOnes)
{
    struct Case {
        Vector3f direction; ///< of the line of sight; an axis along it ends far away
        std::array<int, 3> order;
    };
    const Case cases[] = {
        {{1.0f, 2.0f, 3.0f}, {2, 1, 0}},  {{3.0f, 2.0f, 1.0f}, {0, 1, 2}},  {{-3.0f, -1.0f, -2.0f}, {1, 2, 0}},
        {{2.0f, 3.0f, -1.0f}, {1, 0, 2}}, {{1.0f, -2.0f, 2.5f}, {2, 0, 1}}, {{3.0f, 1.0f, 2.0f}, {0, 2, 1}},
    };
    for (const Case& row : cases) {
        Camera3d camera;
        camera.lookAt({0.0f, 0.0f, 0.0f}, row.direction, {0.3f, 0.7f, -0.9f});
        EXPECT_EQ(camera.getDepthOrder(), row.order) << row.direction;
        // Along z the other two axes are equally deep and keep their order.
        const bool yBeforeX = row.order[1] == 1 ? row.order[2] == 0 : row.order[0] == 1;
        camera.lookAt({0.0f, 0.0f, 0.0f}, {0.0f, 0.0f, 1.0f}, {0.0f, 1.0f, 0.0f});
        EXPECT_EQ(camera.getDepthOrder(), (yBeforeX ? std::array{2, 1, 0} : std::array{2, 0, 1})) << row.direction;
    }
}

TEST(Camera3d, moveToBoundingBoxShowsTheWholeBoxInAreasOfAnyShape)
{
    forRandomCameras([](Camera3d& camera, RandomCameras& random) {
        camera.setOverrideResizeBehaviour(true, Resize::ResizeFit);
        camera.setRelativeViewOffset(0.0f, 0.0f);
        const int width = random.integer(1, 64);
        camera.setRenderArea(2000, 2000, 0, 0, width, random.integer(1, 64));
        BoundingBox focus = random.box(random.vector(5.0f), 4.0f);
        // Every third box is flat, every third a line.
        const int numFlat = random.integer(0, 2);
        for (int i = 0, axis = random.integer(0, 2); i < numFlat; ++i, ++axis) {
            focus.scale(axis % 3 == 0 ? 0.0f : 1.0f, axis % 3 == 1 ? 0.0f : 1.0f, axis % 3 == 2 ? 0.0f : 1.0f);
        }
        BoundingBox scene = random.box(random.vector(5.0f), 9.0f);
        scene.merge(focus);
        camera.moveToBoundingBox(focus, scene, 0.0f);
        camera.setBoundingBox(scene);
        float widest = 0.0f;
        for (int i = 0; i < 8; ++i) {
            const Vector3f screen = camera.worldToScreenRH(focus.getVertex(i));
            const float x = screen.x / static_cast<float>(width) * 2.0f - 1.0f;
            const float y = screen.y / static_cast<float>(camera.getRenderAreaHeight()) * 2.0f - 1.0f;
            widest = std::max({widest, std::abs(x), std::abs(y)});
        }
        // Inside, and no farther than the margin of 5 percent.
        EXPECT_LT(widest, 1.0f);
        EXPECT_GT(widest, 0.9f);
        const float expected = camera.getViewBoundingBox(scene).getBoundingRadius();
        EXPECT_EQ(camera.getDollySpeedScale(), expected);
    });
}

TEST(Camera3d, moveToABoxOfOnePointLooksAtIt)
{
    for (const auto type : {Camera3d::ProjectionPerspective, Camera3d::ProjectionOrthographic}) {
        Camera3d camera = frontCamera();
        camera.setProjectionType(type);
        const BoundingBox point(1.0f, 1.0f, 2.0f, 2.0f, 3.0f, 3.0f);
        camera.moveToBoundingBox(point, point, 0.5f);
        EXPECT_EQ(camera.getPosition(), Vector3f(1.0f, 2.0f, 4.0f));
        EXPECT_EQ(camera.getDollySpeedScale(), 0.0f);
        // A quarter of the distance on each side, reduced to a twentieth of it by the margin.
        const float half = camera.isPerspectiveProjection()
                               ? camera.getNearWidth() / camera.getNearClippingPlane() * 0.5f
                               : camera.getNearWidth() * 0.5f;
        EXPECT_NEAR(half, 0.25f * 0.05f * 1.05f, 1e-7f);
        const Vector3f screen = camera.worldToScreenRH({1.0f, 2.0f, 3.0f});
        EXPECT_NEAR(screen.x, 50.0f, 1e-3f);
        EXPECT_NEAR(screen.y, 50.0f, 1e-3f);
    }
}

TEST(Camera3d, moveToBoundingBoxFitsTheSphereIfTheSettingsSaySo)
{
    Canvas3dGlobalSettings& settings = *Canvas3dGlobalSettings::getInstance();
    settings.setZoomToExtentBehaviour(Canvas3dGlobalSettings::ZoomToExtentSphere);
    Camera3d camera = frontCamera();
    const BoundingBox focus(-1.0f, 1.0f, -2.0f, 2.0f, -2.0f, 2.0f);
    const BoundingBox scene(-2.0f, 2.0f, -4.0f, 4.0f, -4.0f, 4.0f);
    camera.moveToBoundingBox(focus, scene, 1.0f);
    // A radius of 6 with the margin, seen from ten times that distance; around the focus its own radius of 3 on each
    // side.
    EXPECT_NEAR(camera.getPosition().z, 63.0f, 1e-4f);
    const float radius = std::sqrt(4.0f * 4.0f + 5.0f * 5.0f + 5.0f * 5.0f);
    EXPECT_NEAR(std::tan(camera.getActualHorizontalFOV()), radius * 1.05f / 63.0f, 1e-6f);
    EXPECT_EQ(camera.getRelativeViewOffsetX(), 0.0f);

    camera.setProjectionType(Camera3d::ProjectionOrthographic);
    camera.setRenderArea(200, 200, 0, 0, 200, 100);
    camera.moveToBoundingBox(focus, scene, 0.0f);
    EXPECT_NEAR(camera.getNearHeight(), 2.0f * 3.0f * 1.05f, 1e-5f);
    EXPECT_NEAR(camera.getNearWidth(), 4.0f * 3.0f * 1.05f, 1e-5f);
    settings.setZoomToExtentBehaviour(Canvas3dGlobalSettings::ZoomToExtentTight);
}

TEST(Camera3d, pixelsSurviveARoundTripThroughTheDeepestClippingRange)
{
    // The near plane is at a thousandth of the radius, so with the eye on the sphere the far one is at 2000 times that.
    Camera3d camera;
    camera.lookAt({0.0f, 0.0f, 1.5e6f}, {0.0f, 0.0f, -1.0f}, {0.0f, 1.0f, 0.0f});
    camera.setBoundingBox(BoundingBox(-1e6f, 1e6f, 0.0f, 0.0f, 0.0f, 0.0f));
    EXPECT_NEAR(camera.getFarClippingPlane() / camera.getNearClippingPlane(), 2000.0f, 0.1f);
    for (const float depth : {-1.0f, 0.0f, 0.999f}) {
        const Vector3f screen = camera.worldToScreenRH(camera.screenToWorld(75, 25, depth));
        EXPECT_NEAR(screen.x, 75.0f, 1e-2f);
        EXPECT_NEAR(screen.y, 25.0f, 1e-2f);
        EXPECT_NEAR(screen.z, depth, 1e-3f);
    }
}

TEST(Camera3d, degenerateInputNeverFails)
{
    Camera3d camera = frontCamera();
    camera.setRenderArea(0, 0, 0, 0, 0, 0);
    camera.setAdditionalScale(0.5f, 0.5f, 0.0f);
    camera.mergeAdditionalTransformation();
    camera.lookAt({1.0f, 1.0f, 1.0f}, {0.0f, 0.0f, 0.0f}, {0.0f, 0.0f, 0.0f});
    camera.setProjectionType(Camera3d::ProjectionOrthographic);
    camera.setAxisViewScales(0.0f, std::nanf(""), c_infinity);
    camera.screenToWorld(std::numeric_limits<int>::max(), std::numeric_limits<int>::min(), c_infinity);
    camera.setRenderArea(10, 10, std::numeric_limits<int>::min(), 0, 1, 1);
    camera.screenToWorld(std::numeric_limits<int>::max(), 0, 0.0f);
    camera.setRotationPoint(camera.getPosition());
    camera.setAdditionalSceneRotation(1.0f, 1.0f, 1.0f);
    camera.setAdditionalSceneTranslation(1.0f, 1.0f, 1.0f);
    EXPECT_EQ(camera.getForward(), Vector3f());

    // Valid values restore it.
    camera.import(frontCamera());
    camera.setRenderArea(100, 100, 0, 0, 1, 1);
    const Vector3f screen = camera.worldToScreenRH({0.0f, 0.0f, 0.0f});
    EXPECT_EQ(screen.x, 0.5f);
    EXPECT_EQ(screen.y, 0.5f);
}

} // namespace
} // namespace vxgraphics3d
