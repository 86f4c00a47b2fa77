#include "renderer/frame/lighting.h"

#include "graphics3d/cameras/camera3d.h"
#include "graphics3d/canvas/canvas3dsettings.h"
#include "graphics3d/canvas/scenesettings.h"
#include "graphics3d/lights/directionlightsource.h"
#include "graphics3d/lights/pointlightsource.h"
#include "graphics3d/lights/scenelight.h"
#include "graphics3d/lights/scenesettingslight.h"
#include "graphics3d/lights/spotlightsource.h"
#include "tests/renderer/support/testscene.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>
#include <functional>
#include <numbers>

namespace vxrenderer {
namespace {

using vxgraphics3d::Camera3d;
using vxgraphics3d::Color;
using vxgraphics3d::DirectionLightSource;
using vxgraphics3d::PointLightSource;
using vxgraphics3d::SceneLight;
using vxgraphics3d::SceneSettingsLight;
using vxgraphics3d::SpotLightSource;
using vxgraphics3d::Vector3f;
using Vec4 = Lighting::Vec4;

/// Adds a light that shines.
template <class Light>
Light& addLight(SceneLight& scene, int (SceneLight::*create)(), float intensity)
{
    vxgraphics3d::LightSource* light = scene.lightSource((scene.*create)());
    light->setIntensity(intensity);
    light->setActive(true);
    return static_cast<Light&>(*light);
}

DirectionLightSource& addSun(SceneLight& scene, float intensity, const Vector3f& from, bool world = true)
{
    auto& light = addLight<DirectionLightSource>(scene, &SceneLight::createDirectionLight, intensity);
    light.setFromDirection(world, from);
    return light;
}

PointLightSource& addLamp(SceneLight& scene, float intensity, const Vector3f& position, bool world = true)
{
    auto& light = addLight<PointLightSource>(scene, &SceneLight::createPointLight, intensity);
    light.setPosition(world, position);
    return light;
}

SpotLightSource& addSpot(SceneLight& scene, float intensity, const Vector3f& position, const Vector3f& at, float spread,
                         bool world = true)
{
    auto& light = addLight<SpotLightSource>(scene, &SceneLight::createSpotLight, intensity);
    light.setPosition(world, position);
    light.setAtDirection(at);
    light.setSpreadAngle(spread);
    return light;
}

void expectNear(const Vec4& value, const Vec4& expected)
{
    for (std::size_t i = 0; i < 4; ++i) {
        EXPECT_NEAR(value[i], expected[i], 1e-5f) << "component " << i;
    }
}

/// A camera at (10, 0, 0) that looks along -x with z upwards: (x, y, z) is at (y, z, x - 10) for its eye.
class LightingTest : public ::testing::Test {
protected:
    LightingTest() { m_camera.lookAt({10.0f, 0.0f, 0.0f}, {-1.0f, 0.0f, 0.0f}, {0.0f, 0.0f, 1.0f}); }

    Lighting lighting() const { return Lighting::of(m_light, m_switches, m_camera); }

