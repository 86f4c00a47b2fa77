// Which results of a pick a picture shows.

#include "graphics3d/cameras/camera3d.h"
#include "graphics3d/canvas/canvas3dsettings.h"
#include "graphics3d/canvas/scenesettings.h"
#include "graphics3d/geometry/scenegraphdrawobjectcurve.h"
#include "graphics3d/geometry/scenegraphdrawobjectsolid.h"
#include "graphics3d/picking/pickedobjectcollection.h"
#include "graphics3d/scenegraph/scenegraphgroup.h"
#include "renderer/frame/appearance.h"
#include "tests/renderer/support/testscene.h"
#include "tests/support/geometryrecords.h"
#include "tests/support/randomnumbers.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <stdexcept>

namespace vxrenderer {
namespace {

using namespace vxgraphics3d;

/// A cube from -1 to 1. Faces 2 i and 2 i + 1 are those at -1 and 1 on axis i, each of 2 n n triangles; lines are the
/// edges by the pairs of faces (a, b), a < b, in order; points are the corners, bit i of the index for 1 on axis i.
vxdatacarrier::RenderDraw3D cube(int id, int n = 3)
{
    using namespace vxdatacarrier;
    RenderDraw3D record;
    record.m_id = id;
    record.m_box.m_xMin = record.m_box.m_yMin = record.m_box.m_zMin = -1.0f;
    record.m_box.m_xMax = record.m_box.m_yMax = record.m_box.m_zMax = 1.0f;
    const auto at = [](int axis, float x, float a, float b) {
        const std::array<float, 3> p = axis == 0   ? std::array{x, a, b}
                                       : axis == 1 ? std::array{b, x, a}
                                                   : std::array{a, b, x};
        return Coords3D{p[0], p[1], p[2]};
    };
    record.m_numSheets = 6;
    record.m_sheets = std::make_unique<Sheet3D[]>(6);
    for (int face = 0; face < 6; ++face) {
        const float side = face % 2 == 0 ? -1.0f : 1.0f;
        const Coords3D normal = at(face / 2, side, 0.0f, 0.0f);
        std::vector<CoordsNormal3D> vertices;
        std::vector<Triangle> triangles;
        for (int i = 0; i <= n; ++i) {
            for (int k = 0; k <= n; ++k) {
                const auto place = [n](int step) {
                    return -1.0f + 2.0f * static_cast<float>(step) / static_cast<float>(n);
                };
                const Coords3D p = at(face / 2, side, place(i), place(k));
                vertices.push_back({p.x, p.y, p.z, normal.x, normal.y, normal.z});
                if (i < n && k < n) {
                    const int first = i * (n + 1) + k;
                    triangles.push_back({first, first + 1, first + n + 1});
                    triangles.push_back({first + 1, first + n + 2, first + n + 1});
                }
            }
        }
        Sheet3D& sheet = record.m_sheets[static_cast<std::size_t>(face)];
        sheet.m_isValid = true;
        sheet.m_numVertices = static_cast<int>(vertices.size());
        sheet.m_vertices = arrayOf(vertices);
        sheet.m_numTriangles = static_cast<int>(triangles.size());
        sheet.m_triangles = arrayOf(triangles);
    }
    record.m_numCurves = 12;
    record.m_curves = std::make_unique<Curve3D[]>(12);
    int line = 0;
    for (int a = 0; a < 6; ++a) {
        for (int b = a - a % 2 + 2; b < 6; ++b) {
            const int axis = 3 - a / 2 - b / 2;
            std::array<float, 3> p{};
            p[static_cast<std::size_t>(a / 2)] = a % 2 == 0 ? -1.0f : 1.0f;
            p[static_cast<std::size_t>(b / 2)] = b % 2 == 0 ? -1.0f : 1.0f;
            p[static_cast<std::size_t>(axis)] = -1.0f;
            Coords3D from{p[0], p[1], p[2]};
            p[static_cast<std::size_t>(axis)] = 1.0f;
            Curve3D& curve = record.m_curves[static_cast<std::size_t>(line++)];
            curve.m_isValid = true;
            curve.m_numVertices = 2;
            curve.m_vertices = arrayOf(std::vector<Coords3D>{from, {p[0], p[1], p[2]}});
        }
    }
    record.m_numPoints = 8;
    record.m_points = std::make_unique<Coords3D[]>(8);
    for (int i = 0; i < 8; ++i) {
        const auto side = [i](int axis) { return (i >> axis & 1) != 0 ? 1.0f : -1.0f; };
        record.m_points[static_cast<std::size_t>(i)] = {side(0), side(1), side(2)};
    }
    return record;
}

class VisiblePartsTest : public ::testing::Test {
protected:
    using Indices = std::set<int>;

