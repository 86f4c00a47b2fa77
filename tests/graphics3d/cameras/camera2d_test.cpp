#include "graphics3d/cameras/camera2d.h"

#include "graphics3d/cameras/camera3d.h"
#include "tests/support/randomnumbers.h"

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
using Limits = std::array<float, 4>;

Limits displayed(const Camera2d& camera)
{
    return {camera.getActualMinX(), camera.getActualMaxX(), camera.getActualMinY(), camera.getActualMaxY()};
}

Limits base(const Camera2d& camera)
{
    return {camera.getViewMinX(), camera.getViewMaxX(), camera.getViewMinY(), camera.getViewMaxY()};
}

Limits reported(const Camera2d& camera)
{
    Limits limits{};
    camera.getViewLimits(limits[0], limits[1], limits[2], limits[3]);
    return limits;
}

void expectNear(const Limits& actual, const Limits& expected, float tolerance)
{
    for (std::size_t i = 0; i < 4; ++i) {
        EXPECT_NEAR(actual[i], expected[i], tolerance) << "limit " << i;
    }
}

/// A camera with a render area at (0, 0) and a resize behaviour of its own.
Camera2d cameraOf(int width, int height, int behaviour)
{
    Camera2d camera;
    camera.setOverrideResizeBehaviour(true, static_cast<Camera2d::ResizeBehaviour>(behaviour));
    camera.setRenderArea(4000, 4000, 0, 0, width, height);
    return camera;
}

class RandomViews : public RandomNumbers {
public:
    RandomViews() : RandomNumbers(20260102) {}

    /// A camera that shows a random rectangle in one of the behaviours 0 to 5.
    Camera2d camera(int behaviour)
    {
        Camera2d camera = cameraOf(integer(1, 2000), integer(1, 2000), behaviour);
        const float x = uniform(-50.0f, 50.0f);
        const float y = uniform(-50.0f, 50.0f);
        camera.setAxisViewScales(uniform(0.5f, 2.0f), uniform(0.5f, 2.0f));
        camera.setViewLimits(x, x + uniform(1.0f, 60.0f), y, y + uniform(1.0f, 60.0f));
        return camera;
    }
};

template <class Check>
void forRandomViews(Check check)
{
    RandomViews random;
    for (int i = 0; i < 300; ++i) {
        SCOPED_TRACE("random view " + std::to_string(i));
        Camera2d camera = random.camera(i % 6);
        check(camera, random);
        if (testing::Test::HasFailure()) {
            return;
        }
    }
}

std::vector<Matrixf> displayedMatrices(const Camera2d& camera)
{
    return {camera.getViewTransform(), camera.getProjectionTransformRH(), camera.getProjectionTransformLH(),
            camera.getInvProjectionTransformRH()};
}

TEST(Camera2d, aNewCameraHasItsDefaults)
{
    const Camera2d camera;
    const Matrixf identity(Matrixf::MatrixIdentity);
    EXPECT_EQ(reported(camera), (Limits{0.0f, 1.0f, 0.0f, 1.0f}));
    EXPECT_TRUE(camera.isPreserveAspectRatio());
    EXPECT_TRUE(camera.isAxisViewScalesAuto());
    EXPECT_EQ(camera.getCameraMode(), Camera2d::ModeOrdinary);
    EXPECT_EQ(camera.getOwnResizeBehaviour(), 2);
    EXPECT_FALSE(camera.isOverrideResizeBehaviour());
    EXPECT_EQ(base(camera), (Limits{0.0f, 1.0f, 0.0f, 1.0f}));
    EXPECT_EQ(camera.getViewingScaleX(), 1.0f);
    EXPECT_EQ(camera.getViewingScaleY(), 1.0f);
    EXPECT_EQ(camera.getRenderAreaWidth(), 100);
    EXPECT_EQ(camera.getRenderAreaHeight(), 100);
    EXPECT_EQ(camera.getRenderAreaLeft(), 0);
    EXPECT_EQ(camera.getRenderAreaBottom(), 0);
    EXPECT_EQ(camera.getAxisViewScaleX(), 1.0f);
    EXPECT_EQ(camera.getAxisViewScaleY(), 1.0f);
    EXPECT_FALSE(camera.getSceneBox().isValid());
    EXPECT_EQ(camera.getRotationPoint(), Vector3f());
    EXPECT_EQ(camera.getPolarMin(), -1.0f);
    EXPECT_EQ(camera.getPolarMax(), 1.0f);
    EXPECT_EQ(camera.getActualPolarMin(), -1.0f);
    EXPECT_EQ(camera.getActualPolarMax(), 1.0f);
    EXPECT_EQ(camera.getActualPolarRadius(), 0.0f);
    EXPECT_EQ(camera.getNearClippingPlane(), 1.0f);
    EXPECT_EQ(camera.getFarClippingPlane(), -1.0f);
    EXPECT_EQ(camera.getLookAtDirection(), Vector3f(0.0f, 0.0f, -1.0f));
    EXPECT_EQ(camera.getUpDirection(), Vector3f(0.0f, 1.0f, 0.0f));
    EXPECT_EQ(camera.getDollySpeedScale(), 1.0f);
    EXPECT_EQ(camera.getAxisViewScaleZ(), 1.0f);
    EXPECT_FALSE(camera.hasViewScaleTransform());
    for (const Matrixf* matrix : {&camera.getViewTransform(), &camera.getInvViewTransform(),
                                  &camera.getRotationTransform(), &camera.getInvRotationTransform(),
                                  &camera.getAxisViewScaleTransform(), &camera.getInvAxisViewScaleTransform()}) {
        EXPECT_EQ(*matrix, identity);
    }
    EXPECT_EQ(&camera.getAxisViewScaleTransform(), &Camera2d().getAxisViewScaleTransform());
    EXPECT_EQ(camera.getPanSpeed(), 0.01f);
}

