// Pixels of solids, faces, curves and points.

#include "graphics3d/cameras/camera3d.h"
#include "graphics3d/geometry/scenegraphdrawobjectcurve.h"
#include "graphics3d/geometry/scenegraphdrawobjectface.h"
#include "graphics3d/geometry/scenegraphdrawobjectpoint.h"
#include "graphics3d/geometry/scenegraphdrawobjectsolid.h"
#include "graphics3d/lights/directionlightsource.h"
#include "graphics3d/lights/scenelight.h"
#include "tests/renderer/support/partscene.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <utility>

namespace vxrenderer {
namespace {

using namespace vxgraphics3d;
using Action = SceneGraphObject::MarkingType;

/// Two rectangles without lines and points.
vxdatacarrier::RenderDraw3D facesAlone()
{
    auto record = twoRectangles(1);
    vxdatacarrier::RenderDraw3D faces;
    faces.m_id = 1;
    faces.m_box = record.m_box;
    faces.m_sheets = std::move(record.m_sheets);
    faces.m_numSheets = record.m_numSheets;
    return faces;
}

using DrawObjectPainterTest = PartSceneTest;

TEST_F(DrawObjectPainterTest, facesLinesAndPointsHaveTheColorsOfTheirRows)
{
    const auto solid = add<SceneGraphDrawObjectSolid>(1);
    struct Case {
        bool primary, secondary, otherPrimary;
        // Rows of the left face, the line and the point that it alone has, and the line that both faces have.
        int face, line, shared;
    };
    const Case cases[] = {{false, false, false, 0, 0, 0},
                          {true, false, false, 1, 4, 4},
                          {false, true, false, 2, 5, 5},
                          {true, true, false, 3, 6, 6},
                          {false, true, true, 2, 5, 6}};
    for (const Case& marks : cases) {
        solid->mark(PartSheet, 0, Action::MarkingPrimary, marks.primary);
        solid->mark(PartSheet, 0, Action::MarkingSecondary, marks.secondary);
        solid->mark(PartSheet, 1, Action::MarkingPrimary, marks.otherPrimary);
        const Picture shown = drawn(m_canvas);
        SCOPED_TRACE(std::to_string(marks.face));
        EXPECT_EQ(at(shown, 0.5f, 0.5f), rgb(colorOf(marks.face, 0)));
        EXPECT_EQ(at(shown, 2.0f, 0.5f), rgb(colorOf(marks.otherPrimary ? 1 : 0, 0)));
        EXPECT_EQ(at(shown, 0.0f, 0.5f), rgb(colorOf(marks.line, 1)));
        EXPECT_EQ(at(shown, 1.0f, 0.5f), rgb(colorOf(marks.shared, 1)));
        EXPECT_EQ(at(shown, 0.0f, 0.0f), rgb(colorOf(marks.line, 2)));
        EXPECT_EQ(at(shown, 3.0f, 0.0f), rgb(colorOf(marks.otherPrimary ? 4 : 0, 2)));
    }
    // Marks of lines and points themselves.
    solid->mark(PartLine, 5, Action::MarkingPrimary, true);
    solid->mark(PartPoint, 2, Action::MarkingSecondary, true);
    solid->unmarkAll(PartSheet, Action::MarkingPrimary);
    const Picture shown = drawn(m_canvas);
    EXPECT_EQ(at(shown, 3.0f, 0.5f), rgb(colorOf(1, 1)));
    EXPECT_EQ(at(shown, 3.0f, 0.0f), rgb(colorOf(4, 2)));
}

TEST_F(DrawObjectPainterTest, theModeOfTheCanvasSelectsTheTable)
{
    add<SceneGraphDrawObjectSolid>(1);
    EXPECT_EQ(at(drawn(m_canvas), 0.5f, 0.5f), rgb(0x000000));
    m_canvas.setMarkingMode(MarkingSetups::MarkingMode2);
    const Picture shown = drawn(m_canvas);
    EXPECT_EQ(at(shown, 0.5f, 0.5f), rgb(0xd9d9d9));
    EXPECT_EQ(at(shown, 3.0f, 0.0f), rgb(0x000000));
    EXPECT_THROW(m_canvas.setMarkingMode(static_cast<MarkingSetups::MarkingMode>(3)), std::out_of_range);
    EXPECT_EQ(m_canvas.getMarkingMode(), MarkingSetups::MarkingMode2);
}

TEST_F(DrawObjectPainterTest, hiddenPartsAreLeftOut)
{
    const auto solid = add<SceneGraphDrawObjectSolid>(1);
    drawn(m_canvas);
    solid->mark(PartSheet, 0, Action::MarkingHidden, true);
    Picture shown = drawnAsIs(m_canvas);
    EXPECT_EQ(at(shown, 0.5f, 0.5f), c_white);
    EXPECT_EQ(at(shown, 0.0f, 0.5f), c_white);
    EXPECT_EQ(at(shown, 0.0f, 0.0f), c_white);
    EXPECT_EQ(at(shown, 1.0f, 0.5f), rgb(colorOf(0, 1)));
    EXPECT_EQ(at(shown, 2.0f, 0.5f), rgb(colorOf(0, 0)));
    solid->mark(Action::MarkingHidden, true);
    shown = drawn(m_canvas);
    EXPECT_EQ(shown.countDrawn(0, 0, c_size, c_size), 0);
    solid->unmarkAll(PartAll, Action::MarkingHidden);
    EXPECT_EQ(at(drawn(m_canvas), 0.0f, 0.0f), rgb(colorOf(0, 2)));
    // A row that is hidden hides its parts.
    markings().setMarkingSetupHidden(MarkingSetups::MarkingMode1, RowNormal);
    shown = drawn(m_canvas);
    EXPECT_EQ(shown.countDrawn(0, 0, c_size, c_size), 0);
}

TEST_F(DrawObjectPainterTest, marksAndHiddenPartsUploadNoGeometryAndAnotherFillDoes)
{
    const auto solid = add<SceneGraphDrawObjectSolid>(1);
    drawn(m_canvas);
    const UploadCounts first = m_canvas.getUploadCounts();
    EXPECT_EQ(first.meshes, 3);
    solid->mark(PartSheet, 1, Action::MarkingPrimary, true);
    solid->mark(PartSheet, 0, Action::MarkingHidden, true);
    drawn(m_canvas);
    UploadCounts expected = first;
    expected.partTables += 3;
    EXPECT_EQ(m_canvas.getUploadCounts(), expected);
    // Nothing at all without a change, even if another table is used.
    m_canvas.setMarkingMode(MarkingSetups::MarkingMode2);
    drawn(m_canvas);
    EXPECT_EQ(m_canvas.getUploadCounts(), expected);

    auto record = twoRectangles(1);
    record.m_numSheets = 1;
    record.m_sheetToLine = relationOf({{0, 1, 2, 3}});
    record.m_sheetToPoint = relationOf({{0, 1, 4, 3}});
    record.m_sheetToSubdomain = relationOf({{0}});
    record.m_subdomainToSheet = relationOf({{0}, {}});
    record.m_pointToSheet = {};
    record.m_lineToSheet = {};
    solid->fillData(record);
    const Picture shown = drawn(m_canvas);
    EXPECT_EQ(at(shown, 2.0f, 0.5f), c_white);
    EXPECT_EQ(at(shown, 0.5f, 0.5f), rgb(0xd9d9d9));
    EXPECT_EQ(m_canvas.getUploadCounts().meshes, first.meshes + 3);
    solid->resetObject();
    drawnAsIs(m_canvas);
}

TEST_F(DrawObjectPainterTest, higherLayersCoverLowerOnesAtTheSamePositionInSpaceAndInThePlane)
{
    const auto first = add<SceneGraphDrawObjectFace>(1);
    const auto last = add<SceneGraphDrawObjectFace>(2);
    auto record = facesAlone();
    first->fillData(record);
    // The same faces, cut into triangles along the other diagonal.
    for (int i = 0; i < 2; ++i) {
        const vxdatacarrier::Triangle triangles[] = {{0, 1, 3}, {1, 2, 3}};
        std::copy_n(triangles, 2, record.m_sheets[static_cast<std::size_t>(i)].m_triangles.get());
    }
    last->fillData(record);
    const auto numOf = [](const Picture& picture, int row) {
        return count(picture, [&](const Rgb& color) { return color == rgb(colorOf(row, 0)); });
    };
    for (const bool isFlat : {false, true}) {
        if (isFlat) {
            showFlat(m_canvas, m_scene);
        } else {
            lookFrom(m_canvas, -60.0, 12.0);
        }
        for (const int layer : {-7, 100000}) {
            SCOPED_TRACE(std::to_string(isFlat) + ' ' + std::to_string(layer));
            setRow(2, layer);
            first->mark(Action::MarkingSecondary, true);
            last->mark(Action::MarkingSecondary, false);
            Picture shown = drawn(m_canvas);
            const int covered = numOf(shown, layer > 0 ? 2 : 0);
            EXPECT_GT(covered, 1000);
            EXPECT_EQ(numOf(shown, layer > 0 ? 0 : 2), 0);
            first->mark(Action::MarkingSecondary, false);
            last->mark(Action::MarkingSecondary, true);
            shown = drawn(m_canvas);
            EXPECT_EQ(numOf(shown, layer > 0 ? 2 : 0), covered);
            EXPECT_EQ(numOf(shown, layer > 0 ? 0 : 2), 0);
        }
    }
}

TEST_F(DrawObjectPainterTest, edgesAreSeenWholeOnFacesFromAllSides)
{
    setRow(0, 0, 2.0f);
    const auto solid = add<SceneGraphDrawObjectSolid>(1);
    m_canvas.getCanvas3dSettings()->camera3d()->setProjectionType(Camera3d::ProjectionPerspective);
    for (const double elevation : {80.0, 30.0, 10.0, -25.0}) {
        lookFrom(m_canvas, -70.0, elevation);
        const Picture shown = drawn(m_canvas);
        for (int step = 1; step < 60; ++step) {
            // Along the edge between both faces.
            const float y = 0.2f + 0.4f * static_cast<float>(step) / 60.0f;
            const Rgb seen = at(shown, 1.0f, y);
            EXPECT_GT(seen[1], 0x40) << elevation << ' ' << y;
        }
    }
}

TEST_F(DrawObjectPainterTest, partsOfTheHighestLevelHaveTheColorOfTheObjectUnlessMarked)
{
    const auto face = add<SceneGraphDrawObjectFace>(1);
    face->setObjectColor(Color::fromRgb(0xffcc00));
    EXPECT_EQ(at(drawn(m_canvas), 0.5f, 0.5f), rgb(colorOf(0, 0)));
    face->setUseObjectColor(true);
    face->mark(PartSheet, 1, Action::MarkingPrimary, true);
    Picture shown = drawn(m_canvas);
    EXPECT_EQ(at(shown, 0.5f, 0.5f), rgb(0xffcc00));
    EXPECT_EQ(at(shown, 2.0f, 0.5f), rgb(colorOf(1, 0)));
    EXPECT_EQ(at(shown, 0.0f, 0.5f), rgb(colorOf(0, 1)));
    face->setActive(false);

    const auto curve = add<SceneGraphDrawObjectCurve>(2);
    curve->setObjectColor(Color::fromRgb(0xffcc00));
    curve->setUseObjectColor(true);
    shown = drawn(m_canvas);
    EXPECT_EQ(at(shown, 0.5f, 0.5f), c_white);
    EXPECT_EQ(at(shown, 0.0f, 0.5f), rgb(0xffcc00));
    EXPECT_EQ(at(shown, 0.0f, 0.0f), rgb(colorOf(0, 2)));
    curve->setActive(false);

    const auto point = add<SceneGraphDrawObjectPoint>(3);
    point->setObjectColor(Color::fromRgb(0xffcc00));
    point->setUseObjectColor(true);
    shown = drawn(m_canvas);
    EXPECT_EQ(at(shown, 0.0f, 0.5f), c_white);
    EXPECT_EQ(at(shown, 0.0f, 0.0f), rgb(0xffcc00));
}

TEST_F(DrawObjectPainterTest, facesAreLitInSpaceAndFlatInThePlane)
{
    setRow(0, 0);
    const auto face = add<SceneGraphDrawObjectFace>(1);
    face->setObjectColor(Color::fromRgb(0x808080));
    face->setUseObjectColor(true);
    m_canvas.getSceneSettings()->getLight()->setUseLight(true);
    SceneLight& light = *m_scene.scene->getSceneLight();
    auto& lamp = static_cast<DirectionLightSource&>(*light.lightSource(light.createDirectionLight()));
    lamp.setFromDirection(true, Vector3f(1.0f, 0.0f, 1.0f));
    lamp.setIntensity(1.0f);
    lamp.setActive(true);
    light.setAmbientIntensity(0.0f);
    // The cosine of 45 degrees.
    EXPECT_NEAR(at(drawn(m_canvas), 0.5f, 0.5f)[0], 128.0 * 0.7071, 2.0);
    showFlat(m_canvas, m_scene);
    const Picture shown = drawn(m_canvas);
    EXPECT_EQ(at(shown, 0.5f, 0.5f), rgb(0x808080));
    EXPECT_EQ(at(shown, 1.0f, 0.5f), rgb(colorOf(0, 1)));
    EXPECT_EQ(at(shown, 0.0f, 0.0f), rgb(colorOf(0, 2)));
}

TEST_F(DrawObjectPainterTest, translucentFacesMixWithWhatIsBehindAndHiddenOnesDoNot)
{
    const auto solid = add<SceneGraphDrawObjectSolid>(1);
    solid->mark(PartSheet, 0, Action::MarkingPrimary, true);
    drawn(m_canvas);
    solid->mark(PartSheet, 1, Action::MarkingHidden, true);
    m_canvas.getSceneSettings()->setGlobalOpacity(0.5f);
    const Picture shown = drawnAsIs(m_canvas);
    EXPECT_NEAR(at(shown, 0.5f, 0.5f)[0], (255 + 0x10) / 2, 1);
    EXPECT_NEAR(at(shown, 0.5f, 0.5f)[1], 255 / 2, 1);
    EXPECT_EQ(at(shown, 2.0f, 0.5f), c_white);
}

TEST_F(DrawObjectPainterTest, facesOfATranslucentColorLetLightThroughAndOthersDoNot)
{
    const auto solid = add<SceneGraphDrawObjectSolid>(1);
    solid->mark(PartSheet, 0, Action::MarkingPrimary, true);
    solid->setObjectColor(Color{200, 100, 0, 51});
    solid->setUseObjectColor(true);
    for (const Quality quality : {Quality::full, Quality::draft}) {
        m_canvas.zoomExtents();
        const Picture shown = drawnAsIs(m_canvas, quality);
        EXPECT_EQ(at(shown, 0.5f, 0.5f), rgb(colorOf(1, 0)));
        if (quality == Quality::full) {
            EXPECT_EQ(at(shown, 3.0f, 0.5f), rgb(colorOf(0, 1)));
        } else {
            // The one sample of the pixel is not quite in the middle of the line.
            EXPECT_LE(at(shown, 3.0f, 0.5f)[0], 0.15 * 255.0);
            EXPECT_NEAR(at(shown, 3.0f, 0.5f)[1], rgb(colorOf(0, 1))[1], 6);
        }
        // A fifth of the colour on white.
        EXPECT_EQ(at(shown, 2.0f, 0.5f), (Rgb{244, 224, 204}));
    }
}

TEST_F(DrawObjectPainterTest, labelsAndDirectionsAreShownWhereTheSceneShowsThem)
{
    const auto curve = add<SceneGraphDrawObjectCurve>(1);
    setRow(0, 0, 1.0f);
    setRow(1, 0, 3.0f);
    const auto isLabel = [](const Rgb& color) { return color[0] > 180 && color[1] < 90 && color[2] > 180; };
    EXPECT_EQ(count(drawn(m_canvas), isLabel), 0);
    m_canvas.getSceneSettings()->setShowLabels(true);
    EXPECT_GT(count(drawn(m_canvas), isLabel), 30);
    curve->mark(PartLine, curve->getLabelledPart(), Action::MarkingHidden, true);
    EXPECT_EQ(count(drawn(m_canvas), isLabel), 0);
    curve->mark(PartLine, curve->getLabelledPart(), Action::MarkingHidden, false);
    m_canvas.getSceneSettings()->setShowLabels(false);

    // The lower left edge runs to the right; its arrow lies behind its tip at six tenths of its length.
    const auto drawnAcross = [&](const Picture& picture, double dx) {
        const auto [x, y] = pixelOf(m_canvas, {0.6f, 0.0f, 0.0f});
        const int column = static_cast<int>(x + dx);
        return picture.countDrawn(column, static_cast<int>(y) - 12, column + 1, static_cast<int>(y) + 12);
    };
    EXPECT_LE(drawnAcross(drawn(m_canvas), -7.0), 2);
    m_canvas.getSceneSettings()->setShowLineDirections(true);
    const UploadCounts before = m_canvas.getUploadCounts();
    Picture shown = drawn(m_canvas);
    EXPECT_GE(drawnAcross(shown, -7.0), 4);
    EXPECT_LE(drawnAcross(shown, 4.0), 2);
    curve->mark(PartLine, 0, Action::MarkingPrimary, true);
    shown = drawn(m_canvas);
    const auto isMarkedLine = [](const Rgb& color) { return color == rgb(colorOf(1, 1)); };
    EXPECT_GT(count(shown, isMarkedLine), 150);
    EXPECT_EQ(m_canvas.getUploadCounts().meshes, before.meshes);
    curve->mark(PartLine, 0, Action::MarkingHidden, true);
    EXPECT_EQ(drawnAcross(drawn(m_canvas), -7.0), 0);
}

} // namespace
} // namespace vxrenderer