    VisiblePartsTest()
    {
        m_scene.root->setChild(m_group);
        m_canvas.setScene(m_scene.scene);
        m_canvas.getCanvas3dSettings()->setRenderMode(Canvas3dSettings::RenderMode3d);
        m_canvas.getCanvas3dSettings()->setRenderMask(RenderObjects | RenderPlots);
    }

    template <class Object>
    boost::shared_ptr<Object> add(const vxdatacarrier::RenderDraw3D& record)
    {
        const auto object = Object::create(record.m_id);
        object->fillData(record);
        m_group->addChild(object);
        return object;
    }

    /// The parts of a kind of an object that the picture shows.
    Indices shown(PartType type, int id, int count)
    {
        PickedObjectCollection picked;
        for (int i = 0; i < count; ++i) {
            picked.addPickedObjectSolidPart(id, type, i);
        }
        m_canvas.keepVisible(picked);
        Indices indices;
        for (int i = 0; i < picked.getNumberOfPickedObjects(); ++i) {
            indices.insert(picked.getPickedObject(i).getPartId());
        }
        return indices;
    }
    bool isShown(const PickedObject& object)
    {
        PickedObjectCollection picked;
        picked.add(object);
        m_canvas.keepVisible(picked);
        return picked.getNumberOfPickedObjects() == 1;
    }

