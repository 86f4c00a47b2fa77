#include "graphics3d/cameras/camera2d.h"
#include "graphics3d/cameras/camera3d.h"
#include "graphics3d/canvas/axissetup.h"
#include "graphics3d/canvas/canvas3dsettings.h"
#include "graphics3d/canvas/gridboxsettings.h"
#include "graphics3d/canvas/hardcopysettings.h"
#include "graphics3d/canvas/scenesettings.h"
#include "graphics3d/foundation/matrixf.h"
#include "graphics3d/plots/vector/scenegraphplotsphere2d.h"
#include "graphics3d/settings/canvas3dglobalsettings.h"
#include "renderer/canvas/offscreencanvas.h"
#include "renderer/frame/appearance.h"
#include "tests/renderer/support/pngfile.h"
#include "tests/renderer/support/testscene.h"
#include "tests/support/postrecord.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <numeric>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

namespace vxrenderer {
namespace {

using vxdatacarrier::PostDataObject;
using vxgraphics3d::Canvas3dSettings;
using vxgraphics3d::HardcopySettings;
using vxgraphics3d::Matrixf;
using vxgraphics3d::PostRecord;
using vxgraphics3d::SceneGraphPlotSphere2d;
using vxgraphics3d::SceneGraphPlotSurface2d;

/// All that an export must leave alone.
struct State {
    std::vector<Matrixf> matrices;
    std::vector<int> numbers;
    PixelArea area;

    explicit State(OffscreenCanvas& canvas) : area(canvas.getView().area)
    {
        Canvas3dSettings& settings = *canvas.getCanvas3dSettings();
        const auto add = [&](const auto& camera) {
            matrices.insert(matrices.end(), {camera.getViewTransform(), camera.getProjectionTransformRH()});
            numbers.insert(numbers.end(), {camera.getRenderAreaWidth(), camera.getRenderAreaHeight(),
                                           camera.getRenderAreaLeft(), camera.getRenderAreaBottom()});
        };
        add(*settings.getCamera2d());
        add(*settings.getCamera3d());
        const auto scene = canvas.getSceneSettings();
        numbers.insert(numbers.end(), {settings.getChangeId(), settings.getCamera3d()->getChangeId(),
                                       static_cast<int>(scene->getChangedFlags()), canvas.getWidth(),
                                       canvas.getHeight(), canvas.getSamples()});
    }

