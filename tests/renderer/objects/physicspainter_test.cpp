// Pixels of physics objects: meshes, materials, markers and connectors.

#include "datacarrier/rendergeom3d.h"
#include "datacarrier/rendermesh.h"
#include "datacarrier/rendermeshcollection.h"
#include "graphics3d/canvas/hardcopysettings.h"
#include "graphics3d/foundation/image.h"
#include "graphics3d/geometry/scenegraphphysicsobject.h"
#include "tests/renderer/support/partscene.h"
#include "tests/renderer/support/pngfile.h"

#include <boost/make_shared.hpp>

#include <algorithm>
#include <string>
#include <vector>

namespace vxrenderer {
namespace {

using namespace vxgraphics3d;
using namespace vxdatacarrier;
using Action = SceneGraphObject::MarkingType;

/// An image of one colour, 0xRRGGBBAA.
boost::shared_ptr<Image> plainImage(int width, int height, unsigned color)
{
    const auto image = boost::make_shared<Image>(width, height, Image::Rgba, 1.0f);
    std::fill_n(image->data(), width * height, color);
    return image;
}

/// Colours between the pixels of an image are mixed.
void expectNear(const Rgb& color, const Rgb& expected)
{
    for (std::size_t i = 0; i < 3; ++i) {
        EXPECT_NEAR(color[i], expected[i], 5) << i;
    }
}

class PhysicsPainterTest : public PartSceneTest {
protected:
    PhysicsPainterTest() { m_canvas.getSceneSettings()->setShowPhysicsMarkers(true); }