TEST(Camera2d, aNewAreaAdaptsTheLimitsByTheBehaviour)
{
    struct Case {
        int behaviour;
        int width; ///< of the new area; the old one is 100 by 100 and shows 0 to 4 on both axes
        int height;
        Limits limits;
    };
    const Case cases[] = {
        {0, 200, 100, {0.0f, 4.0f, 1.0f, 3.0f}},  {0, 100, 200, {0.0f, 4.0f, -2.0f, 6.0f}},
        {1, 200, 100, {-2.0f, 6.0f, 0.0f, 4.0f}}, {1, 100, 200, {1.0f, 3.0f, 0.0f, 4.0f}},
        {2, 200, 100, {-2.0f, 6.0f, 0.0f, 4.0f}}, {2, 100, 200, {0.0f, 4.0f, -2.0f, 6.0f}},
        {3, 200, 100, {0.0f, 4.0f, 1.0f, 3.0f}},  {3, 100, 200, {1.0f, 3.0f, 0.0f, 4.0f}},
        {4, 200, 100, {-2.0f, 6.0f, 0.0f, 4.0f}}, {4, 50, 25, {1.0f, 3.0f, 1.5f, 2.5f}},
        {5, 200, 100, {0.0f, 4.0f, 0.0f, 4.0f}},  {9, 50, 25, {0.0f, 4.0f, 0.0f, 4.0f}},
    };
    for (const Case& row : cases) {
        Camera2d camera = cameraOf(100, 100, row.behaviour);
        // Sets the viewing scales as well, which the fixed pixel scale keeps.
        camera.setOverrideResizeBehaviour(true, Resize::ResizeWidth);
        camera.setViewLimits(0.0f, 4.0f, 0.0f, 4.0f);
        camera.setOverrideResizeBehaviour(true, static_cast<Camera2d::ResizeBehaviour>(row.behaviour));
        camera.setRenderArea(300, 300, 0, 0, row.width, row.height);
        EXPECT_EQ(displayed(camera), row.limits) << row.behaviour << ", " << row.width;
        EXPECT_EQ(base(camera), row.limits);
    }
}

TEST(Camera2d, changesBetweenWideAndTallAreasPassThroughTheSquare)
{
    // From 200 by 100 to 100 by 400: behaviour 2 first shrinks the width to that of the square, 3 grows the height.
    struct Case {
        int behaviour;
        Limits limits;
    };
    for (const Case& row : {Case{2, {3.0f, 5.0f, -3.0f, 5.0f}}, Case{3, {3.5f, 4.5f, -1.0f, 3.0f}}}) {
        for (const bool back : {false, true}) {
            Camera2d camera = cameraOf(200, 100, 2);
            camera.setViewLimits(2.0f, 6.0f, 0.0f, 2.0f);
            camera.setOverrideResizeBehaviour(true, static_cast<Camera2d::ResizeBehaviour>(row.behaviour));
            camera.setRenderArea(400, 400, 0, 0, 100, 400);
            if (back) {
                camera.setRenderArea(300, 300, 0, 0, 200, 100);
            }
            EXPECT_EQ(displayed(camera), back ? (Limits{2.0f, 6.0f, 0.0f, 2.0f}) : row.limits) << row.behaviour;
        }
    }
}

TEST(Camera2d, theTwoCamerasSwapTheMeaningOfBehaviours2And3)
{
    for (const int behaviour : {2, 3}) {
        Camera3d three;
        three.setProjectionType(Camera3d::ProjectionOrthographic);
        three.setOrthographicSize(4.0f);
        three.setOverrideResizeBehaviour(true, static_cast<Camera3d::ResizeBehaviour>(behaviour));
        three.setRenderArea(200, 200, 0, 0, 200, 100);
        Camera2d two = cameraOf(100, 100, behaviour);
        two.setViewLimits(0.0f, 4.0f, 0.0f, 4.0f);
        two.setRenderArea(200, 200, 0, 0, 200, 100);
        EXPECT_EQ(three.getNearHeight(), behaviour == 3 ? 4.0f : 2.0f);
        EXPECT_EQ(two.getActualMaxY() - two.getActualMinY(), behaviour == 2 ? 4.0f : 2.0f);
    }
}

