#include "interaction/pickinteraction.h"

#include "datacarrier/rendergeom3d.h"
#include "graphics3d/geometry/scenegraphdrawobjectcurve.h"
#include "graphics3d/geometry/scenegraphdrawobjectface.h"
#include "graphics3d/geometry/scenegraphdrawobjectsolid.h"
#include "graphics3d/geometry/scenegraphphysicsobject.h"
#include "graphics3d/picking/canvaspicksettings.h"
#include "graphics3d/picking/pickedobjectcollection.h"
#include "graphics3d/picking/selectionfrustrum.h"
#include "graphics3d/scene/scene.h"
#include "graphics3d/scenegraph/scenegraphgroup.h"
#include "graphics3d/scenegraph/scenegraphroot.h"
#include "interaction/pickmarking.h"
#include "tests/interaction/testview.h"
#include "tests/support/geometryrecords.h"
#include "tests/support/randomgeometry.h"

#include <algorithm>
#include <array>
#include <climits>
#include <set>
#include <stdexcept>
#include <utility>

namespace vxinteraction {
namespace {

using namespace vxgraphics3d;
using Picks = std::vector<std::pair<int, int>>;

/// The picking tolerance during its lifetime.
class Tolerance {
public:
    explicit Tolerance(int pixels) : m_before(process().getPickingTolerance())
    {
        process().setPickingTolerance(pixels);
    }
    ~Tolerance() { process().setPickingTolerance(m_before); }

private:
    int m_before;
};

template <class Record = vxdatacarrier::RenderDraw3D>
Record rectanglesAt(int id, float z)
{
    auto record = twoRectangles<Record>(id);
    for (int i = 0; i < record.m_numPoints; ++i) {
        record.m_points[static_cast<std::size_t>(i)].z = z;
    }
    for (int i = 0; i < record.m_numCurves; ++i) {
        auto& curve = record.m_curves[static_cast<std::size_t>(i)];
        for (int k = 0; k < curve.m_numVertices; ++k) {
            curve.m_vertices[static_cast<std::size_t>(k)].z = z;
        }
    }
    for (int i = 0; i < record.m_numSheets; ++i) {
        auto& sheet = record.m_sheets[static_cast<std::size_t>(i)];
        for (int k = 0; k < sheet.m_numVertices; ++k) {
            sheet.m_vertices[static_cast<std::size_t>(k)].z = z;
        }
    }
    record.m_box.m_zMin = record.m_box.m_zMax = z;
    return record;
}

/// A front view of rectangles at several depths. At depth 0 a unit has 100 pixels: the sides at x = 0 and x = 1 are in
/// the middle of the columns 199 and 299, those at y = 0 and y = 1 in the middle of the rows 100 and 0.
struct Picking {
    TestView view;
    Scene scene;
    boost::shared_ptr<SceneGraphGroup> group = SceneGraphGroup::create();
    std::vector<boost::shared_ptr<SceneGraphDrawObject>> objects;
    std::vector<boost::shared_ptr<SceneGraphPhysicsObject>> models;
    boost::shared_ptr<CanvasPickSettings> settings = boost::make_shared<CanvasPickSettings>();
    PickedObjectCollection result;
    Tolerance tolerance{5};

    explicit Picking(std::vector<float> depths = {0.0f}, Kind kind = Orthographic) : view(frontView(kind))
    {
        view.camera3d().lookAt({0.005f, 0.005f, 10.0f}, {0.0f, 0.0f, -1.0f}, {0.0f, 1.0f, 0.0f});
        for (const float z : depths) {
            add<SceneGraphDrawObjectSolid>(z);
        }
        scene.getRoot()->setChild(group);
        settings->pickMask = 7;
    }

    template <class Object>
    void add(float z)
    {
        const int id = static_cast<int>(objects.size());
        const auto object = Object::create(id);
        object->fillData(rectanglesAt(id, z));
        group->addChild(object);
        objects.push_back(object);
    }

    PickInteraction interaction() const { return {view.settings, settings, view.canvasHeight}; }

