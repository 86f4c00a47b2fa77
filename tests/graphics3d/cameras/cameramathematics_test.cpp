// The worked numbers of docs/camera-mathematics.md. They are powers of two and their sums, so floats represent them
// exactly.
#include "graphics3d/cameras/camera2d.h"
#include "graphics3d/cameras/camera3d.h"

#include <gtest/gtest.h>

namespace vxgraphics3d {
namespace {

/// Looks along negative x from (6, 2, 3) with z up; a view of 4 by 2 units, clipped at 4 and 8, on 400 by 200 pixels
/// whose corner is at pixel (10, 20).
class WorkedCamera : public testing::Test {
protected:
    WorkedCamera()
    {
        camera.setOverrideResizeBehaviour(true, Canvas3dGlobalSettings::ResizePixels);
        camera.setViewingScale(100.0f);
        camera.setRenderArea(500, 300, 10, 20, 400, 200);
        camera.setRotationPoint({0.0f, 2.0f, 3.0f});
        camera.lookAt({6.0f, 2.0f, 3.0f}, {-5.0f, 0.0f, 0.0f}, {0.0f, 0.0f, 1.0f});
        const float half = 4.0f / 3.0f;
        camera.setBoundingBox(BoundingBox(-half, half, 2.0f, 2.0f, 3.0f, 3.0f));
    }

