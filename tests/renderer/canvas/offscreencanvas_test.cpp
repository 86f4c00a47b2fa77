#include "renderer/canvas/offscreencanvas.h"

#include "graphics3d/canvas/canvas3dsettings.h"
#include "graphics3d/canvas/hardcopysettings.h"
#include "graphics3d/lights/directionlightsource.h"
#include "graphics3d/lights/scenelight.h"
#include "graphics3d/plots/colour/colortable.h"
#include "graphics3d/plots/scalar/scenegraphplotdomain3d.h"
#include "graphics3d/scene/scene.h"
#include "graphics3d/scenegraph/scenegraphgroup.h"
#include "renderer/frame/view.h"
#include "tests/renderer/support/testscene.h"
#include "tests/support/capturedlog.h"

#include <gtest/gtest.h>

#include <boost/make_shared.hpp>

#include <algorithm>
#include <cmath>
#include <stdexcept>

namespace vxrenderer {
namespace {

using vxgraphics3d::SceneGraphPlotDomain3d;
using vxgraphics3d::SceneGraphPlotSurface2d;
using vxgraphics3d::SceneGraphPlotSurface3d;
using vxgraphics3d::Vector3f;

constexpr Rgb c_blue = {0, 0, 255};
constexpr Rgb c_green = {0, 255, 0};
constexpr Rgb c_yellow = {255, 255, 0};
constexpr Rgb c_red = {255, 0, 0};
const std::vector<int> c_fourColors = {0x0000ff, 0x00ff00, 0xffff00, 0xff0000};

/// A picture of plots alone, 200 pixels square.
class OffscreenCanvasTest : public ::testing::Test {
protected:
    OffscreenCanvasTest()
    {
        showFlat(m_canvas, m_scene);
        showPlotsAlone(m_canvas);
    }

    /// The colour where a point of the scene is drawn.
    Rgb colorAt(const Picture& picture, const Vector3f& point) const
    {
        return vxrenderer::colorAt(m_canvas, picture, point);
    }
    /// Colours in the middles of the four quarters of the unit square along x.
    std::vector<Rgb> quarters(const Picture& picture) const
    {
        std::vector<Rgb> colors;
        for (const float x : {0.125f, 0.375f, 0.625f, 0.875f}) {
            colors.push_back(colorAt(picture, {x, 0.4f, 0.0f}));
        }
        return colors;
    }