    /// Object and part of each hit.
    Picks hits() const
    {
        Picks picks;
        for (int i = 0; i < result.getNumberOfPickedObjects(); ++i) {
            picks.emplace_back(result.getPickedObject(i).getObjectId(), result.getPickedObject(i).getPartId());
        }
        return picks;
    }
    Picks click(int target, int x, int y)
    {
        settings->pickTarget = target;
        const int count = interaction().click(scene, result, x, y);
        EXPECT_EQ(count, result.getNumberOfPickedObjects());
        return hits();
    }
    Picks rectangle(int target, int x0, int y0, int x1, int y1)
    {
        settings->pickTarget = target;
        interaction().rectangle(scene, result, x0, y0, x1, y1);
        return hits();
    }
};

constexpr int c_object = CanvasPickSettings::PickObject;
constexpr int c_sheet = CanvasPickSettings::PickSheet;
constexpr int c_line = CanvasPickSettings::PickLine;
constexpr int c_point = CanvasPickSettings::PickPoint;

TEST(PickInteraction, clicksFindWhatIsUnderThePointerBeforeWhatIsOnlyNear)
{
    Picking picking;
    EXPECT_EQ(picking.click(c_sheet, 250, 50), (Picks{{0, 0}}));
    EXPECT_EQ(picking.click(c_sheet, 249, 50), (Picks{{0, 0}})) << "on the side between two triangles";
    EXPECT_EQ(picking.click(c_sheet, 298, 50), (Picks{{0, 0}, {0, 1}}));
    EXPECT_EQ(picking.click(c_sheet, 301, 50), (Picks{{0, 1}, {0, 0}}));
    EXPECT_EQ(picking.click(c_sheet, 190, 50), Picks());
    EXPECT_EQ(picking.click(c_line, 304, 50), (Picks{{0, 1}}));
    EXPECT_EQ(picking.click(c_line, 305, 50), Picks());
    EXPECT_EQ(picking.click(c_point, 304, 95), (Picks{{0, 1}}));
    EXPECT_EQ(picking.click(c_point, 304, 94), Picks());
    EXPECT_EQ(picking.click(c_object, 304, 95), (Picks{{0, -1}}));
    // Three lines meet in the point: the one next to the pointer is first.
    EXPECT_EQ(picking.click(c_line, 302, 99), (Picks{{0, 4}, {0, 1}, {0, 0}}));
    EXPECT_EQ(picking.click(c_line, 298, 96), (Picks{{0, 1}, {0, 0}, {0, 4}}));
    picking.settings->pickMask = CanvasPickSettings::PickMaskLines;
    EXPECT_EQ(picking.click(c_sheet, 250, 50), Picks());
    EXPECT_EQ(picking.click(c_object, 250, 50), Picks()) << "no line is near";
    EXPECT_EQ(picking.click(c_object, 304, 50), (Picks{{0, -1}}));
    process().setPickingTolerance(0);
    EXPECT_EQ(picking.click(c_line, 299, 50), (Picks{{0, 1}}));
    EXPECT_EQ(picking.click(c_line, 298, 50), Picks());
}

TEST(PickInteraction, clicksFindTheNearestFirst)
{
    for (const Kind kind : {Orthographic, Perspective}) {
        SCOPED_TRACE(kind);
        Picking picking({0.0f, 1.0f, -1.0f, 0.5f}, kind);
        EXPECT_EQ(picking.click(c_sheet, 250, 50), (Picks{{1, 0}, {3, 0}, {0, 0}, {2, 0}}));
        EXPECT_EQ(picking.click(c_object, 250, 50), (Picks{{1, -1}, {3, -1}, {0, -1}, {2, -1}}));
        EXPECT_EQ(picking.click(c_point, 199, 100), (Picks{{1, 0}, {3, 0}, {0, 0}, {2, 0}}));
        picking.objects[1]->mark(SceneGraphObject::MarkingUnpickable, true);
        picking.objects[3]->mark(PartSheet, 0, SceneGraphObject::MarkingHidden, true);
        picking.objects[0]->setActive(false);
        EXPECT_EQ(picking.click(c_sheet, 250, 50), (Picks{{2, 0}}));
    }
}

TEST(PickInteraction, clicksPreferASheetUnderThePointerToOneInFrontOfItNextToThePointer)
{
    Picking picking({0.0f});
    picking.add<SceneGraphDrawObjectFace>(1.0f);
    picking.objects[1]->mark(PartSheet, 1, SceneGraphObject::MarkingHidden, true);
    EXPECT_EQ(picking.click(c_sheet, 302, 50), (Picks{{0, 1}, {1, 0}, {0, 0}}));
}

TEST(PickInteraction, clicksAskOtherNodesLast)
{
    class Note : public SceneGraphObject {
    public:
        static boost::shared_ptr<Note> create() { return own(new Note); }
        void getSelection(const SelectionFrustrum& frustum, const CanvasPickSettings&, PickedObjectCollection& result,
                          bool) const override
        {
            if (frustum.isInside(0.5f, 0.5f, 0.0f)) {
                result.addPickedOverlay(8, PartTypePoint, 1);
            }
        }
        void getMarkedBoundingBox(BoundingBox&, int, int) const override {}

    private:
        Note() : SceneGraphObject(ObjectProbe) { setBoundingBox({0.0f, 1.0f, 0.0f, 1.0f, 0.0f, 0.0f}); }
    };
    Picking picking(std::vector<float>{});
    picking.group->addChild(Note::create());
    picking.add<SceneGraphDrawObjectSolid>(0.0f);
    EXPECT_EQ(picking.click(c_sheet, 249, 50), (Picks{{0, 0}, {8, 1}}));
    EXPECT_EQ(picking.click(c_sheet, 230, 50), (Picks{{0, 0}}));
}

TEST(PickInteraction, clicksFindSubdomainsByTheirSheets)
{
    Picking picking(std::vector<float>{});
    for (const int id : {1, 2}) {
        const auto model = SceneGraphPhysicsObject::create(id);
        model->fillData(rectanglesAt<vxdatacarrier::RenderGeom3D>(id, static_cast<float>(id)));
        picking.group->addChild(model);
        picking.models.push_back(model);
    }
    picking.settings->pickMask = 0;
    EXPECT_EQ(picking.click(CanvasPickSettings::PickSubdomain, 250, 50), (Picks{{2, 0}, {1, 0}}));
    EXPECT_EQ(picking.click(CanvasPickSettings::PickSubdomain, 302, 50), (Picks{{2, 1}, {1, 1}, {2, 0}, {1, 0}}));
    EXPECT_EQ(picking.click(c_sheet, 250, 50), (Picks{{2, 0}, {1, 0}})) << "no mask";
    EXPECT_EQ(picking.click(c_object, 250, 50), Picks());
    picking.click(CanvasPickSettings::PickSubdomain, 250, 50);
    EXPECT_EQ(markPicked(picking.scene, picking.result, SceneGraphObject::MarkingHidden, true), 2);
    EXPECT_TRUE(picking.models[0]->getParts().getSheets().getPart(0).isMarked(MarkHiddenAdjacent));
    EXPECT_EQ(picking.click(CanvasPickSettings::PickSubdomain, 250, 50), Picks());
}

TEST(PickInteraction, rectanglesFindWhatIsInsideInTheOrderOfTheTree)
{
    Picking picking({0.0f, 1.0f, -1.0f});
    const Picks first{{0, 0}, {1, 0}, {2, 0}};
    EXPECT_EQ(picking.rectangle(c_sheet, 199, 0, 299, 100), first);
    EXPECT_EQ(picking.rectangle(c_sheet, 299, 100, 199, 0), first) << "any two corners";
    EXPECT_EQ(picking.rectangle(c_sheet, 199, 1, 299, 100), Picks());
    EXPECT_EQ(picking.rectangle(c_line, 199, 90, 299, 110), first);
    EXPECT_EQ(picking.rectangle(c_line, 200, 90, 299, 110), Picks());
    EXPECT_EQ(picking.rectangle(c_line, 199, 90, 298, 110), Picks());
    EXPECT_EQ(picking.rectangle(c_line, 199, 90, 299, 99), Picks());
    EXPECT_EQ(picking.rectangle(c_point, INT_MIN, INT_MIN, INT_MAX, INT_MAX).size(), 12u) << "all that are in view";
}

TEST(PickInteraction, shortDragsAreClicks)
{
    Picking picking;
    picking.settings->pickTarget = c_line;
    const PickInteraction interaction = picking.interaction();
    EXPECT_EQ(interaction.drag(picking.scene, picking.result, 309, 50, 304, 50), 1);
    EXPECT_EQ(interaction.drag(picking.scene, picking.result, 304, 50, 304, 56), 0) << "a rectangle";
    EXPECT_EQ(interaction.drag(picking.scene, picking.result, 195, 90, 305, 110), 1);
    EXPECT_EQ(interaction.drag(picking.scene, picking.result, INT_MIN, 90, INT_MAX, 110), 1);
    process().setPickingTolerance(-7);
    EXPECT_EQ(interaction.drag(picking.scene, picking.result, 299, 50, 299, 50), 1) << "counts as 0";
}

TEST(PickInteraction, leavesTheListEmptyForClicksOutsideOfTheRenderArea)
{
    Picking picking;
    picking.view.camera3d().setRenderArea(600, 300, 100, 50, 400, 200);
    picking.view.canvasHeight = 300;
    // The picture has moved to the right by 100, and 50 rows have come in above it and 50 below.
    EXPECT_EQ(picking.click(c_sheet, 350, 100), (Picks{{0, 0}}));
    for (const auto& [x, y] : {std::pair(350, 49), {350, 250}, {99, 149}, {500, 149}, {INT_MAX, 149}, {350, INT_MIN}}) {
        picking.result.addPickedPlot(1);
        EXPECT_EQ(picking.click(c_sheet, x, y), Picks()) << x << ' ' << y;
    }
    EXPECT_EQ(picking.click(c_sheet, 350, 50), (Picks{{0, 0}}));
}

TEST(PickInteraction, refusesViewsWithoutSettingsOrRows)
{
    const auto settings = boost::make_shared<Canvas3dSettings>();
    const auto pickSettings = boost::make_shared<CanvasPickSettings>();
    EXPECT_THROW(PickInteraction(nullptr, pickSettings, 10), std::invalid_argument);
    EXPECT_THROW(PickInteraction(settings, nullptr, 10), std::invalid_argument);
    EXPECT_THROW(PickInteraction(settings, pickSettings, 0), std::invalid_argument);
    EXPECT_THROW(PickInteraction(settings, pickSettings, 10).setCanvasHeight(-1), std::invalid_argument);
}

// --- clicks in random scenes, beside samples of the geometry
// ----------------------------------------------------------

/// How far the samples of a part are from the middle of a pixel at least, in the larger of both directions.
class Samples {
public:
    Samples(TestView& view, const AreaPoint& pointer) : m_view(view), m_pointer(pointer) {}