    Camera3d m_camera;
    boost::shared_ptr<SceneLight> m_owner = SceneLight::create();
    SceneLight& m_light = *m_owner;
    SceneSettingsLight m_switches;
};

TEST_F(LightingTest, transformsPositionsAndDirectionsToTheEye)
{
    constexpr float spread = std::numbers::pi_v<float> / 1.5f;
    addSun(m_light, 1.0f, {3.0f, 0.0f, 4.0f});
    addLamp(m_light, 1.0f, {1.0f, 2.0f, 3.0f});
    addSpot(m_light, 1.0f, {1.0f, 2.0f, 3.0f}, {0.0f, 0.0f, -2.0f}, spread);
    m_camera.setRotationPoint({1.0f, 1.0f, 1.0f});
    addSun(m_light, 1.0f, {0.0f, 3.0f, 4.0f}, false);
    addLamp(m_light, 1.0f, {1.0f, 2.0f, 3.0f}, false);
    addSpot(m_light, 1.0f, {0.0f, 0.0f, 1.0f}, {0.0f, 0.0f, -2.0f}, 0.5f, false);
    const Lighting lights = lighting();
    ASSERT_EQ(lights.numLights, 6u);
    const Vec4 places[] = {{0.0f, 0.8f, 0.6f, 0.0f}, {2.0f, 3.0f, -9.0f, 1.0f}, {2.0f, 3.0f, -9.0f, 1.0f},
                           {0.0f, 0.6f, 0.8f, 0.0f}, {2.0f, 3.0f, -6.0f, 1.0f}, {1.0f, 1.0f, -8.0f, 1.0f}};
    const Vec4 everywhere = {0.0f, 0.0f, -1.0f, -2.0f};
    const Vec4 cones[] = {everywhere, everywhere, {0.0f, -1.0f, 0.0f, 0.5f},
                          everywhere, everywhere, {0.0f, 0.0f, -1.0f, std::cos(0.25f)}};
    for (std::size_t i = 0; i < 6; ++i) {
        SCOPED_TRACE(i);
        expectNear(lights.places[i], places[i]);
        expectNear(lights.cones[i], cones[i]);
    }
}

TEST_F(LightingTest, lightsInTheWorldFollowTheScalesOfTheAxes)
{
    m_camera.setRotationPoint({0.0f, 0.0f, 1.0f});
    m_camera.setAxisViewScales(1.0f, 3.0f, 4.0f);
    addSun(m_light, 1.0f, {0.0f, 1.0f, 0.0f});
    addLamp(m_light, 1.0f, {1.0f, 2.0f, 3.0f});
    // It goes on shining at the same things.
    addSpot(m_light, 1.0f, {0.0f, 0.0f, 0.0f}, {0.0f, 1.0f, 1.0f}, 1.0f);
    addLamp(m_light, 1.0f, {1.0f, 2.0f, 3.0f}, false);
    const Lighting lights = lighting();
    expectNear(lights.places[0], {1.0f, 0.0f, 0.0f, 0.0f});
    expectNear(lights.places[1], {6.0f, 12.0f, -9.0f, 1.0f});
    expectNear(lights.cones[2], {0.6f, 0.8f, 0.0f, std::cos(0.5f)});
    expectNear(lights.places[3], {1.0f, 6.0f, -7.0f, 1.0f});
}

TEST_F(LightingTest, dividesTheAmbientLightAmongScenesAndSources)
{
    m_light.setAmbientIntensity(0.6f);
    m_light.setGlobalAmbientColor(Color::fromRgb(0xff0000));
    auto& sun = addSun(m_light, 0.5f, {0.0f, 0.0f, 1.0f});
    sun.setColor(Color::fromRgb(0x00ff00));
    sun.setAmbientIntensity(4.0f);
    // Spotlights have no part in it, nor the intensity of all sources.
    addSpot(m_light, 1.0f, {}, {0.0f, 0.0f, 1.0f}, 1.0f).setAmbientIntensity(1.0f);
    m_light.setTotalLightSourceIntensity(0.25f);
    // 1 for the scene and 4 * 0.5 for the sun make 3: 0.6 / 3 per part.
    expectNear(lighting().ambient, {0.2f, 0.4f, 0.0f, 0.0f});
    m_switches.setAmbientLight(false);
    expectNear(lighting().ambient, {0.6f, 0.0f, 0.0f, 0.0f});
    m_switches.setGlobalAmbientLight(false);
    expectNear(lighting().ambient, {0.0f, 0.0f, 0.0f, 0.0f});
    m_switches.setAmbientLight(true);
    expectNear(lighting().ambient, {0.0f, 0.6f, 0.0f, 0.0f});
}

TEST_F(LightingTest, takesColorsIntensitiesAndSwitches)
{
    auto& sun = addSun(m_light, 0.5f, {0.0f, 0.0f, 1.0f});
    sun.setColor({255, 51, 0, 255});
    sun.setSpecularIntensity(0.5f);
    m_light.setTotalLightSourceIntensity(2.0f);
    expectNear(lighting().diffuse[0], {1.0f, 0.2f, 0.0f, 0.0f});
    expectNear(lighting().specular[0], {0.5f, 0.1f, 0.0f, 0.0f});
    m_switches.setDiffuseLight(false);
    expectNear(lighting().diffuse[0], {});
    expectNear(lighting().specular[0], {0.5f, 0.1f, 0.0f, 0.0f});
    m_switches.setSpecularLight(false);
    expectNear(lighting().specular[0], {});
    m_switches.setUseLight(false);
    EXPECT_FALSE(lighting().isUsed);
}

TEST_F(LightingTest, takesTheFirstEightThatShine)
{
    for (int i = 1; i <= 10; ++i) {
        addLamp(m_light, 1.0f, {static_cast<float>(i), 0.0f, 0.0f});
    }
    m_light.lightSource(1)->setActive(false);
    // Even with its flag set, a ninth light has no slot in the shader.
    m_light.lightSource(9)->setActiveFlag(true);
    m_light.lightSource(10)->setActiveFlag(true);
    const Lighting lights = lighting();
    EXPECT_EQ(lights.numLights, 8u);
    expectNear(lights.places[0], {0.0f, 0.0f, -8.0f, 1.0f});
    expectNear(lights.places[7], {0.0f, 0.0f, -1.0f, 1.0f});
}

constexpr int c_color = 0xc86428;
constexpr Rgb c_bare = {200, 100, 40};

/// The unit square from above in 160 by 160 pixels or so, with an ambient light of one quarter.
class LitSquareTest : public ::testing::Test {
protected:
    LitSquareTest() : m_plot(m_scene.addSquare(1, c_color)), m_light(*m_scene.scene->getSceneLight())
    {
        m_light.setAmbientIntensity(0.25f);
        showFromAbove(m_canvas, m_scene);
    }

