#include "graphics3d/cameras/camera2d.h"
#include "graphics3d/cameras/camera3d.h"
#include "graphics3d/canvas/canvas3dsettings.h"
#include "graphics3d/canvas/gridboxsettings.h"
#include "graphics3d/canvas/scenesettings.h"
#include "graphics3d/lights/directionlightsource.h"
#include "graphics3d/lights/pointlightsource.h"
#include "graphics3d/lights/scenelight.h"
#include "graphics3d/lights/scenesettingslight.h"
#include "graphics3d/plots/vector/scenegraphplotarrow2d.h"
#include "graphics3d/plots/vector/scenegraphplotpointlabel.h"
#include "graphics3d/plots/vector/scenegraphplotsphere2d.h"
#include "graphics3d/plots/vector/scenegraphplotsphere3d.h"
#include "graphics3d/plots/vector/scenegraphplottube2d.h"
#include "graphics3d/settings/canvas3dglobalsettings.h"
#include "renderer/frame/appearance.h"
#include "renderer/frame/view.h"
#include "renderer/scene/sceneitems.h"
#include "tests/renderer/support/testscene.h"
#include "tests/support/postrecord.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <numbers>
#include <string>
#include <vector>

namespace vxrenderer {
namespace {

using vxdatacarrier::PostDataObject;
using vxgraphics3d::Camera3d;
using vxgraphics3d::Canvas3dGlobalSettings;
using vxgraphics3d::PostRecord;
using vxgraphics3d::SceneGraphPlotArrow2d;
using vxgraphics3d::SceneGraphPlotPointLabel;
using vxgraphics3d::SceneGraphPlotSphere2d;
using vxgraphics3d::SceneGraphPlotSphere3d;
using vxgraphics3d::SceneGraphPlotSurface2d;
using vxgraphics3d::SceneGraphPlotSurface3d;
using vxgraphics3d::SceneGraphPlotTube2d;

/// The margin at the border of a picture: 0.8 of the 12 pixels of the numbers of legends.
constexpr int c_border = 10;

/// What is drawn in a picture, by its first and last columns and rows.
struct Drawn {
    int left = 1 << 20;
    int top = 1 << 20;
    int right = 0;
    int bottom = 0;

    explicit Drawn(const Picture& picture)
    {
        for (int y = 0; y < picture.height; ++y) {
            for (int x = 0; x < picture.width; ++x) {
                if (picture.at(x, y) != c_white) {
                    left = std::min(left, x);
                    top = std::min(top, y);
                    right = std::max(right, x + 1);
                    bottom = std::max(bottom, y + 1);
                }
            }
        }
    }
    int width() const { return right - left; }
    int height() const { return bottom - top; }
};

/// A square folded to a body by a function from x and y.
template <class Position>
PostDataObject folded(int cells, Position position)
{
    GridRecord grid;
    grid.cells = cells;
    grid.height = [](double, double) { return 0.0; };
    PostDataObject record = grid.make();
    auto& coordinates = *record.m_coordinates[0];
    for (std::size_t i = 0; i < coordinates[0].size(); ++i) {
        const std::array<double, 3> point = position(coordinates[0][i], coordinates[1][i]);
        for (std::size_t axis = 0; axis < 3; ++axis) {
            coordinates[axis][i] = point[axis];
        }
    }
    for (std::size_t axis = 0; axis < 3; ++axis) {
        const auto [low, high] = std::minmax_element(coordinates[axis].begin(), coordinates[axis].end());
        (*record.m_bounds)[axis] = {*low, *high};
    }
    return record;
}

PostDataObject globe(double radius)
{
    return folded(60, [radius](double x, double y) {
        const double longitude = 2.0 * std::numbers::pi * x;
        const double latitude = std::numbers::pi * (y - 0.5);
        return std::array{radius * std::cos(latitude) * std::cos(longitude) + 3.0,
                          radius * std::cos(latitude) * std::sin(longitude) - 7.0, radius * std::sin(latitude)};
    });
}

class SceneFitTest : public ::testing::Test {
protected:
    SceneFitTest()
    {
        m_canvas.setScene(m_scene.scene);
        m_canvas.getCanvas3dSettings()->setRenderMask(RenderPlots | RenderAxes | RenderBackground);
    }