    void addLine(const Vector3f& a, const Vector3f& b)
    {
        for (int i = 0; i <= c_steps; ++i) {
            add(a + (b - a) * (static_cast<float>(i) / c_steps));
        }
    }
    void addTriangle(const Vector3f& a, const Vector3f& b, const Vector3f& c)
    {
        for (int i = 0; i <= c_steps; ++i) {
            const float t = static_cast<float>(i) / c_steps;
            addLine(a + (b - a) * t, a + (c - a) * t);
        }
    }
    void add(const Vector3f& p)
    {
        const AreaPoint pixel = m_view.project(p);
        distance = std::min(distance, std::max(std::fabs(pixel.x - m_pointer.x), std::fabs(pixel.y - m_pointer.y)));
    }

    float distance = INFINITY;

private:
    static constexpr int c_steps = 16;
    TestView& m_view;
    AreaPoint m_pointer;
};

float distanceOf(const Point& point, Samples samples)
{
    samples.add(point.getPosition());
    return point.hasPosition() ? samples.distance : INFINITY;
}

float distanceOf(const Line& line, Samples samples)
{
    for (int i = 0; i + 1 < line.getVertices().getNumberOfVertices(); i += 2) {
        samples.addLine(line.getVertices().getCoord(i), line.getVertices().getCoord(i + 1));
    }
    return samples.distance;
}

float distanceOf(const Sheet& sheet, Samples samples)
{
    for (int i = 0; i < sheet.getTriangles().getNumElements(0); ++i) {
        const auto corner = [&](int k) { return sheet.getTriangles().getVertex(0, 3 * i + k); };
        samples.addTriangle(corner(0), corner(1), corner(2));
    }
    return samples.distance;
}

/// All parts of an object whose samples reach into the square of a click must be found, and none that are clearly
/// outside of it.
template <class Parts>
void expectHits(const Parts& parts, PartType type, const Samples& samples, float half,
                const PickedObjectCollection& result, std::array<int, 2>& numSeen)
{
    std::set<int> found;
    for (int i = 0; i < result.getNumberOfPickedObjects(); ++i) {
        ASSERT_EQ(result.getPickedObject(i).getPartType(), type);
        found.insert(result.getPickedObject(i).getPartId());
    }
    for (int i = 0; i < parts.getNumParts(); ++i) {
        const float distance = distanceOf(parts.getPart(i), samples);
        if (distance < half - 0.01f) {
            EXPECT_TRUE(found.contains(i)) << "part " << i << " of type " << type << " at " << distance;
            ++numSeen[1];
        } else if (distance > half + 30.0f) {
            EXPECT_FALSE(found.contains(i)) << "part " << i << " of type " << type << " at " << distance;
            ++numSeen[0];
        }
    }
}

TEST(PickInteraction, clicksFindWhatTheirSquareShows)
{
    std::array<int, 2> numSeen{};
    forRandomViews({Perspective, Orthographic, Planar}, [&](TestView& view) {
        const Vector3f centre = view.isPlanar() ? Vector3f() : view.camera3d().getRotationPoint();
        vxdatacarrier::RenderDraw3D record;
        RandomGeometry(view, centre, 1.0f).fill(record);
        const auto object = SceneGraphDrawObjectSolid::create(0);
        object->fillData(record);
        const auto group = SceneGraphGroup::create();
        group->addChild(object);
        Scene scene;
        scene.getRoot()->setChild(group);
        const auto settings = boost::make_shared<CanvasPickSettings>();
        settings->pickMask = 7;
        const PickInteraction interaction(view.settings, settings, view.canvasHeight);
        for (int i = 0; i < 8; ++i) {
            const Tolerance tolerance(view.integer(0, 30));
            const auto margin = static_cast<float>(process().getPickingTolerance());
            const AreaPoint target = view.project(centre + view.vector(1.0f));
            const TestView::Pixel pixel = view.pixel(static_cast<int>(target.x), static_cast<int>(target.y));
            // Not next to the borders, which cut the square off.
            if (target.x < margin || target.y < margin ||
                target.x + margin + 1.0f > static_cast<float>(view.camera().getRenderAreaWidth()) ||
                target.y + margin + 1.0f > static_cast<float>(view.camera().getRenderAreaHeight())) {
                continue;
            }
            const Samples samples(view, pixel.middle);
            PickedObjectCollection result;
            const auto click = [&](int kind) {
                settings->pickTarget = kind;
                interaction.click(scene, result, pixel.x, pixel.y);
            };
            click(c_point);
            expectHits(object->getParts().getPoints(), PartTypePoint, samples, margin + 0.5f, result, numSeen);
            click(c_line);
            expectHits(object->getParts().getLines(), PartTypeLine, samples, margin + 0.5f, result, numSeen);
            click(c_sheet);
            expectHits(object->getParts().getSheets(), PartTypeSheet, samples, margin + 0.5f, result, numSeen);
        }
    });
    EXPECT_GT(numSeen[0], 1000);
    EXPECT_GT(numSeen[1], 1000);
}

// --- marks
// --------------------------------------------------------------------------------------------------------------

TEST(PickMarking, marksPartsAndObjectsByTheirIds)
{
    Picking picking({0.0f, 1.0f});
    picking.add<SceneGraphDrawObjectCurve>(0.0f);
    const auto isMarked = [&](int object, int sheet) {
        return picking.objects[static_cast<std::size_t>(object)]->getParts().getSheets().isPrimaryMarked(sheet);
    };
    picking.click(c_sheet, 250, 50);
    picking.result.addPickedObjectSolidPart(0, PartTypeSheet, 7);
    picking.result.addPickedObjectSolidPart(0, PartTypeSheet, -1);
    picking.result.addPickedObjectSolidPart(2, PartTypeSheet, 0);
    picking.result.addPickedObjectSolidPart(9, PartTypeSheet, 0);
    picking.result.addPickedObjectSolid(2);
    picking.result.addPickedPlot(0);
    EXPECT_EQ(markPicked(picking.scene, picking.result, SceneGraphObject::MarkingPrimary, true), 2);
    EXPECT_TRUE(isMarked(0, 0) && isMarked(1, 0));
    EXPECT_FALSE(isMarked(0, 1) || isMarked(1, 1));
    EXPECT_TRUE(picking.objects[0]->getParts().getLines().getPart(1).isMarked(MarkPrimaryAdjacent));
    EXPECT_EQ(markPicked(picking.scene, picking.result, SceneGraphObject::MarkingPrimary, false), 2);
    EXPECT_FALSE(isMarked(0, 0) || isMarked(1, 0));
    picking.result.reset();
    picking.result.addPickedObjectSolid(1);
    picking.result.addPickedObjectCurve(2);
    EXPECT_EQ(markPicked(picking.scene, picking.result, SceneGraphObject::MarkingPrimary, true), 2);
    EXPECT_TRUE(isMarked(1, 0) && isMarked(1, 1));
    EXPECT_EQ(picking.objects[2]->getParts().getLines().getNumPrimary(), 7);
}

} // namespace
} // namespace vxinteraction