TEST(Camera2d, theAreaIsNeverSmallerThanAPixelNorItsOriginBeyondTheCanvas)
{
    Camera2d camera;
    camera.setRenderArea(50, 40, 60, 70, 0, -5);
    EXPECT_EQ(camera.getRenderAreaWidth(), 1);
    EXPECT_EQ(camera.getRenderAreaHeight(), 1);
    EXPECT_EQ(camera.getRenderAreaLeft(), 50);
    EXPECT_EQ(camera.getRenderAreaBottom(), 40);
    EXPECT_EQ(displayed(camera), (Limits{0.0f, 1.0f, 0.0f, 1.0f}));
    EXPECT_EQ(camera.screenToWorld(51, 40, 0.0f), Vector3f(1.0f, 0.0f, 0.0f));
}

TEST(Camera2d, setViewLimitsDependsOnWhichRangesAreEmpty)
{
    struct Case {
        Limits limits;
        bool preserve;
        bool accepted;
        Limits shown; ///< in an area 200 by 100 that shows 0 to 4 by 0 to 2
    };
    const Case cases[] = {
        {{0.0f, 8.0f, 1.0f, 2.0f}, true, true, {0.0f, 8.0f, -0.5f, 3.5f}},
        {{1.0f, 2.0f, 0.0f, 8.0f}, true, true, {-6.5f, 9.5f, 0.0f, 8.0f}},
        {{1.0f, 3.0f, 5.0f, 5.0f}, true, true, {1.0f, 3.0f, 4.5f, 5.5f}},
        {{1.0f, 3.0f, 5.0f, 4.0f}, true, true, {1.0f, 3.0f, 4.5f, 5.5f}},
        {{5.0f, 5.0f, 1.0f, 3.0f}, true, true, {3.0f, 7.0f, 1.0f, 3.0f}},
        {{0.0f, 0.0f, 0.0f, 0.0f}, true, true, {-1.0f, 1.0f, -0.5f, 0.5f}},
        {{1.0f, 3.0f, 5.0f, 5.0f}, false, false, {0.0f, 4.0f, 0.0f, 2.0f}},
        {{5.0f, 5.0f, 1.0f, 3.0f}, false, false, {0.0f, 4.0f, 0.0f, 2.0f}},
        {{0.0f, 0.0f, 0.0f, 0.0f}, false, false, {0.0f, 4.0f, 0.0f, 2.0f}},
        {{0.0f, 8.0f, 1.0f, 2.0f}, false, true, {0.0f, 8.0f, 1.0f, 2.0f}},
    };
    for (const Case& row : cases) {
        Camera2d camera = cameraOf(200, 100, 3);
        camera.setViewLimits(0.0f, 4.0f, 0.0f, 2.0f);
        const auto [x0, x1, y0, y1] = row.limits;
        EXPECT_EQ(camera.setViewLimits(x0, x1, y0, y1, row.preserve), row.accepted) << x0 << ' ' << y0;
        EXPECT_EQ(displayed(camera), row.shown) << x0 << ' ' << y0 << ' ' << row.preserve;
        // Accepted limits without a ratio to preserve stretch the axes: 8 and 1 units to 200 and 100 pixels.
        const bool stretched = row.accepted && !row.preserve;
        EXPECT_EQ(camera.getAxisViewScaleX(), 1.0f);
        EXPECT_EQ(camera.getAxisViewScaleY(), stretched ? 4.0f : 1.0f);
        EXPECT_TRUE(camera.isAxisViewScalesAuto());
    }
}

TEST(Camera2d, theWholeRequestedRectangleIsVisible)
{
    forRandomViews([](Camera2d& camera, RandomViews& random) {
        const float x = random.uniform(-50.0f, 50.0f);
        const float y = random.uniform(-50.0f, 50.0f);
        const float width = random.uniform(0.1f, 100.0f);
        const float height = random.uniform(0.1f, 100.0f);
        EXPECT_TRUE(camera.setViewLimits(x, x + width, y, y + height, true));
        const float rounding = 1e-5f * (200.0f + camera.getActualMaxX() - camera.getActualMinX() +
                                        camera.getActualMaxY() - camera.getActualMinY());
        EXPECT_LE(camera.getActualMinX(), x + rounding);
        EXPECT_GE(camera.getActualMaxX(), x + width - rounding);
        EXPECT_LE(camera.getActualMinY(), y + rounding);
        EXPECT_GE(camera.getActualMaxY(), y + height - rounding);
        // And the length of a unit of y on the screen is that of the axis scales.
        const float unitX =
            static_cast<float>(camera.getRenderAreaWidth()) / (camera.getActualMaxX() - camera.getActualMinX());
        const float unitY =
            static_cast<float>(camera.getRenderAreaHeight()) / (camera.getActualMaxY() - camera.getActualMinY());
        EXPECT_NEAR(unitY / unitX * camera.getAxisViewScaleX() / camera.getAxisViewScaleY(), 1.0f, 1e-3f);
    });
}

