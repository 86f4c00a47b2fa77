#include "renderer/decoration/lightmarkers.h"

#include "graphics3d/cameras/camera3d.h"
#include "graphics3d/canvas/canvas3dsettings.h"
#include "graphics3d/canvas/scenesettings.h"
#include "graphics3d/foundation/boundingbox.h"
#include "graphics3d/lights/directionlightsource.h"
#include "graphics3d/lights/pointlightsource.h"
#include "graphics3d/lights/scenelight.h"
#include "graphics3d/lights/scenesettingslight.h"
#include "graphics3d/lights/spotlightsource.h"
#include "renderer/frame/appearance.h"
#include "tests/renderer/support/testscene.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

namespace vxrenderer {
namespace {

using vxgraphics3d::BoundingBox;
using vxgraphics3d::Camera3d;
using vxgraphics3d::Color;
using vxgraphics3d::SceneLight;
using vxgraphics3d::Vector3f;

template <class Light>
Light& add(SceneLight& scene, int (SceneLight::*create)())
{
    vxgraphics3d::LightSource* light = scene.lightSource((scene.*create)());
    light->setMarkerVisibility(true);
    return static_cast<Light&>(*light);
}

TEST(LightMarkers, areWhereTheirLightsShineFrom)
{
    // (x, y, z) is at (y, z, x - 10) for the eye. Stretched, the box is a cube of 2 by 2 by 2: its radius is root 3.
    Camera3d camera;
    camera.lookAt({10.0f, 0.0f, 0.0f}, {-1.0f, 0.0f, 0.0f}, {0.0f, 0.0f, 1.0f});
    camera.setAxisViewScales(1.0f, 1.0f, 4.0f);
    const BoundingBox box(-1.0f, 1.0f, -1.0f, 1.0f, 0.0f, 0.5f);
    const float radius = std::sqrt(3.0f);
    const auto owner = SceneLight::create();
    SceneLight& light = *owner;
    add<vxgraphics3d::DirectionLightSource>(light, &SceneLight::createDirectionLight)
        .setFromDirection(true, Vector3f(0.0f, 3.0f, 4.0f));
    add<vxgraphics3d::PointLightSource>(light, &SceneLight::createPointLight)
        .setPosition(true, Vector3f(1.0f, 2.0f, 3.0f));
    auto& spot = add<vxgraphics3d::SpotLightSource>(light, &SceneLight::createSpotLight);
    spot.setPosition(false, Vector3f(1.0f, 2.0f, 3.0f));
    spot.setAtDirection(Vector3f(0.0f, 0.0f, -1.0f));
    spot.setSpreadAngle(2.0f * std::atan(0.75f));
    spot.setColor(Color::fromRgb(0x123456));
    spot.setActive(true);
    spot.setSelected(true);
    const auto markers = lightMarkers(light, box, camera);
    ASSERT_EQ(markers.size(), 3u);
    const auto expectPoint = [](const Vector3f& point, const Vector3f& expected) {
        EXPECT_LT((point - expected).length(), 1e-4f) << point.x << ' ' << point.y << ' ' << point.z;
    };
    // An arrow that ends before the scene, whose middle is at (0, 1, -10).
    const Vector3f middle(0.0f, 1.0f, -10.0f);
    const Vector3f from(0.6f, 0.8f, 0.0f);
    ASSERT_EQ(markers[0].solids.size(), 3u) << "a bulb, a shaft and a head";
    expectPoint(markers[0].solids[0].from, middle + from * (1.5f * radius));
    expectPoint(markers[0].solids[1].to, markers[0].solids[2].from);
    expectPoint(markers[0].solids[2].to, middle + from * (1.1f * radius));
    // Its lines go on to the plane through the middle of the scene.
    for (const LineSegment& line : markers[0].lines) {
        EXPECT_NEAR((line.to - middle).dot(from), 0.0f, 1e-4f);
    }
    // The bulb of a point light, and the line down to the bottom of the scene, which is at z = 0.
    expectPoint(markers[1].solids[0].from, {2.0f, 12.0f, -9.0f});
    EXPECT_TRUE(std::ranges::any_of(markers[1].lines, [](const LineSegment& line) {
        return (line.to - Vector3f(2.0f, 0.0f, -9.0f)).length() < 1e-4f && line.from.y > 11.0f;
    }));
    // The cone reaches as far as the middle of the scene lies along its axis, at the angle of the light.
    const Vector3f tip(1.0f, 2.0f, -7.0f);
    expectPoint(markers[2].solids[0].from, tip);
    int rims = 0;
    for (const LineSegment& line : markers[2].lines) {
        const Vector3f out = line.to - tip;
        if (std::abs(out.z + 0.8f * 3.0f) < 1e-4f) {
            EXPECT_NEAR(std::hypot(out.x, out.y), 0.6f * 3.0f, 1e-4f);
            ++rims;
        }
    }
    EXPECT_GE(rims, 24);
    EXPECT_EQ(markers[0].color, Color::fromRgb(0x808080)) << "does not shine";
    EXPECT_EQ(markers[2].color, Color::fromRgb(0x123456));
    EXPECT_TRUE(markers[2].isSelected);
    EXPECT_FALSE(markers[1].isSelected);
    // A scene of one point still has signs of some size.
    EXPECT_GT((lightMarkers(light, {0.0f, 0.0f, 0.0f, 0.0f, 0.0f, 0.0f}, camera)[0].solids[0].from -
               Vector3f(0.0f, 0.0f, -10.0f))
                  .length(),
              1.0f);
}

TEST(LightMarkers, arrowsLieWithinAFittedView)
{
    OffscreenCanvas canvas(200, 200, 1);
    TestScene scene;
    scene.addSquare(1, 0xffffff);
    showFromAbove(canvas, scene);
    canvas.getCanvas3dSettings()->addRenderMask(RenderLightMarkers);
    canvas.getSceneSettings()->getLight()->setRenderLightMarkers(true);
    auto& sun =
        add<vxgraphics3d::DirectionLightSource>(*scene.scene->getSceneLight(), &SceneLight::createDirectionLight);
    for (const auto projection : {Camera3d::ProjectionOrthographic, Camera3d::ProjectionPerspective}) {
        canvas.getCanvas3dSettings()->camera3d()->setProjectionType(projection);
        for (const Vector3f& from : {Vector3f(1.0f, 0.0f, 0.1f), Vector3f(-1.0f, 1.0f, 0.1f),
                                     Vector3f(0.1f, 0.2f, 1.0f), Vector3f(0.0f, -1.0f, 0.5f)}) {
            sun.setFromDirection(true, from);
            const int numDrawn = drawn(canvas).countDrawn(0, 0, 200, 200);
            EXPECT_GT(numDrawn, 8) << from;
            // Whole arrows: where the view reaches far, as many lines are seen.
            const auto markers = lightMarkers(*scene.scene->getSceneLight(), scene.scene->getBoundingBox(),
                                              *canvas.getCanvas3dSettings()->camera3d());
            for (const Solid& solid : markers[0].solids) {
                const Vector3f clip = canvas.getView().projection * solid.from;
                EXPECT_TRUE(std::abs(clip.x) <= 1.0f && std::abs(clip.y) <= 1.0f && std::abs(clip.z) <= 1.0f) << from;
            }
        }
    }
}

TEST(LightMarkers, showIfTheViewAndTheLightWantIt)
{
    OffscreenCanvas canvas(200, 200, 1);
    TestScene scene;
    scene.addSquare(1, 0xffffff);
    showFromAbove(canvas, scene);
    canvas.getCanvas3dSettings()->addRenderMask(RenderLightMarkers);
    auto& lamp = add<vxgraphics3d::PointLightSource>(*scene.scene->getSceneLight(), &SceneLight::createPointLight);
    lamp.setPosition(true, Vector3f(0.5f, 0.5f, 0.2f));
    lamp.setColor(Color::fromRgb(0xff00ff));
    lamp.setIntensity(1.0f);
    lamp.setActive(true);
    scene.scene->getSceneLight()->setAmbientIntensity(1.0f);
    auto& switches = *canvas.getSceneSettings()->getLight();
    const auto count = [&] { return drawn(canvas).countDrawn(0, 0, 200, 200); };
    EXPECT_EQ(count(), 0);
    switches.setRenderLightMarkers(true);
    const int thin = count();
    EXPECT_GT(thin, 20);
    const Rgb bulb = colorAt(canvas, drawn(canvas), {0.5f, 0.5f, 0.2f});
    EXPECT_TRUE(bulb[0] == bulb[2] && bulb[0] > bulb[1] + 100) << "shaded magenta";
    lamp.setSelected(true);
    EXPECT_GT(count(), thin + 60) << "the rays are wider";
    lamp.setMarkerVisibility(false);
    EXPECT_EQ(count(), 0);
    lamp.setMarkerVisibility(true);
    canvas.getCanvas3dSettings()->removeRenderMask(RenderLightMarkers);
    EXPECT_EQ(count(), 0);
}

} // namespace
} // namespace vxrenderer
