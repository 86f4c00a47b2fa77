#include "graphics3d/lights/scenelight.h"

#include "graphics3d/cameras/camera3d.h"
#include "graphics3d/lights/directionlightsource.h"
#include "graphics3d/lights/pointlightsource.h"
#include "graphics3d/lights/scenesettingslight.h"
#include "graphics3d/lights/spotlightsource.h"

#include <gtest/gtest.h>

#include <functional>
#include <stdexcept>

namespace vxgraphics3d {
namespace {

constexpr float c_pi = 3.1415927f;

template <class Source>
Source& sourceOf(SceneLight& light, int id)
{
    return dynamic_cast<Source&>(*light.lightSource(id));
}

void expectNear(const Vector3f& actual, const Vector3f& expected)
{
    EXPECT_NEAR(actual.x, expected.x, 1e-6f);
    EXPECT_NEAR(actual.y, expected.y, 1e-6f);
    EXPECT_NEAR(actual.z, expected.z, 1e-6f);
}

TEST(SceneLight, startsWithItsDefaults)
{
    const auto owner = SceneLight::create();
    SceneLight& light = *owner;
    EXPECT_EQ(light.getChangeId(), 1);
    EXPECT_EQ(light.getGlobalAmbientColor(), (Color{255, 255, 255, 255}));
    EXPECT_EQ(light.getAmbientIntensity(), 1.0f);
    EXPECT_EQ(light.getTotalLightSourceIntensity(), 1.0f);
    const DirectionLightSource& direction = sourceOf<DirectionLightSource>(light, light.createDirectionLight());
    EXPECT_EQ(direction.getFromDirection(), Vector3f(0.0f, 0.0f, 1.0f));
    EXPECT_EQ(direction.getType(), LightSource::LightDirection);
    EXPECT_EQ(direction.getColor(), (Color{255, 255, 255, 255}));
    EXPECT_FALSE(direction.isActive() || direction.isLockedToCamera() || direction.isSelected() ||
                 direction.isMarkerVisible());
    EXPECT_EQ(direction.getId(), 1);
    EXPECT_EQ(direction.getName(), "");
    EXPECT_EQ(direction.getIntensity(), 0.0f);
    EXPECT_EQ(direction.getAmbientIntensity(), 0.0f);
    EXPECT_EQ(direction.getSpecularIntensity(), 0.0f);
    EXPECT_EQ(direction.getEffectiveIntensity(), 0.0f);
    EXPECT_EQ(sourceOf<PointLightSource>(light, light.createPointLight()).getPosition(), Vector3f());
    const SpotLightSource& spot = sourceOf<SpotLightSource>(light, light.createSpotLight());
    EXPECT_EQ(spot.getPosition(), Vector3f(0.0f, 0.0f, 1.0f));
    EXPECT_EQ(spot.getAtDirection(), Vector3f(0.0f, 0.0f, -1.0f));
    EXPECT_EQ(spot.getSpreadAngle(), 0.7853982f);
    EXPECT_EQ(light.getChangeId(), 4);
}

TEST(SceneLight, neverReusesIdsAndRefusesMissingOnes)
{
    const auto owner = SceneLight::create();
    SceneLight& light = *owner;
    EXPECT_EQ(light.createPointLight(), 1);
    EXPECT_TRUE(light.removeLightSource(1));
    EXPECT_EQ(light.createSpotLight(), 2);
    EXPECT_FALSE(light.lightSourceExists(1));
    const int before = light.getChangeId();
    EXPECT_FALSE(light.removeLightSource(1));
    EXPECT_THROW(light.getLightSourcePtr(1), std::out_of_range);
    EXPECT_THROW(light.getLightSource(-1), std::out_of_range);
    EXPECT_EQ(light.getChangeId(), before);
}

TEST(SceneLight, aNinthLightIsRefusedUntilAnotherIsSwitchedOff)
{
    const auto owner = SceneLight::create();
    SceneLight& light = *owner;
    for (int i = 1; i <= 9; ++i) {
        light.createDirectionLight();
    }
    for (int i = 1; i <= 8; ++i) {
        EXPECT_TRUE(light.lightSource(i)->setActive(true));
    }
    const int before = light.getChangeId();
    EXPECT_FALSE(light.lightSource(9)->setActive(true));
    EXPECT_TRUE(light.lightSource(3)->setActive(true)) << "an active light stays on";
    EXPECT_EQ(light.getChangeId(), before);
    EXPECT_FALSE(light.lightSource(3)->setActive(false));
    EXPECT_TRUE(light.lightSource(9)->setActive(true));
    EXPECT_EQ(light.getChangeId(), before + 2);
}

TEST(SceneLight, removingCountsEachActiveLightAndOnceMore)
{
    const auto owner = SceneLight::create();
    SceneLight& light = *owner;
    light.removeAllLightSources();
    EXPECT_EQ(light.getChangeId(), 1);
    light.createDirectionLight();
    light.createPointLight();
    light.lightSource(1)->setActive(true);
    light.lightSource(2)->setActive(true);
    const boost::shared_ptr<LightSource> kept = light.getLightSourcePtr(1);
    int before = light.getChangeId();
    light.removeAllLightSources();
    EXPECT_EQ(light.getChangeId(), before + 3);
    EXPECT_FALSE(kept->isActive());
    light.createSpotLight();
    before = light.getChangeId();
    light.removeLightSource(3);
    EXPECT_EQ(light.getChangeId(), before + 1) << "it was not active";
}

TEST(SceneLight, aSourceOutlivesItsSceneLight)
{
    boost::shared_ptr<LightSource> source;
    {
        const auto owner = SceneLight::create();
        SceneLight& light = *owner;
        source = light.getLightSourcePtr(light.createPointLight());
        light.setTotalLightSourceIntensity(0.5f);
        source->setIntensity(3.0f);
        EXPECT_EQ(source->getEffectiveIntensity(), 1.5f);
    }
    EXPECT_EQ(source->getEffectiveIntensity(), 3.0f);
    EXPECT_TRUE(source->setActive(true));
    source->setName("alone");
    EXPECT_EQ(source->getName(), "alone");
}

TEST(SceneLight, ambientScaleDividesTheAmbientIntensityAmongActiveLights)
{
    const auto owner = SceneLight::create();
    SceneLight& light = *owner;
    light.setAmbientIntensity(0.6f);
    EXPECT_EQ(light.calculateAmbientScale(false, false), 0.0f);
    EXPECT_EQ(light.calculateAmbientScale(true, false), 0.6f);
    for (const int id : {light.createPointLight(), light.createSpotLight(), light.createDirectionLight()}) {
        light.lightSource(id)->setIntensity(2.0f);
        light.lightSource(id)->setAmbientIntensity(0.25f);
    }
    light.lightSource(1)->setActive(true);
    light.lightSource(2)->setActive(true);
    EXPECT_EQ(light.calculateAmbientScale(false, true), 0.6f / 0.5f)
        << "the spotlight and the inactive light add nothing";
    EXPECT_EQ(light.calculateAmbientScale(true, true), 0.6f / 1.5f);
}

TEST(SceneLight, countsChangesOfValuesOnceAndOfSourcesAlways)
{
    const auto owner = SceneLight::create();
    SceneLight& light = *owner;
    light.createSpotLight();
    auto& spot = sourceOf<SpotLightSource>(light, 1);
    struct Case {
        const char* name;
        std::function<void()> set;
        int first;
        int second;
    };
    const Case cases[] = {
        {"ambient intensity", [&] { light.setAmbientIntensity(0.5f); }, 1, 0},
        {"total intensity", [&] { light.setTotalLightSourceIntensity(0.5f); }, 1, 0},
        {"ambient colour",
         [&] {
             light.setGlobalAmbientColor({1, 2, 3, 255});
         },
         1, 0},
        {"name", [&] { spot.setName("s"); }, 1, 1},
        {"colour",
         [&] {
             spot.setColor({1, 2, 3, 255});
         },
         1, 1},
        {"intensity", [&] { spot.setIntensity(1.0f); }, 1, 1},
        {"ambient", [&] { spot.setAmbientIntensity(1.0f); }, 1, 1},
        {"specular", [&] { spot.setSpecularIntensity(1.0f); }, 1, 1},
        {"active flag", [&] { spot.setActiveFlag(true); }, 1, 0},
        {"selected", [&] { spot.setSelected(true); }, 0, 0},
        {"marker", [&] { spot.setMarkerVisibility(true); }, 0, 0},
        {"position", [&] { spot.setPosition(true, Vector3f()); }, 1, 1},
        {"direction", [&] { spot.setAtDirection(0.0f, 0.0f); }, 1, 1},
        {"spread", [&] { spot.setSpreadAngle(1.0f); }, 1, 1},
    };
    for (const Case& c : cases) {
        const int before = light.getChangeId();
        c.set();
        EXPECT_EQ(light.getChangeId(), before + c.first) << c.name;
        c.set();
        EXPECT_EQ(light.getChangeId(), before + c.first + c.second) << c.name;
    }
}

TEST(LightSource, sphericalInputRotatesAroundZAndDownFromZ)
{
    const auto owner = SceneLight::create();
    SceneLight& light = *owner;
    auto& direction = sourceOf<DirectionLightSource>(light, light.createDirectionLight());
    direction.setFromDirection(true, 0.0f, c_pi / 2.0f);
    expectNear(direction.getFromDirection(), {1.0f, 0.0f, 0.0f});
    direction.setFromDirection(false, c_pi / 2.0f, c_pi / 2.0f);
    expectNear(direction.getFromDirection(), {0.0f, 1.0f, 0.0f});
    EXPECT_TRUE(direction.isLockedToCamera());
    direction.setFromDirection(true, Vector3f(1.0f, 0.0f, 0.0f));
    EXPECT_FALSE(direction.isLockedToCamera());

    auto& spot = sourceOf<SpotLightSource>(light, light.createSpotLight());
    spot.setPosition(true, 2.0f, 0.0f, 0.0f);
    EXPECT_EQ(spot.getPosition(), Vector3f(0.0f, 0.0f, 2.0f));
    EXPECT_EQ(spot.getAtDirection(), Vector3f(0.0f, 0.0f, -1.0f)) << "aims at the origin";
    spot.setPosition(true, Vector3f(5.0f, 0.0f, 0.0f));
    EXPECT_EQ(spot.getAtDirection(), Vector3f(0.0f, 0.0f, 1.0f));
}

TEST(LightSource, lockingTransformsToCameraSpaceAndReleasingBack)
{
    Camera3d camera;
    // From above: right is x, up is y rotated to -z, so world z is the camera's y.
    camera.lookAt(Vector3f(0.0f, -5.0f, 0.0f), Vector3f(0.0f, 1.0f, 0.0f), Vector3f(0.0f, 0.0f, 1.0f));
    camera.setRotationPoint(Vector3f(1.0f, 0.0f, 0.0f));
    // Lights are placed in the world before it is stretched.
    camera.setAxisViewScales(2.0f, 3.0f, 0.5f);
    const auto owner = SceneLight::create();
    SceneLight& light = *owner;
    auto& direction = sourceOf<DirectionLightSource>(light, light.createDirectionLight());
    auto& point = sourceOf<PointLightSource>(light, light.createPointLight());
    auto& spot = sourceOf<SpotLightSource>(light, light.createSpotLight());
    direction.setFromDirection(true, Vector3f(0.0f, 0.0f, 1.0f));
    point.setPosition(true, Vector3f(1.0f, 0.0f, 2.0f));
    spot.setPosition(true, Vector3f(1.0f, 3.0f, 0.0f));
    spot.setAtDirection(Vector3f(0.0f, -1.0f, 0.0f));
    for (int id = 1; id <= 3; ++id) {
        light.lightSource(id)->lockToCamera(camera);
        EXPECT_TRUE(light.lightSource(id)->isLockedToCamera());
    }
    expectNear(direction.getFromDirection(), {0.0f, 1.0f, 0.0f});
    expectNear(point.getPosition(), {0.0f, 2.0f, 0.0f});
    expectNear(spot.getPosition(), {0.0f, 0.0f, -3.0f});
    expectNear(spot.getAtDirection(), {0.0f, 0.0f, 1.0f});
    for (int id = 1; id <= 3; ++id) {
        light.lightSource(id)->releaseFromCamera(camera);
        EXPECT_FALSE(light.lightSource(id)->isLockedToCamera());
    }
    expectNear(direction.getFromDirection(), {0.0f, 0.0f, 1.0f});
    expectNear(point.getPosition(), {1.0f, 0.0f, 2.0f});
    expectNear(spot.getPosition(), {1.0f, 3.0f, 0.0f});
    expectNear(spot.getAtDirection(), {0.0f, -1.0f, 0.0f});
    point.lockToCamera(camera);
    point.lockToCamera(camera);
    expectNear(point.getPosition(), {-1.0f, 0.0f, -2.0f});
}

TEST(SceneSettingsLight, countsSwitchesThatChangeButNotTheMarkers)
{
    SceneSettingsLight light;
    EXPECT_TRUE(light.isLightUsed() && light.isGlobalAmbientLight() && light.isAmbientLight() &&
                light.isDiffuseLight() && light.isSpecularLight());
    EXPECT_FALSE(light.isRenderLightMarkers());
    using Setter = void (SceneSettingsLight::*)(bool);
    for (const Setter set : {&SceneSettingsLight::setUseLight, &SceneSettingsLight::setGlobalAmbientLight,
                             &SceneSettingsLight::setAmbientLight, &SceneSettingsLight::setDiffuseLight,
                             &SceneSettingsLight::setSpecularLight}) {
        const int before = light.getChangeId();
        (light.*set)(true);
        EXPECT_EQ(light.getChangeId(), before);
        (light.*set)(false);
        EXPECT_EQ(light.getChangeId(), before + 1);
    }
    light.setRenderLightMarkers(true);
    EXPECT_TRUE(light.isRenderLightMarkers());
    EXPECT_EQ(light.getChangeId(), 6);
    const SceneSettingsLight copy(light);
    EXPECT_EQ(copy.getChangeId(), 1);
    EXPECT_TRUE(copy.isRenderLightMarkers());
    EXPECT_FALSE(copy.isLightUsed());
}

} // namespace
} // namespace vxgraphics3d