TEST(Camera2d, theOtherAxisFollowsTheLimitsOfOneAxisOrStays)
{
    Camera2d camera = cameraOf(200, 100, 5);
    camera.setViewLimits(0.0f, 4.0f, 0.0f, 2.0f);
    EXPECT_TRUE(camera.setViewLimitsX(10.0f, 18.0f));
    EXPECT_EQ(displayed(camera), (Limits{10.0f, 18.0f, -1.0f, 3.0f}));
    EXPECT_TRUE(camera.setViewLimitsY(0.0f, 1.0f));
    EXPECT_EQ(displayed(camera), (Limits{13.0f, 15.0f, 0.0f, 1.0f}));
    camera.setPreserveAspectRatio(false);
    EXPECT_TRUE(camera.setViewLimitsX(0.0f, 4.0f));
    EXPECT_EQ(displayed(camera), (Limits{0.0f, 4.0f, 0.0f, 1.0f}));
    EXPECT_TRUE(camera.setViewLimitsY(0.0f, 8.0f));
    EXPECT_EQ(displayed(camera), (Limits{0.0f, 4.0f, 0.0f, 8.0f}));
    EXPECT_FALSE(camera.setViewLimitsX(3.0f, 3.0f));
    EXPECT_FALSE(camera.setViewLimitsY(std::nanf(""), 1.0f));
    EXPECT_EQ(displayed(camera), (Limits{0.0f, 4.0f, 0.0f, 8.0f}));
}

TEST(Camera2d, polarLimitsAreRadii)
{
    Camera2d camera = cameraOf(100, 100, 3);
    camera.setCameraMode(Camera2d::ModePolar);
    camera.setPolarLimits(1.0f, 5.0f);
    EXPECT_EQ(camera.getPolarMin(), 5.0f);
    EXPECT_EQ(camera.getPolarMax(), 6.0f);
    camera.setPolarLimits(7.0f, 3.0f);
    EXPECT_EQ(displayed(camera), (Limits{-4.0f, 4.0f, -4.0f, 4.0f}));
    EXPECT_EQ(camera.getActualPolarRadius(), 4.0f);
    EXPECT_EQ(reported(camera), (Limits{3.0f, 7.0f, 0.0f, 0.0f}));

    // A zoom moves the outer limit, and the merge makes it the base.
    camera.setAdditionalScale(0.5f, 0.5f, 0.5f);
    EXPECT_EQ(reported(camera), (Limits{3.0f, 5.0f, 0.0f, 0.0f}));
    EXPECT_EQ(displayed(camera), (Limits{-2.0f, 2.0f, -2.0f, 2.0f}));
    EXPECT_EQ(camera.getPolarMax(), 7.0f);
    camera.mergeAdditionalTransformation();
    EXPECT_EQ(reported(camera), (Limits{3.0f, 5.0f, 0.0f, 0.0f}));
    EXPECT_EQ(camera.getPolarMax(), 5.0f);

    camera.setAdditionalScale(0.5f, 0.5f, -1.0f);
    EXPECT_EQ(reported(camera), (Limits{3.0f, 3.0f, 0.0f, 0.0f}));
    camera.discardAdditionalTransformation();
    EXPECT_EQ(reported(camera), (Limits{3.0f, 5.0f, 0.0f, 0.0f}));
}

TEST(Camera2d, theOneDimensionalModeAlwaysShowsMinusOneToOneInY)
{
    for (const int behaviour : {0, 1, 2, 3, 4, 5}) {
        Camera2d camera = cameraOf(100, 100, behaviour);
        camera.setCameraMode(Camera2d::ModeOneDimensional);
        camera.setViewLimits(2.0f, 6.0f, 10.0f, 30.0f);
        camera.setAdditionalScale(0.5f, 0.5f, 0.5f);
        camera.setAdditionalRelativeViewOffset(0.0f, 3.0f);
        EXPECT_EQ(camera.getActualMinY(), -1.0f);
        EXPECT_EQ(camera.getActualMaxY(), 1.0f);
        camera.mergeAdditionalTransformation();
        camera.setRenderArea(300, 300, 0, 0, 300, 20);
        EXPECT_EQ(camera.getActualMinY(), -1.0f);
        EXPECT_EQ(camera.getActualMaxY(), 1.0f);
    }
    // A wide area does not change the x range, whatever the behaviour.
    Camera2d camera = cameraOf(100, 100, 1);
    camera.setCameraMode(Camera2d::ModeOneDimensional);
    camera.setViewLimits(2.0f, 6.0f, 0.0f, 4.0f);
    camera.setRenderArea(300, 300, 0, 0, 300, 20);
    EXPECT_EQ(camera.getActualMinX(), 2.0f);
    EXPECT_EQ(camera.getActualMaxX(), 6.0f);
}

