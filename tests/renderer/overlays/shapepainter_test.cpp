// Pixels of overlays: over a flat view in which a unit is a pixel, with y upwards.

#include "graphics3d/cameras/camera2d.h"
#include "graphics3d/canvas/canvas3dsettings.h"
#include "graphics3d/canvas/hardcopysettings.h"
#include "graphics3d/overlays/overlay.h"
#include "graphics3d/overlays/overlaydrawcurve.h"
#include "graphics3d/overlays/overlayellipse.h"
#include "graphics3d/overlays/overlayline.h"
#include "graphics3d/overlays/overlaypoint.h"
#include "graphics3d/overlays/overlayrectangle.h"
#include "graphics3d/overlays/overlaysymbol.h"
#include "graphics3d/overlays/overlaytransformation.h"
#include "graphics3d/scenegraph/scenegraphgroup.h"
#include "tests/renderer/support/testscene.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <map>
#include <numbers>
#include <utility>

namespace vxrenderer {
namespace {

using namespace vxgraphics3d;

constexpr Rgb c_red = {255, 0, 0};
constexpr Rgb c_blue = {0, 0, 255};
constexpr Rgb c_black = {0, 0, 0};
constexpr int c_size = 200;

class ShapePainterTest : public testing::Test {
protected:
    ShapePainterTest()
    {
        m_canvas.setOverlay(m_overlay);
        showFlat(m_canvas, m_scene);
        showPlotsAlone(m_canvas);
        m_canvas.draw(); // gives the camera its area
        const PixelArea& area = m_canvas.getView().area;
        const auto bottom = static_cast<float>(c_size - area.y - area.height);
        m_canvas.getCanvas3dSettings()->camera2d()->setViewLimits(static_cast<float>(area.x),
                                                                  static_cast<float>(area.x + area.width), bottom,
                                                                  bottom + static_cast<float>(area.height));
    }

    /// Adds an object that is red inside and blue around.
    template <class Object, class... Arguments>
    boost::shared_ptr<Object> add(Arguments... arguments)
    {
        const auto object = boost::make_shared<Object>(arguments...);
        object->setUseColor(true);
        object->setFillColor({255, 0, 0, 255});
        object->setOutlineColor({0, 0, 255, 255});
        m_overlay->addOverlayObject(object, 1);
        return object;
    }
    template <class Object>
    boost::shared_ptr<Object> addBetween(double x0, double y0, double x1, double y1)
    {
        const auto object = add<Object>();
        object->setStart(x0, y0);
        object->setEnd(x1, y1);
        return object;
    }

    /// The colours of the picture and the number of pixels of each.
    std::map<Rgb, int> colors()
    {
        m_picture = drawnAsIs(m_canvas);
        std::map<Rgb, int> counts;
        for (int y = 0; y < m_picture.height; ++y) {
            for (int x = 0; x < m_picture.width; ++x) {
                ++counts[m_picture.at(x, y)];
            }
        }
        return counts;
    }
    /// The pixel of the last picture that has a point as its lower left corner.
    Rgb at(int x, int y) const { return m_picture.at(x, c_size - 1 - y); }