    TestScene m_scene;
    boost::shared_ptr<SceneGraphGroup> m_group = SceneGraphGroup::create();
    OffscreenCanvas m_canvas{300, 240, 4};
};

TEST_F(VisiblePartsTest, ofACubeAreThoseOnTheSidesTowardsTheEye)
{
    add<SceneGraphDrawObjectSolid>(cube(4));
    Camera3d& camera = *m_canvas.getCanvas3dSettings()->camera3d();
    RandomNumbers random(5);
    int numViews = 0;
    for (int i = 0; i < 60; ++i) {
        const bool isPerspective = i % 2 == 0;
        camera.setProjectionType(isPerspective ? Camera3d::ProjectionPerspective : Camera3d::ProjectionOrthographic);
        lookFrom(m_canvas, random.integer(0, 359), random.integer(-70, 70));
        m_canvas.zoomExtents();
        m_canvas.draw(i % 4 < 2 ? Quality::full : Quality::draft);
        Indices faces;
        bool isClear = true;
        const Vector3f eye = camera.getPosition();
        const Vector3f direction = camera.getLookAtDirection();
        for (int face = 0; face < 6; ++face) {
            const float side = face % 2 == 0 ? -1.0f : 1.0f;
            const auto along = [face](const Vector3f& v) { return face / 2 == 0 ? v.x : face / 2 == 1 ? v.y : v.z; };
            const float facing = isPerspective ? (along(eye) * side - 1.0f) / eye.length() : -along(direction) * side;
            // Lines on faces that are seen at a flat angle may be hidden by them.
            isClear = isClear && std::abs(facing) > 0.2f;
            if (facing > 0.0f) {
                faces.insert(face);
            }
        }
        if (!isClear) {
            continue;
        }
        ++numViews;
        Indices lines;
        int line = 0;
        Indices points;
        for (int a = 0; a < 6; ++a) {
            for (int b = a - a % 2 + 2; b < 6; ++b, ++line) {
                if (faces.contains(a) || faces.contains(b)) {
                    lines.insert(line);
                }
            }
        }
        for (int corner = 0; corner < 8; ++corner) {
            for (int axis = 0; axis < 3; ++axis) {
                if (faces.contains(2 * axis + (corner >> axis & 1))) {
                    points.insert(corner);
                }
            }
        }
        EXPECT_EQ(shown(PartTypeSheet, 4, 6), faces) << "view " << i;
        EXPECT_EQ(shown(PartTypeLine, 4, 12), lines) << "view " << i;
        EXPECT_EQ(shown(PartTypePoint, 4, 8), points) << "view " << i;
    }
    EXPECT_GT(numViews, 15);
}

TEST_F(VisiblePartsTest, areHiddenByWhateverIsInFrontOfThem)
{
    // From above: two rectangles, the left of which a plot hides.
    const auto solid = add<SceneGraphDrawObjectSolid>(twoRectangles(1));
    const auto both = SceneGraphGroup::create();
    both->addChild(m_group);
    both->addChild(m_scene.group);
    m_scene.root->setChild(both);
    m_scene.addSquare(1, 0x00ff00, 0.5);
    m_canvas.getCanvas3dSettings()->camera3d()->setProjectionType(Camera3d::ProjectionOrthographic);
    lookFrom(m_canvas, -90.0, 90.0);
    m_canvas.zoomExtents();
    m_canvas.draw();
    const Picture before = drawnAsIs(m_canvas);
    EXPECT_EQ(shown(PartTypeSheet, 1, 2), Indices{1});
    EXPECT_EQ(drawnAsIs(m_canvas).bytes, before.bytes) << "the picture stays";
    // Marked parts are drawn in front of others at the same depth.
    solid->mark(PartSheet, 1, SceneGraphObject::MarkingPrimary, true);
    m_canvas.draw();
    EXPECT_EQ(shown(PartTypeSheet, 1, 2), Indices{1});
    solid->mark(PartSheet, 1, SceneGraphObject::MarkingHidden, true);
    m_canvas.draw();
    EXPECT_EQ(shown(PartTypeSheet, 1, 2), Indices());
    m_scene.group->removeAllPlots();
    m_canvas.draw();
    EXPECT_EQ(shown(PartTypeSheet, 1, 2), Indices{0});
    m_canvas.getCanvas3dSettings()->setRenderMask(RenderPlots);
    m_canvas.draw();
    EXPECT_EQ(shown(PartTypeSheet, 1, 2), Indices()) << "no objects are drawn";
}

TEST_F(VisiblePartsTest, includeObjectsAndKeepResultsOfOtherKinds)
{
    add<SceneGraphDrawObjectSolid>(cube(4));
    auto inner = cube(5);
    for (int i = 0; i < 12; ++i) {
        for (int k = 0; k < 2; ++k) {
            auto& p = inner.m_curves[static_cast<std::size_t>(i)].m_vertices[static_cast<std::size_t>(k)];
            p = {0.5f * p.x, 0.5f * p.y, 0.5f * p.z};
        }
    }
    const auto curve = add<SceneGraphDrawObjectCurve>(inner);
    EXPECT_THROW(isShown(PickedObject()), std::logic_error) << "nothing was drawn";
    lookFrom(m_canvas, 30.0, 40.0);
    m_canvas.zoomExtents();
    m_canvas.draw();
    EXPECT_TRUE(isShown({PickedObject::PickedSolid, 4, PartTypeNone, -1}));
    EXPECT_FALSE(isShown({PickedObject::PickedCurve, 5, PartTypeNone, -1})) << "inside the cube";
    EXPECT_TRUE(isShown({PickedObject::PickedPlot, 5, PartTypeNone, -1}));
    EXPECT_TRUE(isShown({PickedObject::PickedSolid, 9, PartTypeSheet, 0})) << "no such object";
    EXPECT_TRUE(isShown({PickedObject::PickedSolid, 4, PartTypeSheet, 6})) << "no such part";
    EXPECT_TRUE(isShown({PickedObject::PickedPhysics, 4, PartTypeSheet, 0})) << "no such physics object";
    m_canvas.getSceneSettings()->setGlobalOpacity(0.5f);
    m_canvas.draw();
    EXPECT_EQ(shown(PartTypeSheet, 4, 6).size(), 6u) << "translucent faces hide nothing";
    m_canvas.setScene(nullptr);
    m_canvas.draw();
    EXPECT_FALSE(isShown({PickedObject::PickedSolid, 4, PartTypeNone, -1}));
}

} // namespace
} // namespace vxrenderer