TEST(Camera2d, zoomKeepsItsCentreFixed)
{
    forRandomViews([](Camera2d& camera, RandomViews& random) {
        const float cx = random.uniform(0.0f, 1.0f);
        const float cy = random.uniform(0.0f, 1.0f);
        const float factor = random.uniform(0.2f, 4.0f);
        const Limits before = displayed(camera);
        const float width = before[1] - before[0];
        const float height = before[3] - before[2];
        camera.setAdditionalScale(cx, cy, factor);
        const Limits after = displayed(camera);
        const float rounding =
            1e-5f * std::max({factor, 1.0f / factor, 1.0f}) *
            std::max({std::abs(before[0]), std::abs(before[1]), std::abs(before[2]), std::abs(before[3])});
        EXPECT_NEAR(after[0] + cx * (after[1] - after[0]), before[0] + cx * width, rounding);
        EXPECT_NEAR(after[2] + cy * (after[3] - after[2]), before[2] + cy * height, rounding);
        EXPECT_NEAR(after[1] - after[0], factor * width, rounding);
        EXPECT_EQ(base(camera), before);
    });
}

TEST(Camera2d, theLargerFactorPreservesTheRatio)
{
    Camera2d camera = cameraOf(100, 100, 5);
    camera.setViewLimits(0.0f, 4.0f, 0.0f, 4.0f);
    camera.setAdditionalScale(0.0f, 0.0f, 0.25f, 0.5f);
    EXPECT_EQ(displayed(camera), (Limits{0.0f, 2.0f, 0.0f, 2.0f}));
    camera.setPreserveAspectRatio(false);
    camera.setAdditionalScale(0.0f, 1.0f, 0.25f, 0.5f);
    EXPECT_EQ(displayed(camera), (Limits{0.0f, 1.0f, 2.0f, 4.0f}));
    camera.mergeAdditionalTransformation();
    EXPECT_EQ(base(camera), (Limits{0.0f, 1.0f, 2.0f, 4.0f}));
}

TEST(Camera2d, panMovesByAFractionOfTheDisplayedSize)
{
    Camera2d camera = cameraOf(100, 100, 3);
    camera.setViewLimits(0.0f, 4.0f, 0.0f, 4.0f);
    camera.setAdditionalRelativeViewOffset(0.25f, -0.5f);
    EXPECT_EQ(displayed(camera), (Limits{-1.0f, 3.0f, 2.0f, 6.0f}));
    camera.mergeAdditionalTransformation();
    EXPECT_EQ(base(camera), (Limits{-1.0f, 3.0f, 2.0f, 6.0f}));
}

TEST(Camera2d, mergingAZoomKeepsHalfTheRange)
{
    Camera2d camera = cameraOf(100, 100, 3);
    camera.setAdditionalScale(0.5f, 0.5f, 1.0f / 2.0f);
    camera.mergeAdditionalTransformation();
    EXPECT_EQ(displayed(camera), (Limits{0.25f, 0.75f, 0.25f, 0.75f}));
    EXPECT_EQ(base(camera), displayed(camera));
    EXPECT_EQ(camera.getProjectionTransformRH().get(1, 1), 4.0f);
}

TEST(Camera2d, magnificationStopsWhereFloatsCannotDistinguishTheEnds)
{
    // A range of 2 at 1000 is 2 / 2002, just below 0.0011920929; one of 4 is above.
    Camera2d camera = cameraOf(100, 100, 3);
    camera.setViewLimits(1000.0f, 1002.0f, 0.0f, 2.0f);
    const Limits before = displayed(camera);
    camera.setAdditionalScale(0.5f, 0.5f, 0.5f);
    EXPECT_EQ(displayed(camera), before);
    camera.setAdditionalScale(0.5f, 0.5f, 1.0f);
    EXPECT_EQ(displayed(camera), before);
    camera.setAdditionalScale(0.5f, 0.5f, 2.0f);
    EXPECT_EQ(displayed(camera), (Limits{999.0f, 1003.0f, -1.0f, 3.0f}));
    camera.mergeAdditionalTransformation();
    camera.setAdditionalScale(0.5f, 0.5f, 0.5f);
    EXPECT_EQ(displayed(camera), before);
}

TEST(Camera2d, rotationsAndTranslationsDoNothing)
{
    Camera2d camera = cameraOf(100, 100, 3);
    const std::vector<Matrixf> before = displayedMatrices(camera);
    camera.setAdditionalSceneRotation(1.0f, 1.0f, 1.0f);
    camera.setAdditionalRotation(1.0f, 1.0f, 1.0f);
    camera.setAdditionalSceneTranslation(1.0f, 1.0f, 1.0f);
    camera.setAdditionalTranslation(1.0f, 1.0f, 1.0f);
    camera.mergeAdditionalTransformation();
    EXPECT_EQ(displayedMatrices(camera), before);
}

