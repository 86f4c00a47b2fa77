#include "interaction/camerainteraction.h"

#include "tests/interaction/testview.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <stdexcept>
#include <utility>

namespace vxinteraction {
namespace {

constexpr float c_nan = std::numeric_limits<float>::quiet_NaN();
/// The error of single precision in pixels, for areas of up to a thousand.
constexpr float c_pixelError = 0.05f;

void expectAt(const AreaPoint& place, float x, float y, float error = c_pixelError)
{
    EXPECT_NEAR(place.x, x, error);
    EXPECT_NEAR(place.y, y, error);
}

/// Runs one drag and checks how a point of the scene moves in the picture, before and after the release.
void expectFollows(TestView& view, Action action, const Vector3f& point)
{
    CameraInteraction interaction = view.interaction(action);
    const TestView::Pixel start = view.anyPixel();
    const AreaPoint before = view.project(point);
    const int dx = view.integer(-150, 150);
    const int dy = view.integer(1, 150);
    ASSERT_TRUE(interaction.press(1, 0, start.x, start.y));
    EXPECT_EQ(interaction.getAction(), action);
    EXPECT_TRUE(interaction.drag(start.x + dx, start.y + dy));
    const AreaPoint expected = {before.x + static_cast<float>(dx), before.y - static_cast<float>(dy)};
    expectAt(view.project(point), expected.x, expected.y);
    interaction.release();
    expectAt(view.project(point), expected.x, expected.y);
    EXPECT_FALSE(interaction.isDragging());
}

TEST(CameraInteraction, panMovesThePictureWithThePointer)
{
    forRandomViews({Perspective, Orthographic, Planar}, [](TestView& view) {
        const Vector3f point = view.camera().getRotationPoint() + view.vector(1.0f);
        expectFollows(view, Action::ActionPan, point);
    });
}

TEST(CameraInteraction, movesKeepTheRotationPointUnderThePointer)
{
    forRandomViews({Perspective, Orthographic}, [](TestView& view) {
        const Vector3f point = view.camera().getRotationPoint();
        expectFollows(view, Action::ActionSceneMove, point);
        expectFollows(view, Action::ActionMove, point);
        // The second drag begins where the first left the rotation point: far from the line of sight.
        expectFollows(view, Action::ActionSceneMove, point);
    });
}

TEST(CameraInteraction, zoomKeepsThePositionOfThePressFixed)
{
    forRandomViews({Perspective, Orthographic, Planar}, [](TestView& view) {
        if (!canZoom(view)) {
            return;
        }
        CameraInteraction interaction = view.interaction(Action::ActionZoom);
        const Vector3f point = view.camera().getRotationPoint() + view.vector(1.0f);
        const TestView::Pixel start = view.anyPixel();
        const AreaPoint before = view.project(point);
        // Moving up by the zoom speed doubles the picture; moving down halves it.
        for (const float larger : {2.0f, 0.5f}) {
            ASSERT_TRUE(interaction.press(1, 0, start.x, start.y));
            EXPECT_TRUE(interaction.drag(start.x + 17, start.y + (larger > 1.0f ? -200 : 200)));
            const float x = start.middle.x + (before.x - start.middle.x) * larger;
            const float y = start.middle.y + (before.y - start.middle.y) * larger;
            expectAt(view.project(point), x, y, 0.2f);
            interaction.release();
            expectAt(view.project(point), x, y, 0.2f);
            // Back again, which also shows that zooming in and out cancel each other.
            ASSERT_TRUE(interaction.press(1, 0, start.x, start.y));
            interaction.drag(start.x, start.y + (larger > 1.0f ? 200 : -200));
            interaction.release();
            expectAt(view.project(point), before.x, before.y, 0.2f);
        }
    });
}

TEST(CameraInteraction, wheelZoomsAboutThePointerAndBack)
{
    forRandomViews({Perspective, Orthographic, Planar}, [](TestView& view) {
        if (!canZoom(view)) {
            return;
        }
        CameraInteraction interaction = view.interaction();
        const Vector3f point = view.camera().getRotationPoint() + view.vector(1.0f);
        const TestView::Pixel pointer = view.anyPixel();
        const AreaPoint before = view.project(point);
        // Four notches are one step: away from the user, they double the picture.
        EXPECT_TRUE(interaction.wheel(-4.0, pointer.x, pointer.y));
        expectAt(view.project(point), 2.0f * before.x - pointer.middle.x, 2.0f * before.y - pointer.middle.y, 0.2f);
        for (int i = 0; i < 4; ++i) {
            EXPECT_TRUE(interaction.wheel(1.0, pointer.x, pointer.y));
        }
        expectAt(view.project(point), before.x, before.y, 0.2f);
        // All of it is committed.
        const auto picture = view.picture();
        EXPECT_FALSE(interaction.cancel());
        EXPECT_EQ(view.picture(), picture);
    });
}

TEST(CameraInteraction, orbitMovesTheNearSideWithThePointer)
{
    const ProcessDefaults defaults;
    for (const Kind kind : {Perspective, Orthographic}) {
        TestView view = frontView(kind);
        CameraInteraction interaction = view.interaction(Action::ActionOrbit);
        const Vector3f nearSide(0.0f, 0.0f, 1.0f);
        ASSERT_TRUE(interaction.press(1, 0, 200, 100));
        interaction.drag(220, 100);
        EXPECT_GT(view.project(nearSide).x, 210.0f);
        EXPECT_NEAR(view.project(nearSide).y, 100.0f, c_pixelError);
        // 20 pixels at 0.01 radians.
        const Vector3f eye = view.camera3d().getActualPosition();
        EXPECT_NEAR(eye.x, -10.0f * std::sin(0.2f), 1e-5f);
        EXPECT_NEAR(eye.z, 10.0f * std::cos(0.2f), 1e-5f);
        interaction.drag(200, 120);
        EXPECT_LT(view.project(nearSide).y, 90.0f);
        EXPECT_NEAR(view.project(nearSide).x, 200.0f, c_pixelError);
        EXPECT_NEAR(view.camera3d().getActualPosition().y, 10.0f * std::sin(0.2f), 1e-5f);
        // The rotation point stays where it is.
        expectAt(view.project({0.0f, 0.0f, 0.0f}), 200.0f, 100.0f);
    }
}

TEST(CameraInteraction, rollsRotateThePictureByTheAngleOfThePointer)
{
    const ProcessDefaults defaults;
    for (const Kind kind : {Perspective, Orthographic}) {
        for (const Action action : {Action::ActionRoll, Action::ActionOrbitRoll}) {
            // With the rotation point ahead of the eye and behind it.
            for (const float eye : {10.0f, -10.0f}) {
                TestView view = frontView(kind);
                view.camera3d().lookAt({0.0f, 0.0f, eye}, {0.0f, 0.0f, -1.0f}, {0.0f, 1.0f, 0.0f});
                view.camera3d().setRelativeViewOffset(0.25f, -0.25f);
                CameraInteraction interaction = view.interaction(action);
                // The point straight ahead is at (300, 50) from below. The pointer moves a quarter of a circle about
                // it, from the right to the top, and so does a point of the scene.
                const Vector3f ahead(0.0f, 0.0f, eye - 10.0f);
                const Vector3f beside(0.5f, 0.0f, eye - 10.0f);
                expectAt(view.project(beside), 350.0f, 50.0f);
                const TestView::Pixel press = view.pixel(339, 49);
                ASSERT_TRUE(interaction.press(1, 0, press.x, press.y));
                const TestView::Pixel pointer = view.pixel(300, 79);
                ASSERT_TRUE(interaction.drag(pointer.x, pointer.y));
                interaction.release();
                const float turned = std::atan2(29.5f, 0.5f) - std::atan2(-0.5f, 39.5f);
                expectAt(view.project(beside), 300.0f + 50.0f * std::cos(turned), 50.0f + 50.0f * std::sin(turned));
                expectAt(view.project(ahead), 300.0f, 50.0f);
            }
        }
    }
}

TEST(CameraInteraction, orbitRollKeepsARotationPointOffTheLineOfSight)
{
    forRandomViews({Perspective, Orthographic}, [](TestView& view) {
        CameraInteraction interaction = view.interaction(Action::ActionOrbitRoll);
        const Vector3f point = view.camera().getRotationPoint();
        const AreaPoint before = view.project(point);
        const TestView::Pixel start = view.anyPixel();
        ASSERT_TRUE(interaction.press(1, 0, start.x, start.y));
        ASSERT_TRUE(interaction.drag(start.x + 40, start.y - 70));
        expectAt(view.project(point), before.x, before.y);
    });
}

TEST(CameraInteraction, turnKeepsThePointAheadUnderThePointer)
{
    forRandomViews({Perspective}, [](TestView& view) {
        Camera3d& camera = view.camera3d();
        const Vector3f ahead = (camera.getPosition() + 10.0f * camera.getForward())
                                   .scaled(1.0f / camera.getAxisViewScaleX(), 1.0f / camera.getAxisViewScaleY(),
                                           1.0f / camera.getAxisViewScaleZ());
        const Vector3f position = camera.getPosition();
        expectFollows(view, Action::ActionTurn, ahead);
        EXPECT_EQ(camera.getPosition(), position);
    });
    const ProcessDefaults defaults;
    TestView view = frontView(Orthographic);
    CameraInteraction interaction = view.interaction(Action::ActionTurn);
    ASSERT_TRUE(interaction.press(1, 0, 200, 100));
    ASSERT_TRUE(interaction.drag(230, 110));
    expectAt(view.project({0.0f, 0.0f, 0.0f}), 230.0f, 90.0f, 0.1f);
}

TEST(CameraInteraction, dolliesMoveForwardsByTheSizeOfTheScene)
{
    const ProcessDefaults defaults;
    TestView view = frontView(Perspective);
    Camera3d& camera = view.camera3d();
    const float radius = std::sqrt(3.0f);
    const BoundingBox box(-1.0f, 1.0f, -1.0f, 1.0f, -1.0f, 1.0f);
    camera.moveToBoundingBox(box, box, 0.0f);
    ASSERT_NEAR(camera.getDollySpeedScale(), radius, 1e-6f);
    camera.lookAt({0.0f, 0.0f, 10.0f}, {3.0f, 0.0f, -4.0f}, {0.0f, 1.0f, 0.0f});
    const float step = 50.0f * 0.02f * radius;

    CameraInteraction interaction = view.interaction(Action::ActionDolly);
    ASSERT_TRUE(interaction.press(1, 0, 200, 100));
    ASSERT_TRUE(interaction.drag(230, 50));
    interaction.release();
    EXPECT_NEAR(camera.getPosition().x, 0.6f * step, 1e-5f);
    EXPECT_NEAR(camera.getPosition().z, 10.0f - 0.8f * step, 1e-5f);

    camera.lookAt({0.0f, 0.0f, 10.0f}, {3.0f, 0.0f, -4.0f}, {0.0f, 1.0f, 0.0f});
    CameraInteraction towardsPoint = view.interaction(Action::ActionSceneDolly);
    ASSERT_TRUE(towardsPoint.press(1, 0, 200, 100));
    ASSERT_TRUE(towardsPoint.drag(200, 150));
    towardsPoint.release();
    EXPECT_NEAR(camera.getPosition().x, 0.0f, 1e-5f);
    EXPECT_NEAR(camera.getPosition().z, 10.0f + step, 1e-5f);
}

TEST(CameraInteraction, movesEvenWithTheRotationPointBehindTheEye)
{
    const ProcessDefaults defaults;
    for (const Action action : {Action::ActionMove, Action::ActionSceneMove}) {
        TestView view = frontView(Perspective);
        view.camera3d().lookAt({0.0f, 0.0f, -10.0f}, {0.0f, 0.0f, -1.0f}, {0.0f, 1.0f, 0.0f});
        CameraInteraction interaction = view.interaction(action);
        ASSERT_TRUE(interaction.press(1, 0, 200, 100));
        ASSERT_TRUE(interaction.drag(220, 110));
        // At the distance of the rotation point, but ahead, a unit has 100 pixels.
        expectAt(view.project({0.0f, 0.0f, -20.0f}), 220.0f, 90.0f);
    }
}

TEST(CameraInteraction, manyEventsEqualOneExactlyAndCancelRestoresThePicture)
{
    forRandomViews({Perspective, Orthographic, Planar}, [](TestView& view) {
        const auto before = view.picture();
        for (int number = 0; number < Action::ActionNone; ++number) {
            const auto action = static_cast<Action>(number);
            CameraInteraction interaction = view.interaction(action);
            const TestView::Pixel start = view.anyPixel();
            const int x = start.x + view.integer(-90, 90);
            const int y = start.y + view.integer(-90, -1);
            if (!interaction.press(1, 0, start.x, start.y)) {
                EXPECT_TRUE(view.isPlanar() && action != Action::ActionPan && action != Action::ActionZoom);
                continue;
            }
            interaction.drag(x, y);
            const auto once = view.picture();
            EXPECT_NE(once, before) << "action " << number;
            EXPECT_TRUE(interaction.cancel());
            EXPECT_EQ(view.picture(), before) << "action " << number;

            ASSERT_TRUE(interaction.press(1, 0, start.x, start.y));
            for (int i = 0; i < 20; ++i) {
                interaction.drag(start.x + view.integer(-300, 300), start.y + view.integer(-300, 300));
            }
            interaction.drag(x, y);
            EXPECT_EQ(view.picture(), once) << "action " << number;
            EXPECT_TRUE(interaction.cancel());
            EXPECT_EQ(view.picture(), before) << "action " << number;
        }
    });
}

TEST(CameraInteraction, thePathOfThePointerHasNoEffectAtTheLimitOfMagnification)
{
    const ProcessDefaults defaults;
    TestView flat;
    flat.settings->setRenderMode(Canvas3dSettings::RenderMode2d);
    flat.camera2d().setRenderArea(100, 100, 0, 0, 100, 100);
    flat.camera2d().setViewLimits(1000.0f, 1001.0f, 1000.0f, 1001.0f);
    TestView deep = frontView(Orthographic);
    deep.camera3d().setOrthographicSize(0.002f);
    for (TestView* view : {&flat, &deep}) {
        CameraInteraction interaction = view->interaction(Action::ActionZoom);
        ASSERT_TRUE(interaction.press(1, 0, 20, 30));
        interaction.drag(20, 20);
        const auto once = view->picture();
        interaction.drag(20, -300);
        interaction.drag(20, 300);
        interaction.drag(20, 20);
        EXPECT_EQ(view->picture(), once);
    }
}

TEST(CameraInteraction, theTableOfActionsSelectsByButtonAndKeys)
{
    const ProcessDefaults defaults;
    constexpr int shift = CameraInteraction::KeyShift;
    constexpr int control = CameraInteraction::KeyControl;
    const struct {
        int button;
        int keys;
        Action action;
    } table[] = {
        {1, 0, Action::ActionOrbit},         {1, shift, Action::ActionOrbitRoll},
        {1, control, Action::ActionTurn},    {1, shift | control, Action::ActionRoll},
        {2, 0, Action::ActionZoom},          {2, shift, Action::ActionSceneDolly},
        {2, control, Action::ActionDolly},   {3, 0, Action::ActionPan},
        {3, shift, Action::ActionSceneMove}, {3, control, Action::ActionMove},
    };
    TestView view = frontView(Perspective);
    CameraInteraction interaction(view.settings, view.canvasHeight);
    for (const auto& [button, keys, action] : table) {
        EXPECT_EQ(interaction.getAction(), Action::ActionNone);
        EXPECT_TRUE(interaction.press(button, keys, 10, 10));
        EXPECT_EQ(interaction.getAction(), action);
        EXPECT_TRUE(interaction.isDragging());
        interaction.release();
    }
    for (const auto& [button, keys] : {std::pair(2, shift | control), std::pair(1, int(CameraInteraction::KeyAlt)),
                                       std::pair(0, 0), std::pair(4, 0)}) {
        EXPECT_FALSE(interaction.press(button, keys, 10, 10));
        EXPECT_FALSE(interaction.isDragging());
    }
}

TEST(CameraInteraction, aClickCountsNoChange)
{
    const ProcessDefaults defaults;
    TestView view = frontView(Perspective);
    const int changes = view.camera3d().getChangeId();
    CameraInteraction interaction = view.interaction(Action::ActionOrbit);
    EXPECT_FALSE(interaction.drag(10, 10));
    interaction.release();
    EXPECT_FALSE(interaction.cancel());
    ASSERT_TRUE(interaction.press(1, 0, 20, 20));
    EXPECT_FALSE(interaction.drag(20, 20));
    interaction.release();
    ASSERT_TRUE(interaction.press(1, 0, 20, 20));
    EXPECT_FALSE(interaction.cancel());
    EXPECT_FALSE(interaction.wheel(0.0, 20, 20));
    EXPECT_EQ(view.camera3d().getChangeId(), changes);
}

TEST(CameraInteraction, onlyTheRenderAreaAcceptsThePointer)
{
    const ProcessDefaults defaults;
    TestView view = frontView(Perspective);
    view.canvasHeight = 300;
    // Columns 20 to 219; rows 50 to 149 from the top.
    view.camera3d().setRenderArea(400, 300, 20, 150, 200, 100);
    CameraInteraction interaction = view.interaction(Action::ActionPan);
    const struct {
        int x;
        int y;
        bool isInside;
    } places[] = {{20, 50, true},
                  {219, 149, true},
                  {19, 100, false},
                  {220, 100, false},
                  {100, 49, false},
                  {100, 150, false},
                  {-2000000000, 2000000000, false}};
    for (const auto& [x, y, isInside] : places) {
        EXPECT_EQ(interaction.press(1, 0, x, y), isInside) << x << ' ' << y;
        interaction.cancel();
        EXPECT_EQ(interaction.wheel(1.0, x, y), isInside) << x << ' ' << y;
    }
    view.camera3d().setRenderArea(400, 300, 0, 0, 0, 0);
    EXPECT_FALSE(interaction.press(1, 0, 0, 299));
    EXPECT_FALSE(interaction.zoomToRectangle(0, 0, 400, 300));
}

TEST(CameraInteraction, aSecondPressIsIgnoredOrFollowsALostRelease)
{
    const ProcessDefaults defaults;
    TestView view = frontView(Orthographic);
    CameraInteraction interaction = view.interaction(Action::ActionMove);
    ASSERT_TRUE(interaction.press(1, 0, 200, 100));
    interaction.drag(250, 100);
    EXPECT_FALSE(interaction.press(3, 0, 10, 10));
    EXPECT_FALSE(interaction.wheel(1.0, 200, 100));
    EXPECT_FALSE(interaction.zoomToRectangle(10, 10, 100, 100));
    EXPECT_EQ(interaction.getAction(), Action::ActionMove);
    EXPECT_NEAR(view.camera3d().getActualPosition().x, -0.5f, 1e-6f);
    EXPECT_EQ(view.camera3d().getPosition().x, 0.0f);
    EXPECT_TRUE(interaction.press(1, 0, 100, 100));
    EXPECT_NEAR(view.camera3d().getPosition().x, -0.5f, 1e-6f);
    interaction.drag(110, 100);
    EXPECT_NEAR(view.camera3d().getActualPosition().x, -0.6f, 1e-6f);
}

TEST(CameraInteraction, aDragStaysWithItsCameraAndItsPress)
{
    const ProcessDefaults defaults;
    TestView view = frontView(Orthographic);
    CameraInteraction interaction = view.interaction(Action::ActionMove);
    ASSERT_TRUE(interaction.press(1, 0, 200, 100));
    interaction.drag(210, 100);
    view.settings->setRenderMode(Canvas3dSettings::RenderMode2d);
    interaction.setCanvasHeight(777);
    process().setCameraMouseAction(1, 0, Action::ActionNone);
    EXPECT_TRUE(interaction.drag(250, 80));
    interaction.release();
    EXPECT_NEAR(view.camera3d().getPosition().x, -0.5f, 1e-6f);
    EXPECT_NEAR(view.camera3d().getPosition().y, -0.2f, 1e-6f);
    EXPECT_EQ(view.camera2d().getActualMinX(), 0.0f);
}

TEST(CameraInteraction, nonFiniteValuesNeverReachTheCamera)
{
    const ProcessDefaults defaults;
    TestView view = frontView(Perspective);
    const auto before = view.picture();
    process().setCameraMouseOrbitSpeed(c_nan);
    process().setCameraMouseDollySpeed(std::numeric_limits<float>::infinity());
    process().setCameraMouseZoomSpeed(0.0f);
    for (const Action action :
         {Action::ActionOrbit, Action::ActionDolly, Action::ActionSceneDolly, Action::ActionZoom}) {
        CameraInteraction interaction = view.interaction(action);
        ASSERT_TRUE(interaction.press(1, 0, 200, 100));
        EXPECT_FALSE(interaction.drag(210, 120));
        interaction.release();
        EXPECT_FALSE(interaction.wheel(1.0, 200, 100));
    }
    process().setCameraMouseZoomSpeed(200.0f);
    CameraInteraction interaction = view.interaction();
    EXPECT_FALSE(interaction.wheel(std::numeric_limits<double>::quiet_NaN(), 200, 100));
    EXPECT_FALSE(interaction.wheel(1e300, 200, 100));
    // An eye at the rotation point has no line to move across.
    view.camera3d().setRotationPoint({0.0f, 0.0f, 10.0f});
    CameraInteraction move = view.interaction(Action::ActionSceneMove);
    ASSERT_TRUE(move.press(1, 0, 200, 100));
    EXPECT_FALSE(move.drag(210, 120));
    EXPECT_EQ(view.picture(), before);
}

TEST(CameraInteraction, zoomToRectangleShowsAllOfItInTheMiddle)
{
    forRandomViews({Perspective, Orthographic, Planar}, [](TestView& view) {
        if (!canZoom(view)) {
            return;
        }
        CameraInteraction interaction = view.interaction();
        const Vector3f point = view.camera().getRotationPoint() + view.vector(1.0f);
        const AreaPoint before = view.project(point);
        const auto width = static_cast<float>(view.camera().getRenderAreaWidth());
        const auto height = static_cast<float>(view.camera().getRenderAreaHeight());
        const TestView::Pixel low = view.pixel(view.integer(0, 60), view.integer(0, 60));
        const TestView::Pixel high = view.pixel(view.integer(100, 199), view.integer(100, 199));
        EXPECT_FALSE(interaction.zoomToRectangle(low.x, low.y, low.x + 1, high.y));
        EXPECT_FALSE(interaction.zoomToRectangle(low.x, low.y, high.x, low.y - 1));
        expectAt(view.project(point), before.x, before.y, 0.0f);

        const bool isFlipped = view.integer(0, 1) == 1;
        EXPECT_TRUE(interaction.zoomToRectangle(isFlipped ? high.x : low.x, low.y, isFlipped ? low.x : high.x, high.y));
        const float larger = std::min(width / (high.middle.x - low.middle.x), height / (high.middle.y - low.middle.y));
        expectAt(view.project(point), width * 0.5f + (before.x - (low.middle.x + high.middle.x) * 0.5f) * larger,
                 height * 0.5f + (before.y - (low.middle.y + high.middle.y) * 0.5f) * larger, 0.5f);
    });
}

TEST(CameraInteraction, zoomToRectangleUsesOnlyThePartInTheRenderArea)
{
    forRandomViews({Perspective, Orthographic, Planar}, [](TestView& view) {
        CameraInteraction interaction = view.interaction();
        const Vector3f point = view.camera().getRotationPoint() + view.vector(1.0f);
        const AreaPoint before = view.project(point);
        // All columns of the lower part, so that nothing is scaled and the part moves to the middle.
        const TestView::Pixel top = view.pixel(0, 99);
        EXPECT_TRUE(interaction.zoomToRectangle(-5000, 5000, 5000, top.y));
        const auto height = static_cast<float>(view.camera().getRenderAreaHeight());
        expectAt(view.project(point), before.x, before.y + (height - 99.5f) * 0.5f);
        const auto picture = view.picture();
        EXPECT_FALSE(interaction.zoomToRectangle(2000, 2000, 3000, 3000));
        EXPECT_EQ(view.picture(), picture);
    });
}

TEST(CameraInteraction, leavesTheCameraUnchangedWhenDestroyed)
{
    const ProcessDefaults defaults;
    TestView view = frontView(Perspective);
    const auto before = view.picture();
    auto shown = before;
    {
        CameraInteraction interaction = view.interaction(Action::ActionOrbit);
        ASSERT_TRUE(interaction.press(1, 0, 200, 100));
        ASSERT_TRUE(interaction.drag(300, 100));
        shown = view.picture();
    }
    EXPECT_NE(shown, before);
    EXPECT_EQ(view.picture(), shown);
}

TEST(CameraInteraction, needsSettingsAndAPicture)
{
    EXPECT_THROW(CameraInteraction(nullptr, 100), std::invalid_argument);
    const auto settings = boost::make_shared<Canvas3dSettings>();
    EXPECT_THROW(CameraInteraction(settings, 0), std::invalid_argument);
    CameraInteraction interaction(settings, 1);
    EXPECT_THROW(interaction.setCanvasHeight(-1), std::invalid_argument);
}

} // namespace
} // namespace vxinteraction