    boost::shared_ptr<SceneGraphPlotSurface3d> add(const PostDataObject& record, int id = 1)
    {
        boost::shared_ptr<SceneGraphPlotSurface3d> plot(new SceneGraphPlotSurface3d(id));
        m_scene.group->addPlot(plot);
        plot->fillPlot(record);
        plot->setColor(vxgraphics3d::Color::fromRgb(0xff0000));
        return plot;
    }

    Camera3d& camera() { return *m_canvas.getCanvas3dSettings()->camera3d(); }

    /// Requires that what is drawn is whole and fills the free part of a picture in one direction.
    void expectFit(const Picture& picture, const std::string& name)
    {
        const Drawn drawn(picture);
        const int width = picture.width - 2 * c_border;
        const int height = picture.height - 2 * c_border;
        EXPECT_GE(drawn.left, c_border) << name;
        EXPECT_GE(drawn.top, c_border) << name;
        EXPECT_LE(drawn.right, picture.width - c_border) << name;
        EXPECT_LE(drawn.bottom, picture.height - c_border) << name;
        EXPECT_GE(std::max(static_cast<double>(drawn.width()) / width, static_cast<double>(drawn.height()) / height),
                  0.92)
            << name << ": " << drawn.width() << " by " << drawn.height();
        // Labels that come and go with the zoom keep their space.
        EXPECT_NEAR(drawn.left + drawn.right, picture.width, 20) << name;
        EXPECT_NEAR(drawn.top + drawn.bottom, picture.height, 20) << name;
    }

