#pragma once

#include "graphics3d/cameras/camera2d.h"
#include "graphics3d/cameras/camera3d.h"
#include "graphics3d/canvas/canvas3dsettings.h"
#include "interaction/camerainteraction.h"
#include "tests/support/randomnumbers.h"

#include <gtest/gtest.h>

#include <boost/make_shared.hpp>

#include <cmath>
#include <initializer_list>
#include <numbers>
#include <string>
#include <vector>

namespace vxinteraction {

using vxgraphics3d::BoundingBox;
using vxgraphics3d::Camera2d;
using vxgraphics3d::Camera3d;
using vxgraphics3d::Canvas3dGlobalSettings;
using vxgraphics3d::Canvas3dSettings;
using vxgraphics3d::ICameraTransforms;
using vxgraphics3d::Matrixf;
using vxgraphics3d::Vector3f;
using Action = CameraInteraction::Action;

inline Canvas3dGlobalSettings& process()
{
    return *Canvas3dGlobalSettings::getInstance();
}

/// The default actions and speeds during its lifetime.
class ProcessDefaults {
public:
    ProcessDefaults() { set(true); }
    ~ProcessDefaults() { set(false); }

private:
    static void set(bool hasActions)
    {
        process().resetCameraMouseActions();
        if (hasActions) {
            process().setDefaultCameraMouseActions();
        }
        process().setCameraMouseOrbitSpeed(0.01f);
        process().setCameraMouseDollySpeed(0.02f);
        process().setCameraMouseZoomSpeed(200.0f);
    }
};

/// A view with its camera, in which the first button without keys has one action.
struct TestView : vxgraphics3d::RandomNumbers {
    boost::shared_ptr<Canvas3dSettings> settings = boost::make_shared<Canvas3dSettings>();
    int canvasHeight = 100;

    explicit TestView(unsigned seed = 1) : RandomNumbers(seed) {}

    Camera3d& camera3d() { return *settings->camera3d(); }
    Camera2d& camera2d() { return *settings->camera2d(); }
    ICameraTransforms& camera() { return settings->cameraTransforms(); }
    bool isPlanar() const { return settings->getRenderMode() == Canvas3dSettings::RenderMode2d; }

    /// A position in the picture, in pixels from the lower left corner of the render area.
    AreaPoint project(const Vector3f& point)
    {
        const Vector3f screen = camera().worldToScreenRH(point);
        // The camera of a 2D view counts from the corner of the canvas.
        const float left = isPlanar() ? static_cast<float>(camera().getRenderAreaLeft()) : 0.0f;
        const float bottom = isPlanar() ? static_cast<float>(camera().getRenderAreaBottom()) : 0.0f;
        return {screen.x - left, screen.y - bottom};
    }

    /// A pixel of the render area, as in mouse events, and its middle in the area.
    struct Pixel {
        int x;
        int y;
        AreaPoint middle;
    };
    Pixel pixel(int column, int row)
    {
        return {camera().getRenderAreaLeft() + column,
                canvasHeight - 1 - camera().getRenderAreaBottom() - row,
                {static_cast<float>(column) + 0.5f, static_cast<float>(row) + 0.5f}};
    }
    Pixel anyPixel()
    {
        return pixel(integer(0, camera().getRenderAreaWidth() - 1), integer(0, camera().getRenderAreaHeight() - 1));
    }

    /// Everything displayed that a drag may change.
    std::vector<Matrixf> picture()
    {
        return {camera().getViewTransform(), camera().getInvViewTransform(), camera().getRotationTransform(),
                camera().getProjectionTransformRH(), camera().getProjectionTransformLH()};
    }

