#include "graphics3d/lights/directionlightsource.h"
#include "graphics3d/lights/pointlightsource.h"
#include "graphics3d/lights/scenelight.h"
#include "graphics3d/lights/spotlightsource.h"
#include "tests/renderer/support/testscene.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <numbers>

namespace vxrenderer {
namespace {

using vxgraphics3d::DirectionLightSource;
using vxgraphics3d::LightSource;
using vxgraphics3d::PointLightSource;
using vxgraphics3d::SceneGraphPlotSurface3d;
using vxgraphics3d::SceneLight;
using vxgraphics3d::SpotLightSource;
using vxgraphics3d::Vector3f;

/// Waves seen from above, each picture with its own lights.
class MeshShaderTest : public ::testing::Test {
protected:
    MeshShaderTest()
    {
        GridRecord record;
        record.cells = 20;
        record.height = [](double x, double y) { return 0.1 * std::sin(9.0 * x) * std::cos(7.0 * y); };
        record.value = [](double x, double y) { return x + y; };
        m_plot = m_scene.add<SceneGraphPlotSurface3d>(1, record, {0x2040ff, 0xc0ffc0, 0xff8000});
        showFromAbove(m_canvas, m_scene);
        m_light.setAmbientIntensity(0.3f);
    }

    LightSource& turnOn(int id, float intensity)
    {
        LightSource& source = *m_light.lightSource(id);
        source.setIntensity(intensity);
        source.setAmbientIntensity(0.0f);
        source.setActive(true);
        return source;
    }
    Picture picture() { return drawn(m_canvas); }

    /// The largest difference of a channel.
    static int difference(const Picture& a, const Picture& b)
    {
        int largest = 0;
        for (std::size_t i = 0; i < a.bytes.size(); ++i) {
            largest = std::max(largest, std::abs(a.bytes[i] - b.bytes[i]));
        }
        return largest;
    }

    OffscreenCanvas m_canvas{160, 160, 1};
    TestScene m_scene;
    boost::shared_ptr<SceneGraphPlotSurface3d> m_plot;
    SceneLight& m_light = *m_scene.scene->getSceneLight();
};

// The shader differs for each number of lights.
TEST_F(MeshShaderTest, lightsShineAsOneThatIsAsBrightAsAllOfThem)
{
    turnOn(m_light.createDirectionLight(), 0.6f);
    const Picture one = picture();
    for (int numLights = 2; numLights <= 8; ++numLights) {
        m_light.removeAllLightSources();
        for (int i = 0; i < numLights; ++i) {
            turnOn(m_light.createDirectionLight(), 0.6f / static_cast<float>(numLights));
        }
        EXPECT_LE(difference(picture(), one), 1) << numLights;
    }
    m_light.removeAllLightSources();
    EXPECT_GT(difference(picture(), one), 50);
}

TEST_F(MeshShaderTest, aDistantLightShinesAsOneFromItsDirection)
{
    const Vector3f direction(0.6f, -0.3f, 0.7f);
    auto& lamp = static_cast<DirectionLightSource&>(turnOn(m_light.createDirectionLight(), 0.6f));
    lamp.setFromDirection(true, direction);
    lamp.setSpecularIntensity(0.4f);
    const Picture parallel = picture();
    m_light.removeAllLightSources();
    auto& bulb = static_cast<PointLightSource&>(turnOn(m_light.createPointLight(), 0.6f));
    bulb.setPosition(true, direction * 1e4f);
    bulb.setSpecularIntensity(0.4f);
    EXPECT_LE(difference(picture(), parallel), 1);
    bulb.setPosition(true, direction);
    EXPECT_GT(difference(picture(), parallel), 10);
}

TEST_F(MeshShaderTest, aFaintHighlightChangesNothingAndABrightOneIsSeen)
{
    LightSource& lamp = turnOn(m_light.createDirectionLight(), 0.6f);
    lamp.setSpecularIntensity(0.0f);
    const Picture dull = picture();
    lamp.setSpecularIntensity(1e-6f);
    EXPECT_LE(difference(picture(), dull), 1);
    lamp.setSpecularIntensity(0.5f);
    EXPECT_GT(difference(picture(), dull), 50);
}

TEST_F(MeshShaderTest, aConeThatHoldsTheWholeSceneChangesNothingAndANarrowOneDoes)
{
    const Vector3f position(0.4f, 0.5f, 1.5f);
    const int point = m_light.createPointLight();
    static_cast<PointLightSource&>(turnOn(point, 0.6f)).setPosition(true, position);
    const Picture everywhere = picture();
    m_light.removeAllLightSources();
    auto& spot = static_cast<SpotLightSource&>(turnOn(m_light.createSpotLight(), 0.6f));
    spot.setPosition(true, position);
    spot.setAtDirection(Vector3f(0.0f, 0.0f, -1.0f));
    for (const float angle : {0.9f, 2.0f}) {
        spot.setSpreadAngle(angle * std::numbers::pi_v<float>);
        EXPECT_LE(difference(picture(), everywhere), 1) << angle;
    }
    spot.setSpreadAngle(0.1f);
    EXPECT_GT(difference(picture(), everywhere), 50);
}

TEST_F(MeshShaderTest, aRestrictionLeavesWhatItDoesNotHideAsItWas)
{
    turnOn(m_light.createDirectionLight(), 0.6f).setSpecularIntensity(0.3f);
    const Picture all = picture();
    m_plot->setValueRestrictions(0.5, 1.5);
    const Picture part = picture();
    for (int y = 0; y < part.height; ++y) {
        for (int x = 0; x < part.width; ++x) {
            const bool isHidden = part.at(x, y) == c_white;
            EXPECT_TRUE(isHidden || part.at(x, y) == all.at(x, y)) << x << ' ' << y;
        }
    }
    const int numDrawn = all.countDrawn(0, 0, all.width, all.height);
    const int numShown = part.countDrawn(0, 0, part.width, part.height);
    // An eighth of the square lies beyond each end.
    EXPECT_NEAR(numShown, 0.75 * numDrawn, 0.02 * numDrawn);
}

} // namespace
} // namespace vxrenderer