    OffscreenCanvas m_canvas{c_size, c_size, 1};
    TestScene m_scene;
    boost::shared_ptr<Overlay> m_overlay = boost::make_shared<Overlay>();
    Picture m_picture;
};

TEST_F(ShapePainterTest, rectangleIsFilledAndThenOutlinedInItsColors)
{
    const auto rectangle = addBetween<OverlayRectangle>(150, 100, 50, 60);
    rectangle->setFilled(true);
    rectangle->setLineSize(4.0f);
    std::map<Rgb, int> counts = colors();
    EXPECT_EQ(counts[c_red], 96 * 36);
    EXPECT_NEAR(counts[c_blue], 104 * 44 - 96 * 36, 12) << "the corners are round";
    EXPECT_EQ(at(100, 101), c_blue);
    EXPECT_EQ(at(100, 102), c_white);
    EXPECT_EQ(at(100, 97), c_red);

    rectangle->setIsOutlined(false);
    EXPECT_EQ(colors()[c_red], 100 * 40);
    rectangle->setFilled(false);
    EXPECT_EQ(colors()[c_white], c_size * c_size);
}

TEST_F(ShapePainterTest, translucentFillIsBlendedOnceAndLinesHaveNoJoints)
{
    const auto ellipse = addBetween<OverlayEllipse>(100, 100, 160, 130);
    ellipse->setFilled(true);
    ellipse->setIsOutlined(false);
    ellipse->setFillColor({255, 0, 0, 128});
    std::map<Rgb, int> counts = colors();
    ASSERT_EQ(counts.size(), 2u);
    EXPECT_EQ(at(100, 100), (Rgb{255, 127, 127}));
    EXPECT_NEAR(counts[at(100, 100)], std::numbers::pi * 60.0 * 30.0, 30.0);

    // Over each other in the order of the list.
    addBetween<OverlayRectangle>(0, 0, 100, 100)->setFilled(true);
    colors();
    EXPECT_EQ(at(90, 90), c_red);
    m_overlay->addOverlayObject(ellipse, 1);
    m_overlay->removeOverlayObject(ellipse);
    m_overlay->addOverlayObject(ellipse, 1);
    ellipse->setFillColor({0, 0, 255, 255});
    colors();
    EXPECT_EQ(at(90, 90), c_blue);
}

TEST_F(ShapePainterTest, linesPointsAndSymbolsHaveSizesInPixels)
{
    addBetween<OverlayLine>(20, 180, 180, 180)->setLineSize(6.0f);
    EXPECT_NEAR(colors()[c_blue], 6 * 160 + 28, 14) << "without the borders of the round ends";
    m_overlay->removeOverlayObject(m_overlay->getOverlayObjects().front());

    const auto point = add<OverlayPoint>();
    point->setX(50.0);
    point->setY(60.0);
    point->setLineSize(20.0f);
    colors();
    EXPECT_EQ(at(58, 60), c_blue);
    EXPECT_EQ(at(60, 60), c_white);
    EXPECT_EQ(at(58, 68), c_white) << "it is round";
    point->setFilled(true);
    point->setLineSize(9.0f);
    point->setIsOutlined(false);
    EXPECT_GT(colors()[c_red], 40);
    m_overlay->removeOverlayObject(point);

    const auto symbol = add<OverlaySymbol>(RenderSymbol::triangleDown);
    symbol->setX(100.0);
    symbol->setY(100.0);
    symbol->setFilled(true);
    colors();
    EXPECT_EQ(at(100, 100), c_red);
    const auto widthAt = [&](int y) { return m_picture.countDrawn(0, c_size - 1 - y, c_size, c_size - y); };
    EXPECT_GT(widthAt(102), widthAt(98) + 3) << "it points down";
    EXPECT_GT(widthAt(98), 0);
}

TEST_F(ShapePainterTest, transformationMovesShapesAndNotTheWidthsOfLines)
{
    const auto line = addBetween<OverlayLine>(0, 0, 10, 0);
    line->setLineSize(4.0f);
    line->translate(100.0f, 50.0f, 0.0f, true);
    line->rotate(0.0f, 0.0f, 1.0f, std::numbers::pi_v<float> / 2.0f, false);
    line->scale(10.0f, 10.0f, 1.0f, false);
    EXPECT_NEAR(colors()[c_blue], 4 * 100 + 12, 8) << "without the borders of the round ends";
    EXPECT_EQ(at(100, 149), c_blue);
    EXPECT_EQ(at(98, 60), c_blue);
    EXPECT_EQ(at(97, 60), c_white);
}

TEST_F(ShapePainterTest, objectWithoutOwnColorsContrastsWithTheBackground)
{
    const auto rectangle = addBetween<OverlayRectangle>(50, 50, 150, 150);
    rectangle->setUseColor(false);
    rectangle->setFilled(true);
    rectangle->setLineSize(4.0f);
    colors();
    EXPECT_EQ(at(100, 50), c_black);
    EXPECT_EQ(at(100, 100), (Rgb{191, 191, 191}));
    m_canvas.getCanvas3dSettings()->background(Canvas3dSettings::RenderMode2d).setBackgroundColor(Color{0, 0, 0, 255});
    colors();
    EXPECT_EQ(at(100, 50), c_white);
    EXPECT_EQ(at(100, 100), (Rgb{64, 64, 64}));
}

TEST_F(ShapePainterTest, frameEnclosesTheNodeWithHandlesThatShowTheirMarks)
{
    const auto frame = add<OverlayTransformation>();
    frame->setLineSize(2.0f);
    EXPECT_EQ(colors()[c_white], c_size * c_size) << "nothing to enclose";

    m_scene.group->removeAllPlots();
    const auto plot = m_scene.add<SceneGraphPlotSurface2d>(1, GridRecord(), {0x00ff00});
    plot->setBoundingBox(BoundingBox(40.0f, 120.0f, 60.0f, 160.0f, 0.0f, 0.0f));
    m_canvas.setFramedNode(m_scene.group);
    frame->setMarkedHandle(4, true);
    colors();
    EXPECT_EQ(frame->getHandlePos(4), Vector3f(120.0f, 160.0f, 0.0f));
    EXPECT_EQ(at(120, 160), c_blue);
    EXPECT_EQ(at(124, 164), c_blue);
    EXPECT_EQ(at(126, 166), c_white);
    EXPECT_EQ(at(40, 160), c_white) << "a handle without a mark is hollow";
    EXPECT_EQ(at(36, 160), c_blue);
    EXPECT_EQ(at(100, 160), c_blue);
    frame->translate(20.0f, -40.0f, 0.0f, true);
    colors();
    EXPECT_EQ(at(140, 120), c_blue);
    m_scene.group->removeAllPlots();
}

TEST_F(ShapePainterTest, frameInSpaceHasTheTwelveEdgesOfTheBox)
{
    m_scene.addSquare(1, 0x00ff00, 0.0);
    m_scene.addSquare(2, 0x00ff00, 1.0);
    lookFrom(m_canvas, -50.0, 30.0);
    showPlotsAlone(m_canvas);
    drawn(m_canvas);
    const auto frame = add<OverlayTransformation>();
    frame->setLineSize(5.0f);
    colors();
    for (const Vector3f& middle :
         {Vector3f(0.3f, 0.0f, 1.0f), Vector3f(0.3f, 1.0f, 1.0f), Vector3f(0.0f, 0.3f, 1.0f),
          Vector3f(1.0f, 0.3f, 1.0f), Vector3f(0.0f, 0.0f, 0.3f), Vector3f(1.0f, 1.0f, 0.3f)}) {
        EXPECT_EQ(colorAt(m_canvas, m_picture, middle), c_blue) << middle << ", also behind the squares";
    }
    m_scene.group->removeAllPlots();
}

TEST_F(ShapePainterTest, curveShowsItsEdgesPointsAndMarks)
{
    const auto curve = add<OverlayDrawCurve>();
    curve->setLineSize(3.0f);
    const int a = curve->addVertex(150.0, 50.0);
    const int b = curve->addVertex(50.0, 150.0);
    const int edge = curve->addEdge(a, b);
    for (const auto& [x, y] : {std::pair(150.0, 50.0), std::pair(150.0, 150.0), std::pair(50.0, 150.0)}) {
        curve->addControlPoint(edge, x, y);
    }
    std::map<Rgb, int> counts = colors();
    const int onArc = 50 + static_cast<int>(100.0 / std::numbers::sqrt2);
    EXPECT_EQ(at(onArc, onArc), c_blue);
    EXPECT_EQ(at(150, 150), c_blue) << "the control point";
    EXPECT_EQ(at(152, 52), c_blue) << "the vertex";
    EXPECT_NE(at(149, 100), c_white) << "the polygon, faintly";
    EXPECT_NE(at(149, 100), c_blue);
    EXPECT_EQ(counts[c_red], 0);

    curve->setMarkingColor({255, 0, 0, 255});
    curve->setMarkEdge(edge, true);
    const int unmarked = counts[c_blue];
    counts = colors();
    EXPECT_EQ(counts[c_blue], 0);
    EXPECT_GT(counts[c_red], unmarked) << "what is marked is larger";
    curve->clearMarkings();
    curve->setVertexMarking(b, true);
    counts = colors();
    EXPECT_EQ(at(50, 150), c_red);
    EXPECT_EQ(at(152, 52), c_blue);

    curve->setDisplayVertexNumbers(true);
    EXPECT_NE(colors(), counts);
    curve->addControlPoint(edge, 0.0, 0.0);
    curve->addControlPoint(edge, 0.0, 0.0);
    colors();
    EXPECT_EQ(at(onArc, onArc), c_white) << "five control points are no curve";
    EXPECT_EQ(at(150, 150), c_white);
}

TEST_F(ShapePainterTest, fillOfACurveLeavesItsHolesOpen)
{
    const auto curve = add<OverlayDrawCurve>();
    curve->setFilled(true);
    curve->setIsOutlined(false);
    const auto addSquare = [&](double low, double high) {
        const int first = curve->addVertex(low, low);
        curve->addVertex(high, low);
        curve->addVertex(high, high);
        curve->addVertex(low, high);
        for (int i = 0; i < 4; ++i) {
            const int edge = curve->addEdge(first + (i + 1) % 4, first + i);
            curve->addControlPoint(edge, 0.0, 0.0);
            curve->addControlPoint(edge, 0.0, 0.0);
        }
    };
    addSquare(40.0, 160.0);
    addSquare(80.0, 120.0);
    EXPECT_EQ(colors()[c_red], 120 * 120 - 40 * 40);
    EXPECT_EQ(at(100, 100), c_white);
}

TEST_F(ShapePainterTest, overlayOfTheScreenLiesOverThePictureAndNotInExports)
{
    OffscreenCanvas canvas(c_size, 100, 1);
    canvas.setScreenOverlay(m_overlay);
    addBetween<OverlayRectangle>(10, 20, 60, 50)->setFilled(true);
    const Picture picture = drawnAsIs(canvas);
    EXPECT_EQ(picture.at(30, 22), c_red);
    EXPECT_EQ(picture.at(30, 70), c_white) << "y runs downwards";
    EXPECT_EQ(picture.at(30, 20), c_blue);

    m_canvas.setScreenOverlay(m_overlay);
    m_canvas.setOverlay(nullptr);
    const auto withOverlay = m_canvas.encodeHardcopy(HardcopySettings(), c_size, c_size);
    m_canvas.setScreenOverlay(nullptr);
    EXPECT_EQ(withOverlay, m_canvas.encodeHardcopy(HardcopySettings(), c_size, c_size));
    m_canvas.setOverlay(m_overlay);
    EXPECT_NE(withOverlay, m_canvas.encodeHardcopy(HardcopySettings(), c_size, c_size));
}

TEST_F(ShapePainterTest, valuesThatAreNotFiniteDrawNothing)
{
    constexpr double c_nan = std::numeric_limits<double>::quiet_NaN();
    constexpr double c_infinity = std::numeric_limits<double>::infinity();
    addBetween<OverlayRectangle>(c_nan, c_nan, 50, 50)->setFilled(true);
    addBetween<OverlayEllipse>(c_infinity, 0, 50, 50)->setFilled(true);
    for (const float size : {std::numeric_limits<float>::quiet_NaN(), -1.0f, 0.0f}) {
        addBetween<OverlayLine>(20, 100, 180, 100)->setLineSize(size);
    }
    const auto curve = add<OverlayDrawCurve>();
    curve->setDisplayVertexNumbers(true);
    curve->addVertex(c_nan, 1.0);
    add<OverlaySymbol>(RenderSymbol::none);
    EXPECT_EQ(colors()[c_white], c_size * c_size);
}

} // namespace
} // namespace vxrenderer