    bool operator==(const State& other) const
    {
        return numbers == other.numbers && area.x == other.area.x && area.width == other.area.width &&
               std::ranges::equal(matrices, other.matrices, [](const Matrixf& a, const Matrixf& b) {
                   return std::equal(a.data(), a.data() + 16, b.data());
               });
    }
};

TEST(Hardcopy, leavesTheViewAsItIs)
{
    OffscreenCanvas canvas(160, 100, 4);
    TestScene scene;
    scene.add<SceneGraphPlotSurface2d>(1, {}, {0x0000ff, 0xff0000})->setTitle(TextFormat::plain, "Title");
    HardcopySettings settings;
    settings.setDpi(150);
    settings.setTitleShown(true);
    settings.setAxisShown(true);
    for (const bool isFlat : {true, false}) {
        if (isFlat) {
            showFlat(canvas, scene);
        } else {
            lookFrom(canvas, 30.0, 40.0);
        }
        const Picture before = drawn(canvas);
        canvas.getSceneSettings()->setShowLabels(!isFlat);
        const State state(canvas);
        canvas.encodeHardcopy(settings, 90, 140);
        EXPECT_TRUE(State(canvas) == state) << isFlat;
        std::vector<std::uint8_t> image(before.bytes.size());
        canvas.readImage(image.data(), image.size());
        EXPECT_EQ(image, before.bytes) << isFlat;
        EXPECT_EQ(drawnAsIs(canvas).bytes, before.bytes) << isFlat;
    }
}

TEST(Hardcopy, isWhatItsSettingsAskFor)
{
    OffscreenCanvas canvas(50, 50, 1);
    TestScene scene;
    scene.addSquare(1, 0x00ff00);
    showFlat(canvas, scene);
    showPlotsAlone(canvas);
    canvas.zoomExtents();
    HardcopySettings settings;
    settings.setDpi(100);
    settings.setFileTitle("Stress");
    settings.setFileCreator("Someone");
    settings.setBackground(0xff0000, 0x0000ff);
    const PngFile file(canvas.encodeHardcopy(settings, 120, 80));
    EXPECT_EQ(file.width, 120);
    EXPECT_EQ(file.height, 80);
    EXPECT_EQ(file.perMetre, 3937u) << "100 / 0.0254";
    EXPECT_EQ(file.texts, (std::map<std::string, std::string>{{"Title", "Stress"}, {"Creator", "Someone"}}));
    const auto at = [&](int x, int y) {
        const std::uint8_t* pixel = file.pixels.data() + 3 * (y * 120 + x);
        return Rgb{pixel[0], pixel[1], pixel[2]};
    };
    // The first of 80 rows is half a row from the top colour.
    EXPECT_EQ(at(0, 0), (Rgb{253, 0, 2}));
    EXPECT_EQ(at(119, 79), (Rgb{2, 0, 253}));
    EXPECT_EQ(at(60, 40), (Rgb{0, 255, 0}));
    EXPECT_THROW(canvas.encodeHardcopy(settings, 0, 80), std::invalid_argument);
    EXPECT_THROW(canvas.encodeHardcopy(settings, 1 << 20, 80), std::invalid_argument);
}

TEST(Hardcopy, looksLikeThePictureAtTheSameSize)
{
    OffscreenCanvas canvas(150, 120, 4);
    TestScene scene;
    scene.addSquare(1, 0x00ff00);
    canvas.setScene(scene.scene);
    lookFrom(canvas, 30.0, 40.0);
    canvas.getSceneSettings()->setShowTitle(false);
    const Picture picture = drawn(canvas);
    HardcopySettings settings;
    settings.setLegendsShown(true);
    settings.setAxisShown(true);
    settings.setUseCurrentBackground(true);
    settings.setMultisampleSetting(4);
    const PngFile file(canvas.encodeHardcopy(settings, 150, 120));
    std::vector<std::uint8_t> colors;
    for (std::size_t i = 0; i < picture.bytes.size(); ++i) {
        if (i % 4 != 3) {
            colors.push_back(picture.bytes[i]);
        }
    }
    EXPECT_EQ(file.pixels, colors);
}

TEST(Hardcopy, showsNoMoreOfTheSceneWhereAPixelKeepsItsSize)
{
    OffscreenCanvas canvas(150, 120, 4);
    TestScene scene;
    scene.addSquare(1, 0x00ff00);
    showFlat(canvas, scene);
    showPlotsAlone(canvas);
    const auto settings = canvas.getCanvas3dSettings();
    settings->camera2d()->setOverrideResizeBehaviour(true, vxgraphics3d::Canvas3dGlobalSettings::ResizePixels);
    settings->camera3d()->setOverrideResizeBehaviour(true, vxgraphics3d::Canvas3dGlobalSettings::ResizePixels);
    settings->camera3d()->setProjectionType(vxgraphics3d::Camera3d::ProjectionOrthographic);
    settings->camera3d()->setViewingScale(50.0f);
    for (const bool isFlat : {true, false}) {
        if (!isFlat) {
            lookFrom(canvas, -90.0, 90.0);
        }
        canvas.zoomExtents();
        const Picture picture = drawnAsIs(canvas);
        const PngFile file(canvas.encodeHardcopy(HardcopySettings(), 600, 480));
        int numDrawn = 0;
        for (std::size_t i = 0; i < file.pixels.size(); i += 3) {
            numDrawn += file.pixels[i] == 0 ? 1 : 0;
        }
        // A picture without axes is the area of its scene. In space the whole scene is fitted again, with margins that
        // follow the fonts and not the size of the picture.
        const double growth = static_cast<double>(numDrawn) / picture.countDrawn(0, 0, 150, 120);
        EXPECT_GT(growth, isFlat ? 15.5 : 18.0);
        EXPECT_LT(growth, isFlat ? 16.5 : 24.0);
    }
}

/// The corners of what has a colour in a file, and whether there is any.
struct Extent {
    int left = 1 << 20;
    int top = 1 << 20;
    int right = -1;
    int bottom = -1;