    CameraInteraction interaction(Action action = Action::ActionPan) const
    {
        process().setCameraMouseAction(1, 0, action);
        return {settings, canvasHeight};
    }
};

enum Kind { Perspective, Orthographic, Planar };

/// A view whose render area is a part of the canvas, and whose camera looks near its rotation point but not at it.
inline TestView randomView(unsigned seed, Kind kind)
{
    TestView view(seed);
    const int left = view.integer(0, 100);
    const int bottom = view.integer(0, 100);
    const int width = view.integer(200, 900);
    const int height = view.integer(200, 900);
    view.canvasHeight = 1000;
    if (kind == Planar) {
        view.settings->setRenderMode(Canvas3dSettings::RenderMode2d);
        Camera2d& camera = view.camera2d();
        camera.setRenderArea(1000, 1000, left, bottom, width, height);
        camera.setViewLimits(view.uniform(-5.0f, 0.0f), view.uniform(1.0f, 5.0f), view.uniform(-5.0f, 0.0f),
                             view.uniform(1.0f, 5.0f));
        return view;
    }
    Camera3d& camera = view.camera3d();
    camera.setProjectionType(kind == Perspective ? Camera3d::ProjectionPerspective : Camera3d::ProjectionOrthographic);
    camera.setRenderArea(1000, 1000, left, bottom, width, height);
    camera.setAxisViewScales(view.uniform(0.5f, 2.0f), view.uniform(0.5f, 2.0f), view.uniform(0.5f, 2.0f));
    const Vector3f point = view.vector(5.0f);
    camera.setRotationPoint(point);
    camera.setFOV(view.uniform(10.0f, 40.0f));
    camera.setOrthographicSize(view.uniform(5.0f, 20.0f));
    camera.setRelativeViewOffset(view.uniform(-0.2f, 0.2f), view.uniform(-0.2f, 0.2f));
    const Vector3f centre =
        point.scaled(camera.getAxisViewScaleX(), camera.getAxisViewScaleY(), camera.getAxisViewScaleZ());
    const Vector3f direction = view.vector(1.0f) + Vector3f(0.0f, 0.0f, 1.5f);
    camera.lookAt(centre + view.vector(1.0f) - direction.normalized() * view.uniform(8.0f, 20.0f), direction,
                  view.vector(1.0f) + Vector3f(3.0f, 0.0f, 0.0f));
    camera.setBoundingBox(
        BoundingBox(point.x - 3.0f, point.x + 3.0f, point.y - 3.0f, point.y + 3.0f, point.z - 3.0f, point.z + 3.0f));
    // Also pictures whose pixels are not square.
    if (seed % 4 == 0) {
        camera.setOverrideResizeBehaviour(true, Canvas3dGlobalSettings::ResizeKeep);
        camera.setRenderArea(1000, 1000, left, bottom, height, width);
    }
    return view;
}

/// Whether the camera of a view can scale its picture.
inline bool canZoom(TestView& view)
{
    return !view.camera3d().isOverrideResizeBehaviour();
}

template <class Check>
void forRandomViews(std::initializer_list<Kind> kinds, Check check)
{
    const ProcessDefaults defaults;
    for (unsigned seed = 1; seed <= 100; ++seed) {
        for (const Kind kind : kinds) {
            SCOPED_TRACE("view " + std::to_string(seed) + " of kind " + std::to_string(kind));
            TestView view = randomView(seed, kind);
            check(view);
            if (testing::Test::HasFailure()) {
                return;
            }
        }
    }
}

/// Looks along negative z at the rotation point at the origin, from a distance of 10, through 400 by 200 pixels: the
/// height of 2 fills the picture, so a unit at the rotation point has 100 pixels.
inline TestView frontView(Kind kind)
{
    TestView view;
    view.canvasHeight = 200;
    Camera3d& camera = view.camera3d();
    camera.setOverrideResizeBehaviour(true, Canvas3dGlobalSettings::ResizeHeight);
    camera.setRenderArea(400, 200, 0, 0, 400, 200);
    camera.lookAt({0.0f, 0.0f, 10.0f}, {0.0f, 0.0f, -1.0f}, {0.0f, 1.0f, 0.0f});
    camera.setOrthographicSize(2.0f);
    camera.setFOV(static_cast<float>(std::atan(0.1) * 180.0 / std::numbers::pi));
    camera.setProjectionType(kind == Perspective ? Camera3d::ProjectionPerspective : Camera3d::ProjectionOrthographic);
    return view;
}

} // namespace vxinteraction
