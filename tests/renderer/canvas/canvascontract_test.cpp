#include "graphics3d/cameras/camera2d.h"
#include "graphics3d/cameras/camera3d.h"
#include "graphics3d/canvas/canvas3dsettings.h"
#include "graphics3d/canvas/scenesettings.h"
#include "graphics3d/settings/canvas3dglobalsettings.h"
#include "renderer/canvas/glrendererinfo.h"
#include "renderer/canvas/offscreencanvas.h"
#include "tests/renderer/support/testscene.h"

#include <gtest/gtest.h>

#include <array>

namespace vxrenderer {
namespace {

using vxgraphics3d::BoundingBox;
using vxgraphics3d::Camera3d;
using vxgraphics3d::Canvas3dGlobalSettings;
using vxgraphics3d::SceneSettings;
using vxgraphics3d::Vector3f;

TEST(CanvasContract, aSceneKnowsTheSettingsOfItsViewsWhileTheyShowIt)
{
    TestScene one;
    TestScene two;
    OffscreenCanvas canvas(20, 20, 1);
    EXPECT_EQ(canvas.getSceneSettings(), nullptr);
    canvas.setScene(one.scene);
    const auto settings = canvas.getSceneSettings();
    const auto& map = one.scene->getSceneSettingsMap();
    ASSERT_EQ(map.size(), 1u);
    EXPECT_EQ(map.begin()->second.get(), settings.get());
    {
        OffscreenCanvas second(20, 20, 1);
        second.setScene(one.scene);
        EXPECT_EQ(map.size(), 2u);
        EXPECT_NE(second.getSceneSettings().get(), settings.get());
        second.setScene(nullptr);
    }
    EXPECT_EQ(map.size(), 1u);
    settings->setShowTitle(false);
    EXPECT_NE(settings->getChangedFlags(), 0u);
    canvas.draw();
    EXPECT_EQ(settings->getChangedFlags(), 0u);
    canvas.setScene(one.scene);
    EXPECT_EQ(canvas.getSceneSettings().get(), settings.get()) << "the scene that is shown";
    canvas.setScene(two.scene);
    EXPECT_TRUE(map.empty());
    EXPECT_EQ(two.scene->getSceneSettingsMap().size(), 1u);
    two.scene->dispose();
    canvas.draw();
    EXPECT_TRUE(two.scene->getSceneSettingsMap().empty());
    EXPECT_EQ(canvas.getSceneSettings(), nullptr);
}

TEST(CanvasContract, referencesOutliveTheCanvasAndTheScene)
{
    auto canvas = boost::make_shared<OffscreenCanvas>(20, 20, 1);
    boost::shared_ptr<SceneSettings> settings;
    boost::weak_ptr<vxgraphics3d::Scene> scene;
    {
        const TestScene shown;
        canvas->setScene(shown.scene);
        settings = canvas->getSceneSettings();
        scene = shown.scene;
    }
    const auto view = canvas->getCanvas3dSettings();
    const auto context = canvas->getContextData();
    EXPECT_FALSE(scene.expired());
    canvas.reset();
    EXPECT_TRUE(scene.expired());
    settings->setGlobalOpacity(0.5f);
    settings->setShowTitle(false);
    EXPECT_NE(settings->getChangedFlags(), 0u);
    view->camera3d()->setRenderArea(7, 7, 0, 0, 7, 7);
    EXPECT_EQ(view->getCamera3d()->getRenderAreaWidth(), 7);
    EXPECT_EQ(context->redBits, 8);
}

TEST(CanvasContract, reportsThePropertiesOfTheContext)
{
    for (const int samples : {1, 4}) {
        OffscreenCanvas canvas(20, 20, samples);
        const auto data = canvas.getContextData();
        for (const int bits : {data->redBits, data->greenBits, data->blueBits, data->alphaBits}) {
            EXPECT_EQ(bits, 8);
        }
        EXPECT_EQ(data->colorBits, 32);
        EXPECT_EQ(data->depthBits, 24);
        EXPECT_EQ(data->stencilBits, 8);
        EXPECT_FALSE(data->doubleBuffered);
        EXPECT_EQ(data->multipleSamples, samples > 1 ? 4 : 0);
        EXPECT_EQ(data->antialiasingType, samples > 1 ? 1 : 0);
    }
}

TEST(CanvasContract, reportsToTheProcessWhatDriversCanDo)
{
    const OffscreenCanvas canvas(20, 20, 1);
    const vxgraphics3d::RendererInfo& info = *Canvas3dGlobalSettings::getRendererInfo();
    EXPECT_EQ(GlRendererInfo::ofProcess().get(), &info);
    EXPECT_TRUE(info.isRendererRequirementsFulfilled());
    EXPECT_EQ(info.getRendererType(), "OpenGL");
    EXPECT_GE(info.getOpenGlVersion(), 3 << 8 | 3);
    EXPECT_EQ(info.getAntialiasingTypeStr(), "FullScreenAntialiasing");
    EXPECT_EQ(info.getColorFormatStr(), "R8G8B8A8");
    EXPECT_TRUE(info.has32BitIndexBuffer());
    EXPECT_TRUE(info.hasOffscreenContext());
    EXPECT_FALSE(info.isArraySizesHard());
    EXPECT_EQ(info.getMaxNumberOfAvailableLights(), 8);
    ASSERT_GE(info.getNumberOfMultisampleSettings(), 1);
    for (int i = 1; i < info.getNumberOfMultisampleSettings(); ++i) {
        EXPECT_EQ(2 * info.getMultisampleSetting(i), info.getMultisampleSetting(i - 1));
    }
    ASSERT_EQ(info.getNumberOfMonitors(), 1);
    const auto& monitor = *info.getMonitorInfo(0);
    EXPECT_EQ(monitor.getMaxTextureSize(), info.getMaxTextureSize());
    EXPECT_GE(info.getMaxTextureSize(), 1024);
    ASSERT_FALSE(monitor.getOpenGlExtensions().empty());
    EXPECT_TRUE(info.hasOpenGlExtension(*monitor.getOpenGlExtensions().begin()));
    EXPECT_FALSE(info.hasOpenGlExtension("GL_none_of_this_name"));
    const auto failure = GlRendererInfo::ofFailure("no driver");
    EXPECT_FALSE(failure->isRendererRequirementsFulfilled());
    EXPECT_EQ(failure->getMissingRequirement(0), "no driver");
}

TEST(CanvasContract, followsTheMultisampleSettingOfTheProcess)
{
    Canvas3dGlobalSettings& process = *Canvas3dGlobalSettings::getInstance();
    const int kept = process.getMultisampleSetting();
    process.setMultisampleSetting(0);
    OffscreenCanvas following(20, 20, 0);
    OffscreenCanvas fixed(20, 20, 2);
    EXPECT_EQ(following.getSamples(), 1);
    process.setAntiAliasing(true);
    const int best = Canvas3dGlobalSettings::getRendererInfo()->getMultisampleSetting(0);
    following.draw();
    fixed.draw();
    EXPECT_EQ(following.getSamples(), best);
    EXPECT_EQ(following.getContextData()->multipleSamples, best);
    EXPECT_EQ(fixed.getSamples(), 2);
    process.setMultisampleSetting(-3);
    following.draw();
    EXPECT_EQ(following.getSamples(), 1);
    process.setMultisampleSetting(kept);
}

/// A surface through the corners of a box.
vxdatacarrier::PostDataObject surfaceThrough(const BoundingBox& box)
{
    GridRecord grid;
    grid.cells = 2;
    grid.height = [](double, double) { return 0.0; };
    vxdatacarrier::PostDataObject record = grid.make();
    for (std::size_t i = 0; i < 9; ++i) {
        const Vector3f corner = box.getVertex(static_cast<int>(i % 8));
        (*record.m_coordinates[0])[0][i] = static_cast<double>(corner.x);
        (*record.m_coordinates[0])[1][i] = static_cast<double>(corner.y);
        (*record.m_coordinates[0])[2][i] = static_cast<double>(corner.z);
    }
    const auto limits = [](float low, float high) {
        return std::vector{static_cast<double>(low), static_cast<double>(high)};
    };
    *record.m_bounds = {limits(box.getMin().x, box.getMax().x), limits(box.getMin().y, box.getMax().y),
                        limits(box.getMin().z, box.getMax().z)};
    return record;
}

TEST(CanvasContract, zoomExtentsShowsTheWholeBox)
{
    TestScene scene;
    const auto plot = scene.addSquare(1, 0xff0000);
    OffscreenCanvas canvas(100, 100, 1);
    const Camera3d& camera = *canvas.getCanvas3dSettings()->getCamera3d();
    canvas.zoomExtents();
    EXPECT_EQ(camera.getChangeId(), 1) << "no scene";
    canvas.setScene(TestScene().scene);
    canvas.zoomExtents();
    EXPECT_EQ(camera.getChangeId(), 1) << "nothing in it";
    canvas.setScene(scene.scene);
    const BoundingBox boxes[] = {{0.0f, 1.0f, 0.0f, 1.0f, 0.0f, 1.0f},    {-3.0f, 997.0f, 5.0f, 6.0f, 0.0f, 0.0f},
                                 {0.0f, 0.0f, 1e-6f, 2e-6f, 0.0f, 0.0f},  {7.0f, 7.0f, 8.0f, 8.0f, 9.0f, 9.0f},
                                 {1e6f, 2e6f, -1.0f, 1.0f, -9e5f, -8e5f}, {5.0f, 6.0f, 0.0f, 0.0f, 0.0f, 123.0f}};
    const int sizes[][2] = {{200, 200}, {200, 90}, {90, 200}, {60, 60}, {20, 20}, {3, 2}, {1, 1}};
    for (const auto& [width, height] : sizes) {
        canvas.resize(width, height);
        for (const BoundingBox& box : boxes) {
            plot->fillPlot(surfaceThrough(box));
            for (const bool isFlat : {false, true}) {
                if (isFlat) {
                    showFlat(canvas, scene);
                } else {
                    lookFrom(canvas, 20.0, 30.0);
                }
                canvas.zoomExtents();
                canvas.draw();
                const PixelArea& area = canvas.getView().area;
                for (int corner = 0; !area.isEmpty() && corner < 8; ++corner) {
                    const Vector3f min = box.getMin();
                    const Vector3f max = box.getMax();
                    const auto [x, y] =
                        pixelOf(canvas, {(corner & 1) != 0 ? max.x : min.x, (corner & 2) != 0 ? max.y : min.y,
                                         (corner & 4) != 0 ? max.z : min.z});
                    EXPECT_TRUE(x >= area.x && x <= area.x + area.width && y >= area.y && y <= area.y + area.height)
                        << width << 'x' << height << " box " << (&box - boxes) << (isFlat ? " flat " : " ") << x << ' '
                        << y << " in " << area.x << ' ' << area.y << ' ' << area.width << ' ' << area.height;
                }
            }
        }
    }
}

TEST(CanvasContract, drawsStretchedAxesWhereTheCameraSays)
{
    OffscreenCanvas canvas(200, 150, 1);
    TestScene scene;
    scene.addSquare(1, 0xff0000);
    showFromAbove(canvas, scene);
    Camera3d& camera = *canvas.getCanvas3dSettings()->camera3d();
    camera.setAxisViewScales(3.0f, 1.0f, 5.0f);
    const Picture picture = drawn(canvas);
    const PixelArea& area = canvas.getView().area;
    // The borders of what is drawn lie where the corners of the square are on the screen.
    const auto place = [&](float x, float y) {
        const Vector3f screen = camera.worldToScreenRH({x, y, 0.0f});
        return std::array{static_cast<float>(area.x) + screen.x, static_cast<float>(area.y + area.height) - screen.y};
    };
    const auto [left, bottom] = place(0.0f, 0.0f);
    const auto [right, top] = place(1.0f, 1.0f);
    EXPECT_NEAR((right - left) / (bottom - top), 3.0f, 0.01f);
    int drawnPixels = 0;
    for (int y = 0; y < 150; ++y) {
        for (int x = 0; x < 200; ++x) {
            const auto px = static_cast<float>(x) + 0.5f;
            const auto py = static_cast<float>(y) + 0.5f;
            const bool isInside = px > left && px < right && py > top && py < bottom;
            EXPECT_EQ(picture.at(x, y) != c_white, isInside) << x << ' ' << y;
            drawnPixels += isInside ? 1 : 0;
        }
    }
    EXPECT_GT(drawnPixels, 3000);
    // Also under perspective and from the side.
    camera.setProjectionType(Camera3d::ProjectionPerspective);
    lookFrom(canvas, 10.0, 20.0);
    drawn(canvas);
    for (const Vector3f& point : {Vector3f(0.0f, 1.0f, 0.0f), Vector3f(1.0f, 0.5f, 0.0f)}) {
        const Vector3f screen = camera.worldToScreenRH(point);
        const auto [x, y] = pixelOf(canvas, point);
        EXPECT_NEAR(x, static_cast<float>(canvas.getView().area.x) + screen.x, 1e-3);
        EXPECT_NEAR(y, static_cast<float>(canvas.getView().area.y + canvas.getView().area.height) - screen.y, 1e-3);
    }
}

} // namespace
} // namespace vxrenderer