    Camera3d camera;
};

using CameraMathematics = WorkedCamera;

TEST_F(CameraMathematics, viewMatrixContainsTheAxesAsRows)
{
    EXPECT_EQ(camera.getViewTransform(), Matrixf(0.0f, 1.0f, 0.0f, -2.0f, //
                                                 0.0f, 0.0f, 1.0f, -3.0f, //
                                                 1.0f, 0.0f, 0.0f, -6.0f, //
                                                 0.0f, 0.0f, 0.0f, 1.0f));
    EXPECT_EQ(camera.getInvViewTransform(), Matrixf(0.0f, 0.0f, 1.0f, 6.0f, //
                                                    1.0f, 0.0f, 0.0f, 2.0f, //
                                                    0.0f, 1.0f, 0.0f, 3.0f, //
                                                    0.0f, 0.0f, 0.0f, 1.0f));
    // Column-major: the translation is in elements 12 to 14.
    EXPECT_EQ(camera.getViewTransform().data()[12], -2.0f);
    EXPECT_EQ(camera.getViewTransform().data()[13], -3.0f);
    EXPECT_EQ(camera.getViewTransform().data()[14], -6.0f);
    EXPECT_EQ(camera.getLookAtDirection(), Vector3f(-1.0f, 0.0f, 0.0f));
    EXPECT_EQ(camera.getUpDirection(), Vector3f(0.0f, 0.0f, 1.0f));
    EXPECT_EQ(camera.getLookAtLength(), 5.0f);
}

TEST_F(CameraMathematics, perspectiveMatrices)
{
    EXPECT_EQ(camera.getNearClippingPlane(), 4.0f);
    EXPECT_EQ(camera.getFarClippingPlane(), 8.0f);
    camera.setRelativeViewOffset(0.25f, -0.5f);
    EXPECT_EQ(camera.getProjectionTransformRH(), Matrixf(2.0f, 0.0f, -0.5f, 0.0f,   //
                                                         0.0f, 4.0f, 1.0f, 0.0f,    //
                                                         0.0f, 0.0f, -3.0f, -16.0f, //
                                                         0.0f, 0.0f, -1.0f, 0.0f));
    EXPECT_EQ(camera.getProjectionTransformLH(), Matrixf(2.0f, 0.0f, -0.5f, 0.0f,  //
                                                         0.0f, 4.0f, 1.0f, 0.0f,   //
                                                         0.0f, 0.0f, -2.0f, -8.0f, //
                                                         0.0f, 0.0f, -1.0f, 0.0f));
    EXPECT_EQ(camera.getInvProjectionTransformRH(), Matrixf(0.5f, 0.0f, 0.0f, -0.25f, //
                                                            0.0f, 0.25f, 0.0f, 0.25f, //
                                                            0.0f, 0.0f, 0.0f, -1.0f,  //
                                                            0.0f, 0.0f, -0.0625f, 0.1875f));
}

TEST_F(CameraMathematics, perspectivePointsAndPixels)
{
    const Vector3f onNearPlane(2.0f, 3.0f, 3.5f);
    EXPECT_EQ(camera.worldToScreenRH(onNearPlane), Vector3f(300.0f, 150.0f, -1.0f));
    EXPECT_EQ(camera.worldToScreenLH(onNearPlane), Vector3f(300.0f, 150.0f, 0.0f));
    EXPECT_EQ(camera.screenToWorld(310, 170, -1.0f), onNearPlane);

    const Vector3f onFarPlane(-2.0f, 3.0f, 3.5f);
    EXPECT_EQ(camera.worldToScreenRH(onFarPlane), Vector3f(250.0f, 125.0f, 1.0f));
    EXPECT_EQ(camera.worldToScreenLH(onFarPlane), Vector3f(250.0f, 125.0f, 1.0f));
    EXPECT_EQ(camera.screenToWorld(260, 145, 1.0f), onFarPlane);

    // An offset moves the image by a quarter of 400 pixels at any depth.
    camera.setRelativeViewOffset(0.25f, 0.0f);
    EXPECT_EQ(camera.worldToScreenRH(onNearPlane), Vector3f(400.0f, 150.0f, -1.0f));
    EXPECT_EQ(camera.worldToScreenRH(onFarPlane), Vector3f(350.0f, 125.0f, 1.0f));
}

TEST_F(CameraMathematics, orthographicMatrices)
{
    camera.setProjectionType(Camera3d::ProjectionOrthographic);
    camera.setViewingScale(100.0f);
    camera.setRelativeViewOffset(0.25f, -0.5f);
    EXPECT_EQ(camera.getProjectionTransformRH(), Matrixf(0.5f, 0.0f, 0.0f, 0.5f,   //
                                                         0.0f, 1.0f, 0.0f, -1.0f,  //
                                                         0.0f, 0.0f, -0.5f, -3.0f, //
                                                         0.0f, 0.0f, 0.0f, 1.0f));
    EXPECT_EQ(camera.getProjectionTransformLH(), Matrixf(0.5f, 0.0f, 0.0f, 0.5f,    //
                                                         0.0f, 1.0f, 0.0f, -1.0f,   //
                                                         0.0f, 0.0f, -0.25f, -1.0f, //
                                                         0.0f, 0.0f, 0.0f, 1.0f));
    EXPECT_EQ(camera.getInvProjectionTransformRH(), Matrixf(2.0f, 0.0f, 0.0f, -1.0f, //
                                                            0.0f, 1.0f, 0.0f, 1.0f,  //
                                                            0.0f, 0.0f, -2.0f, 6.0f, //
                                                            0.0f, 0.0f, 0.0f, 1.0f));
}

TEST_F(CameraMathematics, orthographicPixelsGiveWorldPointsBehindTheEye)
{
    camera.setProjectionType(Camera3d::ProjectionOrthographic);
    camera.setViewingScale(100.0f);
    const Vector3f onNearPlane(2.0f, 3.0f, 3.5f);
    EXPECT_EQ(camera.worldToScreenRH(onNearPlane), Vector3f(300.0f, 150.0f, -1.0f));
    // On the same line of sight, near plus far = 12 units towards the viewer.
    EXPECT_EQ(camera.screenToWorld(310, 170, -1.0f), Vector3f(14.0f, 3.0f, 3.5f));
    EXPECT_EQ(camera.screenToWorld(310, 170, 1.0f), Vector3f(10.0f, 3.0f, 3.5f));
}

TEST_F(CameraMathematics, axisScalesApplyBeforeTheView)
{
    camera.setAxisViewScales(2.0f, 4.0f, 0.5f);
    EXPECT_EQ(camera.worldToScreenRH({1.0f, 0.75f, 7.0f}), Vector3f(300.0f, 150.0f, -1.0f));
    EXPECT_EQ(camera.screenToWorld(310, 170, -1.0f), Vector3f(1.0f, 0.75f, 7.0f));
    EXPECT_EQ(camera.getViewBoundingBox(BoundingBox(0.0f, 1.0f, -1.0f, 1.0f, 2.0f, 4.0f)),
              BoundingBox(0.0f, 2.0f, -4.0f, 4.0f, 1.0f, 2.0f));
}

TEST(CameraMathematics2d, matricesAndPixels)
{
    Camera2d camera;
    camera.setRenderArea(500, 300, 10, 20, 400, 200);
    EXPECT_TRUE(camera.setViewLimits(10.0f, 14.0f, 0.0f, 2.0f));
    EXPECT_EQ(camera.getProjectionTransformRH(), Matrixf(0.5f, 0.0f, 0.0f, -6.0f, //
                                                         0.0f, 1.0f, 0.0f, -1.0f, //
                                                         0.0f, 0.0f, -1.0f, 0.0f, //
                                                         0.0f, 0.0f, 0.0f, 1.0f));
    EXPECT_EQ(camera.getProjectionTransformLH(), Matrixf(0.5f, 0.0f, 0.0f, -6.0f, //
                                                         0.0f, 1.0f, 0.0f, -1.0f, //
                                                         0.0f, 0.0f, -0.5f, 0.5f, //
                                                         0.0f, 0.0f, 0.0f, 1.0f));
    EXPECT_EQ(camera.getInvProjectionTransformRH(), Matrixf(2.0f, 0.0f, 0.0f, 12.0f, //
                                                            0.0f, 1.0f, 0.0f, 1.0f,  //
                                                            0.0f, 0.0f, -1.0f, 0.0f, //
                                                            0.0f, 0.0f, 0.0f, 1.0f));
    EXPECT_EQ(camera.worldToScreenRH({11.0f, 1.5f, 0.25f}), Vector3f(110.0f, 170.0f, -0.25f));
    EXPECT_EQ(camera.worldToScreenLH({11.0f, 1.5f, 0.25f}), Vector3f(110.0f, 170.0f, 0.375f));
    EXPECT_EQ(camera.screenToWorld(110, 170, -0.25f), Vector3f(11.0f, 1.5f, 0.25f));
}

} // namespace
} // namespace vxgraphics3d