using Drag = std::function<void(Camera2d&, float)>;

const std::vector<Drag>& drags()
{
    static const std::vector<Drag> all{
        [](Camera2d& c, float t) { c.setAdditionalScale(0.3f, 0.8f, 1.0f + 1.5f * t); },
        [](Camera2d& c, float t) { c.setAdditionalScale(0.3f, 0.8f, 1.0f - 0.5f * t, 1.0f - 0.6f * t); },
        [](Camera2d& c, float t) { c.setAdditionalRelativeViewOffset(0.2f * t, -0.4f * t); },
    };
    return all;
}

TEST(Camera2d, aDragInManyStepsEqualsItsLastStep)
{
    forRandomViews([](Camera2d& camera, RandomViews&) {
        for (const Drag& drag : drags()) {
            Camera2d inOneStep(camera);
            drag(inOneStep, 1.0f);
            Camera2d inManySteps(camera);
            for (int step = 1; step <= 16; ++step) {
                drag(inManySteps, static_cast<float>(step) / 16.0f);
            }
            EXPECT_EQ(displayedMatrices(inManySteps), displayedMatrices(inOneStep));
        }
    });
}

TEST(Camera2d, mergeAndDiscardKeepThePictureAndTheBase)
{
    forRandomViews([](Camera2d& camera, RandomViews&) {
        // The fixed pixel scale determines the limits by itself.
        if (camera.getOwnResizeBehaviour() == Resize::ResizePixels) {
            return;
        }
        for (const Drag& drag : drags()) {
            const std::vector<Matrixf> before = displayedMatrices(camera);
            drag(camera, 1.0f);
            const Limits shown = displayed(camera);
            EXPECT_NE(displayedMatrices(camera), before);
            camera.discardAdditionalTransformation();
            EXPECT_EQ(displayedMatrices(camera), before);
            drag(camera, 1.0f);
            camera.mergeAdditionalTransformation();
            EXPECT_EQ(base(camera), displayed(camera));
            const float rounding =
                1e-5f * (100.0f + std::abs(shown[0]) + std::abs(shown[1]) + std::abs(shown[2]) + std::abs(shown[3]));
            expectNear(displayed(camera), shown, rounding);
        }
    });
}

TEST(Camera2d, pixelsSurviveARoundTripThroughTheWorld)
{
    forRandomViews([](Camera2d& camera, RandomViews& random) {
        camera.setRenderArea(4000, 4000, random.integer(0, 99), random.integer(0, 99), random.integer(1, 2000),
                             random.integer(1, 2000));
        camera.setAdditionalScale(0.2f, 0.9f, 0.75f);
        const int x = random.integer(0, 2000);
        const int y = random.integer(0, 2000);
        const float depth = random.uniform(-1.0f, 1.0f);
        const Vector3f screen = camera.worldToScreenRH(camera.screenToWorld(x, y, depth));
        // A tenth of a pixel, or the float precision of the limits.
        const float unit = std::max(
            static_cast<float>(camera.getRenderAreaWidth()) / (camera.getActualMaxX() - camera.getActualMinX()),
            static_cast<float>(camera.getRenderAreaHeight()) / (camera.getActualMaxY() - camera.getActualMinY()));
        const Limits limits = displayed(camera);
        const float largest =
            std::max({std::abs(limits[0]), std::abs(limits[1]), std::abs(limits[2]), std::abs(limits[3])});
        const float rounding = 1e-3f + 1e-6f * unit * largest;
        EXPECT_NEAR(screen.x, static_cast<float>(x), rounding);
        EXPECT_NEAR(screen.y, static_cast<float>(y), rounding);
        EXPECT_EQ(screen.z, depth);
    });
}

TEST(Camera2d, jitterShiftsByFractionsOfPixelsUntilTheNextProjection)
{
    Camera2d camera = cameraOf(200, 100, 3);
    camera.setViewLimits(0.0f, 4.0f, 0.0f, 2.0f);
    const std::vector<Matrixf> still = displayedMatrices(camera);
    camera.jitterPerspective(0.25f, -0.5f);
    const Vector3f point(1.0f, 1.5f, 0.0f);
    EXPECT_EQ(camera.worldToScreenRH(point), Vector3f(50.25f, 74.5f, 0.0f));
    EXPECT_EQ(camera.worldToScreenLH(point).x, 50.25f);
    const Vector3f device = point.transformed(camera.getProjectionTransformRH());
    EXPECT_EQ(device.transformed(camera.getInvProjectionTransformRH()), point);
    camera.jitterPerspective(0.0f, 0.0f);
    EXPECT_EQ(displayedMatrices(camera), still);
}