    Camera3d& camera() { return *m_canvas.getCanvas3dSettings()->camera3d(); }
    Rgb at(float x, float y) { return colorAt(m_canvas, drawn(m_canvas), {x, y, 0.0f}); }
    Rgb middle() { return at(0.5f, 0.5f); }

    OffscreenCanvas m_canvas{200, 200, 1};
    TestScene m_scene;
    boost::shared_ptr<vxgraphics3d::SceneGraphPlotSurface3d> m_plot;
    SceneLight& m_light;
};

TEST_F(LitSquareTest, withoutASourceAmbientLightIsAll)
{
    EXPECT_EQ(middle(), (Rgb{50, 25, 10}));
    m_light.setGlobalAmbientColor(Color::fromRgb(0xff0000));
    EXPECT_EQ(middle(), (Rgb{50, 0, 0}));
    m_canvas.getSceneSettings()->getLight()->setUseLight(false);
    EXPECT_EQ(middle(), c_bare);
}

TEST_F(LitSquareTest, aDirectionLightCountsByItsAngle)
{
    auto& sun = addSun(m_light, 0.5f, {3.0f, 0.0f, 4.0f});
    for (const auto projection : {Camera3d::ProjectionOrthographic, Camera3d::ProjectionPerspective}) {
        camera().setProjectionType(projection);
        EXPECT_EQ(middle(), (Rgb{130, 65, 26})) << "0.25 + 0.5 * 0.8";
        EXPECT_EQ(at(0.1f, 0.9f), (Rgb{130, 65, 26}));
    }
    sun.setColor(Color::fromRgb(0xff0000));
    EXPECT_EQ(middle(), (Rgb{130, 25, 10}));
    sun.setIntensity(9.0f);
    EXPECT_EQ(middle(), (Rgb{255, 25, 10})) << "cut off";
    sun.setFromDirection(true, {});
    EXPECT_EQ(middle(), (Rgb{50, 25, 10})) << "a light from nowhere";
    // The other side of the square, by a light below it.
    sun.setColor(Color::fromRgb(0xffffff));
    sun.setIntensity(0.5f);
    sun.setFromDirection(true, {0.0f, 3.0f, -4.0f});
    EXPECT_EQ(middle(), (Rgb{50, 25, 10}));
    lookFrom(m_canvas, -90.0, -90.0);
    EXPECT_EQ(middle(), (Rgb{130, 65, 26}));
}

TEST_F(LitSquareTest, shinesOnlyWhereLightFalls)
{
    m_plot->setShininess(1.0f);
    auto& sun = addSun(m_light, 0.25f, {0.0f, 0.0f, 1.0f});
    sun.setSpecularIntensity(0.5f);
    // Half of the bare colour, and 0.125 of white that is mirrored straight to the eye.
    EXPECT_EQ(middle(), (Rgb{132, 82, 52}));
    sun.setFromDirection(true, {1.0f, 0.0f, -0.1f});
    EXPECT_EQ(middle(), (Rgb{50, 25, 10}));
}

TEST_F(LitSquareTest, aPointLightCountsByTheAngleAtEachPosition)
{
    addLamp(m_light, 0.75f, {0.5f, 0.5f, 0.4f});
    const struct {
        float x;
        double part;
    } places[] = {{0.5f, 1.0}, {0.8f, 0.85}, {0.2f, 0.85}};
    for (const auto projection : {Camera3d::ProjectionOrthographic, Camera3d::ProjectionPerspective}) {
        camera().setProjectionType(projection);
        for (const auto& place : places) {
            const Rgb color = at(place.x, 0.5f);
            for (std::size_t i = 0; i < 3; ++i) {
                // A pixel lies up to half of its width from the position.
                EXPECT_NEAR(color[i], c_bare[i] * place.part, 1.0) << place.x;
            }
        }
    }
}

TEST_F(LitSquareTest, aSpotlightEndsAtItsCone)
{
    addSpot(m_light, 0.75f, {0.5f, 0.5f, 1.0f}, {0.0f, 0.0f, -1.0f}, 2.0f * std::atan(0.25f));
    for (const auto projection : {Camera3d::ProjectionOrthographic, Camera3d::ProjectionPerspective}) {
        camera().setProjectionType(projection);
        const Picture picture = drawn(m_canvas);
        const auto [middleX, y] = pixelOf(m_canvas, {0.5f, 0.5f, 0.0f});
        const auto [rimX, rimY] = pixelOf(m_canvas, {0.75f, 0.5f, 0.0f});
        const auto [cornerX, cornerY] = pixelOf(m_canvas, {0.0f, 0.5f, 0.0f});
        int lit = 0;
        for (int x = static_cast<int>(cornerX) + 1; x < static_cast<int>(2.0 * middleX - cornerX); ++x) {
            const bool isLit = picture.at(x, static_cast<int>(y)) != Rgb{50, 25, 10};
            EXPECT_EQ(isLit, std::abs(x + 0.5 - middleX) < rimX - middleX) << x;
            lit += isLit ? 1 : 0;
        }
        EXPECT_GT(lit, 60);
        EXPECT_EQ(middle(), c_bare);
    }
}

TEST_F(LitSquareTest, lockingALightToTheCameraChangesNoPixel)
{
    lookFrom(m_canvas, 30.0, 50.0);
    m_canvas.zoomExtents();
    const std::function<vxgraphics3d::LightSource&()> kinds[] = {
        [&]() -> vxgraphics3d::LightSource& {
            return addSun(m_light, 0.5f, {1.0f, 2.0f, 3.0f});
        },
        [&]() -> vxgraphics3d::LightSource& {
            return addLamp(m_light, 0.5f, {0.2f, 0.7f, 0.5f});
        },
        [&]() -> vxgraphics3d::LightSource& {
            return addSpot(m_light, 0.5f, {0.2f, 0.7f, 0.8f}, {0.1f, 0.0f, -1.0f}, 1.2f);
        }};
    for (const auto& add : kinds) {
        m_light.removeAllLightSources();
        vxgraphics3d::LightSource& light = add();
        const Picture before = drawnAsIs(m_canvas);
        const auto expectSame = [&] {
            const Picture after = drawnAsIs(m_canvas);
            int different = 0;
            for (std::size_t i = 0; i < before.bytes.size(); ++i) {
                // The way to the camera and back is rounded.
                different += std::abs(before.bytes[i] - after.bytes[i]) > 1 ? 1 : 0;
            }
            EXPECT_LE(different, 12) << "pixels on the rim of a cone";
        };
        light.lockToCamera(camera());
        expectSame();
        light.releaseFromCamera(camera());
        expectSame();
        // Locked, it goes with the camera: unlocked elsewhere, it is elsewhere.
        light.lockToCamera(camera());
        camera().setAdditionalSceneRotation(0.0f, 0.4f, 0.0f);
        light.releaseFromCamera(camera());
        camera().discardAdditionalTransformation();
        EXPECT_NE(drawnAsIs(m_canvas).bytes, before.bytes);
    }
}

} // namespace
} // namespace vxrenderer
