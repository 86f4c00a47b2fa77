// Pixels of work planes, projections, balls, boxes and probes.

#include "datacarrier/renderdrawproj2d.h"
#include "graphics3d/canvas/canvas3dsettings.h"
#include "graphics3d/canvas/scenesettings.h"
#include "graphics3d/construction/scenegraphballbox.h"
#include "graphics3d/construction/scenegraphdrawproj.h"
#include "graphics3d/construction/scenegraphfeatureobject.h"
#include "graphics3d/construction/scenegraphprobeobject.h"
#include "graphics3d/lights/scenesettingslight.h"
#include "graphics3d/parts/markingsetups.h"
#include "graphics3d/scenegraph/scenegraphgroup.h"
#include "graphics3d/settings/canvas3dglobalsettings.h"
#include "renderer/frame/appearance.h"
#include "tests/renderer/support/testscene.h"
#include "tests/support/geometryrecords.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>

namespace vxrenderer {
namespace {

using namespace vxgraphics3d;
using vxdatacarrier::Coords2D;
using vxdatacarrier::Curve2D;
using vxdatacarrier::RenderDrawProj2D;

constexpr int c_size = 400;
constexpr Rgb c_symbol = {0xd9, 0x82, 0x2b};
constexpr Rgb c_red = {255, 0, 0};

bool isNear(const Rgb& a, const Rgb& b, int tolerance = 3)
{
    return std::abs(a[0] - b[0]) <= tolerance && std::abs(a[1] - b[1]) <= tolerance &&
           std::abs(a[2] - b[2]) <= tolerance;
}

/// Scenes without light, seen from above: x to the right, y upwards.
class ConstructionPaintersTest : public ::testing::Test {
protected:
    ConstructionPaintersTest()
    {
        m_scene.root->setChild(m_group);
        m_group->addChild(m_scene.group);
        showFromAbove(m_canvas, m_scene);
        m_canvas.getCanvas3dSettings()->setRenderMask(RenderObjects | RenderPlots | RenderBackground);
        m_canvas.getSceneSettings()->getLight()->setUseLight(false);
    }
    ~ConstructionPaintersTest() override { markings() = MarkingSetups(); }

    static MarkingSetups& markings() { return *Canvas3dGlobalSettings::getInstance()->getMarkingSetupsPtr(); }

    template <class Object>
    boost::shared_ptr<Object> add(boost::shared_ptr<Object> object)
    {
        m_group->addChild(object);
        return object;
    }
    /// A plane of 9 by 9 in the plane z = 0 about the origin.
    boost::shared_ptr<SceneGraphFeatureObject> addPlane()
    {
        const auto object = add(SceneGraphFeatureObject::create());
        const float data[] = {0, 0, 0, 1, 0, 0, 0, 1, 0, -4.5f, 4.5f, -4.5f, 4.5f};
        object->setPlane(data);
        return object;
    }

    Rgb at(const Picture& picture, float x, float y, float z = 0.0f) const
    {
        return colorAt(m_canvas, picture, {x, y, z});
    }