TEST(Camera2d, worldToPixelScaleIsThatOfTheCoarserAxis)
{
    Camera2d camera = cameraOf(200, 100, 5);
    camera.setViewLimits(0.0f, 4.0f, 0.0f, 2.0f);
    EXPECT_EQ(camera.worldToPixelScale({9.0f, 9.0f, 9.0f}), 50.0f);
    camera.setRenderArea(4000, 4000, 0, 0, 200, 50);
    EXPECT_EQ(camera.worldToPixelScale({0.0f, 0.0f, 0.0f}), 25.0f);
}

TEST(Camera2d, axisScalesFollowTheSceneWhileTheyAreAutomatic)
{
    Camera2d camera = cameraOf(200, 100, 5);
    const BoundingBox scene(0.0f, 8.0f, 0.0f, 2.0f, 0.0f, 5.0f);
    camera.setBoundingBox(scene);
    EXPECT_EQ(camera.getAxisViewScaleX(), 1.0f);
    EXPECT_EQ(camera.getAxisViewScaleY(), 4.0f);
    camera.setPreserveAspectRatio(false);
    camera.setBoundingBox(scene);
    EXPECT_EQ(camera.getAxisViewScaleY(), 2.0f); // Times height over width.
    camera.setBoundingBox(BoundingBox());
    EXPECT_EQ(camera.getAxisViewScaleY(), 0.5f);
    camera.setBoundingBox(BoundingBox(3.0f, 3.0f, 0.0f, 2.0f, 0.0f, 0.0f));
    EXPECT_EQ(camera.getAxisViewScaleX(), 1.0f);

    camera.setAxisViewScales(5.0f, 7.0f);
    EXPECT_TRUE(camera.isAxisViewScalesAuto());
    camera.resetAxisViewScales();
    EXPECT_FALSE(camera.isAxisViewScalesAuto());
    camera.setBoundingBox(scene);
    EXPECT_EQ(camera.getAxisViewScaleY(), 1.0f);
    camera.setAxisViewScalesAuto();
    EXPECT_EQ(camera.getAxisViewScaleY(), 2.0f);
}

TEST(Camera2d, moveToBoundingBoxGivesFlatBoxesAMargin)
{
    struct Case {
        BoundingBox box;
        float margin;
        Camera2d::CameraMode2D mode;
        Limits reported; ///< in a square area
    };
    const auto box = [](float x0, float x1, float y0, float y1) { return BoundingBox(x0, x1, y0, y1, 0.0f, 0.0f); };
    const Case cases[] = {
        {box(0.0f, 4.0f, 0.0f, 4.0f), 0.25f, Camera2d::ModeOrdinary, {-1.0f, 5.0f, -1.0f, 5.0f}},
        {box(0.0f, 4.0f, 1.0f, 1.0f), 0.25f, Camera2d::ModeOrdinary, {-1.0f, 5.0f, -2.0f, 4.0f}},
        {box(1.0f, 1.0f, 0.0f, 4.0f), 0.25f, Camera2d::ModeOrdinary, {-2.0f, 4.0f, -1.0f, 5.0f}},
        {box(2.0f, 2.0f, 3.0f, 3.0f), 0.25f, Camera2d::ModeOrdinary, {1.0f, 3.0f, 2.0f, 4.0f}},
        {box(0.0f, 4.0f, 0.0f, 4.0f), 0.0f, Camera2d::ModeOrdinary, {-1.0f, 5.0f, -1.0f, 5.0f}},
        {BoundingBox(), 0.5f, Camera2d::ModeOrdinary, {-1.0f, 1.0f, -1.0f, 1.0f}},
        {box(0.0f, 4.0f, 1.0f, 3.0f), 0.5f, Camera2d::ModePolar, {1.0f, 4.0f, 0.0f, 0.0f}},
        {box(0.0f, 4.0f, 2.0f, 2.0f), 0.5f, Camera2d::ModePolar, {1.0f, 3.0f, 0.0f, 0.0f}},
        {box(0.0f, 0.0f, 2.0f, 2.0f), 0.5f, Camera2d::ModePolar, {2.0f, 3.0f, 0.0f, 0.0f}},
    };
    for (std::size_t i = 0; i < std::size(cases); ++i) {
        Camera2d camera = cameraOf(100, 100, 3);
        camera.setCameraMode(cases[i].mode);
        camera.moveToBoundingBox(cases[i].box, cases[i].margin);
        SCOPED_TRACE(i);
        expectNear(reported(camera), cases[i].reported, 1e-5f);
    }
}

TEST(Camera2d, theViewOfABoxIsFlat)
{
    const Camera2d camera;
    EXPECT_EQ(camera.getViewBoundingBox(BoundingBox(0.0f, 2.0f, 1.0f, 3.0f, 4.0f, 9.0f)),
              BoundingBox(0.0f, 2.0f, 1.0f, 3.0f, 0.0f, 0.0f));
    EXPECT_FALSE(camera.getViewBoundingBox(BoundingBox()).isValid());
}