    boost::shared_ptr<SceneGraphPhysicsObject> m_model = add<SceneGraphPhysicsObject, RenderGeom3D>(1);
};

TEST_F(PhysicsPainterTest, aMeshIsShownInsteadOfTheGeometryOfItsPartInTheRowOfItsMarks)
{
    // Two elements on the middle half of the left face, and an edge with a vertex in its middle.
    const auto face = boost::make_shared<RenderMeshBoundary3D>();
    face->m_coordinates = arrayOf(std::vector<Coords3D>{
        {0.25f, 0.2f, 0}, {0.75f, 0.2f, 0}, {0.75f, 0.8f, 0}, {0.25f, 0.8f, 0}, {0.5f, 0.2f, 0}, {0.5f, 0.8f, 0}});
    face->m_numCoordinates = 6;
    face->m_quads = arrayOf(std::vector<Quad>{{0, 4, 5, 3}, {4, 1, 2, 5}});
    face->m_numQuads = 2;
    const auto edge = boost::make_shared<RenderMeshEdge3D>();
    edge->m_partIndex = 5;
    edge->m_coordinates = arrayOf(std::vector<Coords3D>{{3, 0, 0}, {3, 0.5f, 0}, {3, 1, 0}});
    edge->m_numCoordinates = 3;
    RenderMeshCollection meshes;
    meshes.m_meshes = {face, edge};

    drawn(m_canvas);
    const int before = m_canvas.getUploadCounts().meshes;
    m_model->addMeshCollection(meshes);
    Picture shown = drawn(m_canvas);
    EXPECT_EQ(at(shown, 0.1f, 0.5f), c_white);
    EXPECT_EQ(at(shown, 0.4f, 0.5f), rgb(colorOf(0, 0)));
    EXPECT_NE(at(shown, 0.5f, 0.5f), rgb(colorOf(0, 0)));
    EXPECT_EQ(at(shown, 2.0f, 0.5f), rgb(colorOf(0, 0)));
    EXPECT_EQ(at(shown, 3.0f, 0.5f), rgb(colorOf(0, 2)));
    EXPECT_EQ(at(shown, 3.0f, 0.25f), rgb(colorOf(0, 1)));
    const UploadCounts meshed = m_canvas.getUploadCounts();
    EXPECT_EQ(meshed.meshes, before + 4);

    m_model->markBoundary(0, Action::MarkingPrimary);
    m_model->markEdge(5, Action::MarkingSecondary);
    shown = drawn(m_canvas);
    EXPECT_EQ(at(shown, 0.4f, 0.5f), rgb(colorOf(1, 0)));
    EXPECT_EQ(at(shown, 3.0f, 0.5f), rgb(colorOf(2, 2)));
    EXPECT_EQ(at(shown, 3.0f, 0.25f), rgb(colorOf(2, 1)));
    m_model->markBoundary(0, Action::MarkingHidden);
    EXPECT_EQ(at(drawnAsIs(m_canvas), 0.4f, 0.5f), c_white);
    EXPECT_EQ(m_canvas.getUploadCounts().meshes, meshed.meshes);
    m_model->unmarkBoundary(0, Action::MarkingHidden);

    m_model->deleteAllMeshes();
    shown = drawn(m_canvas);
    EXPECT_EQ(at(shown, 0.1f, 0.5f), rgb(colorOf(1, 0)));
    EXPECT_EQ(at(shown, 3.0f, 0.5f), rgb(colorOf(2, 1)));
}

TEST_F(PhysicsPainterTest, facesOfAMaterialWithAnImageShowItUnlessTheyAreMarked)
{
    // White on the left, and green that lets half of the row's colour through on the right.
    const auto image = boost::make_shared<Image>(2, 1, Image::Rgba, 1.0f);
    image->data()[0] = 0xffffffff;
    image->data()[1] = 0x00ff0080;
    m_model->setImage(image, "stone");
    m_model->setMaterial(3, 1, "stone");
    for (const bool isFlat : {false, true}) {
        if (isFlat) {
            showFlat(m_canvas, m_scene);
        }
        const Picture shown = drawn(m_canvas);
        EXPECT_EQ(at(shown, 0.5f, 0.5f), rgb(colorOf(0, 0)));
        // Four images on the three units of the object, each from 0.75 n.
        expectNear(at(shown, 1.5f + 0.1875f, 0.4f), c_white);
        expectNear(at(shown, 2.25f + 0.1875f, 0.4f), c_white);
        expectNear(at(shown, 1.5f + 0.5625f, 0.4f), {0, 128, 0});
    }
    const UploadCounts before = m_canvas.getUploadCounts();
    m_model->markBoundary(1, Action::MarkingPrimary);
    EXPECT_EQ(at(drawn(m_canvas), 1.6875f, 0.4f), rgb(colorOf(1, 0)));
    m_model->unmarkBoundary(1, Action::MarkingPrimary);
    EXPECT_EQ(m_canvas.getUploadCounts().images, before.images);
    // Other pixels in the same image, and another image for the name.
    image->data()[0] = 0xff0000ff;
    expectNear(at(drawn(m_canvas), 1.6875f, 0.4f), rgb(0xff0000));
    m_model->setImage(plainImage(3, 3, 0x0000ffff), "stone");
    EXPECT_EQ(at(drawn(m_canvas), 1.6875f, 0.4f), rgb(0x0000ff));
    EXPECT_EQ(m_canvas.getUploadCounts().images, before.images + 2);
    m_model->setMaterial(2, 1, "water");
    EXPECT_EQ(at(drawn(m_canvas), 1.6875f, 0.4f), rgb(colorOf(0, 0)));
}

TEST_F(PhysicsPainterTest, markersShowTheirIconsSideBySideAndTheirDirections)
{
    m_model->setImage(plainImage(20, 12, 0xffcc00ff), "load");
    m_model->setImage(plainImage(20, 12, 0x00ccffff), "support");
    m_model->setPhysicsMarkerBoundSys(PartLine, 1, "load", false, true, 3, 1);
    const auto isYellow = [](const Rgb& color) { return color == rgb(0xffcc00); };
    const auto isBlue = [](const Rgb& color) { return color == rgb(0x00ccff); };
    Picture shown = drawn(m_canvas);
    EXPECT_EQ(at(shown, 1.0f, 0.5f), rgb(0xffcc00));
    EXPECT_EQ(count(shown, isYellow), 20 * 12);
    // The tangent runs upwards, 42 pixels long; the normal, the third axis, to the left.
    const auto [x, y] = pixelOf(m_canvas, {1.0f, 0.5f, 0.0f});
    EXPECT_EQ(shown.at(static_cast<int>(x), static_cast<int>(y) - 30), rgb(0xd62828));
    EXPECT_EQ(shown.at(static_cast<int>(x) - 30, static_cast<int>(y)), rgb(0x1f5fd0));

    m_model->setPhysicsMarker(PartLine, 1, "support");
    shown = drawn(m_canvas);
    EXPECT_EQ(count(shown, isYellow), 20 * 12);
    EXPECT_EQ(count(shown, isBlue), 20 * 12);
    EXPECT_EQ(shown.at(static_cast<int>(x) - 10, static_cast<int>(y)), rgb(0xffcc00));
    EXPECT_EQ(shown.at(static_cast<int>(x) + 10, static_cast<int>(y)), rgb(0x00ccff));
    // The name has no image yet.
    m_model->setPhysicsMarker(PartPoint, 0, "nothing");
    EXPECT_EQ(at(drawn(m_canvas), 0.0f, 0.0f), rgb(0x4d4d4d));

    m_model->setShowPhysicsMarkers(false);
    EXPECT_EQ(count(drawn(m_canvas), isYellow), 0);
    m_model->setShowPhysicsMarkers(true);
    m_canvas.getSceneSettings()->setShowPhysicsMarkers(false);
    EXPECT_EQ(count(drawn(m_canvas), isYellow), 0);
}

TEST_F(PhysicsPainterTest, iconsAreHiddenByWhatLiesBeforeTheirPointAndNotByWhatTheyLieOn)
{
    m_model->setImage(plainImage(24, 24, 0xffcc00ff), "load");
    m_model->setPhysicsMarker(PartSheet, 0, "load");
    const auto isYellow = [](const Rgb& color) { return color == rgb(0xffcc00); };
    lookFrom(m_canvas, -70.0, 20.0);
    EXPECT_EQ(count(drawn(m_canvas), isYellow), 24 * 24);
    m_scene.root->setChild(m_group);
    const auto roof = m_scene.addSquare(7, 0x00ff00, 1.0);
    m_group->addChild(m_scene.group);
    lookFrom(m_canvas, -90.0, 90.0);
    EXPECT_EQ(count(drawn(m_canvas), isYellow), 0);
    roof->setActive(false);
    EXPECT_EQ(count(drawn(m_canvas), isYellow), 24 * 24);
}

TEST_F(PhysicsPainterTest, connectorsRunFromTheirIconToEachOfTheirPoints)
{
    m_model->setImage(plainImage(10, 10, 0xffcc00ff), "spring");
    m_model->setPhysicsConnector(PartLine, {0, 5}, "spring", {1.5f, 0.8f, 0.0f});
    const Picture shown = drawn(m_canvas);
    const Rgb line = rgb(0x606060);
    EXPECT_EQ(at(shown, 1.5f, 0.8f), rgb(0xffcc00));
    // The middles of both lines, and the lines on the way there.
    EXPECT_EQ(at(shown, 0.5f, 0.0f), line);
    EXPECT_EQ(at(shown, 3.0f, 0.5f), line);
    EXPECT_NEAR(at(shown, 1.0f, 0.4f)[0], 0x60, 0x30);
    EXPECT_NEAR(at(shown, 2.25f, 0.65f)[0], 0x60, 0x30);
    EXPECT_EQ(at(shown, 1.5f, 0.3f), rgb(colorOf(0, 0)));
}

TEST_F(PhysicsPainterTest, exportsHaveMarkersIfBothTheScreenAndTheirSettingsShowThem)
{
    m_model->setImage(plainImage(20, 12, 0xffcc00ff), "load");
    m_model->setPhysicsMarker(PartLine, 5, "load");
    drawn(m_canvas);
    HardcopySettings settings;
    const auto bytes = [&] { return m_canvas.encodeHardcopy(settings, c_size, c_size); };
    const auto with = bytes();
    settings.setShowPhysicsMarkers(false);
    const auto without = bytes();
    EXPECT_NE(with, without);
    settings.setShowPhysicsMarkers(true);
    m_canvas.getSceneSettings()->setShowPhysicsMarkers(false);
    EXPECT_EQ(bytes(), without);
}

} // namespace
} // namespace vxrenderer