    OffscreenCanvas m_canvas{480, 360, 4};
    TestScene m_scene;
};

TEST_F(SceneFitTest, sceneAndLabelsFillThePictureFromAllSides)
{
    const std::array<double, 3> sizes[] = {{1.0, 1.0, 1.0}, {100.0, 3.0, 20.0}, {2.0, 1.5, 0.0}, {1e-5, 1e-6, 1e-3}};
    for (const auto& size : sizes) {
        m_scene.group->removeAllPlots();
        add(folded(8, [&size](double x, double y) { return std::array{size[0] * x, size[1] * y, size[2] * y}; }));
        for (const auto type : {Camera3d::ProjectionPerspective, Camera3d::ProjectionOrthographic}) {
            camera().setProjectionType(type);
            for (const auto& [azimuth, elevation] :
                 {std::pair(-60.0, 30.0), std::pair(20.0, 10.0), std::pair(130.0, 70.0), std::pair(-90.0, 90.0)}) {
                for (const bool hasAxes : {true, false}) {
                    hasAxes ? m_canvas.getCanvas3dSettings()->addRenderMask(RenderAxes)
                            : m_canvas.getCanvas3dSettings()->removeRenderMask(RenderAxes);
                    lookFrom(m_canvas, azimuth, elevation);
                    expectFit(drawn(m_canvas), std::to_string(size[0]) + " by " + std::to_string(size[2]) + " from " +
                                                   std::to_string(azimuth) + (hasAxes ? " with axes" : " alone") +
                                                   (type == Camera3d::ProjectionPerspective ? "" : ", parallel"));
                }
            }
        }
    }
}

TEST_F(SceneFitTest, aGlobeHasOneSizeFromAllSides)
{
    showPlotsAlone(m_canvas);
    const auto plot = add(globe(2.0));
    const auto compare = [&](const char* name) {
        int least = 1 << 20;
        int most = 0;
        for (int i = 0; i < 12; ++i) {
            lookFrom(m_canvas, 30.0 * i, 75.0 * std::sin(1.7 * i));
            const Picture picture = drawn(m_canvas);
            expectFit(picture, name);
            for (const int extent : {Drawn(picture).width(), Drawn(picture).height()}) {
                least = std::min(least, extent);
                most = std::max(most, extent);
            }
        }
        EXPECT_LE(most - least, 2) << name;
    };
    compare("a mesh");
    camera().setProjectionType(Camera3d::ProjectionOrthographic);
    compare("a mesh, parallel");
    m_scene.group->removeAllPlots();
    boost::shared_ptr<SceneGraphPlotSphere3d> sphere(new SceneGraphPlotSphere3d(2));
    m_scene.group->addPlot(sphere);
    sphere->fillPlot(PostRecord().bounds({{3, 3}, {4, 4}, {5, 5}}).group({{3.0}, {4.0}, {5.0}}, {}));
    sphere->setColor(vxgraphics3d::Color::fromRgb(0xff0000));
    compare("a sphere without a box, parallel");
}

TEST_F(SceneFitTest, theZoomIsTheSameAgainAndForgetsAnOffset)
{
    add(globe(1.0));
    lookFrom(m_canvas, 20.0, 30.0);
    const Picture first = drawn(m_canvas);
    EXPECT_EQ(drawn(m_canvas).bytes, first.bytes);
    camera().setRelativeViewOffset(0.4f, -0.3f);
    camera().setAdditionalScale(0.2f, 0.3f, 0.1f);
    camera().mergeAdditionalTransformation();
    const Drawn again(drawn(m_canvas));
    EXPECT_NEAR(again.left, Drawn(first).left, 1);
    EXPECT_NEAR(again.bottom, Drawn(first).bottom, 1);
    // A camera whose scale is given in pixels, and the sphere around the box.
    camera().setOverrideResizeBehaviour(true, Canvas3dGlobalSettings::ResizePixels);
    expectFit(drawn(m_canvas), "fixed pixels");
    camera().setOverrideResizeBehaviour(false, Canvas3dGlobalSettings::ResizeFill);
    Canvas3dGlobalSettings& settings = *Canvas3dGlobalSettings::getInstance();
    settings.setZoomToExtentBehaviour(Canvas3dGlobalSettings::ZoomToExtentSphere);
    const Drawn inSphere(drawn(m_canvas));
    settings.setZoomToExtentBehaviour(Canvas3dGlobalSettings::ZoomToExtentTight);
    EXPECT_LT(inSphere.width(), Drawn(first).width());
    EXPECT_GT(inSphere.width(), 100);
}

TEST_F(SceneFitTest, onlyWhatIsShownCounts)
{
    showPlotsAlone(m_canvas);
    add(globe(1.0));
    const auto far = add(globe(50.0), 2);
    lookFrom(m_canvas, 20.0, 30.0);
    far->setActive(false);
    expectFit(drawn(m_canvas), "an inactive plot");
}

TEST_F(SceneFitTest, degenerateScenesAreSafe)
{
    const double inf = std::numeric_limits<double>::infinity();
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const auto square = [](double x, double y) { return std::array{x, y, 0.5 * x}; };
    for (const double odd : {inf, -inf, nan}) {
        m_scene.group->removeAllPlots();
        const auto plot = add(folded(4, square));
        PostDataObject record = folded(4, square);
        (*record.m_coordinates[0])[1][7] = odd;
        (*record.m_bounds)[1] = {0.0, odd};
        plot->fillPlot(record);
        lookFrom(m_canvas, 20.0, 30.0);
        const Drawn all(drawn(m_canvas));
        EXPECT_GT(all.width(), 100) << odd;
        EXPECT_TRUE(std::isfinite(camera().getViewTransform().get(1, 4))) << odd;
    }
    for (const auto& size : {std::array{0.0, 0.0, 0.0}, std::array{0.0, 0.0, 1.0}, std::array{1e30, 1e30, 1e30}}) {
        m_scene.group->removeAllPlots();
        add(folded(2, [&size](double x, double y) { return std::array{size[0] * x + 4.0, size[1] * y, size[2] * x}; }));
        for (const bool isFlat : {false, true}) {
            isFlat ? showFlat(m_canvas, m_scene) : lookFrom(m_canvas, 20.0, 30.0);
            drawn(m_canvas);
            const auto [x, y] = pixelOf(m_canvas, {4.0f, 0.0f, 0.0f});
            EXPECT_TRUE(std::isfinite(x) && std::isfinite(y)) << size[0] << ' ' << size[2] << isFlat;
        }
    }
}

TEST_F(SceneFitTest, aFlatSceneFillsItsFrame)
{
    GridRecord record;
    m_scene.add<SceneGraphPlotSurface2d>(1, record, {0xff0000});
    for (const bool hasAxes : {true, false}) {
        hasAxes ? m_canvas.getCanvas3dSettings()->addRenderMask(RenderAxes)
                : m_canvas.getCanvas3dSettings()->removeRenderMask(RenderAxes);
        showFlat(m_canvas, m_scene);
        const Picture picture = drawn(m_canvas);
        const auto [left, bottom] = pixelOf(m_canvas, {0.0f, 0.0f, 0.0f});
        const auto [right, top] = pixelOf(m_canvas, {1.0f, 1.0f, 0.0f});
        const PixelArea& area = m_canvas.getView().area;
        const int height = hasAxes ? area.height : picture.height - 2 * c_border;
        EXPECT_GE((bottom - top) / height, 0.92) << hasAxes;
        EXPECT_LE((bottom - top) / height, 0.97) << hasAxes;
        EXPECT_NEAR(right - left, bottom - top, 0.5) << hasAxes;
        EXPECT_NEAR(top + bottom, 2 * area.y + area.height, 1.0) << hasAxes;
    }
}

TEST_F(SceneFitTest, labelsCount)
{
    boost::shared_ptr<SceneGraphPlotPointLabel> labels(new SceneGraphPlotPointLabel(3, 1));
    m_scene.group->addPlot(labels);
    labels->setColor(vxgraphics3d::Color::fromRgb(0));
    labels->setLabels({"the first of all points", "a point in the middle", "the last"});
    labels->fillPlot(PostRecord().bounds({{0, 4}, {0, 4}, {0, 4}}).group({{0, 2, 4}, {0, 2, 4}, {0, 2, 4}}, {}));
    for (const bool hasAxes : {false, true}) {
        hasAxes ? m_canvas.getCanvas3dSettings()->addRenderMask(RenderAxes)
                : m_canvas.getCanvas3dSettings()->removeRenderMask(RenderAxes);
        for (const auto& [azimuth, elevation] :
             {std::pair(-60.0, 30.0), std::pair(20.0, 10.0), std::pair(-90.0, 90.0)}) {
            lookFrom(m_canvas, azimuth, elevation);
            expectFit(drawn(m_canvas), std::to_string(azimuth) + (hasAxes ? " with axes" : ""));
        }
    }

    // In a flat view they stay within the frame, which follows them.
    showFlat(m_canvas, m_scene);
    m_canvas.getCanvas3dSettings()->getGridBoxSettingsPtr()->setShowGrid(false);
    m_canvas.getCanvas3dSettings()->camera2d()->resetAxisViewScales();
    m_canvas.zoomExtents();
    const auto insideFrame = [&](const Picture& picture) {
        // The column of the line at the left, and from the middle of the picture to the line at the right.
        const PixelArea& area = m_canvas.getView().area;
        const auto isLine = [&](int x) {
            int dark = 0;
            for (int y = area.y; y < area.y + area.height; ++y) {
                dark += picture.at(x, y)[0] < 100 ? 1 : 0;
            }
            return dark > area.height - 3;
        };
        int left = area.x;
        int right = area.x + area.width;
        while (left < right && !isLine(left)) {
            ++left;
        }
        while (right > left && !isLine(right)) {
            --right;
        }
        Picture inside = {right - left - 3, area.height - 4, {}};
        for (int y = 0; y < inside.height; ++y) {
            for (int x = 0; x < inside.width; ++x) {
                for (const int channel : picture.at(left + 2 + x, area.y + 2 + y)) {
                    inside.bytes.push_back(static_cast<std::uint8_t>(channel));
                }
                inside.bytes.push_back(255);
            }
        }
        return inside;
    };
    const Picture flat = insideFrame(drawn(m_canvas));
    const Drawn texts(flat);
    const int margin = static_cast<int>(std::lround(0.5 * 0.05 / 1.05 * flat.height));
    EXPECT_NEAR(texts.left, margin, 4);
    EXPECT_NEAR(flat.width - texts.right, margin, 4);
    EXPECT_GE(texts.top, margin - 3);
    EXPECT_GE(flat.height - texts.bottom, margin - 3);
    EXPECT_GT(texts.width(), 150);
}

TEST_F(SceneFitTest, markersOfLightsCount)
{
    m_canvas.getCanvas3dSettings()->setRenderMask(RenderPlots | RenderBackground | RenderLightMarkers);
    m_canvas.getSceneSettings()->getLight()->setRenderLightMarkers(true);
    add(globe(1.0));
    lookFrom(m_canvas, 20.0, 30.0);
    const Drawn alone(drawn(m_canvas));
    vxgraphics3d::SceneLight& light = *m_scene.scene->getSceneLight();
    auto& lamp = static_cast<vxgraphics3d::PointLightSource&>(*light.lightSource(light.createPointLight()));
    lamp.setMarkerVisibility(true);
    lamp.setPosition(true, vxgraphics3d::Vector3f(3.0f, -4.0f, 0.5f));
    for (const auto& [azimuth, elevation] : {std::pair(-60.0, 30.0), std::pair(20.0, 10.0), std::pair(130.0, 70.0)}) {
        lookFrom(m_canvas, azimuth, elevation);
        expectFit(drawn(m_canvas), "from " + std::to_string(azimuth));
    }
    // The arrow of a direction comes as near as it has to, with the lines beside it.
    auto& sun = static_cast<vxgraphics3d::DirectionLightSource&>(*light.lightSource(light.createDirectionLight()));
    sun.setMarkerVisibility(true);
    sun.setFromDirection(true, vxgraphics3d::Vector3f(0.2f, -0.6f, 1.0f));
    lookFrom(m_canvas, -60.0, 30.0);
    const Drawn all(drawn(m_canvas));
    EXPECT_TRUE(all.left > 3 && all.top > 3 && all.right < 477 && all.bottom < 357) << all.left << ' ' << all.top;
    sun.setMarkerVisibility(false);
    // One that is far away leaves half of the size to the scene.
    lamp.setPosition(true, vxgraphics3d::Vector3f(300.0f, -7.0f, 0.0f));
    lookFrom(m_canvas, -90.0, 10.0);
    drawn(m_canvas);
    const double height = pixelOf(m_canvas, {3.0f, -7.0f, -1.0f})[1] - pixelOf(m_canvas, {3.0f, -7.0f, 1.0f})[1];
    EXPECT_NEAR(height / alone.height(), 0.5, 0.03);
}

TEST_F(SceneFitTest, theFrameOfAFittedMapFollowsItsData)
{
    PostDataObject record = folded(4, [](double x, double y) { return std::array{100.0 * x, 20.0 * y - 40.0, 0.0}; });
    record.m_coordinates[0]->resize(2);
    record.m_bounds->resize(2);
    record.m_normals.clear();
    record.m_plotKind = PostDataObject::Surface2d;
    boost::shared_ptr<SceneGraphPlotSurface2d> plot(new SceneGraphPlotSurface2d(1));
    m_scene.group->addPlot(plot);
    plot->fillPlot(record);
    plot->setColor(vxgraphics3d::Color::fromRgb(0xff8080));
    showFlat(m_canvas, m_scene);
    auto& flat = *m_canvas.getCanvas3dSettings()->camera2d();
    flat.resetAxisViewScales();
    m_canvas.getCanvas3dSettings()->getGridBoxSettingsPtr()->setShowGrid(false);
    // Rows between the highest data and the line of the frame above them.
    const auto rowsAbove = [&](const Picture& picture, float highest = -20.0f) {
        const auto [x, y] = pixelOf(m_canvas, {53.0f, highest, 0.0f});
        int count = 0;
        for (int row = static_cast<int>(y) - 2; row >= 0 && picture.at(static_cast<int>(x), row) == c_white; --row) {
            ++count;
        }
        return count;
    };
    const Picture fitted = drawn(m_canvas);
    const PixelArea area = m_canvas.getView().area;
    EXPECT_GT(area.height, 250);
    const int margin = static_cast<int>(std::lround(0.5 * 0.05 / 1.05 * area.width));
    const double above = pixelOf(m_canvas, {0.0f, -20.0f, 0.0f})[1] - area.y;
    EXPECT_GT(above, 80.0) << "so wide is the map";
    EXPECT_NEAR(rowsAbove(fitted), margin - 2, 2);
    flat.setAdditionalScale(0.5f, 0.5f, 1.2f);
    flat.mergeAdditionalTransformation();
    const Picture smaller = drawnAsIs(m_canvas);
    EXPECT_GT(rowsAbove(smaller), 80) << "a view of its own is shown whole";

    // What is larger than the box of its plot.
    const auto expectFrame = [&](const boost::shared_ptr<vxgraphics3d::SceneGraphPlot>& larger, float highest) {
        larger->setColor(vxgraphics3d::Color::fromRgb(0xff8080));
        EXPECT_NEAR(rowsAbove(drawn(m_canvas), highest), margin - 2, 2) << "plot " << larger->getId();
        m_scene.group->removeAllPlots();
    };
    m_scene.group->removeAllPlots();
    const auto line = PostRecord()
                          .role(PostDataObject::ColorData, 0)
                          .role(PostDataObject::RadiusData, 0)
                          .bounds({{0, 100}, {-30, -30}})
                          .group({{0, 53, 100}, {-30, -30, -30}}, {{0, 1}, {1, 2}}, {{9, 9, 9}});
    boost::shared_ptr<SceneGraphPlotTube2d> tube(new SceneGraphPlotTube2d(2));
    m_scene.group->addPlot(tube);
    tube->fillPlot(line);
    tube->setRadiusScaleFactor(2.0f);
    expectFrame(tube, -12.0f);
    boost::shared_ptr<SceneGraphPlotSphere2d> discs(new SceneGraphPlotSphere2d(3));
    m_scene.group->addPlot(discs);
    discs->fillPlot(line);
    discs->setRadiusScaleFactor(2.0f);
    expectFrame(discs, -12.0f);
    boost::shared_ptr<SceneGraphPlotArrow2d> arrows(new SceneGraphPlotArrow2d(4));
    m_scene.group->addPlot(arrows);
    arrows->setHeadRadius(0.02f);
    arrows->setAnchorPoint(SceneGraphPlotArrow2d::AnchorPoint::tail);
    arrows->allocate(2);
    arrows->appendArrow(0.0f, -30.0f, 100.0f, 0.0f, 0.0f);
    arrows->appendArrow(53.0f, -30.0f, 0.0f, 15.0f, 0.0f);
    arrows->setBoundingBox({0.0f, 53.0f, -30.0f, -30.0f, 0.0f, 0.0f});
    expectFrame(arrows, -15.0f);
}

TEST_F(SceneFitTest, heightsAreDataWhereAllPlotsShareTheirFactor)
{
    const auto fill = [&](const boost::shared_ptr<vxgraphics3d::SceneGraphPlot>& plot,
                          const std::vector<std::vector<int>>& elements, const std::vector<double>& colors,
                          const std::vector<double>& heights = {100, 200, 500, 300}) {
        m_scene.group->addPlot(plot);
        plot->fillPlot(PostRecord()
                           .role(PostDataObject::ColorData, 0)
                           .role(PostDataObject::HeightData, 1)
                           .role(PostDataObject::RadiusData, 2)
                           .bounds({{0, 2}, {0, 2}})
                           .group({{0, 2, 2, 0}, {0, 0, 2, 2}}, elements, {colors, heights, {0.3, 0.1, 0.2, 0.1}}));
        plot->setHeightScale(0.4f);
        plot->setPlotPlaneOffset(0.1f);
    };
    const auto raised = [&](int id, const std::vector<double>& colors) {
        boost::shared_ptr<SceneGraphPlotSurface2d> plot(new SceneGraphPlotSurface2d(id));
        fill(plot, {{0, 0}, {1, 2}, {2, 3}}, colors);
        return plot;
    };
    const auto units = [&] { return heightUnitsOf(collectItems(*m_scene.root)); };
    // The fill makes 500 as high as the plot is wide.
    const auto one = raised(1, {100, 200, 500, 300});
    EXPECT_NEAR(units().coordinateOf(500.0), 0.1 + 0.4 * 2.0, 1e-5);
    EXPECT_NEAR(units().valueAt(0.1), 0.0, 1e-3);
    const auto two = raised(2, {100, 200, 500, 300});
    EXPECT_NEAR(units().coordinateOf(500.0), 0.9, 1e-5);
    two->setHeightScale(0.5f);
    EXPECT_EQ(units().coordinateOf(500.0), 500.0) << "scales differ";
    two->setActive(false);
    EXPECT_NEAR(units().coordinateOf(500.0), 0.9, 1e-5);
    const auto slope = raised(3, {1, 2, 5, 4});
    EXPECT_NEAR(units().coordinateOf(500.0), 0.9, 1e-5) << "as high as another one at the same points";
    one->setActive(false);
    EXPECT_EQ(units().coordinateOf(500.0), 500.0) << "its colours are not its heights";
    boost::shared_ptr<SceneGraphPlotTube2d> tube(new SceneGraphPlotTube2d(4));
    fill(tube, {{0, 1, 2}, {1, 2, 3}}, {100, 200, 500, 300});
    EXPECT_NEAR(units().coordinateOf(500.0), 0.9, 1e-5) << "the middle lines of tubes";
    tube->fillPlot(PostRecord()
                       .role(PostDataObject::ColorData, 0)
                       .role(PostDataObject::HeightData, 0)
                       .role(PostDataObject::RadiusData, 0)
                       .bounds({{0, 2}, {0, 2}})
                       .group({{0, 2, 2, 0}, {0, 0, 2, 2}}, {{0, 1, 2}, {1, 2, 3}}, {{100, 200, 500, 400}}));
    EXPECT_EQ(units().coordinateOf(500.0), 500.0) << "one height differs";
    slope->setActive(false);
    EXPECT_NEAR(units().coordinateOf(500.0), 0.9, 1e-5);
}

TEST_F(SceneFitTest, aLargerSceneReachesTheBordersAndIsFramedWhereItIsCut)
{
    m_canvas.getCanvas3dSettings()->setRenderMask(RenderPlots | RenderLegends | RenderBackground);
    const auto plot = m_scene.add<SceneGraphPlotSurface3d>(1,
                                                           [] {
                                                               GridRecord record;
                                                               record.height = [](double, double) { return 0.0; };
                                                               return record;
                                                           }(),
                                                           {0x80ff80});
    lookFrom(m_canvas, -90.0, 90.0);
    const auto darkIn = [](const Picture& picture, int column) {
        int count = 0;
        for (int y = 0; y < picture.height; ++y) {
            count += picture.at(column, y)[1] < 150 ? 1 : 0;
        }
        return count;
    };
    const Picture whole = drawn(m_canvas);
    const PixelArea area = m_canvas.getView().area;
    const int last = area.x + area.width - 1;
    EXPECT_LT(last, 440) << "before the legend";
    EXPECT_EQ(darkIn(whole, last), 0) << "nothing is cut";
    camera().setAdditionalScale(0.5f, 0.5f, 0.3f);
    camera().mergeAdditionalTransformation();
    const Picture zoomed = drawnAsIs(m_canvas);
    EXPECT_EQ(area.x, 0);
    EXPECT_EQ(area.y, 0);
    EXPECT_EQ(area.height, 360);
    for (const auto& [x, y] : {std::pair(0, 0), std::pair(0, 359), std::pair(last - 5, 0)}) {
        EXPECT_NE(zoomed.at(x, y), c_white) << x << ' ' << y;
    }
    EXPECT_EQ(darkIn(zoomed, last), 360);
    EXPECT_EQ(darkIn(zoomed, last - 1), 0);
    EXPECT_EQ(darkIn(zoomed, 0), 0) << "the border of the picture needs no frame";
    // The frame follows what is cut.
    camera().setRelativeViewOffset(camera().getRelativeViewOffsetX(), 1.3f);
    const Picture aside = drawnAsIs(m_canvas);
    EXPECT_GT(darkIn(aside, last), 100);
    EXPECT_LT(darkIn(aside, last), 300);
}

} // namespace
} // namespace vxrenderer
