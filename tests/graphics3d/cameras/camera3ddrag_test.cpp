#include "graphics3d/cameras/camera3d.h"
#include "tests/support/testcameras.h"

#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <vector>

namespace vxgraphics3d {
namespace {

using Resize = Canvas3dGlobalSettings;

/// One interaction with a strength from 0 to 1.
using Drag = std::function<void(Camera3d&, float)>;

const std::vector<Drag>& drags()
{
    static const std::vector<Drag> all{
        [](Camera3d& c, float t) { c.setAdditionalSceneRotation(0.7f * t, -1.1f * t, 0.3f * t); },
        [](Camera3d& c, float t) { c.setAdditionalRotation(-0.2f * t, 0.4f * t, 0.9f * t); },
        [](Camera3d& c, float t) { c.setAdditionalSceneTranslation(1.5f * t, -0.5f * t, 2.0f * t); },
        [](Camera3d& c, float t) { c.setAdditionalTranslation(-1.5f * t, 0.25f * t, 1.0f * t); },
        [](Camera3d& c, float t) { c.setAdditionalScale(0.3f, 0.8f, 1.0f + 1.5f * t); },
        [](Camera3d& c, float t) { c.setAdditionalScale(0.3f, 0.8f, 1.0f - 0.5f * t, 1.0f - 0.6f * t); },
        [](Camera3d& c, float t) { c.setAdditionalRelativeViewOffset(0.2f * t, -0.4f * t); },
    };
    return all;
}

TEST(Camera3dDrag, aDragInManyStepsEqualsItsLastStep)
{
    forRandomCameras([](Camera3d& camera, RandomCameras&) {
        for (const Drag& drag : drags()) {
            Camera3d inOneStep(camera);
            drag(inOneStep, 1.0f);
            Camera3d inManySteps(camera);
            for (int step = 1; step <= 16; ++step) {
                drag(inManySteps, static_cast<float>(step) / 16.0f);
            }
            EXPECT_EQ(displayedMatrices(inManySteps), displayedMatrices(inOneStep));
        }
    });
}

TEST(Camera3dDrag, aMergeChangesNoDisplayedMatrix)
{
    forRandomCameras([](Camera3d& camera, RandomCameras&) {
        for (const Drag& drag : drags()) {
            drag(camera, 0.5f);
            const std::vector<Matrixf> displayed = displayedMatrices(camera);
            camera.mergeAdditionalTransformation();
            EXPECT_EQ(displayedMatrices(camera), displayed);
            EXPECT_EQ(camera.getPosition(), camera.getActualPosition());
            // The base alone gives the same picture again, within rounding; where the base does not determine the size,
            // it returns to the scale of 1.
            const bool fixedPixels = camera.getOwnResizeBehaviour() == Resize::ResizePixels;
            camera.discardAdditionalTransformation();
            for (std::size_t i = 0; i < displayed.size() && !fixedPixels; ++i) {
                EXPECT_LT(relativeDifference(displayedMatrices(camera)[i], displayed[i]), 1e-5f) << "matrix " << i;
            }
        }
    });
}

TEST(Camera3dDrag, discardRestoresTheBaseExactly)
{
    forRandomCameras([](Camera3d& camera, RandomCameras&) {
        if (camera.getOwnResizeBehaviour() == Resize::ResizeKeep) {
            return;
        }
        const std::vector<Matrixf> base = displayedMatrices(camera);
        for (const Drag& drag : drags()) {
            drag(camera, 1.0f);
        }
        EXPECT_NE(displayedMatrices(camera), base);
        camera.discardAdditionalTransformation();
        EXPECT_EQ(displayedMatrices(camera), base);
    });
}

TEST(Camera3dDrag, anOrbitKeepsTheRotationPointOnItsPixel)
{
    forRandomCameras([](Camera3d& camera, RandomCameras& random) {
        const Vector3f before = camera.worldToScreenRH(camera.getRotationPoint());
        camera.setAdditionalSceneRotation(random.uniform(-3.0f, 3.0f), random.uniform(-3.0f, 3.0f),
                                          random.uniform(-3.0f, 3.0f));
        const Vector3f after = camera.worldToScreenRH(camera.getRotationPoint());
        EXPECT_NEAR(after.x, before.x, 0.05f);
        EXPECT_NEAR(after.y, before.y, 0.05f);
        EXPECT_NEAR(after.z, before.z, 1e-3f);
    });
}

TEST(Camera3dDrag, orbitRotatesAboutTheAxesOfTheView)
{
    const float quarter = 1.5707964f;
    struct Case {
        Vector3f angles;
        Vector3f position; ///< of an eye at (0, 0, 6) that turns about the origin
        Vector3f up;
    };
    const Case cases[] = {
        {{quarter, 0.0f, 0.0f}, {0.0f, -6.0f, 0.0f}, {0.0f, 0.0f, 1.0f}},
        {{0.0f, quarter, 0.0f}, {6.0f, 0.0f, 0.0f}, {0.0f, 1.0f, 0.0f}},
        {{0.0f, 0.0f, quarter}, {0.0f, 0.0f, 6.0f}, {1.0f, 0.0f, 0.0f}},
    };
    for (const Case& row : cases) {
        Camera3d camera = frontCamera();
        camera.setAdditionalSceneRotation(row.angles.x, row.angles.y, row.angles.z);
        EXPECT_LT((camera.getActualPosition() - row.position).length(), 1e-5f) << camera.getActualPosition();
        EXPECT_LT((camera.getUpDirection() - row.up).length(), 1e-6f) << camera.getUpDirection();
        EXPECT_LT((camera.getLookAtDirection() + row.position / 6.0f).length(), 1e-6f);
        // The committed state changes only with the merge.
        EXPECT_EQ(camera.getForward(), Vector3f(0.0f, 0.0f, -1.0f));
        EXPECT_EQ(camera.getPosition(), Vector3f(0.0f, 0.0f, 6.0f));
    }
}

TEST(Camera3dDrag, orbitByZeroRevertsAnUncommittedMove)
{
    Camera3d camera = frontCamera();
    camera.setAdditionalTranslation(1.0f, 2.0f, 3.0f);
    EXPECT_EQ(camera.getActualPosition(), Vector3f(1.0f, 2.0f, 3.0f));
    camera.setAdditionalSceneRotation(0.0f, 0.0f, 0.0f);
    EXPECT_EQ(camera.getActualPosition(), Vector3f(0.0f, 0.0f, 6.0f));
}

TEST(Camera3dDrag, turningAppliesYawThenPitchThenRollAndStaysInPlace)
{
    const float quarter = 1.5707964f;
    Camera3d camera = frontCamera();
    camera.setAdditionalRotation(quarter, quarter, 0.0f);
    // Pitch is applied first: forward becomes up, which the yaw does not change.
    EXPECT_LT((camera.getLookAtDirection() - Vector3f(0.0f, 1.0f, 0.0f)).length(), 1e-6f);
    EXPECT_LT((camera.getUpDirection() - Vector3f(1.0f, 0.0f, 0.0f)).length(), 1e-6f);
    EXPECT_EQ(camera.getActualPosition(), Vector3f(0.0f, 0.0f, 6.0f));
}

TEST(Camera3dDrag, dollyMovesAlongTheLineToTheRotationPoint)
{
    Camera3d camera = frontCamera();
    camera.setRotationPoint({0.0f, 8.0f, 0.0f});
    // The line of sight to the point is (0, 0.8, -0.6); (1, 0, 0) and (0, 0.6, 0.8) are perpendicular to it.
    camera.setAdditionalSceneTranslation(2.0f, 5.0f, 10.0f);
    EXPECT_LT((camera.getActualPosition() - Vector3f(2.0f, 11.0f, 4.0f)).length(), 1e-5f);
    camera.setAdditionalSceneTranslation(0.0f, 0.0f, 0.0f);
    EXPECT_EQ(camera.getActualPosition(), camera.getPosition());
}

TEST(Camera3dDrag, zoomKeepsItsCentreFixed)
{
    forRandomCameras([](Camera3d& camera, RandomCameras& random) {
        const float cx = random.uniform(0.1f, 0.9f);
        const float cy = random.uniform(0.1f, 0.9f);
        const float factor = random.uniform(0.3f, 3.0f);
        if (camera.getOwnResizeBehaviour() == Resize::ResizeKeep) {
            return;
        }
        // The point of the picture in the view, by the inverse projection.
        const Vector3f device(2.0f * cx - 1.0f, 2.0f * cy - 1.0f, 0.5f);
        const Vector3f before = device.transformed(camera.getInvProjectionTransformRH());
        const float width = camera.getNearWidth();
        camera.setAdditionalScale(cx, cy, factor);
        const Vector3f after = device.transformed(camera.getInvProjectionTransformRH());
        EXPECT_NEAR(camera.getNearWidth() / width, factor, 1e-5f);
        EXPECT_NEAR(after.x / width, before.x / width, 1e-4f * std::abs(before.z) / camera.getNearClippingPlane());
        EXPECT_NEAR(after.y / width, before.y / width, 1e-4f * std::abs(before.z) / camera.getNearClippingPlane());
    });
}

TEST(Camera3dDrag, zoomToTheCentreHalvesTheViewAndLeavesNoOffset)
{
    for (const auto type : {Camera3d::ProjectionPerspective, Camera3d::ProjectionOrthographic}) {
        Camera3d camera = frontCamera();
        camera.setProjectionType(type);
        const float width = camera.getNearWidth();
        camera.setAdditionalScale(0.5f, 0.5f, 1.0f / 2.0f);
        camera.mergeAdditionalTransformation();
        EXPECT_EQ(camera.getNearWidth(), width * 0.5f);
        EXPECT_EQ(camera.getRelativeViewOffsetX(), 0.0f);
        camera.setRenderArea(100, 100, 0, 0, 100, 100);
        EXPECT_NEAR(camera.getNearWidth() / width, 0.5f, 1e-6f);
    }
}

TEST(Camera3dDrag, magnificationStopsWhereTheViewIsTinyRelativeToTheClippingRange)
{
    // 8 - 4 times 1e-5 is 4e-5.
    for (const auto type : {Camera3d::ProjectionPerspective, Camera3d::ProjectionOrthographic}) {
        SCOPED_TRACE(type);
        Camera3d camera = frontCamera();
        camera.setProjectionType(type);
        camera.setFOV(45.0f);
        camera.setOrthographicSize(6.0f);
        // In perspective the half extent at the rotation point matters, six units away.
        camera.setAdditionalScale(0.5f, 0.5f, 0.9e-5f);
        EXPECT_EQ(camera.getNearWidth() < 8.0f, true);
        camera.mergeAdditionalTransformation();
        camera.setAdditionalScale(0.5f, 0.5f, 0.7f);
        camera.mergeAdditionalTransformation();
        const std::vector<Matrixf> smallest = displayedMatrices(camera);
        const int count = camera.getChangeId();
        camera.setAdditionalScale(0.1f, 0.1f, 0.999f);
        EXPECT_EQ(displayedMatrices(camera), smallest);
        EXPECT_EQ(camera.getRelativeViewOffsetX(), 0.0f);
        EXPECT_EQ(camera.getChangeId(), count);
        camera.setAdditionalScale(0.5f, 0.5f, 1.0f);
        EXPECT_EQ(camera.getChangeId(), count + 1);
        camera.setAdditionalScale(0.5f, 0.5f, 2.0f);
        EXPECT_NE(displayedMatrices(camera), smallest);
    }
}

TEST(Camera3dDrag, panSpeedIsTheSizeOfAPixelAtTheRotationPoint)
{
    forRandomCameras([](Camera3d& camera, RandomCameras&) {
        // The eye looks at the rotation point, so a step to the right is perpendicular to the line of sight.
        camera.resetAxisViewScales();
        camera.setRelativeViewOffset(0.0f, 0.0f);
        camera.lookAt(camera.getRotationPoint() - camera.getForward() * 12.0f, camera.getForward(), camera.getUp());
        const Vector3f step = camera.getRight() * (100.0f * camera.getPanSpeed());
        const float from = camera.worldToScreenRH(camera.getRotationPoint()).x;
        EXPECT_NEAR(camera.worldToScreenRH(camera.getRotationPoint() + step).x - from, 100.0f, 0.1f);
    });
}

} // namespace
} // namespace vxgraphics3d