    TestScene m_scene;
    boost::shared_ptr<SceneGraphGroup> m_group = SceneGraphGroup::create();
    OffscreenCanvas m_canvas{c_size, c_size, 4};
};

TEST_F(ConstructionPaintersTest, aPlaneHasItsGridBorderAndAxes)
{
    const auto object = addPlane();
    const Picture shown = drawn(m_canvas);
    for (int i = -4; i < 4; ++i) {
        const auto line = static_cast<float>(i) + 0.5f;
        EXPECT_NE(at(shown, line, -3.0f), c_white) << i;
        EXPECT_NE(at(shown, -3.0f, line), c_white) << i;
        EXPECT_EQ(at(shown, static_cast<float>(i), -3.0f), c_white) << i;
    }
    EXPECT_TRUE(isNear(at(shown, 1.0f, 0.0f), {0xd0, 0x30, 0x30})) << at(shown, 1.0f, 0.0f)[0];
    EXPECT_TRUE(isNear(at(shown, 0.0f, 1.0f), {0x2f, 0x9e, 0x44}));
    EXPECT_EQ(at(shown, -1.0f, 0.0f), c_white);

    object->setObjectColor(Color::fromRgb(0xff0000));
    object->setUseObjectColor(true);
    const auto uploads = m_canvas.getUploadCounts();
    const Picture inRed = drawn(m_canvas);
    EXPECT_GT(at(inRed, -4.5f, -3.0f)[0], 250);
    EXPECT_LT(at(inRed, -4.5f, -3.0f)[1], 100);
    EXPECT_EQ(m_canvas.getUploadCounts(), uploads);

    const float point[] = {0, 0, 0, 1, 0, 0, 0, 1, 0, 1, 1, 2, 2};
    object->setPlane(point);
    EXPECT_EQ(drawnAsIs(m_canvas).countDrawn(0, 0, c_size, c_size), 0);
}

TEST_F(ConstructionPaintersTest, anExtrusionHasADiscAndAnArrowToEachHeight)
{
    const auto object = addPlane();
    const float values[] = {0.5f, 40.0f, -6.0f};
    object->setExtrudeOperation(values, 3);
    // The radius of the disc is 1.2.
    const Picture above = drawn(m_canvas);
    EXPECT_EQ(at(above, -0.8f, -0.75f), c_symbol);
    EXPECT_NE(at(above, -1.0f, -0.95f), c_symbol);

    lookFrom(m_canvas, -90.0, 0.0);
    const Picture side = drawn(m_canvas);
    for (const float z : {1.0f, 10.0f, 19.8f, -1.0f, -2.8f}) {
        EXPECT_TRUE(isNear(at(side, 0.0f, 0.0f, z), c_symbol)) << z;
    }
    EXPECT_EQ(at(side, 0.0f, 0.0f, 20.5f), c_white);
    EXPECT_EQ(at(side, 0.0f, 0.0f, -3.5f), c_white);
    // Heads are wider than shafts.
    EXPECT_NE(at(side, 0.15f, 0.0f, 19.4f), c_white);
    EXPECT_EQ(at(side, 0.5f, 0.0f, 15.0f), c_white);
}

TEST_F(ConstructionPaintersTest, aRevolutionHasItsDashedAxisAndAnArrowAroundIt)
{
    const auto object = addPlane();
    const float axis[] = {3.0f, 0.0f, 0.0f, 1.0f};
    object->setRevolveOperation(axis);
    const Picture shown = drawn(m_canvas);
    // Dashes of 1.6875 and gaps of 0.75 between them, from -4.5.
    for (const float y : {-4.3f, -3.0f, -1.9f, -0.5f, 0.5f, 2.0f, 3.2f, 4.3f}) {
        EXPECT_TRUE(isNear(at(shown, 3.0f, y), c_symbol)) << y;
    }
    for (const float y : {-2.4f, 2.25f + 0.2f}) {
        EXPECT_FALSE(isNear(at(shown, 3.0f, y), c_symbol)) << y;
    }
    // The turn is seen from its side, as a line across the axis.
    const float radius = 0.13f * 9.0f;
    EXPECT_TRUE(isNear(at(shown, 3.0f - 0.8f * radius, 0.0f), c_symbol));
    lookFrom(m_canvas, -90.0, 0.0);
    const Picture along = drawn(m_canvas);
    EXPECT_TRUE(isNear(at(along, 3.0f, 0.0f, radius), c_symbol));
    EXPECT_EQ(at(along, 3.5f, 0.0f, 0.4f), c_white);

    // An extrusion replaces it.
    const float values[] = {1.0f, 1.0f};
    object->setExtrudeOperation(values, 2);
    EXPECT_EQ(at(drawn(m_canvas), 3.0f, 0.0f, radius), c_white);
}

RenderDrawProj2D projection(float height)
{
    RenderDrawProj2D record;
    record.m_box.m_xMax = 4.0f;
    record.m_box.m_yMax = 4.0f;
    record.m_numCurves = 2;
    record.m_curves = std::make_unique<Curve2D[]>(2);
    for (const std::size_t i : {0u, 1u}) {
        const float y = i == 0 ? height : 3.0f;
        record.m_curves[i].m_isValid = true;
        record.m_curves[i].m_numVertices = 2;
        record.m_curves[i].m_vertices = arrayOf<Coords2D>({{0.0f, y}, {4.0f, y}});
    }
    record.m_curveKinds = arrayOf<int>({1, 2});
    record.m_numPoints = 2;
    record.m_points = arrayOf<Coords2D>({{0.0f, 0.0f}, {4.0f, 4.0f}});
    record.m_pointKinds = arrayOf<int>({1, 2});
    return record;
}

TEST_F(ConstructionPaintersTest, projectionsHaveTheColorsOfTheirRows)
{
    const auto setRow = [](MarkingType row, int line, int point) {
        markings().setMarkingSetup(MarkingSetups::MarkingMode0, row, Color(), Color::fromRgb(line), 5.0f,
                                   Color::fromRgb(point), 11.0f, Color(), 0);
    };
    setRow(RowPrimary, 0xff0000, 0xff8000);
    setRow(RowSecondary, 0x0000ff, 0x00ff80);
    const auto object = add(SceneGraphDrawProj::create(1));
    object->fillData(projection(1.0f));
    const Picture shown = drawn(m_canvas);
    EXPECT_EQ(at(shown, 2.0f, 1.0f), c_red);
    EXPECT_EQ(at(shown, 2.0f, 3.0f), (Rgb{0, 0, 255}));
    EXPECT_EQ(at(shown, 0.0f, 0.0f), (Rgb{255, 128, 0}));
    EXPECT_EQ(at(shown, 4.0f, 4.0f), (Rgb{0, 255, 128}));

    object->fillData(projection(2.0f));
    markings().setMarkingSetupHidden(MarkingSetups::MarkingMode0, RowSecondary);
    const Picture again = drawn(m_canvas);
    EXPECT_EQ(at(again, 2.0f, 2.0f), c_red);
    EXPECT_EQ(at(again, 2.0f, 1.0f), c_white);
    EXPECT_EQ(at(again, 2.0f, 3.0f), c_white);
    EXPECT_EQ(at(again, 4.0f, 4.0f), c_white);
}

TEST_F(ConstructionPaintersTest, ballsAndBoxesAreSeenThroughWhereverTheyAreInTheTree)
{
    // The ball comes before the red square in the tree, above one half of it and below the other half.
    const auto object = SceneGraphBallBox::create();
    m_group->removeAllChildren();
    add(object);
    m_group->addChild(m_scene.group);
    m_scene.addSquare(1, 0xff0000);
    object->setBall({0.5, 0.5, 0.0}, 0.3);
    object->setBox({0.1, 0.1, -2.0}, {0.9, 0.9, -1.0});
    const Picture shown = drawn(m_canvas);
    const Rgb through = at(shown, 0.6f, 0.57f);
    EXPECT_TRUE(isNear(through, {197, 38, 57}, 8)) << through[0] << ' ' << through[1] << ' ' << through[2];
    // The box is below the square.
    EXPECT_EQ(at(shown, 0.2f, 0.2f), c_red);
    object->setBox({0.1, 0.1, 1.0}, {0.3, 0.3, 2.0});
    const Picture over = drawn(m_canvas);
    // The picture shows both its upper and its lower side.
    EXPECT_TRUE(isNear(at(over, 0.2f, 0.2f), {157, 65, 97}, 8));
    EXPECT_TRUE(isNear(at(over, 0.1f, 0.2f), {0x3f, 0x7f, 0xbf}, 8));

    object->clear();
    const Picture cleared = drawn(m_canvas);
    EXPECT_EQ(at(cleared, 0.6f, 0.57f), c_red);
    EXPECT_EQ(at(cleared, 0.2f, 0.2f), c_red);
}

TEST_F(ConstructionPaintersTest, theViewFitsBallsBoxesAndProbesThatAreAlone)
{
    const auto ball = add(SceneGraphBallBox::create());
    ball->setBall({100.0, 50.0, 7.0}, 2.0);
    const auto spanOf = [&](const Vector3f& from, const Vector3f& to) {
        return std::hypot(pixelOf(m_canvas, to)[0] - pixelOf(m_canvas, from)[0],
                          pixelOf(m_canvas, to)[1] - pixelOf(m_canvas, from)[1]);
    };
    const Picture shown = drawn(m_canvas);
    EXPECT_NE(at(shown, 100.0f, 50.7f, 7.0f), c_white);
    EXPECT_GT(spanOf({98.0f, 50.0f, 7.0f}, {102.0f, 50.0f, 7.0f}), 0.4 * c_size);
    EXPECT_EQ(shown.at(3, 3), c_white);

    // In the plane as well; an incomplete or endless ball shows nothing.
    m_canvas.getCanvas3dSettings()->setRenderMode(Canvas3dSettings::RenderMode2d);
    const Picture flat = drawn(m_canvas);
    EXPECT_NE(at(flat, 100.0f, 50.7f), c_white);
    EXPECT_GT(spanOf({98.0f, 50.0f, 0.0f}, {102.0f, 50.0f, 0.0f}), 0.4 * c_size);
    for (const double size : {HUGE_VAL, std::nan(""), -1.0, 0.0}) {
        ball->setBall({100.0, 50.0, 7.0}, size);
        EXPECT_EQ(drawn(m_canvas).countDrawn(0, 0, c_size, c_size), 0) << size;
    }
    ball->setBall({100.0}, 1.0);
    EXPECT_EQ(drawn(m_canvas).countDrawn(0, 0, c_size, c_size), 0);

    lookFrom(m_canvas, -90.0, 90.0);
    const auto probe = add(SceneGraphProbeObject::create());
    probe->setProbe(-30.0f, 4.0f, 1.0f);
    EXPECT_TRUE(isNear(at(drawn(m_canvas), -30.0f, 4.0f, 1.0f), {0xc0, 0x2f, 0x6f}));
    probe->setLinePoints(-30.0f, 4.0f, 1.0f, -10.0f, 4.0f, 1.0f, 0.5f);
    drawn(m_canvas);
    EXPECT_GT(spanOf({-30.0f, 4.0f, 1.0f}, {-10.0f, 4.0f, 1.0f}), 0.4 * c_size);
}

TEST_F(ConstructionPaintersTest, aProbeHasItsPointAndADashedLineWithAMark)
{
    const auto object = add(SceneGraphProbeObject::create());
    object->setProbe(15.0f, 12.0f, 0.0f);
    object->setLinePoints(0.0f, 0.0f, 0.0f, 30.0f, 0.0f, 0.0f, 0.25f);
    const Picture shown = drawn(m_canvas);
    EXPECT_TRUE(isNear(at(shown, 15.0f, 12.0f), {0xc0, 0x2f, 0x6f}));
    EXPECT_TRUE(isNear(at(shown, 7.5f, 0.0f), {0xd9, 0x82, 0x2b}));
    EXPECT_TRUE(isNear(at(shown, 0.0f, 0.0f), {0x2b, 0x2f, 0x38}));
    EXPECT_TRUE(isNear(at(shown, 30.0f, 0.0f), {0x2b, 0x2f, 0x38}));
    for (int i = 10; i < 29; ++i) {
        const auto x = static_cast<float>(i);
        EXPECT_NE(at(shown, x + 0.5f, 0.0f), c_white) << i;
        EXPECT_GT(at(shown, x, 0.0f)[0], at(shown, x + 0.5f, 0.0f)[0] + 60) << i;
    }
    object->setLinePoints(0.0f, 0.0f, 0.0f, 30.0f, 0.0f, 0.0f, 0.75f);
    EXPECT_TRUE(isNear(at(drawn(m_canvas), 22.5f, 0.0f), {0xd9, 0x82, 0x2b}));
    object->clear();
    EXPECT_EQ(drawnAsIs(m_canvas).countDrawn(0, 0, c_size, c_size), 0);
}

} // namespace
} // namespace vxrenderer