TEST(Camera2d, importCopiesTheBaseAndKeepsTheArea)
{
    Camera2d source = cameraOf(200, 100, 3);
    source.setPreserveAspectRatio(false);
    source.setViewLimits(0.0f, 4.0f, 0.0f, 1.0f);
    source.setCameraMode(Camera2d::ModePolar);
    source.setPolarLimits(7.0f, 3.0f);
    source.setBoundingBox(BoundingBox(0.0f, 8.0f, 0.0f, 2.0f, 0.0f, 5.0f));
    source.setAdditionalScale(0.5f, 0.5f, 0.5f);
    Camera2d target = cameraOf(50, 30, 5);
    target.import(source);
    EXPECT_EQ(target.getRenderAreaWidth(), 50);
    EXPECT_EQ(target.getRenderAreaHeight(), 30);
    EXPECT_EQ(base(target), base(source));
    EXPECT_EQ(displayed(target), base(source));                      // Not the displayed limits of the source,
    EXPECT_EQ(displayedMatrices(target), displayedMatrices(source)); // whose matrices are copied unchanged.
    EXPECT_EQ(target.getPolarMin(), 3.0f);
    EXPECT_EQ(target.getActualPolarMax(), source.getActualPolarMax());
    EXPECT_EQ(target.getActualPolarRadius(), source.getActualPolarRadius());
    EXPECT_EQ(target.getCameraMode(), Camera2d::ModePolar);
    EXPECT_EQ(target.getOwnResizeBehaviour(), 3);
    EXPECT_EQ(target.getAxisViewScaleY(), source.getAxisViewScaleY());
    EXPECT_EQ(target.getViewingScaleX(), source.getViewingScaleX());
    EXPECT_EQ(target.getSceneBox(), source.getSceneBox());
    EXPECT_FALSE(target.isPreserveAspectRatio());
    // The zoom was not copied.
    target.setCameraMode(Camera2d::ModeOrdinary);
    target.setAdditionalRelativeViewOffset(0.0f, 0.0f);
    EXPECT_EQ(displayed(target), base(source));

    const Limits before = displayed(source);
    source.import(source);
    EXPECT_EQ(displayed(source), before);
}

TEST(Camera2d, aCopyShowsTheSame)
{
    Camera2d source = cameraOf(200, 100, 3);
    source.setViewLimits(0.0f, 4.0f, 0.0f, 1.0f);
    source.setAdditionalScale(0.5f, 0.5f, 0.5f);
    Camera2d copy(source);
    EXPECT_EQ(displayed(copy), displayed(source));
    EXPECT_EQ(displayedMatrices(copy), displayedMatrices(source));
    EXPECT_EQ(copy.getRenderAreaWidth(), 200);
    copy.discardAdditionalTransformation();
    EXPECT_EQ(displayed(copy), base(source));
}

TEST(Camera2d, extremeInputNeverFails)
{
    Camera2d camera;
    camera.setAxisViewScales(0.0f, 0.0f);
    camera.setRenderArea(std::numeric_limits<int>::min(), 0, 5, 5, std::numeric_limits<int>::max(), 1);
    camera.screenToWorld(std::numeric_limits<int>::max(), 0, 0.0f);
    camera.setViewLimits(-std::numeric_limits<float>::max(), std::numeric_limits<float>::max(), 0.0f, 0.0f);
    camera.setAdditionalScale(0.0f, 0.0f, std::nanf(""));
    camera.mergeAdditionalTransformation();
    EXPECT_EQ(camera.getRenderAreaLeft(), std::numeric_limits<int>::min());

    camera.setAxisViewScales(1.0f, 1.0f);
    camera.setRenderArea(100, 100, 0, 0, 100, 100);
    EXPECT_TRUE(camera.setViewLimits(0.0f, 1.0f, 0.0f, 1.0f));
    EXPECT_EQ(displayed(camera), (Limits{0.0f, 1.0f, 0.0f, 1.0f}));
}

TEST(Camera2d, underFixedPixelsAZoomEndsWithItsMerge)
{
    Camera2d camera;
    camera.setOverrideResizeBehaviour(true, Resize::ResizePixels);
    camera.setRenderArea(200, 100, 0, 0, 200, 100);
    camera.setViewLimits(0.0f, 20.0f, 0.0f, 10.0f);
    camera.setAdditionalScale(0.5f, 0.5f, 0.5f);
    EXPECT_EQ(displayed(camera), (Limits{5.0f, 15.0f, 2.5f, 7.5f}));
    camera.mergeAdditionalTransformation();
    EXPECT_EQ(displayed(camera), (Limits{0.0f, 20.0f, 0.0f, 10.0f}));
    camera.setRenderArea(400, 100, 0, 0, 400, 100);
    EXPECT_EQ(displayed(camera), (Limits{-10.0f, 30.0f, 0.0f, 10.0f}));
}

} // namespace
} // namespace vxgraphics3d