    Extent(const PngFile& file, const Rgb& color)
    {
        for (int y = 0; y < file.height; ++y) {
            for (int x = 0; x < file.width; ++x) {
                if (std::equal(color.begin(), color.end(), file.pixels.begin() + 3 * (y * file.width + x))) {
                    left = std::min(left, x);
                    top = std::min(top, y);
                    right = std::max(right, x);
                    bottom = std::max(bottom, y);
                }
            }
        }
    }
};

TEST(Hardcopy, fitsTheWholeSceneAgainButNotAViewOfTheUser)
{
    OffscreenCanvas canvas(300, 240, 4);
    TestScene scene;
    scene.addSquare(1, 0x00ff00);
    canvas.setScene(scene.scene);
    lookFrom(canvas, 30.0, 40.0);
    canvas.zoomExtents();
    canvas.draw();
    HardcopySettings settings;
    settings.setAxisShown(true);
    const auto widthAt = [&](int dpi) {
        settings.setDpi(dpi);
        const PngFile file(canvas.encodeHardcopy(settings, 600, 480));
        int left = 600;
        int right = 0;
        for (int i = 0; i < 600 * 480; ++i) {
            if (file.pixels[static_cast<std::size_t>(3 * i)] < 100) {
                left = std::min(left, i % 600);
                right = std::max(right, i % 600 + 1);
            }
        }
        return right - left;
    };
    // With small and with large labels, in a picture whose margins follow them.
    EXPECT_GT(widthAt(40), 540);
    EXPECT_LT(widthAt(40), 580);
    EXPECT_GT(widthAt(200), 500);
    EXPECT_LT(widthAt(200), 560);
    auto& camera = *canvas.getCanvas3dSettings()->camera3d();
    camera.setAdditionalScale(0.5f, 0.5f, 2.5f);
    camera.mergeAdditionalTransformation();
    EXPECT_LT(widthAt(40), 300);
}

TEST(Hardcopy, showsAllOfTheFlatDataThatTheScreenShowsInAnyShape)
{
    using Settings = vxgraphics3d::Canvas3dGlobalSettings;
    OffscreenCanvas canvas(160, 120, 1);
    TestScene scene;
    // A square with a border of another colour.
    GridRecord record;
    record.cells = 10;
    record.value = [](double x, double y) { return std::max(std::abs(x - 0.5), std::abs(y - 0.5)); };
    scene.add<SceneGraphPlotSurface2d>(1, record, {0x0000ff, 0x0000ff, 0x0000ff, 0xff0000});
    showFlat(canvas, scene);
    auto& camera = *canvas.getCanvas3dSettings()->camera2d();
    for (const bool preserves : {true, false}) {
        camera.setPreserveAspectRatio(preserves);
        for (const auto behaviour : {Settings::ResizeWidth, Settings::ResizeHeight, Settings::ResizeFill,
                                     Settings::ResizeFit, Settings::ResizePixels, Settings::ResizeKeep}) {
            camera.setOverrideResizeBehaviour(true, behaviour);
            drawn(canvas);
            // The first one has the shape of the screen, but no legend and no axes.
            for (const auto& [width, height] : {std::pair(160, 120), std::pair(400, 100), std::pair(100, 400)}) {
                const PngFile file(canvas.encodeHardcopy(HardcopySettings(), width, height));
                const Extent border(file, {255, 0, 0});
                const Extent inside(file, {0, 0, 255});
                EXPECT_TRUE(border.left < inside.left && border.top < inside.top && border.right > inside.right &&
                            border.bottom > inside.bottom)
                    << "behaviour " << behaviour << ", " << width << " by " << height << ", " << preserves;
                if (preserves && behaviour != Settings::ResizeKeep) {
                    EXPECT_NEAR(border.right - border.left, border.bottom - border.top, 1.0) << behaviour;
                }
            }
        }
    }
}

TEST(Hardcopy, framesOfLegendsGrowWithTheResolution)
{
    OffscreenCanvas canvas(200, 200, 1);
    TestScene scene;
    scene.add<SceneGraphPlotSurface2d>(1, {}, {0x0000ff, 0xff0000});
    showFlat(canvas, scene);
    canvas.zoomExtents();
    HardcopySettings settings;
    settings.setLegendsShown(true);
    for (const int scale : {1, 3}) {
        settings.setDpi(scale * vxgraphics3d::Canvas3dGlobalSettings::getInstance()->getOnScreenResolution());
        const PngFile file(canvas.encodeHardcopy(settings, 200 * scale, 200 * scale));
        // Pixels of the frame in the row through the middle: two sides.
        int numFrame = 0;
        for (int x = 0; x < file.width; ++x) {
            numFrame += file.pixels[static_cast<std::size_t>(3 * ((90 * scale) * file.width + x))] == 70 ? 1 : 0;
        }
        EXPECT_EQ(numFrame, 2 * scale);
    }
}

TEST(Hardcopy, theSmallestMarksAndDistancesGrowWithTheResolution)
{
    OffscreenCanvas canvas(200, 200, 1);
    TestScene scene;
    boost::shared_ptr<SceneGraphPlotSphere2d> discs(new SceneGraphPlotSphere2d(1));
    scene.group->addPlot(discs);
    discs->fillPlot(PostRecord()
                        .role(PostDataObject::RadiusData, 0)
                        .bounds({{0, 1}, {0, 1}})
                        .group({{0, 1, 0.3}, {0, 1, 0.6}}, {}, {{1e-6, 1e-6, 1e-6}}));
    discs->setColor(vxgraphics3d::Color::fromRgb(0));
    vxgraphics3d::AxisSetup& axes = *canvas.getCanvas3dSettings()->getAxisSetupPtr();
    axes.setAutoSpacing(false);
    axes.setXSpacing(0.001);
    showFlat(canvas, scene);
    canvas.getCanvas3dSettings()->getGridBoxSettingsPtr()->setShowGrid(false);
    const auto fileAt = [&](int scale, bool hasAxes) {
        HardcopySettings settings;
        settings.setDpi(scale * vxgraphics3d::Canvas3dGlobalSettings::getInstance()->getOnScreenResolution());
        settings.setMultisampleSetting(4);
        settings.setAxisShown(hasAxes);
        return PngFile(canvas.encodeHardcopy(settings, 200 * scale, 200 * scale));
    };
    drawn(canvas);
    const auto darkness = [&](int scale) {
        const PngFile file = fileAt(scale, false);
        return std::accumulate(file.pixels.begin(), file.pixels.end(), 0.0,
                               [](double sum, std::uint8_t value) { return sum + (255 - value) / 765.0; });
    };
    const double onScreen = darkness(1);
    EXPECT_NEAR(onScreen, 3 * 0.6 * 0.6 * 3.14, 1.5);
    EXPECT_NEAR(darkness(4), 16 * 3 * 0.6 * 0.6 * 3.14, 3.0);

    // Ticks below the frame. The next closer distance has twice as many.
    const auto numTicks = [&](int scale) {
        const PngFile file = fileAt(scale, true);
        const Extent frame(file, {0, 0, 0});
        int most = 0;
        for (int y = 0; y < file.height; ++y) {
            int count = 0;
            bool wasDark = false;
            for (int x = frame.left; x < frame.right; ++x) {
                const bool isDark = file.pixels[static_cast<std::size_t>(3 * (y * file.width + x))] < 100;
                count += isDark && !wasDark ? 1 : 0;
                wasDark = isDark;
            }
            most = std::max(most, count);
        }
        return most;
    };
    EXPECT_GT(numTicks(1), 20);
    EXPECT_LT(numTicks(3), 1.5 * numTicks(1));
}

TEST(Hardcopy, textOfAxesCanBeReadOnItsBackground)
{
    OffscreenCanvas canvas(200, 200, 1);
    TestScene scene;
    scene.addSquare(1, 0xff0000);
    showFlat(canvas, scene);
    const auto view = canvas.getCanvas3dSettings();
    view->setRenderMask(RenderPlots | RenderAxes | RenderBackground);
    view->background(Canvas3dSettings::RenderMode2d).setBackgroundColor(vxgraphics3d::Color::fromRgb(0));
    // The labels are black, as in new settings.
    const Picture picture = drawn(canvas);
    int numWhite = 0;
    for (int y = 0; y < 200; ++y) {
        numWhite += static_cast<int>(picture.at(canvas.getView().area.x - 1, y) == c_white);
    }
    EXPECT_GE(numWhite, 3) << "ticks left of the frame";
    view->getGridBoxSettingsPtr()->setLabelColor(vxgraphics3d::Color::fromRgb(0xffffff));
    HardcopySettings settings;
    settings.setAxisShown(true);
    const Extent black(PngFile(canvas.encodeHardcopy(settings, 200, 200)), {0, 0, 0});
    EXPECT_GT(black.right - black.left, 100) << "the frame on the white of the export";
}

TEST(Hardcopy, supersamplingIsTheMeanOfAnExportThatIsLargerInEverything)
{
    OffscreenCanvas canvas(150, 120, 1);
    TestScene scene;
    scene.add<SceneGraphPlotSurface2d>(1, {}, {0x0000ff, 0x123456})->setTitle(TextFormat::plain, "Title");
    canvas.setScene(scene.scene);
    lookFrom(canvas, 30.0, 40.0);
    canvas.zoomExtents();
    HardcopySettings settings;
    settings.setTitleShown(true);
    settings.setLegendsShown(true);
    settings.setAxisShown(true);
    settings.setMultisampleSetting(4);
    constexpr int width = 140;
    constexpr int height = 110;
    for (const int factor : {2, 3}) {
        RenderStyle style;
        style.supersampling = factor;
        canvas.setStyle(style);
        // A pixel for each point, so that sizes of fonts are not rounded.
        settings.setDpi(72);
        const PngFile file(canvas.encodeHardcopy(settings, width, height));
        EXPECT_EQ(file.perMetre, 2835u);
        canvas.setStyle({});
        settings.setDpi(72 * factor);
        const PngFile large(canvas.encodeHardcopy(settings, width * factor, height * factor));
        ASSERT_EQ(file.width, width);
        ASSERT_EQ(file.height, height);
        const auto meanAt = [&](int x, int y, int channel) {
            int sum = 0;
            for (int i = 0; i < factor * factor; ++i) {
                const int column = x * factor + i % factor;
                const int row = y * factor + i / factor;
                sum += large.pixels.at(static_cast<std::size_t>(3 * (row * large.width + column) + channel));
            }
            return static_cast<int>(std::lround(static_cast<double>(sum) / (factor * factor)));
        };
        int numWrong = 0;
        for (int i = 0; i < 3 * width * height; ++i) {
            const int expected = meanAt(i / 3 % width, i / 3 / width, i % 3);
            numWrong += file.pixels.at(static_cast<std::size_t>(i)) != expected ? 1 : 0;
        }
        EXPECT_EQ(numWrong, 0) << factor;
    }
    RenderStyle style;
    style.supersampling = 4;
    canvas.setStyle(style);
    try {
        canvas.encodeHardcopy(settings, 9000, 50);
        FAIL() << "36000 pixels are more than any driver has";
    } catch (const std::invalid_argument& refusal) {
        EXPECT_NE(std::string(refusal.what()).find("9000 by 50 pixels, and for each of them 4 by 4 are drawn"),
                  std::string::npos);
    }
    EXPECT_THROW(canvas.encodeHardcopy(settings, 1 << 30, 1 << 30), std::invalid_argument);
    EXPECT_THROW(canvas.encodeHardcopy(settings, 0, 50), std::invalid_argument);
}

} // namespace
} // namespace vxrenderer