    OffscreenCanvas m_canvas{200, 200, 4};
    TestScene m_scene;
};

TEST_F(OffscreenCanvasTest, showsEveryTexelWhereItsValueLies)
{
    const auto plot = m_scene.add<SceneGraphPlotSurface2d>(1, {}, c_fourColors);
    plot->setColorTable("run", {{0.0, 0.0, 0.0}, {1.0, 0.5, 0.25}}, true);
    const auto& texels = plot->getColorTable()->getRgba();
    for (const int samples : {1, 4}) {
        OffscreenCanvas canvas(300, 100, samples);
        showFlat(canvas, m_scene);
        showPlotsAlone(canvas);
        const Picture picture = drawn(canvas);
        const auto [left, bottom] = pixelOf(canvas, {0.0f, 0.0f, 0.0f});
        const auto [right, top] = pixelOf(canvas, {1.0f, 1.0f, 0.0f});
        const int y = static_cast<int>(0.5 * (bottom + top));
        int exact = 0;
        int compared = 0;
        for (int x = static_cast<int>(std::ceil(left)); x + 1 < right; ++x) {
            const double u = (x + 0.5 - left) / (right - left);
            const double v = (y + 0.5 - bottom) / (top - bottom);
            if (std::abs(u - v) * (right - left) < 1.5) {
                // On the edge between the two triangles, u is taken off the middle of the pixel.
                continue;
            }
            const auto texel = static_cast<int>(1024.0 * u);
            const auto colorOf = [&](int index) {
                const std::uint32_t word = texels[static_cast<std::size_t>(index)];
                return Rgb{static_cast<int>(word >> 24), static_cast<int>(word >> 16 & 255),
                           static_cast<int>(word >> 8 & 255)};
            };
            const Rgb color = picture.at(x, y);
            ++compared;
            exact += color == colorOf(texel) ? 1 : 0;
            // Rounding may move a position that lies on the border of two texels.
            EXPECT_TRUE(color == colorOf(texel) || color == colorOf(std::max(texel - 1, 0)) ||
                        color == colorOf(std::min(texel + 1, 1023)))
                << x;
        }
        EXPECT_GT(compared, 50);
        EXPECT_GT(exact, compared * 9 / 10);
        // Nothing beyond the square.
        EXPECT_EQ(picture.countDrawn(0, 0, static_cast<int>(left), 100), 0);
        EXPECT_EQ(picture.countDrawn(static_cast<int>(std::ceil(right)), 0, 300, 100), 0);
    }
}

TEST_F(OffscreenCanvasTest, reversesTheColorTable)
{
    const auto plot = m_scene.add<SceneGraphPlotSurface2d>(1, {}, c_fourColors);
    EXPECT_EQ(quarters(drawn(m_canvas)), (std::vector<Rgb>{c_blue, c_green, c_yellow, c_red}));
    plot->setReverseColorTable(true);
    EXPECT_EQ(quarters(drawn(m_canvas)), (std::vector<Rgb>{c_red, c_yellow, c_green, c_blue}));
}

TEST_F(OffscreenCanvasTest, changesOfLegendRestrictionAndHeightUploadNothing)
{
    const auto plot = m_scene.add<SceneGraphPlotSurface2d>(1, {}, c_fourColors);
    drawn(m_canvas);
    const UploadCounts before = m_canvas.getUploadCounts();
    EXPECT_EQ(before.meshes, 1);
    EXPECT_EQ(before.colorTables, 1);

    plot->setLegendLimits(0.0, 2.0);
    EXPECT_EQ(quarters(drawn(m_canvas)), (std::vector<Rgb>{c_blue, c_blue, c_green, c_green}));
    plot->setLegendLimits(0.2, 0.8);
    EXPECT_EQ(quarters(drawn(m_canvas)), (std::vector<Rgb>{c_blue, c_green, c_yellow, c_red}));
    plot->setLegendLimits(0.0, 1.0);
    plot->setSymmetricColorTable(true);
    EXPECT_EQ(quarters(drawn(m_canvas)), (std::vector<Rgb>{c_yellow, c_yellow, c_red, c_red}));
    plot->setHeightScale(3.0f);
    plot->setPlotPlaneOffset(1.0f);
    plot->setTitle(TextFormat::plain, "title");
    plot->setColor({9, 8, 7, 255});
    EXPECT_EQ(colorAt(drawn(m_canvas), {0.5f, 0.5f, 1.0f}), (Rgb{9, 8, 7}));
    EXPECT_EQ(m_canvas.getUploadCounts(), before);

    // Switching a restriction moves the number of the geometry, and so does filling in the same data.
    plot->setValueRestrictions(0.3, 2.0);
    EXPECT_EQ(colorAt(drawn(m_canvas), {0.2f, 0.4f, 0.0f}), c_white);
    plot->resetValueRestrictions();
    EXPECT_EQ(colorAt(drawn(m_canvas), {0.2f, 0.4f, 0.0f}), (Rgb{9, 8, 7}));
    plot->fillPlot(GridRecord().make());
    drawn(m_canvas);
    EXPECT_EQ(m_canvas.getUploadCounts(), before);
}

TEST_F(OffscreenCanvasTest, uploadsWhatAFillChangedAndNothingElse)
{
    m_scene.add<SceneGraphPlotSurface2d>(1, {}, c_fourColors);
    const auto second = m_scene.add<SceneGraphPlotSurface2d>(2, {}, {0x123456});
    drawn(m_canvas);
    EXPECT_EQ(m_canvas.getUploadCounts().meshes, 2);
    EXPECT_EQ(m_canvas.getUploadCounts().colorTables, 2);

    GridRecord record;
    record.value = [](double, double y) { return y; };
    second->fillPlot(record.make());
    drawn(m_canvas);
    EXPECT_EQ(m_canvas.getUploadCounts().meshes, 3);
    EXPECT_EQ(m_canvas.getUploadCounts().colorTables, 2);
    second->setColorTable("other", {{0.0, 0.0, 0.0}}, true);
    drawn(m_canvas);
    EXPECT_EQ(m_canvas.getUploadCounts().meshes, 3);
    EXPECT_EQ(m_canvas.getUploadCounts().colorTables, 3);

    // One value, or one corner, of many.
    auto changed = record.make();
    (*changed.m_data[0])[0].back() = 0.75;
    second->fillPlot(changed);
    drawn(m_canvas);
    EXPECT_EQ(m_canvas.getUploadCounts().meshes, 4);
    (*changed.m_elements[0])[2].back() = 0;
    second->fillPlot(changed);
    drawn(m_canvas);
    EXPECT_EQ(m_canvas.getUploadCounts().meshes, 5);
}

TEST_F(OffscreenCanvasTest, restrictionHidesWhatLiesOutsideAndPunchesNoHoles)
{
    GridRecord record;
    record.cells = 40;
    const auto plot = m_scene.add<SceneGraphPlotSurface2d>(1, record, c_fourColors);
    plot->setValueRestrictions(0.5, 7.0);
    const Picture picture = drawn(m_canvas);
    EXPECT_EQ(quarters(picture), (std::vector<Rgb>{c_white, c_white, c_yellow, c_red}));
    const auto [middle, bottom] = pixelOf(m_canvas, {0.5f, 0.0f, 0.0f});
    const auto [right, top] = pixelOf(m_canvas, {1.0f, 1.0f, 0.0f});
    const int left = static_cast<int>(std::ceil(middle)) + 1;
    const int upper = static_cast<int>(std::ceil(top));
    const int width = static_cast<int>(right) - left;
    const int height = static_cast<int>(bottom) - upper;
    EXPECT_EQ(picture.countDrawn(left, upper, left + width, upper + height), width * height);
    EXPECT_EQ(picture.countDrawn(0, 0, static_cast<int>(middle) - 1, 200), 0);

    // A range that holds all the data shows all of it, to the last border pixel.
    plot->resetValueRestrictions();
    const Picture whole = drawn(m_canvas);
    plot->setValueRestrictions(-1.0, 2.0);
    EXPECT_EQ(drawn(m_canvas).bytes, whole.bytes);
}

TEST_F(OffscreenCanvasTest, hidesConstantDataOutsideTheRestriction)
{
    GridRecord record;
    record.value = [](double, double) { return 5.0; };
    const auto plot = m_scene.add<SceneGraphPlotSurface2d>(1, record, c_fourColors);
    EXPECT_EQ(quarters(drawn(m_canvas)), std::vector<Rgb>(4, c_yellow));
    plot->setValueRestrictions(6.0, 8.0);
    EXPECT_EQ(drawn(m_canvas).countDrawn(0, 0, 200, 200), 0);
    plot->setValueRestrictions(4.0, 6.0);
    EXPECT_EQ(quarters(drawn(m_canvas)), std::vector<Rgb>(4, c_yellow));
}

TEST_F(OffscreenCanvasTest, leavesOutWhatIsNotActiveOrHasNothingToShow)
{
    const auto outer = vxgraphics3d::SceneGraphGroup::create();
    m_scene.root->setChild(outer);
    outer->addChild(m_scene.group);
    const auto plot = m_scene.add<SceneGraphPlotSurface2d>(1, {}, c_fourColors);
    const auto count = [&] { return drawn(m_canvas).countDrawn(0, 0, 200, 200); };
    const int all = count();
    EXPECT_GT(all, 20000);
    plot->setActive(false);
    EXPECT_EQ(count(), 0);
    plot->setActive(true);
    m_scene.group->setActive(false);
    EXPECT_EQ(count(), 0);
    m_scene.group->setActive(true);
    outer->setActive(false);
    EXPECT_EQ(count(), 0);
    outer->setActive(true);
    EXPECT_EQ(count(), all);
    plot->resetPlotData();
    EXPECT_EQ(count(), 0);
    m_scene.group->removeAllPlots();
    EXPECT_EQ(count(), 0);
    m_canvas.setScene(nullptr);
    EXPECT_EQ(count(), 0);
}

TEST_F(OffscreenCanvasTest, drawsWideIndicesLikeNarrowOnes)
{
    GridRecord coarse;
    coarse.cells = 50;
    m_scene.add<SceneGraphPlotSurface2d>(1, coarse, c_fourColors);
    const Picture narrow = drawn(m_canvas);
    GridRecord fine;
    fine.cells = 300;
    const auto plot = m_scene.add<SceneGraphPlotSurface2d>(1, fine, c_fourColors);
    EXPECT_TRUE(plot->getTriangles().uses32BitIndices());
    const Picture wide = drawn(m_canvas);
    EXPECT_EQ(quarters(wide), (std::vector<Rgb>{c_blue, c_green, c_yellow, c_red}));
    EXPECT_EQ(wide.countDrawn(0, 0, 200, 200), narrow.countDrawn(0, 0, 200, 200));
}

TEST_F(OffscreenCanvasTest, stretchesAPlotAboutItsPlane)
{
    GridRecord ridge;
    ridge.cells = 20;
    ridge.height = [](double x, double) { return 1.0 - std::abs(2.0 * x - 1.0); };
    ridge.value = ridge.height;
    const auto plot = m_scene.add<SceneGraphPlotSurface3d>(1, ridge, c_fourColors);
    // From the front, the picture is a triangle: its tip is where the highest point is reported to be.
    lookFrom(m_canvas, -90.0, 0.0);
    const auto tip = [&](float z) {
        const Picture picture = drawn(m_canvas);
        const auto [x, y] = pixelOf(m_canvas, {0.5f, 0.0f, z});
        const int column = static_cast<int>(x);
        int top = 0;
        while (top < 200 && picture.at(column, top) == c_white) {
            ++top;
        }
        return std::abs(top - y);
    };
    EXPECT_LE(tip(1.0f), 1.5);
    plot->setPlotPlaneOffset(0.5f);
    EXPECT_LE(tip(1.5f), 1.5);
    plot->setHeightScale(2.0f);
    EXPECT_LE(tip(2.5f), 1.5);
}

TEST_F(OffscreenCanvasTest, lightsBothSidesByTheSlopeTowardsTheEye)
{
    GridRecord flat;
    flat.height = [](double, double) { return 0.0; };
    flat.value = [](double, double) { return 1.0; };
    GridRecord roof = flat;
    roof.height = [](double x, double) { return 0.5 * x; };
    roof.areNormalsDown = true;
    lookFrom(m_canvas, -90.0, 80.0);
    // Two plots keep the box the same, and only one is shown.
    const auto colorOf = [&](const GridRecord& record) {
        TestScene scene;
        const auto plot = scene.add<SceneGraphPlotDomain3d>(1, record, {0x808080});
        plot->setBoundingBox(vxgraphics3d::BoundingBox(0.0f, 1.0f, 0.0f, 1.0f, -0.5f, 0.5f));
        vxgraphics3d::SceneLight& light = *scene.scene->getSceneLight();
        const int id = light.createDirectionLight();
        static_cast<vxgraphics3d::DirectionLightSource*>(light.lightSource(id))
            ->setFromDirection(true, Vector3f(-1.0f, 0.0f, 2.0f));
        light.lightSource(id)->setIntensity(0.8f);
        light.lightSource(id)->setActive(true);
        light.setAmbientIntensity(0.2f);
        m_canvas.setScene(scene.scene);
        return colorAt(drawn(m_canvas), {0.5f, 0.5f, static_cast<float>(record.height(0.5, 0.5))})[0];
    };
    const int level = colorOf(flat);
    flat.areNormalsDown = true;
    EXPECT_EQ(colorOf(flat), level);
    const int slope = colorOf(roof);
    roof.areNormalsDown = false;
    EXPECT_EQ(colorOf(roof), slope);
    EXPECT_NE(slope, level);
    EXPECT_GT(level, 100);
    // The light comes from the left: a slope that looks away from it is darker than one that faces it.
    GridRecord other = roof;
    other.height = [](double x, double) { return -0.5 * x; };
    EXPECT_GT(slope, colorOf(other) + 10);
}

TEST_F(OffscreenCanvasTest, drawsNoMeshWithAnIndexBeyondItsVerticesAndSaysSo)
{
    auto record = GridRecord{}.make();
    (*record.m_elements[0])[1][1] = 4;
    const auto plot = m_scene.add<SceneGraphPlotSurface2d>(1, {}, c_fourColors);
    plot->fillPlot(record);
    vxgraphics3d::CapturedLog log(vxgraphics3d::ErrorLog::Level::error);
    EXPECT_EQ(drawn(m_canvas).countDrawn(0, 0, 200, 200), 0);
    EXPECT_EQ(drawn(m_canvas).countDrawn(0, 0, 200, 200), 0);
    EXPECT_EQ(log.messages(),
              std::vector<std::string>{"A mesh is not drawn: The index 4 points beyond the 4 vertices."});
}

TEST_F(OffscreenCanvasTest, takesNoNewPlotForAnOldOneAtTheSameAddress)
{
    for (const int color : {0xff0000, 0x00ff00, 0x0000ff}) {
        TestScene scene;
        GridRecord record;
        record.value = [](double, double) { return 1.0; };
        scene.add<SceneGraphPlotSurface2d>(1, record, {color});
        m_canvas.setScene(scene.scene);
        EXPECT_EQ(colorAt(drawn(m_canvas), {0.5f, 0.5f, 0.0f}), (Rgb{color >> 16, color >> 8 & 255, color & 255}));
    }
}

TEST_F(OffscreenCanvasTest, keepsAClosedSceneAndLetsADisposedOneGo)
{
    m_scene.add<SceneGraphPlotSurface2d>(1, {}, c_fourColors);
    m_scene.root.reset();
    const boost::weak_ptr<vxgraphics3d::Scene> weak = m_scene.scene;
    m_scene.scene.reset();
    EXPECT_GT(drawn(m_canvas).countDrawn(0, 0, 200, 200), 20000);
    weak.lock()->dispose();
    EXPECT_EQ(drawn(m_canvas).countDrawn(0, 0, 200, 200), 0);
    EXPECT_TRUE(weak.expired());
}

TEST_F(OffscreenCanvasTest, resizingKeepsSceneAndUploads)
{
    m_scene.add<SceneGraphPlotSurface2d>(1, {}, c_fourColors);
    drawn(m_canvas);
    const UploadCounts before = m_canvas.getUploadCounts();
    m_canvas.resize(123, 77);
    std::vector<std::uint8_t> bytes(123 * 77 * 4);
    EXPECT_THROW(m_canvas.readImage(bytes.data(), bytes.size()), std::logic_error);
    EXPECT_EQ(quarters(drawn(m_canvas)), (std::vector<Rgb>{c_blue, c_green, c_yellow, c_red}));
    EXPECT_EQ(m_canvas.getUploadCounts(), before);
    EXPECT_THROW(m_canvas.resize(0, 10), std::invalid_argument);
    EXPECT_THROW(m_canvas.resize(100000, 100000), std::invalid_argument);
    EXPECT_EQ(m_canvas.getWidth(), 123);
    EXPECT_EQ(quarters(drawn(m_canvas)), (std::vector<Rgb>{c_blue, c_green, c_yellow, c_red}));
}

TEST(OffscreenCanvas, aDraftShowsTheSameWithOneSample)
{
    TestScene scene;
    GridRecord record;
    record.cells = 10;
    record.height = [](double x, double y) { return x * y; };
    scene.add<SceneGraphPlotSurface3d>(1, record, c_fourColors);
    OffscreenCanvas canvas(320, 200, 4);
    OffscreenCanvas plain(320, 200, 1);
    canvas.setScene(scene.scene);
    plain.setScene(scene.scene);
    const Picture before = drawn(canvas);
    drawn(plain);
    const UploadCounts uploads = canvas.getUploadCounts();
    // Labels go with the camera: nothing is left where the last full picture had it.
    for (const double azimuth : {-120.0, 20.0}) {
        for (OffscreenCanvas* view : {&canvas, &plain}) {
            lookFrom(*view, azimuth, 30.0);
            view->zoomExtents();
        }
        const Picture draft = drawnAsIs(canvas, Quality::draft);
        EXPECT_EQ(draft.bytes, drawnAsIs(plain).bytes) << azimuth;
        EXPECT_NE(draft.bytes, before.bytes) << azimuth;
        const Picture full = drawnAsIs(canvas);
        int numOthers = 0;
        for (std::size_t i = 0; i < full.bytes.size(); i += 4) {
            numOthers += std::equal(&full.bytes[i], &full.bytes[i] + 4, &draft.bytes[i]) ? 0 : 1;
        }
        // Only edges of faces differ.
        EXPECT_GT(numOthers, 100) << azimuth;
        EXPECT_LT(numOthers, 320 * 200 / 10) << azimuth;
    }
    // Characters that come into view for the first time are loaded.
    EXPECT_EQ(canvas.getUploadCounts().meshes, uploads.meshes);
    EXPECT_EQ(canvas.getUploadCounts().colorTables, uploads.colorTables);
    EXPECT_EQ(canvas.getSamples(), 4);

    canvas.draw(Quality::draft);
    canvas.resize(160, 100);
    std::vector<std::uint8_t> bytes(canvas.imageSize());
    EXPECT_THROW(canvas.readImage(bytes.data(), bytes.size()), std::logic_error);
    EXPECT_GT(drawnAsIs(canvas, Quality::draft).countDrawn(0, 0, 160, 100), 500);
}

TEST(OffscreenCanvas, refusesInvalidSizes)
{
    EXPECT_THROW(OffscreenCanvas(0, 100, 1), std::invalid_argument);
    EXPECT_THROW(OffscreenCanvas(100, -1, 1), std::invalid_argument);
    EXPECT_THROW(OffscreenCanvas(1 << 30, 1 << 30, 1), std::invalid_argument);
    OffscreenCanvas canvas(10, 10, 1000);
    EXPECT_GE(canvas.getSamples(), 1);
    EXPECT_LE(canvas.getSamples(), 64);
    std::vector<std::uint8_t> bytes(401);
    EXPECT_THROW(canvas.readImage(bytes.data(), 400), std::logic_error);
    canvas.draw();
    EXPECT_THROW(canvas.readImage(bytes.data(), 401), std::invalid_argument);
    EXPECT_NO_THROW(canvas.readImage(bytes.data(), 400));
}

TEST(OffscreenCanvas, anyNumberOfThemDrawSideBySide)
{
    TestScene scene;
    scene.add<SceneGraphPlotSurface2d>(1, {}, c_fourColors);
    OffscreenCanvas one(64, 64, 4);
    OffscreenCanvas two(64, 64, 4);
    one.setScene(scene.scene);
    two.setScene(scene.scene);
    EXPECT_EQ(drawn(one).bytes, drawn(two).bytes);
    EXPECT_EQ(drawn(one).bytes, drawn(two).bytes);
}

TEST_F(OffscreenCanvasTest, anUnknownRenderModeIsDrawnAs3dAndReportedOnce)
{
    m_scene.addSquare(1, 0x00ff00);
    lookFrom(m_canvas, 30.0, 30.0);
    drawn(m_canvas);
    const Picture expected = drawnAsIs(m_canvas);
    const vxgraphics3d::CapturedLog log(vxgraphics3d::ErrorLog::Level::error);
    for (const int mode : {7, -1}) {
        m_canvas.getCanvas3dSettings()->setRenderMode(static_cast<vxgraphics3d::Canvas3dSettings::RenderMode>(mode));
        for (int i = 0; i < 2; ++i) {
            EXPECT_TRUE(drawnAsIs(m_canvas).bytes == expected.bytes);
            EXPECT_FALSE(m_canvas.encodeHardcopy(vxgraphics3d::HardcopySettings(), 20, 20).empty());
        }
    }
    EXPECT_EQ(log.messages(), (std::vector<std::string>{"There is no render mode 7: the 3D view is drawn.",
                                                        "There is no render mode -1: the 3D view is drawn."}));
    EXPECT_NO_THROW(m_canvas.zoomExtents());
}

} // namespace
} // namespace vxrenderer
